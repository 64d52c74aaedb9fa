#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/SchemaIndex.h"

#include <cstddef>

namespace citygml {
namespace binding {

/// Goes over the children of one member as they are written: its values, and between them those that are
/// absent, of which only the kept content knows.
class MemberCursor
{
public:
    struct Child
    {
        /// Index of the value in the member, unless it is absent.
        std::size_t index = 0;
        bool isAbsent = false;
        /// What is kept about the value, or null; never null for one that is absent.
        const KeptContent::Value* kept = nullptr;
    };

    /// \param kept of the owner; may be null
    MemberCursor(const xml_schema::type& owner, const TypeIndex::FlatMember& member, const KeptContent* kept)
        : ofMember(&member), count(writtenCount(owner, member))
    {
        // Of most objects nothing is kept, and most of their members are empty: the way there is short.
        if (kept != nullptr) {
            findKept(*kept);
        }
    }

    const TypeIndex::FlatMember& member() const { return *ofMember; }
    bool atEnd() const { return value == count && !isAbsent(); }
    Child take();
    /// Number of children up to the end.
    std::size_t countOfRest() const;

private:
    void findKept(const KeptContent& content);
    /// Whether the next child is absent. Where values have been removed, absent ones come at the end.
    bool isAbsent() const
    {
        return kept != keptEnd && kept->isAbsent && (kept->index <= value || value == count);
    }

    const TypeIndex::FlatMember* ofMember;
    std::size_t count;
    std::size_t value = 0;
    // What is kept about the next values.
    const KeptContent::Value* kept = nullptr;
    const KeptContent::Value* keptEnd = nullptr;
};

} // namespace binding
} // namespace citygml

#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace citygml {
namespace binding {

class NameResolver;

/// An element between its start and its end tag, that the schema has a member for.
struct OpenElement
{
    /// What stands in the element: the children of an object, the text of an object, or a value of a
    /// fundamental type, which is no object.
    enum class Content : std::uint8_t { Children, Text, Value };

    Content content;
    NameId name;
    /// The element's object; of a value the object that has it.
    xml_schema::type* object;
    /// Null for a value.
    const TypeIndex* type;
    /// The member that takes the value; null for an object.
    const TypeIndex::FlatMember* member;
    /// Whether `xsi:nil` says so.
    bool isNil = false;
    /// Where the last child stands, or the front.
    KeptContent::Position lastChild = KeptContent::Position::inFront();
    /// Bits of the required members that were met.
    std::uint64_t met = 0;
};

/// The open elements from the root to the innermost, and in which order their children came.
class OpenElements
{
public:
    bool isEmpty() const { return elements.empty(); }
    std::size_t count() const { return elements.size(); }
    /// The innermost. The reference holds until the next element opens.
    OpenElement& top() { return elements.back().element; }

    void open(const OpenElement& element) { elements.push_back({element, alternating.size()}); }
    void close();
    /// Notes that a child of the innermost element begins; to be told before the member takes it.
    void beginChild(const TypeIndex::FlatMember& member);
    /// Members of the innermost element's children that may alternate, in the order of the document; empty
    /// where that is the order of the schema.
    std::vector<MemberIndex> alternatingOrder() const;

    /// For messages: the names, one behind the other; of a long path its two ends.
    std::string path(const NameResolver& names) const;
    /// The names of all, one behind the other.
    std::string wholePath(const NameResolver& names) const;
    /// Identifier of the innermost feature; empty where there is none, or it has no identifier.
    std::string featureId() const;

private:
    struct Entry
    {
        OpenElement element;
        /// Where its children begin among those that may alternate.
        std::size_t firstAlternating;
    };

    std::vector<Entry> elements;
    // Members of the children that may alternate, of all open elements.
    std::vector<MemberIndex> alternating;
};

} // namespace binding
} // namespace citygml

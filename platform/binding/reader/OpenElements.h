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
    /// Whether an element that is kept as it stands takes the place of a member, see KeptContent::Node.
    bool hasStandIn = false;
    /// Whether no child so far comes late: each has the member of the one in front of it, or a later one.
    bool isInOrder = true;
    /// Of the last child; the first member where there is none.
    MemberIndex lastMember = 0;
    NameId lastName = 0;
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

    void open(const OpenElement& element) { elements.push_back({element, children.size()}); }
    void close();
    /// Notes that a child of the innermost element begins.
    void beginChild(const TypeIndex::FlatMember& member, NameId name);
    /// Whether a child of the innermost element, that is about to begin, belongs in front of the last one.
    bool isLate(const TypeIndex::FlatMember& member) const
    {
        // Nearly no child is in front of the last one's member.
        return member.index < elements.back().element.lastMember && isOfEarlierGroup(member);
    }
    /// Behind the last child of the innermost element, or in front where there is none.
    KeptContent::Position behindLastChild() const
    {
        return KeptContent::Position::behindChildren(children.size() - elements.back().firstChild);
    }
    /// Members of the innermost element's children, in the order of the document.
    std::vector<MemberIndex> childOrder() const;

    /// For messages: the names, one behind the other; of a long path its two ends.
    std::string path(const NameResolver& names) const;
    /// The names of all, one behind the other.
    std::string wholePath(const NameResolver& names) const;
    /// Identifier of the innermost feature; empty where there is none, or it has no identifier.
    std::string featureId() const;

private:
    bool isOfEarlierGroup(const TypeIndex::FlatMember& member) const;

    struct Entry
    {
        OpenElement element;
        /// Where its children begin among those of all.
        std::size_t firstChild;
    };

    std::vector<Entry> elements;
    // Members of the children of all open elements.
    std::vector<MemberIndex> children;
};

} // namespace binding
} // namespace citygml

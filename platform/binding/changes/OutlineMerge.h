#pragma once

#include "platform/binding/changes/InsertedMarkup.h"
#include "platform/binding/changes/XmlOutline.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace citygml {
namespace binding {

/// Bytes of a document that others take the place of.
struct ByteEdit
{
    std::size_t begin, end;
    /// In the encoding of the document.
    std::string bytes;

    bool operator==(const ByteEdit& other) const
    {
        return begin == other.begin && end == other.end && bytes == other.bytes;
    }
    /// What is put in somewhere stands in front of what is taken out there.
    bool operator<(const ByteEdit& other) const
    {
        return begin != other.begin ? begin < other.begin : end == begin && other.end != other.begin;
    }
};

/// Puts edits in the order of the bytes.
///
/// \return false where some overlap
bool putInOrder(std::vector<ByteEdit>& edits);

/// Finds out how the bytes of a document have to change, so that it says what an edited document says.
///
/// It is given the document as it is, and what the writer makes of it before and after the edits. The two
/// written ones differ in the edits alone; what differs is looked for in the document, and changed there.
class OutlineMerge
{
public:
    OutlineMerge(const XmlOutline& original, const XmlOutline& before, const XmlOutline& after)
        : original(original), before(before), after(after), inserted(original, after)
    {
    }

    /// \return whether that is possible; then edits() are there. It may be impossible because of a closed
    /// element, and what is inserted lacks what was in one.
    bool run();
    /// In the order of the bytes; none overlaps another one.
    const std::vector<ByteEdit>& edits() const { return changes; }

private:
    using Element = OutlineElement;
    using Layout = InsertedMarkup::Layout;

    void merge(const Element& place, const Element& was, const Element& is);
    void mergeAttributes(const Element& place, const Element& was, const Element& is);
    void mergeContent(const Element& place, const Element& was, const Element& is);
    void mergeTexts(const Element& place, const Element& was, const Element& is);
    void mergeNodes(const Element& place, const Element& was, const Element& is);
    bool takeNodes(const Element& place, const Element& was, const Element& is);
    void mergeNode(const OutlineNode& place, const OutlineNode& was, const OutlineNode& is);
    void replaceText(const Element& place, std::size_t number, const std::string& was, const std::string& is);
    void replaceContent(const Element& place, const std::string& content);
    void rewriteContent(const Element& place, const Element& is);
    void insert(const Element& place, std::size_t behind, const std::vector<const OutlineNode*>& nodes);
    void remove(const Element& place, std::size_t number);
    void insertAttribute(const Element& place, const std::string& xml);
    void declareNamespaces();

    bool isSame(const Element& place, const Element& was) const;
    bool hasSameContent(const Element& was, const Element& is) const;
    std::string gapInFrontOf(const Element& place, std::size_t number) const;
    const std::string& unit() const;
    std::string unitIn(const Element& element, const std::string& gap) const;
    Layout layoutAround(const Element& element) const;
    Layout layoutIn(const Element& element, std::size_t number) const;
    void change(std::size_t begin, std::size_t end, const std::string& utf8);

    const XmlOutline& original;
    const XmlOutline& before;
    const XmlOutline& after;
    InsertedMarkup inserted;
    std::vector<ByteEdit> changes;
    bool isOpen = true;
    mutable std::optional<std::string> knownUnit;
};

} // namespace binding
} // namespace citygml

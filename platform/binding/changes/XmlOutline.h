#pragma once

#include "platform/binding/changes/SourceText.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

struct OutlineElement;

/// An attribute, and where the bytes of it are. Namespaces live as long as the outline.
struct OutlineAttribute
{
    /// As it is written.
    std::string name;
    const std::string* uri = nullptr;
    std::string local;
    std::string value;
    /// Of an `xsi:type`: the namespace of the value.
    const std::string* valueUri = nullptr;
    bool isDeclaration = false;
    /// Whether it stands in the document; else its document type gives it to the element, and it has no
    /// bytes.
    bool isWritten = true;
    /// From the white space in front of the name to behind the closing quote.
    std::size_t begin = 0, end = 0;
    /// Without the quotes.
    std::size_t valueBegin = 0, valueEnd = 0;
};

/// An element, a comment or a processing instruction.
struct OutlineNode
{
    std::size_t begin = 0, end = 0;
    /// Null for a comment or instruction.
    std::unique_ptr<OutlineElement> element;
    /// Whether the writer has marked it as content that no member holds, see KeptContentWriter.
    bool isKept = false;
};

struct OutlineElement
{
    std::string name;
    const std::string* uri = nullptr;
    std::string local;
    OutlineElement* parent = nullptr;
    std::vector<OutlineAttribute> attributes;
    /// Prefixes that the element declares, and their namespaces.
    std::vector<std::pair<std::string, const std::string*>> declarations;
    std::size_t begin = 0, contentBegin = 0, contentEnd = 0, end = 0;
    /// Whether it is one tag, so that there is no content to put something into.
    bool isOneTag = false;
    /// Whether what is in it has been left out of the outline.
    bool isClosed = false;
    /// Whether some of its content stands in an entity elsewhere.
    bool hasEntityMarkup = false;
    /// What stands in it besides text, and the texts in front of each of these and behind the last one, as
    /// they are meant.
    std::vector<OutlineNode> nodes;
    std::vector<std::string> texts{1};

    /// Where the text with that number stands.
    std::size_t textBegin(std::size_t number) const
    {
        return number == 0 ? contentBegin : nodes[number - 1].end;
    }
    std::size_t textEnd(std::size_t number) const
    {
        return number < nodes.size() ? nodes[number].begin : contentEnd;
    }
    bool isBlank() const;
    /// \return null where there is none
    const OutlineAttribute* attribute(std::string_view attributeUri, std::string_view attributeLocal) const;
};

/// How many bytes two texts have in common at their beginnings and, behind these, at their ends.
struct CommonEnds
{
    std::size_t first = 0, last = 0;

    static CommonEnds of(std::string_view a, std::string_view b);
};

/// The elements of a document with their places in its bytes. An outline takes many times the memory of the
/// text, so that elements may be closed: they are there, but nothing of what is in them.
class XmlOutline
{
public:
    /// The processing instruction that marks the node behind it as kept.
    static constexpr std::string_view keptMark = "<?tolvik-kept?>";

    /// \param bytes outlive the outline
    /// \throws xsd::cxx::tree::exception<char> for what is no XML document
    /// \param closed elements that lie in one of these are closed, but for some at the beginning
    explicit XmlOutline(std::string_view bytes, const CommonEnds& closed = CommonEnds());
    /// Closes the elements that are closed in the outline of a document with the same elements.
    XmlOutline(std::string_view bytes, const XmlOutline& model);

    const SourceText& source() const { return text; }
    const OutlineElement& root() const { return *top; }
    std::string_view bytesOf(const OutlineNode& node) const
    {
        return text.bytes().substr(node.begin, node.end - node.begin);
    }
    std::string_view bytesOf(const OutlineElement& element) const
    {
        return text.bytes().substr(element.begin, element.end - element.begin);
    }

private:
    class Builder;

    void build(const CommonEnds& closed, const XmlOutline* model);

    SourceText text;
    std::unordered_set<std::string> uris;
    std::unique_ptr<OutlineElement> top;
};

} // namespace binding
} // namespace citygml

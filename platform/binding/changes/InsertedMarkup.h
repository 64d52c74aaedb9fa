#pragma once

#include "platform/binding/changes/XmlOutline.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// Writes elements that the writer wrote as elements of another document: with its prefixes and in its
/// layout.
class InsertedMarkup
{
public:
    /// What stands between two elements: a line end and the indentation behind it, or less where the document
    /// has no lines.
    struct Layout
    {
        /// In front of the element.
        std::string gap;
        /// What the gap of its children has more.
        std::string unit;

        Layout inner() const { return {gap.find('\n') != std::string::npos ? gap + unit : gap, unit}; }
    };

    /// \param original the document; its root gets the namespaces that nothing declares
    InsertedMarkup(const XmlOutline& original, const XmlOutline& written)
        : original(original), written(written)
    {
    }

    /// \param parent the element of the original that the markup is to stand in
    /// @{
    std::string element(const OutlineElement& source, const OutlineElement& parent, const Layout& layout);
    /// A comment or instruction, too.
    std::string node(const OutlineNode& source, const OutlineElement& parent, const Layout& layout);
    /// What stands between the tags of an element.
    ///
    /// \param place the element that gets it
    std::string content(const OutlineElement& source, const OutlineElement& place, const Layout& layout);
    /// @}
    /// An attribute as it stands in a start tag, with a blank in front.
    std::string attribute(const OutlineAttribute& source, const OutlineElement& place);
    /// The value of an attribute, without the quotes.
    std::string attributeValue(const OutlineAttribute& source, const OutlineElement& place, char quote);

    /// The prefixes that the root has to declare, with their namespaces.
    const std::vector<std::pair<std::string, std::string>>& declarations() const { return added; }

private:
    /// The declarations of an element, inside of those around it.
    struct Scope
    {
        const OutlineElement* element;
        const Scope* outer;
    };

    void writeElement(const OutlineElement& source, const Scope& outer, const Layout& layout,
                      std::string& xml);
    void writeContent(const OutlineElement& source, const Scope& scope, const Layout& layout,
                      std::string& xml);
    void writeNode(const OutlineNode& source, const Scope& scope, const Layout& layout, std::string& xml);
    std::string rawText(const OutlineElement& source, std::size_t number) const;
    std::string valueOf(const OutlineAttribute& source, const Scope& scope);
    std::string prefixFor(const std::string& uri, std::string_view wanted, bool isAttribute,
                          const Scope& scope);
    const std::string* meaningOf(std::string_view prefix, const Scope& scope) const;
    std::string declareAtRoot(const std::string& uri, std::string_view wanted, const Scope& scope);

    const XmlOutline& original;
    const XmlOutline& written;
    std::vector<std::pair<std::string, std::string>> added;
};

} // namespace binding
} // namespace citygml

#pragma once

#include "platform/binding/kept/KeptContent.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace citygml {
namespace binding {

class NameResolver;
class XmlAttributes;

/// Copies an element that the schema has no member for, with all that is in it, to be kept as it stands.
class MarkupCopy
{
public:
    /// \param names tells whether names are sound and their prefixes bound
    explicit MarkupCopy(NameResolver& names) : names(names) {}

    /// Whether an element is being copied.
    bool isOpen() const { return depth != 0; }

    /// Makes ready for the copy of another element.
    ///
    /// \param position where the element stands in its parent
    /// \param scope what the prefixes mean around the element
    /// \param standsFor see KeptContent::Node
    void begin(const KeptContent::Position& position, std::shared_ptr<const KeptContent::Scope> scope,
               std::uint8_t standsFor);
    void startElement(const char* name, const XmlAttributes& attributes);
    void endElement(const char* name);
    void addText(std::string_view text);
    /// \param xml a comment or a processing instruction
    void addMarkup(const std::string& xml) { copy.xml += xml; }
    /// The whole element, once it has ended.
    KeptContent::Node take();

private:
    NameResolver& names;
    KeptContent::Node copy{KeptContent::Position::inFront(), KeptContent::Kind::Element, {}, {}};
    std::size_t depth = 0;
};

} // namespace binding
} // namespace citygml

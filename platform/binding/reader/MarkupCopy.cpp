#include "platform/binding/reader/MarkupCopy.h"

#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/xml/XmlText.h"

#include <utility>

namespace citygml {
namespace binding {

void MarkupCopy::begin(const KeptContent::Position& position, std::shared_ptr<const KeptContent::Scope> scope,
                       std::uint8_t standsFor)
{
    copy.position = position;
    copy.scope = std::move(scope);
    copy.standsFor = standsFor;
}

void MarkupCopy::startElement(const char* name, const XmlAttributes& attributes)
{
    names.elementId(name);
    copy.xml.append(1, '<').append(name);
    for (const XmlAttribute attribute : attributes) {
        if (!attribute.isDeclaration()) {
            names.attributeId(attribute.name);
        }
        copy.xml.append(1, ' ').append(attribute.name).append("=\"");
        appendEscapedAttribute(attribute.value, copy.xml);
        copy.xml += '"';
    }
    copy.xml += '>';
    ++depth;
}

void MarkupCopy::endElement(const char* name)
{
    copy.xml.append("</").append(name).append(1, '>');
    --depth;
}

void MarkupCopy::addText(std::string_view text)
{
    appendEscaped(text, copy.xml);
}

KeptContent::Node MarkupCopy::take()
{
    KeptContent::Node result = std::move(copy);
    copy.xml.clear();
    return result;
}

} // namespace binding
} // namespace citygml

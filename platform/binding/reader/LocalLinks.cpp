#include "platform/binding/reader/LocalLinks.h"

#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"

#include <QByteArray>

namespace citygml {
namespace binding {

LocalLinks::LocalLinks(const SchemaIndex& index)
    : index(index), gmlId(index.nameId(gmlUri, "id")), plainId(index.nameId("", "id")),
      href(index.nameId(xlinkUri, "href")), target(index.nameId(appearanceUri, "target")),
      targetUri(index.nameId("", "uri")),
      textureCoordinates(index.nameId(appearanceUri, "textureCoordinates")), ring(index.nameId("", "ring"))
{
}

bool LocalLinks::isIdentifier(NameId element, NameId attribute) const
{
    return attribute != 0 && (attribute == gmlId || (attribute == plainId && element != 0 &&
                                                     index.name(element).uri == smilLanguageUri));
}

bool LocalLinks::isReference(NameId element, NameId attribute) const
{
    return attribute != 0 && (attribute == href || (attribute == targetUri && element == target) ||
                              (attribute == ring && element == textureCoordinates));
}

std::optional<std::string> LocalLinks::targetOf(std::string_view reference)
{
    const std::string_view text = trimmed(reference);
    // An XPointer has parentheses.
    if (text.empty() || text.front() != '#' || text.find('(') != std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view name = text.substr(1);
    if (name.find('%') == std::string_view::npos) {
        return std::string(name);
    }
    return QByteArray::fromPercentEncoding(QByteArray(name.data(), static_cast<int>(name.size())))
        .toStdString();
}

} // namespace binding
} // namespace citygml

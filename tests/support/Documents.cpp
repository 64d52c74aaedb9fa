#include "support/Documents.h"

#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "citygml/CityGmlUtils.h"
#include "citygml/CityModel.h"
#include "gml/CodeType.hxx"

#include <sstream>

namespace testsupport {

namespace {

Document readWith(const QByteArray& xml, xsd::cxx::tree::flags flags)
{
    std::istringstream stream(xml.toStdString());
    return Document(core::CityModel(stream, flags).release());
}

QByteArray writeWith(const core::CityModelType& document,
                     const xsd::cxx::xml::dom::namespace_infomap<char>& namespaces)
{
    std::ostringstream stream;
    core::CityModel(stream, document, namespaces);
    return QByteArray::fromStdString(stream.str());
}

} // namespace

QByteArray documentText(const QByteArray& members, const QByteArray& attributes)
{
    return "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0'"
           " xmlns:gml='http://www.opengis.net/gml'"
           " xmlns:xlink='http://www.w3.org/1999/xlink'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
           " xmlns:xAL='urn:oasis:names:tc:ciq:xsdschema:xAL:2.0'"
           " xmlns:app='http://www.opengis.net/citygml/appearance/2.0'"
           " xmlns:bldg='http://www.opengis.net/citygml/building/2.0'"
           " xmlns:gen='http://www.opengis.net/citygml/generics/2.0'"
           " xmlns:x='urn:unknown'" +
           attributes + '>' + members + "</core:CityModel>";
}

QByteArray buildingText(const QByteArray& content, const QByteArray& id)
{
    const QByteArray attribute = id.isEmpty() ? QByteArray() : " gml:id=\"" + id + '"';
    return "<bldg:Building" + attribute + '>' + content + "</bldg:Building>";
}

QByteArray buildingMember(const QByteArray& content, const QByteArray& id)
{
    return "<core:cityObjectMember>" + buildingText(content, id) + "</core:cityObjectMember>";
}

QByteArray documentWithBuilding(const QByteArray& content)
{
    return documentText(buildingMember(content));
}

Document read(const QByteArray& xml)
{
    return readWith(xml, xsd::cxx::tree::flags::dont_validate);
}

Document readStrictly(const QByteArray& xml)
{
    return readWith(xml, 0);
}

QByteArray write(const core::CityModelType& document)
{
    xsd::cxx::xml::dom::namespace_infomap<char> namespaces;
    for (const tolvik::NamespacesMap& entry : tolvik::CityGmlUtils::getNamespaces()) {
        namespaces[entry.prefix].name = entry.name;
        namespaces[entry.prefix].schema = entry.schemaLocation;
    }
    return writeWith(document, namespaces);
}

QByteArray writeWithoutPrefixes(const core::CityModelType& document)
{
    return writeWith(document, xsd::cxx::xml::dom::namespace_infomap<char>());
}

QString errorOf(const QByteArray& xml, Document* document)
{
    try {
        Document made = readStrictly(xml);
        if (document != nullptr) {
            *document = std::move(made);
        }
    } catch (const xsd::cxx::tree::exception<char>& error) {
        std::ostringstream text;
        text << error;
        return QString::fromStdString(text.str());
    }
    return QString();
}

std::list<gml::AbstractFeatureType*> featuresOf(core::CityModelType& document)
{
    tolvik::CityGMLFeaturesFillVisitor visitor;
    document.accept(&visitor);
    return visitor.getModelFeatures();
}

QStringList listOf(core::CityModelType& document)
{
    QStringList result;
    for (const gml::AbstractFeatureType* const feature : featuresOf(document)) {
        QString line = QString::fromStdString(feature->typeLabel);
        if (feature->id().present()) {
            line += " #" + QString::fromStdString(*feature->id());
        }
        if (!feature->name().empty()) {
            line += " '" + QString::fromStdString(feature->name().front()) + '\'';
        }
        result.append(line);
    }
    return result;
}

} // namespace testsupport

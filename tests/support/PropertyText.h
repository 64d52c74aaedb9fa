#pragma once

#include "citygml/CityModel.h"
#include "framework/AbstractUnit.h"
#include "framework/CoreProperty.h"
#include "gml/FeaturePropertyType.hxx"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <sstream>

/// A document with one member, and property trees as text.
namespace propertytext {

/// A document with the given feature as its only member. The prefixes are those of the schemas' names, and
/// `core` stands for itself.
class Document
{
public:
    explicit Document(const QByteArray& feature)
    {
        read(head() + feature + "</core:cityObjectMember></core:CityModel>");
    }

    gml::AbstractFeatureType& feature() { return root->featureMember().front()._Feature().get(); }

    /// The document as it is written.
    QByteArray text() const
    {
        std::ostringstream stream;
        core::CityModel(stream, *root, xsd::cxx::xml::dom::namespace_infomap<char>());
        return QByteArray::fromStdString(stream.str());
    }

    /// Writes the document and reads what was written.
    void reload() { read(text()); }

private:
    static QByteArray head()
    {
        return "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' "
               "xmlns:gml='http://www.opengis.net/gml' "
               "xmlns:xlink='http://www.w3.org/1999/xlink' "
               "xmlns:xAL='urn:oasis:names:tc:ciq:xsdschema:xAL:2.0' "
               "xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
               "xmlns:brid='http://www.opengis.net/citygml/bridge/2.0' "
               "xmlns:dem='http://www.opengis.net/citygml/relief/2.0' "
               "xmlns:frn='http://www.opengis.net/citygml/cityfurniture/2.0' "
               "xmlns:gen='http://www.opengis.net/citygml/generics/2.0' "
               "xmlns:grp='http://www.opengis.net/citygml/cityobjectgroup/2.0' "
               "xmlns:tran='http://www.opengis.net/citygml/transportation/2.0' "
               "xmlns:wtr='http://www.opengis.net/citygml/waterbody/2.0' "
               "xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0' "
               "xmlns:utility='http://www.citygml.org/ade/utility/0.9.2' "
               "xmlns:pivotEnergy='urn:tolvik:citygml:pivotEnergy:1.0' "
               "xmlns:ladmfr='urn:tolvik:citygml:ladmfr:1.0' "
               "xmlns:epadesa='urn:tolvik:citygml:epadesa:1.0' "
               "xmlns:component='urn:tolvik:citygml:component:1.0'>"
               "<core:cityObjectMember>";
    }

    void read(const QByteArray& xml)
    {
        std::istringstream stream(xml.toStdString());
        root.reset(core::CityModel(stream).release());
    }

    std::unique_ptr<core::CityModelType> root;
};

inline QString valueText(const QVariant& value)
{
    if (value.userType() != QMetaType::QVariantList) {
        return value.toString();
    }
    QStringList entries;
    for (const QVariant& entry : value.toList()) {
        entries += valueText(entry);
    }
    return '[' + entries.join(", ") + ']';
}

/// A line for each property below, indented by two blanks a level: the name, and the value and unit if there
/// are some.
inline QString treeText(const tolvik::CoreProperty& property, const QString& indent = QString())
{
    QString text;
    for (const auto& child : property.properties()) {
        const QString value = valueText(child->value());
        text += indent + child->name() + (value.isEmpty() ? QString() : ": " + value) +
                (child->unit() == nullptr ? QString() : ' ' + child->unit()->name()) + '\n';
        text += treeText(*child, indent + "  ");
    }
    return text;
}

inline Fondo::RefPtr<tolvik::CoreProperty> propertiesOf(Document& document, bool existingOnly = true)
{
    return tolvik::GmlCorePropertyCreator::createProperty(&document.feature(), existingOnly);
}

/// The property tree of a feature that is given as XML.
inline QString treeText(const QByteArray& feature, bool existingOnly = true)
{
    Document document(feature);
    return treeText(*propertiesOf(document, existingOnly));
}

/// The first property below the names, or null.
inline tolvik::CoreProperty* findProperty(const Fondo::RefPtr<tolvik::CoreProperty>& root,
                                          const QStringList& path)
{
    tolvik::CoreProperty* property = root.get();
    for (const QString& name : path) {
        property = property == nullptr ? nullptr : property->getProperty(name, false);
    }
    return property;
}

} // namespace propertytext

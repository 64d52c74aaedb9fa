#include "support/PropertyText.h"

#include "framework/AbstractUnit.h"
#include "gen/StringAttributeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/Features.h"
#include "support/VariantText.h"

namespace testsupport {

namespace {

constexpr const char* otherSchemas = " xmlns:brid='http://www.opengis.net/citygml/bridge/2.0'"
                                     " xmlns:dem='http://www.opengis.net/citygml/relief/2.0'"
                                     " xmlns:frn='http://www.opengis.net/citygml/cityfurniture/2.0'"
                                     " xmlns:grp='http://www.opengis.net/citygml/cityobjectgroup/2.0'"
                                     " xmlns:tran='http://www.opengis.net/citygml/transportation/2.0'"
                                     " xmlns:wtr='http://www.opengis.net/citygml/waterbody/2.0'"
                                     " xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0'"
                                     " xmlns:utility='http://www.citygml.org/ade/utility/0.9.2'"
                                     " xmlns:pivotEnergy='urn:tolvik:citygml:pivotEnergy:1.0'"
                                     " xmlns:ladmfr='urn:tolvik:citygml:ladmfr:1.0'"
                                     " xmlns:epadesa='urn:tolvik:citygml:epadesa:1.0'"
                                     " xmlns:component='urn:tolvik:citygml:component:1.0'";

} // namespace

FeatureDocument::FeatureDocument(const QByteArray& feature)
    : document(readStrictly(
          documentText("<core:cityObjectMember>" + feature + "</core:cityObjectMember>", otherSchemas)))
{
}

FeatureDocument::FeatureDocument(const gml::AbstractFeatureType& feature)
    : document(std::make_unique<core::CityModelType>())
{
    addMember(*document, feature);
}

gml::AbstractFeatureType& FeatureDocument::feature()
{
    return document->featureMember().front()._Feature().get();
}

Fondo::RefPtr<tolvik::CoreProperty> propertiesOf(gml::AbstractFeatureType& feature, bool existingOnly)
{
    return tolvik::GmlCorePropertyCreator::createProperty(&feature, existingOnly);
}

QString treeText(const tolvik::CoreProperty& property, const QString& indent)
{
    QString text;
    for (const auto& child : property.properties()) {
        const QString value = plainText(child->value());
        text += indent + child->name() + (value.isEmpty() ? QString() : ": " + value) +
                (child->unit() == nullptr ? QString() : ' ' + child->unit()->name()) + '\n';
        text += treeText(*child, indent + "  ");
    }
    return text;
}

Fondo::RefPtr<tolvik::CoreProperty> propertiesOf(FeatureDocument& document, bool existingOnly)
{
    return propertiesOf(document.feature(), existingOnly);
}

QString treeText(const QByteArray& feature, bool existingOnly)
{
    FeatureDocument document(feature);
    return treeText(*propertiesOf(document, existingOnly));
}

tolvik::CoreProperty* findProperty(const Fondo::RefPtr<tolvik::CoreProperty>& root, const QStringList& path)
{
    tolvik::CoreProperty* property = root.get();
    for (const QString& name : path) {
        property = property == nullptr ? nullptr : property->getProperty(name, false);
    }
    return property;
}

QString textWithAttributeBehind(const QByteArrayList& features)
{
    gen::StringAttributeType attribute;
    attribute.name("behind");
    attribute.value("x");
    tolvik::GmlCorePropertyCreator creator;
    const Fondo::RefPtr<tolvik::CoreProperty> root = creator.getProperty();
    std::vector<FeatureDocument> documents;
    for (const QByteArray& feature : features) {
        documents.emplace_back(feature);
        documents.back().feature().accept(&creator);
    }
    attribute.accept(&creator);
    return treeText(*root);
}

QString unitOf(tolvik::CoreProperty* property)
{
    return property->unit() == nullptr ? QString() : property->unit()->name();
}

} // namespace testsupport

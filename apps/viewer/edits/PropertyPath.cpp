#include "apps/viewer/edits/PropertyPath.h"

#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QStringList>

namespace tolvik::viewer {

namespace {

CoreProperty* findChild(const CoreProperty& parent, const PropertyStep& step)
{
    int occurrence = 0;
    for (const auto& child : parent.properties()) {
        if (child->name() == step.name && ++occurrence == step.occurrence) {
            return child.get();
        }
    }
    return nullptr;
}

} // namespace

QString toString(const PropertyPath& path)
{
    QStringList steps;
    for (const PropertyStep& step : path) {
        steps +=
            step.occurrence == 1 ? step.name : QStringLiteral("%1[%2]").arg(step.name).arg(step.occurrence);
    }
    return steps.join('/');
}

QJsonArray toJson(const PropertyPath& path)
{
    QJsonArray steps;
    for (const PropertyStep& step : path) {
        steps += QJsonArray{step.name, step.occurrence};
    }
    return steps;
}

PropertyPath pathFromJson(const QJsonArray& json)
{
    PropertyPath path;
    for (const QJsonValue& step : json) {
        path.append({step[0].toString(), step[1].toInt()});
    }
    return path;
}

Fondo::RefPtr<CoreProperty> propertyTree(const CityGMLModel& model, gml::AbstractFeatureType& feature)
{
    Fondo::RefPtr<CoreProperty> root = catalogueTree(feature);
    model.addPropertiesFromProviders(model.index(&feature), *root);
    return root;
}

Fondo::RefPtr<CoreProperty> catalogueTree(gml::AbstractFeatureType& feature)
{
    return GmlCorePropertyCreator::createProperty(&feature, false);
}

bool isOfCatalogue(const PropertyPath& path)
{
    return !path.isEmpty() &&
           (path.first().name == QLatin1String("Fields") || path.first().name == QLatin1String("Properties"));
}

CoreProperty* findProperty(CoreProperty& root, const PropertyPath& path)
{
    CoreProperty* property = &root;
    for (const PropertyStep& step : path) {
        property = findChild(*property, step);
        if (property == nullptr) {
            return nullptr;
        }
    }
    return property;
}

} // namespace tolvik::viewer

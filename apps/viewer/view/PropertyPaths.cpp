#include "apps/viewer/view/PropertyPaths.h"

#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <map>
#include <QSet>
#include <typeindex>

namespace tolvik::viewer {

namespace {

constexpr int featuresOfType = 20;

void collect(CoreProperty& parent, const QString& prefix, QSet<QString>& paths)
{
    for (const auto& child : parent.properties()) {
        const QString path = prefix + child->name();
        if (child->value().isValid()) {
            paths.insert(path);
        }
        collect(*child, path + '/', paths);
    }
}

} // namespace

QStringList propertyPathsOf(const CityGMLModel& model)
{
    std::map<std::type_index, int> seen;
    QSet<QString> paths;
    for (int row = 0; row < model.rowCount(); ++row) {
        const gml::AbstractFeatureType& feature = *model.getFeature(row);
        if (seen[typeid(feature)]++ < featuresOfType) {
            collect(*model.getProperty(model.index(row, 0)), QString(), paths);
        }
    }
    QStringList sorted = paths.values();
    sorted.sort();
    return sorted;
}

} // namespace tolvik::viewer

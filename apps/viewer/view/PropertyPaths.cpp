#include "apps/viewer/view/PropertyPaths.h"

#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

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

void PropertyPaths::look(const CityGMLModel& model, int row)
{
    if (row >= model.rowCount()) {
        return;
    }
    const gml::AbstractFeatureType& feature = *model.getFeature(row);
    int& count = seen[typeid(feature)];
    if (count < featuresOfType) {
        ++count;
        collect(*model.getProperty(model.index(row, 0)), QString(), paths);
    }
}

QStringList PropertyPaths::sorted() const
{
    QStringList sorted = paths.values();
    sorted.sort();
    return sorted;
}

} // namespace tolvik::viewer

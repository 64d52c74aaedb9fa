// Rows that come and go.

#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <iterator>
#include <QScopedValueRollback>
#include <set>
#include <type_traits>
#include <utility>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, see the header

namespace tolvik {

void CityGMLModel::addFeature(gml::AbstractFeatureType* feature)
{
    if (feature == nullptr || featureExists(feature)) {
        return;
    }
    const int row = rowCount(QModelIndex());
    beginInsertRows(QModelIndex(), row, row);
    append(feature);
    dirty(true);
    endInsertRows();
}

void CityGMLModel::addFeatures(const QVector<gml::AbstractFeatureType*>& added)
{
    QVector<gml::AbstractFeatureType*> lacking;
    std::set<gml::AbstractFeatureType*> known{nullptr};
    for (gml::AbstractFeatureType* const feature : added) {
        if (known.insert(feature).second && !featureExists(feature)) {
            lacking.append(feature);
        }
    }
    const QScopedValueRollback<bool> atEnd(addsMore);
    for (gml::AbstractFeatureType* const feature : qAsConst(lacking)) {
        addsMore = feature != lacking.last();
        addFeature(feature);
    }
}

void CityGMLModel::removeFeature(gml::AbstractFeatureType* feature)
{
    if (!featureExists(feature)) {
        return;
    }
    const int removedRow = features.lastIndexOf(feature);
    const auto withoutIt = [this, feature](const auto& ofRows) {
        std::decay_t<decltype(ofRows)> kept;
        kept.reserve(ofRows.size());
        for (int row = 0; row < ofRows.size(); ++row) {
            if (features[row] != feature) {
                kept.append(ofRows[row]);
            }
        }
        return kept;
    };
    auto keptVisibility = withoutIt(visibility);
    auto keptDisabled = withoutIt(disabled);
    auto keptProperties = withoutIt(properties);
    auto keptFeatures = withoutIt(features);

    beginRemoveRows(QModelIndex(), removedRow, removedRow);
    rowByFeature.erase(feature);
    const auto [first, last] = featureById.equal_range(getFeatureID(feature));
    const bool isOneRow = keptFeatures.size() == features.size() - 1;
    const bool hasOneKey = isOneRow && first != last && first->second == feature;
    featureById.erase(first, last);
    // A feature whose identifier was changed stands under the former one.
    for (auto entry = featureById.begin(); !hasOneKey && entry != featureById.end();) {
        entry = entry->second == feature ? featureById.erase(entry) : std::next(entry);
    }
    // In the order of the map, which takes less time than to look up each row behind.
    for (auto& [other, row] : rowByFeature) {
        row -= row > removedRow ? 1 : 0;
    }
    features = std::move(keptFeatures);
    visibility = std::move(keptVisibility);
    disabled = std::move(keptDisabled);
    properties = std::move(keptProperties);
    dirty(true);
    endRemoveRows();
}

} // namespace tolvik

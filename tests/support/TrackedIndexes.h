#pragma once

#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"

#include <functional>
#include <QList>
#include <QPersistentModelIndex>

namespace testsupport {

/// Persistent indexes over a tree of features, or over a proxy model above it, each with its feature.
class TrackedIndexes
{
public:
    using Feature = gml::AbstractFeatureType*;

    /// \param featureOf the feature behind an index of the model
    explicit TrackedIndexes(std::function<Feature(const QModelIndex&)> featureOf)
        : featureOf(std::move(featureOf))
    {
    }

    void track(const QModelIndex& index);

    /// Forgets those that have become invalid.
    void forgetInvalid();

    int size() const { return tracked.size(); }

    bool isTracked(Feature feature) const;

    /// What is wrong with one of the valid indexes, empty if nothing is: it stands for another feature, or is
    /// not the one that the model gives for its place.
    QString difference() const;

    /// The features whose indexes are invalid although \a isThere says that they should not be.
    int lost(const std::function<bool(Feature)>& isThere) const;

    void clear() { tracked.clear(); }

private:
    struct Entry
    {
        QPersistentModelIndex index;
        Feature feature;
    };

    std::function<Feature(const QModelIndex&)> featureOf;
    QList<Entry> tracked;
};

} // namespace testsupport

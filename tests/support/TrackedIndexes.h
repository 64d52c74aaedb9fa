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

    void track(const QModelIndex& index)
    {
        if (index.isValid()) {
            tracked.append({index, featureOf(index)});
        }
    }

    /// Forgets those that have become invalid.
    void forgetInvalid()
    {
        tracked.erase(std::remove_if(tracked.begin(), tracked.end(),
                                     [](const Entry& each) { return !each.index.isValid(); }),
                      tracked.end());
    }

    int size() const { return tracked.size(); }

    bool isTracked(Feature feature) const
    {
        return std::any_of(tracked.begin(), tracked.end(),
                           [feature](const Entry& each) { return each.feature == feature; });
    }

    /// What is wrong with one of the valid indexes, empty if nothing is: it stands for another feature, or is
    /// not the one that the model gives for its place.
    QString difference() const
    {
        for (const Entry& each : tracked) {
            const QModelIndex index = each.index;
            if (!index.isValid()) {
                continue;
            }
            if (featureOf(index) != each.feature) {
                return QStringLiteral("a persistent index has another feature");
            }
            if (index.model()->index(index.row(), index.column(), index.parent()) != index) {
                return QStringLiteral("a persistent index is out of place");
            }
        }
        return QString();
    }

    /// The features whose indexes are invalid although \a isThere says that they should not be.
    int lost(const std::function<bool(Feature)>& isThere) const
    {
        return static_cast<int>(std::count_if(tracked.begin(), tracked.end(), [&](const Entry& each) {
            return !each.index.isValid() && isThere(each.feature);
        }));
    }

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

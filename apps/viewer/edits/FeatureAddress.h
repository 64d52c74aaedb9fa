#pragma once

#include <QJsonArray>
#include <string>
#include <unordered_map>
#include <vector>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::viewer {

/// Where a feature stands in its document, for commands that outlive the feature's object.
///
/// A feature with an identifier is named by that. Any other one is named by its place in the walk over the
/// features from the nearest feature around it that has one, or from the document's root. So an address holds
/// whatever happens to values, and as long as no feature comes or goes in that walk.
struct FeatureAddress
{
    std::string identifier; ///< of the feature that the walk starts at; empty for the root
    int step = 0;           ///< how far the walk goes: 0 is the start itself

    friend bool operator==(const FeatureAddress& a, const FeatureAddress& b)
    {
        return a.identifier == b.identifier && a.step == b.step;
    }

    /// For FeatureLocator::findAll(). Of most features it is the identifier alone.
    QJsonValue toJson() const;
};

/// Finds the addresses of features, and the features at addresses. It remembers the walks that it has done,
/// so that one locator serves one operation on any number of features, in which none comes or goes.
class FeatureLocator
{
public:
    explicit FeatureLocator(const CityGMLModel& model) : model(model) {}
    FeatureLocator(const FeatureLocator&) = delete;
    FeatureLocator& operator=(const FeatureLocator&) = delete;

    /// \param feature one of the model's document
    FeatureAddress addressOf(gml::AbstractFeatureType& feature);

    /// \return null where there is no such feature
    gml::AbstractFeatureType* find(const FeatureAddress& address);

    /// \param addresses an array of addresses
    /// \return empty where one of the features is not there
    std::vector<gml::AbstractFeatureType*> findAll(const QJsonArray& addresses);

private:
    struct Walk
    {
        std::vector<gml::AbstractFeatureType*> features;
        std::unordered_map<const gml::AbstractFeatureType*, int> steps;
    };

    bool hasIdentifier(gml::AbstractFeatureType& feature) const;
    const Walk& walkFrom(gml::AbstractFeatureType& start);

    const CityGMLModel& model;
    std::unordered_map<const gml::AbstractFeatureType*, Walk> walks;
};

} // namespace tolvik::viewer

#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

class OGRGeometry;

namespace gml {
class AbstractFeatureType;
}

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::tables {

/// One geometry for each feature of a document, for programs that know maps.
class FeatureGeometry
{
public:
    /// What there is of a feature.
    struct Result
    {
        std::unique_ptr<OGRGeometry> geometry; ///< null where the feature has none
        const char* madeFrom = "";             ///< what it was made of
    };

    /// \param model with a document that stays as it is
    explicit FeatureGeometry(const CityGMLModel& model);

    /// The feature on the map: its footprint in level of detail 0 ("footprint"), else the union of the ground
    /// surfaces of the feature and those below ("ground"), else the convex hull of all that these have
    /// ("hull"). None for the document as a whole.
    Result onMap(const gml::AbstractFeatureType& feature) const;

    /// The surfaces of the feature in the highest level of detail, or where it has none, of the features
    /// below, with heights ("surfaces").
    Result surfaces(const gml::AbstractFeatureType& feature) const;

private:
    using Features = std::vector<const gml::AbstractFeatureType*>;

    Features withThoseBelow(const gml::AbstractFeatureType& feature) const;

    std::unordered_map<const gml::AbstractFeatureType*, Features> below;
};

} // namespace tolvik::tables

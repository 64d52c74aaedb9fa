#pragma once

#include "citygml/CityGMLFeaturesVisitor.h"

#include <list>

namespace tolvik {

/// Lists the features of a document: `accept` on its root lists the root and then every feature that the walk
/// reaches.
class TOLVIK_PLATFORM_EXPORT CityGMLFeaturesFillVisitor : public CityGMLFeaturesVisitor
{
public:
    CityGMLFeaturesFillVisitor();
    ~CityGMLFeaturesFillVisitor() override;

    /// The features in the order of meeting, each once: a feature before those below it. Valid while the
    /// visitor lives.
    const std::list<gml::AbstractFeatureType*>& getModelFeatures() const;

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override;

private:
    // What was met more than once is taken out when the list is asked for: to ask at each feature whether it
    // is new takes as long as the walk.
    mutable std::list<gml::AbstractFeatureType*> features;
    mutable bool mayRepeat = false;
};

} // namespace tolvik

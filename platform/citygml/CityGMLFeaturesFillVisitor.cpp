#include "citygml/CityGMLFeaturesFillVisitor.h"

namespace tolvik {

CityGMLFeaturesFillVisitor::CityGMLFeaturesFillVisitor() = default;
CityGMLFeaturesFillVisitor::~CityGMLFeaturesFillVisitor() = default;

const std::list<gml::AbstractFeatureType*>& CityGMLFeaturesFillVisitor::getModelFeatures() const
{
    return features;
}

bool CityGMLFeaturesFillVisitor::visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature)
{
    if (listed.insert(feature).second) {
        features.push_back(feature);
    }
    return CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(feature);
}

} // namespace tolvik

#include "citygml/CityGMLFeaturesFillVisitor.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace tolvik {

namespace {

bool hasRepeated(const std::list<gml::AbstractFeatureType*>& features)
{
    std::vector<gml::AbstractFeatureType*> sorted(features.begin(), features.end());
    std::sort(sorted.begin(), sorted.end());
    return std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end();
}

} // namespace

CityGMLFeaturesFillVisitor::CityGMLFeaturesFillVisitor() = default;
CityGMLFeaturesFillVisitor::~CityGMLFeaturesFillVisitor() = default;

const std::list<gml::AbstractFeatureType*>& CityGMLFeaturesFillVisitor::getModelFeatures() const
{
    if (mayRepeat && hasRepeated(features)) {
        std::unordered_set<gml::AbstractFeatureType*> listed;
        features.remove_if(
            [&listed](gml::AbstractFeatureType* feature) { return !listed.insert(feature).second; });
    }
    mayRepeat = false;
    return features;
}

bool CityGMLFeaturesFillVisitor::visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature)
{
    features.push_back(feature);
    mayRepeat = true;
    return CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(feature);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseNoApparencesVisitor.h"

#include "app/AppearanceType.hxx"

namespace tolvik {

CityGMLProxyModelTraverseNoApparencesVisitor::CityGMLProxyModelTraverseNoApparencesVisitor() = default;

CityGMLProxyModelTraverseNoApparencesVisitor::CityGMLProxyModelTraverseNoApparencesVisitor(
    const CityGMLProxyModelTraverseNoApparencesVisitor& other) = default;

CityGMLProxyModelTraverseNoApparencesVisitor& CityGMLProxyModelTraverseNoApparencesVisitor::operator=(
    const CityGMLProxyModelTraverseNoApparencesVisitor& other) = default;

CityGMLProxyModelTraverseNoApparencesVisitor::~CityGMLProxyModelTraverseNoApparencesVisitor() = default;

bool CityGMLProxyModelTraverseNoApparencesVisitor::visit_gml_AbstractFeatureType(
    gml::AbstractFeatureType* feature)
{
    return dynamic_cast<app::AppearanceType*>(feature) == nullptr;
}

} // namespace tolvik

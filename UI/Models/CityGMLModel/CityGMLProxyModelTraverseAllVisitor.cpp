#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseAllVisitor.h"

namespace tolvik {

CityGMLProxyModelTraverseAllVisitor::CityGMLProxyModelTraverseAllVisitor()
{
    // A feature is judged by itself.
    walkChildren = false;
}

CityGMLProxyModelTraverseAllVisitor::CityGMLProxyModelTraverseAllVisitor(
    const CityGMLProxyModelTraverseAllVisitor& other) = default;

CityGMLProxyModelTraverseAllVisitor&
CityGMLProxyModelTraverseAllVisitor::operator=(const CityGMLProxyModelTraverseAllVisitor& other) = default;

CityGMLProxyModelTraverseAllVisitor::~CityGMLProxyModelTraverseAllVisitor() = default;

bool CityGMLProxyModelTraverseAllVisitor::visit_gml_AbstractFeatureType(gml::AbstractFeatureType* /*feature*/)
{
    return true;
}

} // namespace tolvik

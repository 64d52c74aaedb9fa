#pragma once

#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseAllVisitor.h"

namespace tolvik {

/// Says which features of a document CityGMLProxyModel shows: all but appearances.
class CITYGMLMODEL_EXPORT CityGMLProxyModelTraverseNoApparencesVisitor
    : public CityGMLProxyModelTraverseAllVisitor
{
public:
    CityGMLProxyModelTraverseNoApparencesVisitor();
    /// Takes over the flags of the walk.
    CityGMLProxyModelTraverseNoApparencesVisitor(const CityGMLProxyModelTraverseNoApparencesVisitor& other);
    /// Takes over the flags of the walk.
    CityGMLProxyModelTraverseNoApparencesVisitor&
    operator=(const CityGMLProxyModelTraverseNoApparencesVisitor& other);
    ~CityGMLProxyModelTraverseNoApparencesVisitor() override;

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override;
};

} // namespace tolvik

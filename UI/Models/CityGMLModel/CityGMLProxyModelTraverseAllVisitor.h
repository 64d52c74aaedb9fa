#pragma once

#include "citygml/CityGMLFeaturesVisitor.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

namespace tolvik {

/// Says which features of a document CityGMLProxyModel shows: all of them. A feature is asked with `accept`,
/// whose result is the answer; to say no, a subclass answers false for a type.
class CITYGMLMODEL_EXPORT CityGMLProxyModelTraverseAllVisitor : public CityGMLFeaturesVisitor
{
public:
    CityGMLProxyModelTraverseAllVisitor();
    /// Takes over the flags of the walk.
    CityGMLProxyModelTraverseAllVisitor(const CityGMLProxyModelTraverseAllVisitor& other);
    /// Takes over the flags of the walk.
    CityGMLProxyModelTraverseAllVisitor& operator=(const CityGMLProxyModelTraverseAllVisitor& other);
    ~CityGMLProxyModelTraverseAllVisitor() override;

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override;
};

} // namespace tolvik

#pragma once

#include "UI/Models/CityGMLModel/CityGMLModelExport.h"
#include "citygml/CityGMLFeaturesVisitor.h"

namespace tolvik {

/// Base of the visitors that look at one feature: it stays inside the feature it is started on, and enters the objects
/// that hang from it without being features themselves, such as addresses and generic attributes.
class CITYGMLMODEL_EXPORT CityGMLPropertiesVisitor : public CityGMLFeaturesVisitor
{
public:
    CityGMLPropertiesVisitor();
    ~CityGMLPropertiesVisitor() override;
};

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "dem/AbstractReliefComponentType.hxx"
#include "dem/ReliefFeatureType.hxx"

#include "dem.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_dem_ReliefFeatureType(dem::ReliefFeatureType* object)
{
    const Rows<dem::ReliefFeatureType> rows(this, object, Place::fields());
    ATTR("Lod", lod, core::integerBetween0and4);
    return CityGMLPropertiesVisitor::visit_dem_ReliefFeatureType(object);
}

bool GmlCorePropertyCreator::visit_dem_AbstractReliefComponentType(dem::AbstractReliefComponentType* object)
{
    const Rows<dem::AbstractReliefComponentType> rows(this, object, Place::fields());
    ATTR("Lod", lod, core::integerBetween0and4);
    return CityGMLPropertiesVisitor::visit_dem_AbstractReliefComponentType(object);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "wtr/WaterBodyType.hxx"
#include "wtr/WaterSurfaceType.hxx"

#include "wtr.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_wtr_WaterSurfaceType(wtr::WaterSurfaceType* object)
{
    const Rows<wtr::WaterSurfaceType> rows(this, object, Place::fields());
    ATTR("WaterLevel", waterLevel, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_wtr_WaterSurfaceType(object);
}

bool GmlCorePropertyCreator::visit_wtr_WaterBodyType(wtr::WaterBodyType* object)
{
    const Rows<wtr::WaterBodyType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_wtr_WaterBodyType(object);
}

} // namespace tolvik

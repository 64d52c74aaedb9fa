#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "luse/LandUseType.hxx"

#include "luse.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_luse_LandUseType(luse::LandUseType* object)
{
    const Rows<luse::LandUseType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_luse_LandUseType(object);
}

} // namespace tolvik

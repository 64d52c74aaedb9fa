#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "grp/CityObjectGroupMemberType.hxx"
#include "grp/CityObjectGroupType.hxx"

#include "grp.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_grp_CityObjectGroupMemberType(grp::CityObjectGroupMemberType* object)
{
    const Rows<grp::CityObjectGroupMemberType> rows(this, object, Place::fields());
    ATTR("Role", role, optional<string>);
    return CityGMLPropertiesVisitor::visit_grp_CityObjectGroupMemberType(object);
}

bool GmlCorePropertyCreator::visit_grp_CityObjectGroupType(grp::CityObjectGroupType* object)
{
    const Rows<grp::CityObjectGroupType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_grp_CityObjectGroupType(object);
}

} // namespace tolvik

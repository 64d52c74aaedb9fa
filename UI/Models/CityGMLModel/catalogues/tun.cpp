#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "tun/AbstractTunnelType.hxx"
#include "tun/HollowSpaceType.hxx"
#include "tun/IntTunnelInstallationType.hxx"
#include "tun/TunnelFurnitureType.hxx"
#include "tun/TunnelInstallationType.hxx"

#include "tun.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_tun_AbstractTunnelType(tun::AbstractTunnelType* object)
{
    const Rows<tun::AbstractTunnelType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    ATTR("YearOfConstruction", yearOfConstruction, optional<gyear>);
    ATTR("YearOfDemolition", yearOfDemolition, optional<gyear>);
    return CityGMLPropertiesVisitor::visit_tun_AbstractTunnelType(object);
}

bool GmlCorePropertyCreator::visit_tun_HollowSpaceType(tun::HollowSpaceType* object)
{
    const Rows<tun::HollowSpaceType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_tun_HollowSpaceType(object);
}

bool GmlCorePropertyCreator::visit_tun_IntTunnelInstallationType(tun::IntTunnelInstallationType* object)
{
    const Rows<tun::IntTunnelInstallationType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_tun_IntTunnelInstallationType(object);
}

bool GmlCorePropertyCreator::visit_tun_TunnelFurnitureType(tun::TunnelFurnitureType* object)
{
    const Rows<tun::TunnelFurnitureType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_tun_TunnelFurnitureType(object);
}

bool GmlCorePropertyCreator::visit_tun_TunnelInstallationType(tun::TunnelInstallationType* object)
{
    const Rows<tun::TunnelInstallationType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_tun_TunnelInstallationType(object);
}

} // namespace tolvik

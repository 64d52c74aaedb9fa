#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "brid/AbstractBridgeType.hxx"
#include "brid/BridgeConstructionElementType.hxx"
#include "brid/BridgeFurnitureType.hxx"
#include "brid/BridgeInstallationType.hxx"
#include "brid/BridgeRoomType.hxx"
#include "brid/IntBridgeInstallationType.hxx"

#include "brid.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_brid_AbstractBridgeType(brid::AbstractBridgeType* object)
{
    const Rows<brid::AbstractBridgeType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    ATTR("YearOfConstruction", yearOfConstruction, optional<gyear>);
    ATTR("YearOfDemolition", yearOfDemolition, optional<gyear>);
    ATTR("IsMovable", isMovable, optional<bool>);
    return CityGMLPropertiesVisitor::visit_brid_AbstractBridgeType(object);
}

bool GmlCorePropertyCreator::visit_brid_BridgeConstructionElementType(brid::BridgeConstructionElementType* object)
{
    const Rows<brid::BridgeConstructionElementType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_brid_BridgeConstructionElementType(object);
}

bool GmlCorePropertyCreator::visit_brid_BridgeFurnitureType(brid::BridgeFurnitureType* object)
{
    const Rows<brid::BridgeFurnitureType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_brid_BridgeFurnitureType(object);
}

bool GmlCorePropertyCreator::visit_brid_BridgeInstallationType(brid::BridgeInstallationType* object)
{
    const Rows<brid::BridgeInstallationType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_brid_BridgeInstallationType(object);
}

bool GmlCorePropertyCreator::visit_brid_BridgeRoomType(brid::BridgeRoomType* object)
{
    const Rows<brid::BridgeRoomType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_brid_BridgeRoomType(object);
}

bool GmlCorePropertyCreator::visit_brid_IntBridgeInstallationType(brid::IntBridgeInstallationType* object)
{
    const Rows<brid::IntBridgeInstallationType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_brid_IntBridgeInstallationType(object);
}

} // namespace tolvik

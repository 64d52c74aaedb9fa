#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "component/AbstractSurfaceComponentTypeType.hxx"
#include "component/ComponentReferenceType.hxx"
#include "component/ComponentType.hxx"
#include "component/FloorComponentTypeType.hxx"
#include "component/FoundationComponentTypeType.hxx"
#include "component/GeneralComponentTypeType.hxx"
#include "component/LayeredComponentTypeType.hxx"
#include "component/OpeningComponentTypeType.hxx"
#include "component/RoofComponentTypeType.hxx"
#include "component/WallComponentTypeType.hxx"
#include "energy/TransmittancePropertyType.hxx"
#include "energy/TransmittanceType.hxx"
#include "gml/TimeIntervalLengthType.hxx"
#include "gml/TimePositionType.hxx"
#include "pivotEnergy/poly_density.hxx"
#include "pivotEnergy/poly_specificHeat.hxx"
#include "pivotEnergy/poly_thermalConductivity.hxx"
#include "pivotEnergy/poly_uValue.hxx"
#include "pivotEnergy/ShadingTypePropertyType.hxx"
#include "pivotEnergy/ShadingTypeType.hxx"

#include "component.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_component_AbstractSurfaceComponentTypeType(component::AbstractSurfaceComponentTypeType* object)
{
    const Rows<component::AbstractSurfaceComponentTypeType> rows(this, object, EXTENSION("Component"));
    ATTR("mainMaterial", mainMaterial, optional<gml::CodeType>);
    ATTR("mainFillingMaterial", mainFillingMaterial, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_component_AbstractSurfaceComponentTypeType(object);
}

bool GmlCorePropertyCreator::visit_component_ComponentReferenceType(component::ComponentReferenceType* object)
{
    const Rows<component::ComponentReferenceType> rows(this, object, EXTENSION("Component"));
    ATTR("dataSourceURI", dataSourceURI, uri);
    ATTR("productID", productID, string);
    ATTR("dataSourceName", dataSourceName, string);
    return CityGMLPropertiesVisitor::visit_component_ComponentReferenceType(object);
}

bool GmlCorePropertyCreator::visit_component_ComponentType(component::ComponentType* object)
{
    const Rows<component::ComponentType> rows(this, object, EXTENSION("Component"));
    ATTR("area", area, optional<gml::MeasureType>);
    ATTR("length", length, optional<gml::MeasureType>);
    ATTR("volume", volume, optional<gml::MeasureType>);
    ATTR("unit", unit, optional<long long>);
    CHILD("startOfLife", startOfLife);
    return CityGMLPropertiesVisitor::visit_component_ComponentType(object);
}

bool GmlCorePropertyCreator::visit_component_FloorComponentTypeType(component::FloorComponentTypeType* object)
{
    const Rows<component::FloorComponentTypeType> rows(this, object, EXTENSION("Component"));
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_component_FloorComponentTypeType(object);
}

bool GmlCorePropertyCreator::visit_component_FoundationComponentTypeType(component::FoundationComponentTypeType* object)
{
    const Rows<component::FoundationComponentTypeType> rows(this, object, EXTENSION("Component"));
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_component_FoundationComponentTypeType(object);
}

bool GmlCorePropertyCreator::visit_component_GeneralComponentTypeType(component::GeneralComponentTypeType* object)
{
    const Rows<component::GeneralComponentTypeType> rows(this, object, EXTENSION("Component"));
    CHILD("lifeExpectancy", lifeExpectancy);
    ATTR("constructionPackage", constructionPackage, optional<gml::CodeType>);
    ATTR("typeOfComponent", typeOfComponent, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_component_GeneralComponentTypeType(object);
}

void GmlCorePropertyCreator::visit_layeredComponent_genericProperties(component::LayeredComponentTypeType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfLayeredComponentType()) {
        const GenericRows rows(this, element);
        GENERIC("thermalConductivity", pivotEnergy::poly_thermalConductivity, gml::MeasureType, "pivotEnergy");
        GENERIC("density", pivotEnergy::poly_density, gml::MeasureType, "pivotEnergy");
        GENERIC("specificHeat", pivotEnergy::poly_specificHeat, gml::MeasureType, "pivotEnergy");
    }
}

bool GmlCorePropertyCreator::visit_component_LayeredComponentTypeType(component::LayeredComponentTypeType* object)
{
    const Rows<component::LayeredComponentTypeType> rows(this, object, EXTENSION("Component"));
    ATTR("thickness", thickness, gml::LengthType);
    visit_layeredComponent_genericProperties(object);
    return CityGMLPropertiesVisitor::visit_component_LayeredComponentTypeType(object);
}

void GmlCorePropertyCreator::visit_openingComponent_genericProperties(component::OpeningComponentTypeType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfOpeningComponentType()) {
        const GenericRows rows(this, element);
        GENERIC("uValue", pivotEnergy::poly_uValue, gml::MeasureType, "pivotEnergy");
        GENERIC_GROUP("shading", pivotEnergy::ShadingTypePropertyType, ShadingType, "pivotEnergy");
        GENERIC_HELD("transmittance", energy::TransmittancePropertyType, Transmittance, "pivotEnergy");
    }
}

bool GmlCorePropertyCreator::visit_component_OpeningComponentTypeType(component::OpeningComponentTypeType* object)
{
    const Rows<component::OpeningComponentTypeType> rows(this, object, EXTENSION("Component"));
    ATTR("width", width, optional<gml::LengthType>);
    ATTR("height", height, optional<gml::LengthType>);
    ATTR("depth", depth, optional<gml::LengthType>);
    ATTR("dateOfRefurbishment", dateOfRefurbishment, optional<gyear>);
    ATTR("solarFactor", solarFactor, optional<gml::MeasureType>);
    ATTR("openableRatio", openableRatio, optional<gml::ScaleType>);
    ENUM("openingType", openingType, optional<component::OpeningTypePropertyEnumerationType>);
    ENUM("openingManagement", openingManagement, optional<component::OpeningManagementType>);
    ENUM("openingPosition", openingPosition, optional<component::OpeningPositionType>);
    ENUM("closeShadingType", closeShadingType, optional<component::CloseShadingTypeType>);
    ATTR("airIntakeModule", airIntakeModule, optional<gml::MeasureType>);
    visit_openingComponent_genericProperties(object);
    return CityGMLPropertiesVisitor::visit_component_OpeningComponentTypeType(object);
}

bool GmlCorePropertyCreator::visit_component_RoofComponentTypeType(component::RoofComponentTypeType* object)
{
    const Rows<component::RoofComponentTypeType> rows(this, object, EXTENSION("Component"));
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_component_RoofComponentTypeType(object);
}

bool GmlCorePropertyCreator::visit_component_WallComponentTypeType(component::WallComponentTypeType* object)
{
    const Rows<component::WallComponentTypeType> rows(this, object, EXTENSION("Component"));
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_component_WallComponentTypeType(object);
}

} // namespace tolvik

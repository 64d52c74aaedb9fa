#include "component/AllTypes.h"
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
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "component.instantiations.h"

namespace tolvik {

ROWS(component, AbstractSurfaceComponentTypeType, EXTENSION("Component")) {
    ATTR("mainMaterial", mainMaterial, optional<gml::CodeType>);
    ATTR("mainFillingMaterial", mainFillingMaterial, optional<gml::CodeType>);
}

ROWS(component, ComponentReferenceType, EXTENSION("Component")) {
    ATTR("dataSourceURI", dataSourceURI, uri);
    ATTR("productID", productID, string);
    ATTR("dataSourceName", dataSourceName, string);
}

ROWS(component, ComponentType, EXTENSION("Component")) {
    ATTR("area", area, optional<gml::MeasureType>);
    ATTR("length", length, optional<gml::MeasureType>);
    ATTR("volume", volume, optional<gml::MeasureType>);
    ATTR("unit", unit, optional<long long>);
    GROUP_EACH("startOfLife", startOfLife);
}

ROWS(component, FloorComponentTypeType, EXTENSION("Component")) {
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
}

ROWS(component, FoundationComponentTypeType, EXTENSION("Component")) {
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
}

ROWS(component, GeneralComponentTypeType, EXTENSION("Component")) {
    GROUP_EACH("lifeExpectancy", lifeExpectancy);
    ATTR("constructionPackage", constructionPackage, optional<gml::CodeType>);
    ATTR("typeOfComponent", typeOfComponent, optional<gml::CodeType>);
}

GENERIC_ROWS(layeredComponent, component::LayeredComponentTypeType, LayeredComponentType) {
    GENERIC("thermalConductivity", pivotEnergy::poly_thermalConductivity, gml::MeasureType, "pivotEnergy");
    GENERIC("density", pivotEnergy::poly_density, gml::MeasureType, "pivotEnergy");
    GENERIC("specificHeat", pivotEnergy::poly_specificHeat, gml::MeasureType, "pivotEnergy");
}

ROWS(component, LayeredComponentTypeType, EXTENSION("Component")) {
    ATTR("thickness", thickness, gml::LengthType);
    creator.visit_layeredComponent_genericProperties(&object);
}

GENERIC_ROWS(openingComponent, component::OpeningComponentTypeType, OpeningComponentType) {
    GENERIC("uValue", pivotEnergy::poly_uValue, gml::MeasureType, "pivotEnergy");
    GENERIC_ALL_HELD("shading", pivotEnergy::ShadingTypePropertyType, ShadingType, "pivotEnergy");
    GENERIC_EACH_HELD("transmittance", energy::TransmittancePropertyType, Transmittance, "pivotEnergy");
}

ROWS(component, OpeningComponentTypeType, EXTENSION("Component")) {
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
    creator.visit_openingComponent_genericProperties(&object);
}

ROWS(component, RoofComponentTypeType, EXTENSION("Component")) {
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
}

ROWS(component, WallComponentTypeType, EXTENSION("Component")) {
    ATTR("constructiveSystem", constructiveSystem, optional<gml::CodeType>);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"
#include "utility/AllTypes.h"

#include "utility.instantiations.h"

// The visit of a supply, with a group of its own for the rows of all its bases.
#define SUPPLY(Type, label)                                                                                                                                    \
    bool GmlCorePropertyCreator::visit_utility_##Type(utility::Type* object) {                                                                                 \
        CoreProperty* const group = addGroup(EXTENSION("UtilityNetwork"), QStringLiteral(label));                                                              \
        /* A supply ends the group that it stands in: the outer group does not come back. */                                                                   \
        m_currentParent = nullptr;                                                                                                                             \
        const QScopedValueRollback<CoreProperty*> inside(m_currentParent, group);                                                                              \
        Rows<utility::Type>(*this, *object, CURRENT).addAll();                                                                                                 \
        return CityGMLPropertiesVisitor::visit_utility_##Type(object);                                                                                         \
    }

namespace tolvik {

ROWS(utility, AbstractCommodityClassifierType, EXTENSION("UtilityNetwork")) {
    ATTR("molFormula", molFormula, optional<string>);
    ATTR("description", description, optional<gml::StringOrRefType>);
    ATTR("physicalForm", physicalForm, optional<string>);
    ATTR("molecularWeight", molecularWeight, optional<gml::MeasureType>);
    ENUM("signalWord", signalWord, optional<utility::SignalWordValueType>);
    ATTR("isChemicalComplex", isChemicalComplex, optional<bool>);
    GROUP_EACH_HELD("hazardClass", hazardClass, HazardClass);
}

ROWS(utility, AbstractCommodityType, EXTENSION("UtilityNetwork")) {
    ATTR("owner", owner, optional<string>);
}

ROWS(utility, AbstractDeviceType, EXTENSION("UtilityNetwork")) {
    ATTR("description", description, optional<gml::StringOrRefType>);
}

ROWS(utility, AbstractDistributionElementType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
    ATTR("functionOfLine", functionOfLine, optional<gml::CodeType>);
}

ROWS(utility, AbstractFeatureMaterialType, EXTENSION("UtilityNetwork")) {
    ATTR("type", type, gml::CodeType);
}

ROWS(utility, AbstractLinkType, EXTENSION("UtilityNetwork")) {
    ENUM("direction", direction, optional<gml::SignType>);
}

ROWS(utility, AbstractMediumSupplyType, CURRENT) {
    GROUP_EACH_HELD("potentialSupply", potentialSupply, Supply);
    GROUP_EACH_HELD("currentSupply", currentSupply, Supply);
    GROUP_ALL_HELD("storages", storages, Storage);
}

ROWS(utility, AbstractNetworkFeatureType, EXTENSION("UtilityNetwork")) {
    ATTR("function", function, optional<gml::CodeType>);
    ATTR("usage", usage, sequence<gml::CodeType>);
    ATTR("connectedCityObject", connectedCityObject, optional<uri>);
    ATTR("yearOfConstruction", yearOfConstruction, optional<date>);
    ENUM("status", status, optional<utility::StatusValueType>);
    ENUM("locationQuality", locationQuality, optional<utility::SpatialQualityValueType>);
    ENUM("elevationQuality", elevationQuality, optional<utility::SpatialQualityValueType>);
}

ROWS(utility, AbstractPipeType, EXTENSION("UtilityNetwork")) {
    ATTR("isGravity", isGravity, optional<bool>);
    ATTR("exteriorWidth", exteriorWidth, optional<gml::LengthType>);
    ATTR("exteriorHeight", exteriorHeight, optional<gml::LengthType>);
    ATTR("exteriorDiameter", exteriorDiameter, optional<gml::LengthType>);
}

ROWS(utility, AbstractProtectionShellType, EXTENSION("UtilityNetwork")) {
    ATTR("exteriorWidth", exteriorWidth, optional<gml::LengthType>);
    ATTR("exteriorHeight", exteriorHeight, optional<gml::LengthType>);
    ATTR("exteriorDiameter", exteriorDiameter, optional<gml::LengthType>);
}

ROWS(utility, AnyDeviceType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

ROWS(utility, BeddingType, EXTENSION("UtilityNetwork")) {
    ATTR("width", width, optional<gml::LengthType>);
}

ROWS(utility, CableType, EXTENSION("UtilityNetwork")) {
    ATTR("isTransmission", isTransmission, optional<bool>);
    ATTR("isCommunication", isCommunication, optional<bool>);
    ATTR("crossSection", crossSection, optional<gml::LengthType>);
}

ROWS(utility, CanalType, EXTENSION("UtilityNetwork")) {
    ATTR("profileName", profileName, optional<string>);
    ATTR("slope", slope, optional<gml::QuantityExtentType>);
    ATTR("isGravity", isGravity, optional<bool>);
    ATTR("exteriorWidth", exteriorWidth, optional<gml::LengthType>);
    ATTR("exteriorHeight", exteriorHeight, optional<gml::LengthType>);
    ATTR("exteriorDiameter", exteriorDiameter, optional<gml::LengthType>);
}

ROWS(utility, ChemicalClassifierType, EXTENSION("UtilityNetwork")) {
    ATTR("ECNo", ECNo, optional<string>);
    ATTR("CasNo", CasNo, optional<string>);
    ATTR("IUCLIDChemicalDataSheet", IUCLIDChemicalDataSheet, optional<uri>);
}

ROWS(utility, ComplexFunctionalElementType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

ROWS(utility, ControllerDeviceType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

ROWS_OF(utility::ElectricalMediumSupplyType) {
    ENUM("type", type, utility::ElectricalMediumValueType);
}
SUPPLY(ElectricalMediumSupplyType, "ElectricalMediumSupply")

ROWS(utility, ElectricalMediumType, EXTENSION("UtilityNetwork")) {
    ENUM("type", type, utility::ElectricalMediumValueType);
    ATTR("voltageRange", voltageRange, optional<gml::QuantityExtentType>);
    ATTR("amperageRange", amperageRange, optional<gml::QuantityExtentType>);
    ATTR("bandWidth", bandWidth, optional<gml::QuantityExtentType>);
}

ROWS(utility, FillingMaterialType, EXTENSION("UtilityNetwork")) {
    ATTR("type", type, gml::CodeType);
}

ROWS(utility, GHSClassifierType, EXTENSION("UtilityNetwork")) {
    ATTR("ECNo", ECNo, optional<string>);
    ATTR("CasNo", CasNo, optional<string>);
}

ROWS_OF(utility::GaseousMediumSupplyType) {
    ATTR("type", type, gml::CodeType);
}
SUPPLY(GaseousMediumSupplyType, "GaseousMediumSupply")

ROWS(utility, GaseousMediumType, EXTENSION("UtilityNetwork")) {
    ATTR("type", type, gml::CodeType);
    ATTR("concentration", concentration, optional<gml::MeasureType>);
    ATTR("isExplosive", isExplosive, optional<bool>);
    ATTR("pressureRange", pressureRange, optional<gml::QuantityExtentType>);
    ATTR("electricConductivity", electricConductivity, optional<gml::QuantityExtentType>);
    ATTR("lighterThanAir", lighterThanAir, optional<bool>);
}

ROWS(utility, HazardClassType, CURRENT) {
    ATTR("hazardClass", hazardClass, optional<string>);
    ATTR("categoryCode", categoryCode, optional<string>);
    ATTR("statementCode", statementCode, optional<string>);
    ATTR("pictogramCode", pictogramCode, optional<string>);
    ATTR("pictogramURI", pictogramURI, optional<uri>);
}

ROWS(utility, InterFeatureLinkType, EXTENSION("UtilityNetwork")) {
    ENUM("type", type, utility::InterFeatureLinkValueType);
}

ROWS_OF(utility::LiquidMediumSupplyType) {
    ATTR("type", type, gml::CodeType);
}
SUPPLY(LiquidMediumSupplyType, "LiquidMediumSupply")

ROWS(utility, LiquidMediumType, EXTENSION("UtilityNetwork")) {
    ATTR("type", type, gml::CodeType);
    ATTR("isCorrosive", isCorrosive, optional<bool>);
    ATTR("isExplosive", isExplosive, optional<bool>);
    ATTR("flammable", flammable, optional<core::doubleBetween0and1>);
    ATTR("electricConductivity", electricConductivity, optional<gml::QuantityExtentType>);
    ATTR("phValueRange", phValueRange, optional<gml::QuantityExtentType>);
    ATTR("temperatureRange", temperatureRange, optional<gml::QuantityExtentType>);
    ATTR("flowRateRange", flowRateRange, optional<gml::QuantityExtentType>);
    ATTR("pressureRange", pressureRange, optional<gml::QuantityExtentType>);
}

ROWS(utility, MeasurementDeviceType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

ROWS(utility, NetworkType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
    ATTR("function", function, sequence<gml::CodeType>);
    ATTR("usage", usage, sequence<gml::CodeType>);
}

ROWS(utility, NodeType, EXTENSION("UtilityNetwork")) {
    ENUM("type", type, utility::NodeValueType);
}

ROWS_OF(utility::OpticalMediumSupplyType) {
    ENUM("type", type, utility::OpticalMediumValueType);
}
SUPPLY(OpticalMediumSupplyType, "OpticalMediumSupply")

ROWS(utility, OpticalMediumType, EXTENSION("UtilityNetwork")) {
    ENUM("type", type, utility::OpticalMediumValueType);
    ENUM("modeType", modeType, optional<utility::OpticalModeValueType>);
    ATTR("bandWidth", bandWidth, optional<gml::QuantityExtentType>);
    ATTR("coreCrossSection", coreCrossSection, optional<gml::LengthType>);
    ATTR("claddingCrossSection", claddingCrossSection, optional<gml::LengthType>);
}

ROWS(utility, RectangularPipeType, EXTENSION("UtilityNetwork")) {
    ATTR("interiorWidth", interiorWidth, optional<gml::LengthType>);
    ATTR("interiorHeight", interiorHeight, optional<gml::LengthType>);
}

ROWS(utility, RectangularShellType, EXTENSION("UtilityNetwork")) {
    ATTR("interiorWidth", interiorWidth, optional<gml::LengthType>);
    ATTR("interiorHeight", interiorHeight, optional<gml::LengthType>);
}

ROWS(utility, RoleInNetworkType, EXTENSION("UtilityNetwork")) {
    ATTR("functionInNetwork", functionInNetwork, optional<gml::CodeType>);
    ATTR("usageInNetwork", usageInNetwork, sequence<gml::CodeType>);
}

ROWS(utility, RoundPipeType, EXTENSION("UtilityNetwork")) {
    ATTR("interiorDiameter", interiorDiameter, optional<gml::LengthType>);
}

ROWS(utility, RoundShellType, EXTENSION("UtilityNetwork")) {
    ATTR("interiorDiameter", interiorDiameter, optional<gml::LengthType>);
}

ROWS(utility, SimpleFunctionalElementType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

ROWS_OF(utility::SolidMediumSupplyType) {
    ATTR("type", type, gml::CodeType);
}
SUPPLY(SolidMediumSupplyType, "SolidMediumSupply")

ROWS(utility, SolidMediumType, EXTENSION("UtilityNetwork")) {
    ATTR("type", type, gml::CodeType);
    ATTR("isExplosive", isExplosive, optional<bool>);
    ATTR("flammable", flammable, optional<core::doubleBetween0and1>);
    ATTR("concentration", concentration, optional<gml::MeasureType>);
    ATTR("electricConductivity", electricConductivity, optional<gml::QuantityExtentType>);
    ATTR("pressureRange", pressureRange, optional<gml::QuantityExtentType>);
}

ROWS(utility, StorageDeviceType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

ROWS(utility, StorageType, CURRENT) {
    ATTR("type", type, optional<gml::CodeType>);
    ATTR("maxCapacity", maxCapacity, optional<gml::MeasureType>);
    ATTR("fillLevel", fillLevel, optional<core::doubleBetween0and1>);
    ATTR("inflowRate", inflowRate, optional<gml::MeasureType>);
    ATTR("outflowRate", outflowRate, optional<gml::MeasureType>);
}

ROWS(utility, SupplyType, CURRENT) {
    ATTR("flowRate", flowRate, optional<gml::MeasureType>);
    ENUM("status", status, optional<utility::StatusValueType>);
}

ROWS(utility, TechDeviceType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

ROWS(utility, TerminalElementType, EXTENSION("UtilityNetwork")) {
    ATTR("class", class_, optional<gml::CodeType>);
}

} // namespace tolvik

#undef SUPPLY
#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "utility/AbstractCommodityClassifierType.hxx"
#include "utility/AbstractCommodityType.hxx"
#include "utility/AbstractDeviceType.hxx"
#include "utility/AbstractDistributionElementType.hxx"
#include "utility/AbstractFeatureMaterialType.hxx"
#include "utility/AbstractLinkType.hxx"
#include "utility/AbstractMediumSupplyType.hxx"
#include "utility/AbstractNetworkFeatureType.hxx"
#include "utility/AbstractPipeType.hxx"
#include "utility/AbstractProtectionShellType.hxx"
#include "utility/AnyDeviceType.hxx"
#include "utility/BeddingType.hxx"
#include "utility/CableType.hxx"
#include "utility/CanalType.hxx"
#include "utility/ChemicalClassifierType.hxx"
#include "utility/ComplexFunctionalElementType.hxx"
#include "utility/ControllerDeviceType.hxx"
#include "utility/ElectricalMediumSupplyType.hxx"
#include "utility/ElectricalMediumType.hxx"
#include "utility/FillingMaterialType.hxx"
#include "utility/GaseousMediumSupplyType.hxx"
#include "utility/GaseousMediumType.hxx"
#include "utility/GHSClassifierType.hxx"
#include "utility/HazardClassPropertyType.hxx"
#include "utility/HazardClassType.hxx"
#include "utility/InterFeatureLinkType.hxx"
#include "utility/LiquidMediumSupplyType.hxx"
#include "utility/LiquidMediumType.hxx"
#include "utility/MeasurementDeviceType.hxx"
#include "utility/NetworkType.hxx"
#include "utility/NodeType.hxx"
#include "utility/OpticalMediumSupplyType.hxx"
#include "utility/OpticalMediumType.hxx"
#include "utility/RectangularPipeType.hxx"
#include "utility/RectangularShellType.hxx"
#include "utility/RoleInNetworkType.hxx"
#include "utility/RoundPipeType.hxx"
#include "utility/RoundShellType.hxx"
#include "utility/SimpleFunctionalElementType.hxx"
#include "utility/SolidMediumSupplyType.hxx"
#include "utility/SolidMediumType.hxx"
#include "utility/StorageDeviceType.hxx"
#include "utility/StoragePropertyType.hxx"
#include "utility/StorageType.hxx"
#include "utility/SupplyPropertyType.hxx"
#include "utility/SupplyType.hxx"
#include "utility/TechDeviceType.hxx"
#include "utility/TerminalElementType.hxx"

#include "utility.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_utility_AbstractCommodityClassifierType(utility::AbstractCommodityClassifierType* object)
{
    const Rows<utility::AbstractCommodityClassifierType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("molFormula", molFormula, optional<string>);
    ATTR("description", description, optional<gml::StringOrRefType>);
    ATTR("physicalForm", physicalForm, optional<string>);
    ATTR("molecularWeight", molecularWeight, optional<gml::MeasureType>);
    ENUM("signalWord", signalWord, optional<utility::SignalWordValueType>);
    ATTR("isChemicalComplex", isChemicalComplex, optional<bool>);
    HELD("hazardClass", hazardClass, HazardClass);
    return CityGMLPropertiesVisitor::visit_utility_AbstractCommodityClassifierType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractCommodityType(utility::AbstractCommodityType* object)
{
    const Rows<utility::AbstractCommodityType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("owner", owner, optional<string>);
    return CityGMLPropertiesVisitor::visit_utility_AbstractCommodityType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractDeviceType(utility::AbstractDeviceType* object)
{
    const Rows<utility::AbstractDeviceType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("description", description, optional<gml::StringOrRefType>);
    return CityGMLPropertiesVisitor::visit_utility_AbstractDeviceType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractDistributionElementType(utility::AbstractDistributionElementType* object)
{
    const Rows<utility::AbstractDistributionElementType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    ATTR("functionOfLine", functionOfLine, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_AbstractDistributionElementType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractFeatureMaterialType(utility::AbstractFeatureMaterialType* object)
{
    const Rows<utility::AbstractFeatureMaterialType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("type", type, gml::CodeType);
    return CityGMLPropertiesVisitor::visit_utility_AbstractFeatureMaterialType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractLinkType(utility::AbstractLinkType* object)
{
    const Rows<utility::AbstractLinkType> rows(this, object, EXTENSION("UtilityNetwork"));
    ENUM("direction", direction, optional<gml::SignType>);
    return CityGMLPropertiesVisitor::visit_utility_AbstractLinkType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractMediumSupplyType(utility::AbstractMediumSupplyType* object)
{
    const Rows<utility::AbstractMediumSupplyType> rows(this, object, Place::current());
    HELD("potentialSupply", potentialSupply, Supply);
    HELD("currentSupply", currentSupply, Supply);
    CHILDREN("storages", storages, Storage);
    return CityGMLPropertiesVisitor::visit_utility_AbstractMediumSupplyType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractNetworkFeatureType(utility::AbstractNetworkFeatureType* object)
{
    const Rows<utility::AbstractNetworkFeatureType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("function", function, optional<gml::CodeType>);
    ATTR("usage", usage, sequence<gml::CodeType>);
    ATTR("connectedCityObject", connectedCityObject, optional<uri>);
    ATTR("yearOfConstruction", yearOfConstruction, optional<date>);
    ENUM("status", status, optional<utility::StatusValueType>);
    ENUM("locationQuality", locationQuality, optional<utility::SpatialQualityValueType>);
    ENUM("elevationQuality", elevationQuality, optional<utility::SpatialQualityValueType>);
    return CityGMLPropertiesVisitor::visit_utility_AbstractNetworkFeatureType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractPipeType(utility::AbstractPipeType* object)
{
    const Rows<utility::AbstractPipeType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("isGravity", isGravity, optional<bool>);
    ATTR("exteriorWidth", exteriorWidth, optional<gml::LengthType>);
    ATTR("exteriorHeight", exteriorHeight, optional<gml::LengthType>);
    ATTR("exteriorDiameter", exteriorDiameter, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_AbstractPipeType(object);
}

bool GmlCorePropertyCreator::visit_utility_AbstractProtectionShellType(utility::AbstractProtectionShellType* object)
{
    const Rows<utility::AbstractProtectionShellType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("exteriorWidth", exteriorWidth, optional<gml::LengthType>);
    ATTR("exteriorHeight", exteriorHeight, optional<gml::LengthType>);
    ATTR("exteriorDiameter", exteriorDiameter, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_AbstractProtectionShellType(object);
}

bool GmlCorePropertyCreator::visit_utility_AnyDeviceType(utility::AnyDeviceType* object)
{
    const Rows<utility::AnyDeviceType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_AnyDeviceType(object);
}

bool GmlCorePropertyCreator::visit_utility_BeddingType(utility::BeddingType* object)
{
    const Rows<utility::BeddingType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("width", width, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_BeddingType(object);
}

bool GmlCorePropertyCreator::visit_utility_CableType(utility::CableType* object)
{
    const Rows<utility::CableType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("isTransmission", isTransmission, optional<bool>);
    ATTR("isCommunication", isCommunication, optional<bool>);
    ATTR("crossSection", crossSection, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_CableType(object);
}

bool GmlCorePropertyCreator::visit_utility_CanalType(utility::CanalType* object)
{
    const Rows<utility::CanalType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("profileName", profileName, optional<string>);
    ATTR("slope", slope, optional<gml::QuantityExtentType>);
    ATTR("isGravity", isGravity, optional<bool>);
    ATTR("exteriorWidth", exteriorWidth, optional<gml::LengthType>);
    ATTR("exteriorHeight", exteriorHeight, optional<gml::LengthType>);
    ATTR("exteriorDiameter", exteriorDiameter, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_CanalType(object);
}

bool GmlCorePropertyCreator::visit_utility_ChemicalClassifierType(utility::ChemicalClassifierType* object)
{
    const Rows<utility::ChemicalClassifierType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("ECNo", ECNo, optional<string>);
    ATTR("CasNo", CasNo, optional<string>);
    ATTR("IUCLIDChemicalDataSheet", IUCLIDChemicalDataSheet, optional<uri>);
    return CityGMLPropertiesVisitor::visit_utility_ChemicalClassifierType(object);
}

bool GmlCorePropertyCreator::visit_utility_ComplexFunctionalElementType(utility::ComplexFunctionalElementType* object)
{
    const Rows<utility::ComplexFunctionalElementType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_ComplexFunctionalElementType(object);
}

bool GmlCorePropertyCreator::visit_utility_ControllerDeviceType(utility::ControllerDeviceType* object)
{
    const Rows<utility::ControllerDeviceType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_ControllerDeviceType(object);
}

bool GmlCorePropertyCreator::visit_utility_ElectricalMediumSupplyType(utility::ElectricalMediumSupplyType* object)
{
    const Rows<utility::ElectricalMediumSupplyType> block(this, object, EXTENSION("UtilityNetwork"));
    m_currentParent = block.group(QStringLiteral("ElectricalMediumSupply"));
    const auto rows = block.below(m_currentParent);
    ENUM("type", type, utility::ElectricalMediumValueType);
    const bool result = CityGMLPropertiesVisitor::visit_utility_ElectricalMediumSupplyType(object);
    // A supply ends the group that it stands in: the outer group does not come back.
    m_currentParent = nullptr;
    return result;
}

bool GmlCorePropertyCreator::visit_utility_ElectricalMediumType(utility::ElectricalMediumType* object)
{
    const Rows<utility::ElectricalMediumType> rows(this, object, EXTENSION("UtilityNetwork"));
    ENUM("type", type, utility::ElectricalMediumValueType);
    ATTR("voltageRange", voltageRange, optional<gml::QuantityExtentType>);
    ATTR("amperageRange", amperageRange, optional<gml::QuantityExtentType>);
    ATTR("bandWidth", bandWidth, optional<gml::QuantityExtentType>);
    return CityGMLPropertiesVisitor::visit_utility_ElectricalMediumType(object);
}

bool GmlCorePropertyCreator::visit_utility_FillingMaterialType(utility::FillingMaterialType* object)
{
    const Rows<utility::FillingMaterialType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("type", type, gml::CodeType);
    return CityGMLPropertiesVisitor::visit_utility_FillingMaterialType(object);
}

bool GmlCorePropertyCreator::visit_utility_GHSClassifierType(utility::GHSClassifierType* object)
{
    const Rows<utility::GHSClassifierType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("ECNo", ECNo, optional<string>);
    ATTR("CasNo", CasNo, optional<string>);
    return CityGMLPropertiesVisitor::visit_utility_GHSClassifierType(object);
}

bool GmlCorePropertyCreator::visit_utility_GaseousMediumSupplyType(utility::GaseousMediumSupplyType* object)
{
    const Rows<utility::GaseousMediumSupplyType> block(this, object, EXTENSION("UtilityNetwork"));
    m_currentParent = block.group(QStringLiteral("GaseousMediumSupply"));
    const auto rows = block.below(m_currentParent);
    ATTR("type", type, gml::CodeType);
    const bool result = CityGMLPropertiesVisitor::visit_utility_GaseousMediumSupplyType(object);
    // A supply ends the group that it stands in: the outer group does not come back.
    m_currentParent = nullptr;
    return result;
}

bool GmlCorePropertyCreator::visit_utility_GaseousMediumType(utility::GaseousMediumType* object)
{
    const Rows<utility::GaseousMediumType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("type", type, gml::CodeType);
    ATTR("concentration", concentration, optional<gml::MeasureType>);
    ATTR("isExplosive", isExplosive, optional<bool>);
    ATTR("pressureRange", pressureRange, optional<gml::QuantityExtentType>);
    ATTR("electricConductivity", electricConductivity, optional<gml::QuantityExtentType>);
    ATTR("lighterThanAir", lighterThanAir, optional<bool>);
    return CityGMLPropertiesVisitor::visit_utility_GaseousMediumType(object);
}

bool GmlCorePropertyCreator::visit_utility_HazardClassType(utility::HazardClassType* object)
{
    const Rows<utility::HazardClassType> rows(this, object, Place::current());
    ATTR("hazardClass", hazardClass, optional<string>);
    ATTR("categoryCode", categoryCode, optional<string>);
    ATTR("statementCode", statementCode, optional<string>);
    ATTR("pictogramCode", pictogramCode, optional<string>);
    ATTR("pictogramURI", pictogramURI, optional<uri>);
    return CityGMLPropertiesVisitor::visit_utility_HazardClassType(object);
}

bool GmlCorePropertyCreator::visit_utility_InterFeatureLinkType(utility::InterFeatureLinkType* object)
{
    const Rows<utility::InterFeatureLinkType> rows(this, object, EXTENSION("UtilityNetwork"));
    ENUM("type", type, utility::InterFeatureLinkValueType);
    return CityGMLPropertiesVisitor::visit_utility_InterFeatureLinkType(object);
}

bool GmlCorePropertyCreator::visit_utility_LiquidMediumSupplyType(utility::LiquidMediumSupplyType* object)
{
    const Rows<utility::LiquidMediumSupplyType> block(this, object, EXTENSION("UtilityNetwork"));
    m_currentParent = block.group(QStringLiteral("LiquidMediumSupply"));
    const auto rows = block.below(m_currentParent);
    ATTR("type", type, gml::CodeType);
    const bool result = CityGMLPropertiesVisitor::visit_utility_LiquidMediumSupplyType(object);
    // A supply ends the group that it stands in: the outer group does not come back.
    m_currentParent = nullptr;
    return result;
}

bool GmlCorePropertyCreator::visit_utility_LiquidMediumType(utility::LiquidMediumType* object)
{
    const Rows<utility::LiquidMediumType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("type", type, gml::CodeType);
    ATTR("isCorrosive", isCorrosive, optional<bool>);
    ATTR("isExplosive", isExplosive, optional<bool>);
    ATTR("flammable", flammable, optional<core::doubleBetween0and1>);
    ATTR("electricConductivity", electricConductivity, optional<gml::QuantityExtentType>);
    ATTR("phValueRange", phValueRange, optional<gml::QuantityExtentType>);
    ATTR("temperatureRange", temperatureRange, optional<gml::QuantityExtentType>);
    ATTR("flowRateRange", flowRateRange, optional<gml::QuantityExtentType>);
    ATTR("pressureRange", pressureRange, optional<gml::QuantityExtentType>);
    return CityGMLPropertiesVisitor::visit_utility_LiquidMediumType(object);
}

bool GmlCorePropertyCreator::visit_utility_MeasurementDeviceType(utility::MeasurementDeviceType* object)
{
    const Rows<utility::MeasurementDeviceType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_MeasurementDeviceType(object);
}

bool GmlCorePropertyCreator::visit_utility_NetworkType(utility::NetworkType* object)
{
    const Rows<utility::NetworkType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    ATTR("function", function, sequence<gml::CodeType>);
    ATTR("usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_NetworkType(object);
}

bool GmlCorePropertyCreator::visit_utility_NodeType(utility::NodeType* object)
{
    const Rows<utility::NodeType> rows(this, object, EXTENSION("UtilityNetwork"));
    ENUM("type", type, utility::NodeValueType);
    return CityGMLPropertiesVisitor::visit_utility_NodeType(object);
}

bool GmlCorePropertyCreator::visit_utility_OpticalMediumSupplyType(utility::OpticalMediumSupplyType* object)
{
    const Rows<utility::OpticalMediumSupplyType> block(this, object, EXTENSION("UtilityNetwork"));
    m_currentParent = block.group(QStringLiteral("OpticalMediumSupply"));
    const auto rows = block.below(m_currentParent);
    ENUM("type", type, utility::OpticalMediumValueType);
    const bool result = CityGMLPropertiesVisitor::visit_utility_OpticalMediumSupplyType(object);
    // A supply ends the group that it stands in: the outer group does not come back.
    m_currentParent = nullptr;
    return result;
}

bool GmlCorePropertyCreator::visit_utility_OpticalMediumType(utility::OpticalMediumType* object)
{
    const Rows<utility::OpticalMediumType> rows(this, object, EXTENSION("UtilityNetwork"));
    ENUM("type", type, utility::OpticalMediumValueType);
    ENUM("modeType", modeType, optional<utility::OpticalModeValueType>);
    ATTR("bandWidth", bandWidth, optional<gml::QuantityExtentType>);
    ATTR("coreCrossSection", coreCrossSection, optional<gml::LengthType>);
    ATTR("claddingCrossSection", claddingCrossSection, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_OpticalMediumType(object);
}

bool GmlCorePropertyCreator::visit_utility_RectangularPipeType(utility::RectangularPipeType* object)
{
    const Rows<utility::RectangularPipeType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("interiorWidth", interiorWidth, optional<gml::LengthType>);
    ATTR("interiorHeight", interiorHeight, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_RectangularPipeType(object);
}

bool GmlCorePropertyCreator::visit_utility_RectangularShellType(utility::RectangularShellType* object)
{
    const Rows<utility::RectangularShellType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("interiorWidth", interiorWidth, optional<gml::LengthType>);
    ATTR("interiorHeight", interiorHeight, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_RectangularShellType(object);
}

bool GmlCorePropertyCreator::visit_utility_RoleInNetworkType(utility::RoleInNetworkType* object)
{
    const Rows<utility::RoleInNetworkType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("functionInNetwork", functionInNetwork, optional<gml::CodeType>);
    ATTR("usageInNetwork", usageInNetwork, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_RoleInNetworkType(object);
}

bool GmlCorePropertyCreator::visit_utility_RoundPipeType(utility::RoundPipeType* object)
{
    const Rows<utility::RoundPipeType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("interiorDiameter", interiorDiameter, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_RoundPipeType(object);
}

bool GmlCorePropertyCreator::visit_utility_RoundShellType(utility::RoundShellType* object)
{
    const Rows<utility::RoundShellType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("interiorDiameter", interiorDiameter, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_utility_RoundShellType(object);
}

bool GmlCorePropertyCreator::visit_utility_SimpleFunctionalElementType(utility::SimpleFunctionalElementType* object)
{
    const Rows<utility::SimpleFunctionalElementType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_SimpleFunctionalElementType(object);
}

bool GmlCorePropertyCreator::visit_utility_SolidMediumSupplyType(utility::SolidMediumSupplyType* object)
{
    const Rows<utility::SolidMediumSupplyType> block(this, object, EXTENSION("UtilityNetwork"));
    m_currentParent = block.group(QStringLiteral("SolidMediumSupply"));
    const auto rows = block.below(m_currentParent);
    ATTR("type", type, gml::CodeType);
    const bool result = CityGMLPropertiesVisitor::visit_utility_SolidMediumSupplyType(object);
    // A supply ends the group that it stands in: the outer group does not come back.
    m_currentParent = nullptr;
    return result;
}

bool GmlCorePropertyCreator::visit_utility_SolidMediumType(utility::SolidMediumType* object)
{
    const Rows<utility::SolidMediumType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("type", type, gml::CodeType);
    ATTR("isExplosive", isExplosive, optional<bool>);
    ATTR("flammable", flammable, optional<core::doubleBetween0and1>);
    ATTR("concentration", concentration, optional<gml::MeasureType>);
    ATTR("electricConductivity", electricConductivity, optional<gml::QuantityExtentType>);
    ATTR("pressureRange", pressureRange, optional<gml::QuantityExtentType>);
    return CityGMLPropertiesVisitor::visit_utility_SolidMediumType(object);
}

bool GmlCorePropertyCreator::visit_utility_StorageDeviceType(utility::StorageDeviceType* object)
{
    const Rows<utility::StorageDeviceType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_StorageDeviceType(object);
}

bool GmlCorePropertyCreator::visit_utility_StorageType(utility::StorageType* object)
{
    const Rows<utility::StorageType> rows(this, object, Place::current());
    ATTR("type", type, optional<gml::CodeType>);
    ATTR("maxCapacity", maxCapacity, optional<gml::MeasureType>);
    ATTR("fillLevel", fillLevel, optional<core::doubleBetween0and1>);
    ATTR("inflowRate", inflowRate, optional<gml::MeasureType>);
    ATTR("outflowRate", outflowRate, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_utility_StorageType(object);
}

bool GmlCorePropertyCreator::visit_utility_SupplyType(utility::SupplyType* object)
{
    const Rows<utility::SupplyType> rows(this, object, Place::current());
    ATTR("flowRate", flowRate, optional<gml::MeasureType>);
    ENUM("status", status, optional<utility::StatusValueType>);
    return CityGMLPropertiesVisitor::visit_utility_SupplyType(object);
}

bool GmlCorePropertyCreator::visit_utility_TechDeviceType(utility::TechDeviceType* object)
{
    const Rows<utility::TechDeviceType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_TechDeviceType(object);
}

bool GmlCorePropertyCreator::visit_utility_TerminalElementType(utility::TerminalElementType* object)
{
    const Rows<utility::TerminalElementType> rows(this, object, EXTENSION("UtilityNetwork"));
    ATTR("class", class_, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_utility_TerminalElementType(object);
}

} // namespace tolvik

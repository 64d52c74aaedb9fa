#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "energy/TransmittancePropertyType.hxx"
#include "energy/TransmittanceType.hxx"
#include "pivotEnergy/AeraulicDistributionPortionType.hxx"
#include "pivotEnergy/AeraulicDistributionType.hxx"
#include "pivotEnergy/AirGratType.hxx"
#include "pivotEnergy/AirIntakeType.hxx"
#include "pivotEnergy/BlowerVentsType.hxx"
#include "pivotEnergy/BoilerType.hxx"
#include "pivotEnergy/ConnectedCoolingEmitterType.hxx"
#include "pivotEnergy/ConnectedHeatingEmitterType.hxx"
#include "pivotEnergy/DHWEmitterType.hxx"
#include "pivotEnergy/DistributionPortionType.hxx"
#include "pivotEnergy/DistrictHeatingType.hxx"
#include "pivotEnergy/ElectricHeaterGeneratorType.hxx"
#include "pivotEnergy/ElectricHeatPumpType.hxx"
#include "pivotEnergy/EnergyConsumptionType.hxx"
#include "pivotEnergy/EnvironmentalIndicatorType.hxx"
#include "pivotEnergy/GasHeatPumpType.hxx"
#include "pivotEnergy/GenerationManagementType.hxx"
#include "pivotEnergy/GeneratorType.hxx"
#include "pivotEnergy/GlobalConstructionType.hxx"
#include "pivotEnergy/GoThroughType.hxx"
#include "pivotEnergy/HydraulicDistributionPortionType.hxx"
#include "pivotEnergy/HydraulicDistributionType.hxx"
#include "pivotEnergy/LightsType.hxx"
#include "pivotEnergy/OpeningThermalPropertiesType.hxx"
#include "pivotEnergy/OrderedComponentType.hxx"
#include "pivotEnergy/PhotovoltaicCollectorType.hxx"
#include "pivotEnergy/ReturnAirVentsType.hxx"
#include "pivotEnergy/ShadingTypePropertyType.hxx"
#include "pivotEnergy/ShadingTypeType.hxx"
#include "pivotEnergy/SolarLoopType.hxx"
#include "pivotEnergy/StandaloneCoolingEmitterType.hxx"
#include "pivotEnergy/StandaloneEmitterType.hxx"
#include "pivotEnergy/StandaloneHeatingEmitterType.hxx"
#include "pivotEnergy/StorageType.hxx"
#include "pivotEnergy/ThermalBridgeType.hxx"
#include "pivotEnergy/ThermalEmitterType.hxx"
#include "pivotEnergy/VentilationSystemType.hxx"
#include "pivotEnergy/VentsType.hxx"

#include "pivotEnergy.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_pivotEnergy_AeraulicDistributionPortionType(pivotEnergy::AeraulicDistributionPortionType* object)
{
    const Rows<pivotEnergy::AeraulicDistributionPortionType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("airTighnessClass", airTighnessClass, optional<pivotEnergy::AirTighnessClassEnumerationType>);
    ATTR("thermalResistance", thermalResistance, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_AeraulicDistributionPortionType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_AeraulicDistributionType(pivotEnergy::AeraulicDistributionType* object)
{
    const Rows<pivotEnergy::AeraulicDistributionType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("dateOfRefurbishement", dateOfRefurbishement, gyear);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_AeraulicDistributionType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_AirGratType(pivotEnergy::AirGratType* object)
{
    const Rows<pivotEnergy::AirGratType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("airGratingSection", airGratingSection, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_AirGratType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_AirIntakeType(pivotEnergy::AirIntakeType* object)
{
    const Rows<pivotEnergy::AirIntakeType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("airIntakeModule", airIntakeModule, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_AirIntakeType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_BlowerVentsType(pivotEnergy::BlowerVentsType* object)
{
    const Rows<pivotEnergy::BlowerVentsType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("airInletOccupationFlow", airInletOccupationFlow, gml::MeasureType);
    ATTR("airInletInnocupationFlow", airInletInnocupationFlow, gml::MeasureType);
    ATTR("airInletFreeCoolingFlow", airInletFreeCoolingFlow, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_BlowerVentsType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_BoilerType(pivotEnergy::BoilerType* object)
{
    const Rows<pivotEnergy::BoilerType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("boilerType", boilerType, optional<pivotEnergy::BoilerTypeEnumerationType>);
    ATTR("nominalPower", nominalPower, optional<gml::MeasureType>);
    ATTR("nominalEfficiency", nominalEfficiency, optional<gml::MeasureType>);
    ENUM("fuelType", fuelType, optional<pivotEnergy::FuelTypeEnumerationType>);
    ATTR("intermediateEfficiency", intermediateEfficiency, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_BoilerType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ConnectedCoolingEmitterType(pivotEnergy::ConnectedCoolingEmitterType* object)
{
    const Rows<pivotEnergy::ConnectedCoolingEmitterType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("spaceRatio", spaceRatio, gml::ScaleType);
    ENUM("priority", priority, pivotEnergy::EmitterPriorityEnumerationType);
    ENUM("emitterType", emitterType, pivotEnergy::ConnectedCoolingEmitterTypeEnumerationType);
    ENUM("regulationType", regulationType, pivotEnergy::EmitterRegulationTypeEnumerationType);
    ATTR("power", power, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ConnectedCoolingEmitterType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ConnectedHeatingEmitterType(pivotEnergy::ConnectedHeatingEmitterType* object)
{
    const Rows<pivotEnergy::ConnectedHeatingEmitterType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("spaceRatio", spaceRatio, gml::ScaleType);
    ENUM("priority", priority, pivotEnergy::EmitterPriorityEnumerationType);
    ENUM("emitterType", emitterType, pivotEnergy::ConnectedHeatingEmitterTypeEnumerationType);
    ENUM("regulationType", regulationType, pivotEnergy::EmitterRegulationTypeEnumerationType);
    ATTR("power", power, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ConnectedHeatingEmitterType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_DHWEmitterType(pivotEnergy::DHWEmitterType* object)
{
    const Rows<pivotEnergy::DHWEmitterType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    ENUM("dhwEmittorType", dhwEmittorType, pivotEnergy::DHWEmitterTypeEnumerationType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_DHWEmitterType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_DistributionPortionType(pivotEnergy::DistributionPortionType* object)
{
    const Rows<pivotEnergy::DistributionPortionType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("length", length, gml::LengthType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_DistributionPortionType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_DistrictHeatingType(pivotEnergy::DistrictHeatingType* object)
{
    const Rows<pivotEnergy::DistrictHeatingType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("districtHeatingType", districtHeatingType, optional<pivotEnergy::DistrictHeatingTypeEnumType>);
    ATTR("exchangePower", exchangePower, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_DistrictHeatingType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ElectricHeatPumpType(pivotEnergy::ElectricHeatPumpType* object)
{
    const Rows<pivotEnergy::ElectricHeatPumpType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("heatPumpType", heatPumpType, optional<pivotEnergy::ElectricHeatPumpEnumerationType>);
    ATTR("heatNominalPower", heatNominalPower, optional<gml::MeasureType>);
    ATTR("coolingNominalPower", coolingNominalPower, optional<gml::MeasureType>);
    ATTR("DHWNominalPower", DHWNominalPower, optional<gml::MeasureType>);
    ATTR("heatingCOP", heatingCOP, optional<gml::MeasureType>);
    ATTR("DHWCOP", DHWCOP, optional<gml::MeasureType>);
    ATTR("coolingEER", coolingEER, optional<gml::MeasureType>);
    ENUM("waterSourceType", waterSourceType, optional<pivotEnergy::WaterSourceTypeEnumerationType>);
    ATTR("condensorTempCOP", condensorTempCOP, optional<gml::MeasureType>);
    ATTR("evaporatorTempCOP", evaporatorTempCOP, optional<gml::MeasureType>);
    ATTR("condensorTempEER", condensorTempEER, optional<gml::MeasureType>);
    ATTR("evaporatorTempEER", evaporatorTempEER, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ElectricHeatPumpType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ElectricHeaterGeneratorType(pivotEnergy::ElectricHeaterGeneratorType* object)
{
    const Rows<pivotEnergy::ElectricHeaterGeneratorType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("elecNominalPower", elecNominalPower, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ElectricHeaterGeneratorType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_EnergyConsumptionType(pivotEnergy::EnergyConsumptionType* object)
{
    const Rows<pivotEnergy::EnergyConsumptionType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("endUse", endUse, energy::EndUseTypeValue);
    ATTR("energySource", energySource, gml::CodeType);
    ATTR("value", value, gml::MeasureType);
    ATTR("primaryEnergyFactor", primaryEnergyFactor, double);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_EnergyConsumptionType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_EnvironmentalIndicatorType(pivotEnergy::EnvironmentalIndicatorType* object)
{
    const Rows<pivotEnergy::EnvironmentalIndicatorType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("impactCategory", impactCategory, pivotEnergy::ImpactCategoryType);
    ATTR("LCIAMethod", LCIAMethod, gml::CodeType);
    ATTR("impactCategoryValue", impactCategoryValue, gml::MeasureType);
    ENUM("contributorType", contributorType, pivotEnergy::ContributorTypeType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_EnvironmentalIndicatorType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_GasHeatPumpType(pivotEnergy::GasHeatPumpType* object)
{
    const Rows<pivotEnergy::GasHeatPumpType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("heatPumpType", heatPumpType, optional<pivotEnergy::GasHeatPumpEnumerationType>);
    ATTR("heatNominalPower", heatNominalPower, optional<gml::MeasureType>);
    ATTR("coolingNominalPower", coolingNominalPower, optional<gml::MeasureType>);
    ATTR("DHWNominalPower", DHWNominalPower, optional<gml::MeasureType>);
    ATTR("heatingGUE", heatingGUE, optional<gml::MeasureType>);
    ATTR("coolingGUE", coolingGUE, optional<gml::MeasureType>);
    ATTR("DHWGUE", DHWGUE, optional<gml::MeasureType>);
    ATTR("condensorTempCOP", condensorTempCOP, optional<gml::MeasureType>);
    ATTR("evaporatorTempCOP", evaporatorTempCOP, optional<gml::MeasureType>);
    ATTR("condensorTempEER", condensorTempEER, optional<gml::MeasureType>);
    ATTR("evaporatorTempEER", evaporatorTempEER, optional<gml::MeasureType>);
    ENUM("waterSourceType", waterSourceType, optional<pivotEnergy::WaterSourceTypeEnumerationType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_GasHeatPumpType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_GenerationManagementType(pivotEnergy::GenerationManagementType* object)
{
    const Rows<pivotEnergy::GenerationManagementType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("priorityManagement", priorityManagement, optional<pivotEnergy::PriorityManagementEnumType>);
    ENUM("genTemperatureProductionManagementHeat", genTemperatureProductionManagementHeat, optional<pivotEnergy::TemperatureProductionManagementEnumType>);
    ENUM("genTemperatureProductionManagementCold", genTemperatureProductionManagementCold, optional<pivotEnergy::TemperatureProductionManagementEnumType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_GenerationManagementType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_GeneratorType(pivotEnergy::GeneratorType* object)
{
    const Rows<pivotEnergy::GeneratorType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("dateOfRefurbishment", dateOfRefurbishment, optional<gyear>);
    ENUM("function", function, optional<pivotEnergy::FunctionEnumType>);
    ATTR("heatingPriorityIndex", heatingPriorityIndex, optional<long long>);
    ATTR("DHWPriorityIndex", DHWPriorityIndex, optional<long long>);
    ATTR("coolingPriorityIndex", coolingPriorityIndex, optional<long long>);
    ENUM("accumulationSchedule", accumulationSchedule, optional<pivotEnergy::AccumulationScheduleEnumerationType>);
    ATTR("nbSameType", nbSameType, optional<long long>);
    ENUM("generatorProductionControlType", generatorProductionControlType, optional<pivotEnergy::GeneratorProductionControlTypeEnumType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_GeneratorType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_GlobalConstructionType(pivotEnergy::GlobalConstructionType* object)
{
    const Rows<pivotEnergy::GlobalConstructionType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("color", color, optional<pivotEnergy::ColorType>);
    ATTR("dateOfRufurbishement", dateOfRufurbishement, optional<gyear>);
    ENUM("inertiaClass", inertiaClass, optional<pivotEnergy::InertiaClassType>);
    ATTR("uValue", uValue, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_GlobalConstructionType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_GoThroughType(pivotEnergy::GoThroughType* object)
{
    const Rows<pivotEnergy::GoThroughType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("percentage", percentage, optional<gml::LengthType>);
    ATTR("ThermalZonePerimeter", ThermalZonePerimeter, optional<long long>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_GoThroughType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_HydraulicDistributionPortionType(pivotEnergy::HydraulicDistributionPortionType* object)
{
    const Rows<pivotEnergy::HydraulicDistributionPortionType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("distributionPortionInsulation", distributionPortionInsulation, pivotEnergy::DistributionPortionInsulationEnumType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_HydraulicDistributionPortionType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_HydraulicDistributionType(pivotEnergy::HydraulicDistributionType* object)
{
    const Rows<pivotEnergy::HydraulicDistributionType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("distributionType", distributionType, pivotEnergy::DistributionTypeEnumerationType);
    ATTR("isCirculation", isCirculation, bool);
    ENUM("disTemperatureProductionManagement", disTemperatureProductionManagement, pivotEnergy::DisTemperatureManagementEnumerationType);
    ENUM("flowManagement", flowManagement, pivotEnergy::FlowManagementEnumerationType);
    ENUM("startAndStopManagement", startAndStopManagement, pivotEnergy::StartAndStopManagementEnumerationType);
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_HydraulicDistributionType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_LightsType(pivotEnergy::LightsType* object)
{
    const Rows<pivotEnergy::LightsType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("installedPower", installedPower, gml::MeasureType);
    ATTR("nbOfLights", nbOfLights, long long);
    ENUM("lightsType", lightsType, pivotEnergy::LightsTypeEnumerationType);
    ATTR("lightingSpaceRatio", lightingSpaceRatio, gml::ScaleType);
    ENUM("lightingManagement", lightingManagement, pivotEnergy::LightingManagementEnumerationType);
    ENUM("lightingRegulation", lightingRegulation, pivotEnergy::LightingRegulationEnumerationType);
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    ATTR("idLightLayer", idLightLayer, long long);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_LightsType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_OpeningThermalPropertiesType(pivotEnergy::OpeningThermalPropertiesType* object)
{
    const Rows<pivotEnergy::OpeningThermalPropertiesType> rows(this, object, EXTENSION("pivotEnergy"));
    HELD("shading", shading, ShadingType);
    HELD("transmittance", transmittance, Transmittance);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_OpeningThermalPropertiesType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_OrderedComponentType(pivotEnergy::OrderedComponentType* object)
{
    const Rows<pivotEnergy::OrderedComponentType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("directOrder", directOrder, bool);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_OrderedComponentType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_PhotovoltaicCollectorType(pivotEnergy::PhotovoltaicCollectorType* object)
{
    const Rows<pivotEnergy::PhotovoltaicCollectorType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("photovoltaicCollectorArea", photovoltaicCollectorArea, optional<gml::AreaType>);
    ATTR("azimuth", azimuth, optional<gml::AngleType>);
    ATTR("inclination", inclination, optional<gml::AngleType>);
    ENUM("photovoltaicCollectorType", photovoltaicCollectorType, optional<pivotEnergy::PhotovoltaicCollectorTypeEnumerationType>);
    ATTR("peakPower", peakPower, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_PhotovoltaicCollectorType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ReturnAirVentsType(pivotEnergy::ReturnAirVentsType* object)
{
    const Rows<pivotEnergy::ReturnAirVentsType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("airOutletOccupationFlow", airOutletOccupationFlow, gml::MeasureType);
    ATTR("airOutletInnocupationFlow", airOutletInnocupationFlow, gml::MeasureType);
    ATTR("airOutletFreeCoolingFlow", airOutletFreeCoolingFlow, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ReturnAirVentsType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ShadingTypeType(pivotEnergy::ShadingTypeType* object)
{
    const Rows<pivotEnergy::ShadingTypeType> rows(this, object, Place::current());
    ENUM("shadingType", shadingType, pivotEnergy::ShadingTypeEnumerationType);
    ENUM("color", color, pivotEnergy::ColorType);
    ENUM("shadingPosition", shadingPosition, pivotEnergy::ShadingPositionEnumerationType);
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    ENUM("shadingManagement", shadingManagement, pivotEnergy::ShadingManagementEnumerationType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ShadingTypeType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_SolarLoopType(pivotEnergy::SolarLoopType* object)
{
    const Rows<pivotEnergy::SolarLoopType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("solarHeatingCollectorArea", solarHeatingCollectorArea, optional<gml::AreaType>);
    ATTR("azimuth", azimuth, optional<gml::AngleType>);
    ATTR("inclination", inclination, optional<gml::AngleType>);
    ENUM("solarHeatingCollectorType", solarHeatingCollectorType, optional<pivotEnergy::SolarHeatingCollectorTypeEnumerationType>);
    ATTR("circulatorPower", circulatorPower, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_SolarLoopType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_StandaloneCoolingEmitterType(pivotEnergy::StandaloneCoolingEmitterType* object)
{
    const Rows<pivotEnergy::StandaloneCoolingEmitterType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("emitterType", emitterType, optional<pivotEnergy::StandaloneCoolingEmitterTypeEnumerationType>);
    ATTR("condensorTempEER", condensorTempEER, optional<gml::MeasureType>);
    ATTR("evaporatorTempEER", evaporatorTempEER, optional<gml::MeasureType>);
    ATTR("power", power, optional<gml::MeasureType>);
    ENUM("regulationType", regulationType, optional<pivotEnergy::EmitterRegulationTypeEnumerationType>);
    ATTR("efficiency", efficiency, optional<gml::MeasureType>);
    ATTR("spaceRatio", spaceRatio, optional<gml::ScaleType>);
    ENUM("priority", priority, optional<pivotEnergy::EmitterPriorityEnumerationType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_StandaloneCoolingEmitterType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_StandaloneEmitterType(pivotEnergy::StandaloneEmitterType* object)
{
    const Rows<pivotEnergy::StandaloneEmitterType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("emitterProductionControlType", emitterProductionControlType, optional<pivotEnergy::EmitterProductionControlTypeEnumerationType>);
    // Past the rows of a thermal emitter, which a standalone one does not show.
    return CityGMLInheritVisitor::visit_pivotEnergy_ThermalEmitterType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_StandaloneHeatingEmitterType(pivotEnergy::StandaloneHeatingEmitterType* object)
{
    const Rows<pivotEnergy::StandaloneHeatingEmitterType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("emitterType", emitterType, pivotEnergy::StandaloneHeatingEmitterTypeEnumerationType);
    ATTR("condensorTempCOP", condensorTempCOP, gml::MeasureType);
    ATTR("evaporatorTempCOP", evaporatorTempCOP, gml::MeasureType);
    ATTR("power", power, gml::MeasureType);
    ENUM("regulationType", regulationType, pivotEnergy::EmitterRegulationTypeEnumerationType);
    ATTR("efficiency", efficiency, gml::MeasureType);
    ATTR("spaceRatio", spaceRatio, gml::ScaleType);
    ENUM("priority", priority, pivotEnergy::EmitterPriorityEnumerationType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_StandaloneHeatingEmitterType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_StorageType(pivotEnergy::StorageType* object)
{
    const Rows<pivotEnergy::StorageType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("dateOfRufurbishment", dateOfRufurbishment, gyear);
    ATTR("priorityDHWIndex", priorityDHWIndex, long long);
    ATTR("priorityHeatingIndex", priorityHeatingIndex, long long);
    ATTR("nbAssemblySameType", nbAssemblySameType, long long);
    ATTR("nbStoSameTypeByAssembly", nbStoSameTypeByAssembly, long long);
    ATTR("storageVolume", storageVolume, gml::VolumeType);
    ATTR("isStorageVertical", isStorageVertical, bool);
    ATTR("storageHeatLosses", storageHeatLosses, gml::MeasureType);
    ATTR("storageSetPoint", storageSetPoint, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_StorageType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ThermalBridgeType(pivotEnergy::ThermalBridgeType* object)
{
    const Rows<pivotEnergy::ThermalBridgeType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("psi", psi, optional<gml::MeasureType>);
    ATTR("length", length, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ThermalBridgeType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_ThermalEmitterType(pivotEnergy::ThermalEmitterType* object)
{
    const Rows<pivotEnergy::ThermalEmitterType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("dateOfRefurbishment", dateOfRefurbishment, optional<gyear>);
    ENUM("emitterProgType", emitterProgType, optional<pivotEnergy::EmitterProgTypeEnumerationType>);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_ThermalEmitterType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_VentilationSystemType(pivotEnergy::VentilationSystemType* object)
{
    const Rows<pivotEnergy::VentilationSystemType> rows(this, object, EXTENSION("pivotEnergy"));
    ENUM("ventilationType", ventilationType, pivotEnergy::VentilationTypeEnumType);
    ATTR("inletFanPower", inletFanPower, gml::MeasureType);
    ATTR("outletFanPower", outletFanPower, gml::MeasureType);
    ATTR("isFreeCooling", isFreeCooling, bool);
    ATTR("epsilon", epsilon, gml::MeasureType);
    ATTR("isByPass", isByPass, bool);
    ATTR("outsideAirRate", outsideAirRate, gml::MeasureType);
    ATTR("dateOfRufurbishment", dateOfRufurbishment, gyear);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_VentilationSystemType(object);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_VentsType(pivotEnergy::VentsType* object)
{
    const Rows<pivotEnergy::VentsType> rows(this, object, EXTENSION("pivotEnergy"));
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    return CityGMLPropertiesVisitor::visit_pivotEnergy_VentsType(object);
}

} // namespace tolvik

#include "energy/TransmittancePropertyType.hxx"
#include "energy/TransmittanceType.hxx"
#include "pivotEnergy/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "pivotEnergy.instantiations.h"

namespace tolvik {

ROWS(pivotEnergy, AeraulicDistributionPortionType, EXTENSION("pivotEnergy")) {
    ENUM("airTighnessClass", airTighnessClass, optional<pivotEnergy::AirTighnessClassEnumerationType>);
    ATTR("thermalResistance", thermalResistance, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, AeraulicDistributionType, EXTENSION("pivotEnergy")) {
    ATTR("dateOfRefurbishement", dateOfRefurbishement, gyear);
}

ROWS(pivotEnergy, AirGratType, EXTENSION("pivotEnergy")) {
    ATTR("airGratingSection", airGratingSection, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, AirIntakeType, EXTENSION("pivotEnergy")) {
    ATTR("airIntakeModule", airIntakeModule, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, BlowerVentsType, EXTENSION("pivotEnergy")) {
    ATTR("airInletOccupationFlow", airInletOccupationFlow, gml::MeasureType);
    ATTR("airInletInnocupationFlow", airInletInnocupationFlow, gml::MeasureType);
    ATTR("airInletFreeCoolingFlow", airInletFreeCoolingFlow, gml::MeasureType);
}

ROWS(pivotEnergy, BoilerType, EXTENSION("pivotEnergy")) {
    ENUM("boilerType", boilerType, optional<pivotEnergy::BoilerTypeEnumerationType>);
    ATTR("nominalPower", nominalPower, optional<gml::MeasureType>);
    ATTR("nominalEfficiency", nominalEfficiency, optional<gml::MeasureType>);
    ENUM("fuelType", fuelType, optional<pivotEnergy::FuelTypeEnumerationType>);
    ATTR("intermediateEfficiency", intermediateEfficiency, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, ConnectedCoolingEmitterType, EXTENSION("pivotEnergy")) {
    ATTR("spaceRatio", spaceRatio, gml::ScaleType);
    ENUM("priority", priority, pivotEnergy::EmitterPriorityEnumerationType);
    ENUM("emitterType", emitterType, pivotEnergy::ConnectedCoolingEmitterTypeEnumerationType);
    ENUM("regulationType", regulationType, pivotEnergy::EmitterRegulationTypeEnumerationType);
    ATTR("power", power, gml::MeasureType);
}

ROWS(pivotEnergy, ConnectedHeatingEmitterType, EXTENSION("pivotEnergy")) {
    ATTR("spaceRatio", spaceRatio, gml::ScaleType);
    ENUM("priority", priority, pivotEnergy::EmitterPriorityEnumerationType);
    ENUM("emitterType", emitterType, pivotEnergy::ConnectedHeatingEmitterTypeEnumerationType);
    ENUM("regulationType", regulationType, pivotEnergy::EmitterRegulationTypeEnumerationType);
    ATTR("power", power, gml::MeasureType);
}

ROWS(pivotEnergy, DHWEmitterType, EXTENSION("pivotEnergy")) {
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    ENUM("dhwEmittorType", dhwEmittorType, pivotEnergy::DHWEmitterTypeEnumerationType);
}

ROWS(pivotEnergy, DistributionPortionType, EXTENSION("pivotEnergy")) {
    ATTR("length", length, gml::LengthType);
}

ROWS(pivotEnergy, DistrictHeatingType, EXTENSION("pivotEnergy")) {
    ENUM("districtHeatingType", districtHeatingType, optional<pivotEnergy::DistrictHeatingTypeEnumType>);
    ATTR("exchangePower", exchangePower, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, ElectricHeatPumpType, EXTENSION("pivotEnergy")) {
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
}

ROWS(pivotEnergy, ElectricHeaterGeneratorType, EXTENSION("pivotEnergy")) {
    ATTR("elecNominalPower", elecNominalPower, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, EnergyConsumptionType, EXTENSION("pivotEnergy")) {
    ENUM("endUse", endUse, energy::EndUseTypeValue);
    ATTR("energySource", energySource, gml::CodeType);
    ATTR("value", value, gml::MeasureType);
    ATTR("primaryEnergyFactor", primaryEnergyFactor, double);
}

ROWS(pivotEnergy, EnvironmentalIndicatorType, EXTENSION("pivotEnergy")) {
    ENUM("impactCategory", impactCategory, pivotEnergy::ImpactCategoryType);
    ATTR("LCIAMethod", LCIAMethod, gml::CodeType);
    ATTR("impactCategoryValue", impactCategoryValue, gml::MeasureType);
    ENUM("contributorType", contributorType, pivotEnergy::ContributorTypeType);
}

ROWS(pivotEnergy, GasHeatPumpType, EXTENSION("pivotEnergy")) {
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
}

ROWS(pivotEnergy, GenerationManagementType, EXTENSION("pivotEnergy")) {
    ENUM("priorityManagement", priorityManagement, optional<pivotEnergy::PriorityManagementEnumType>);
    ENUM("genTemperatureProductionManagementHeat", genTemperatureProductionManagementHeat, optional<pivotEnergy::TemperatureProductionManagementEnumType>);
    ENUM("genTemperatureProductionManagementCold", genTemperatureProductionManagementCold, optional<pivotEnergy::TemperatureProductionManagementEnumType>);
}

ROWS(pivotEnergy, GeneratorType, EXTENSION("pivotEnergy")) {
    ATTR("dateOfRefurbishment", dateOfRefurbishment, optional<gyear>);
    ENUM("function", function, optional<pivotEnergy::FunctionEnumType>);
    ATTR("heatingPriorityIndex", heatingPriorityIndex, optional<long long>);
    ATTR("DHWPriorityIndex", DHWPriorityIndex, optional<long long>);
    ATTR("coolingPriorityIndex", coolingPriorityIndex, optional<long long>);
    ENUM("accumulationSchedule", accumulationSchedule, optional<pivotEnergy::AccumulationScheduleEnumerationType>);
    ATTR("nbSameType", nbSameType, optional<long long>);
    ENUM("generatorProductionControlType", generatorProductionControlType, optional<pivotEnergy::GeneratorProductionControlTypeEnumType>);
}

ROWS(pivotEnergy, GlobalConstructionType, EXTENSION("pivotEnergy")) {
    ENUM("color", color, optional<pivotEnergy::ColorType>);
    ATTR("dateOfRufurbishement", dateOfRufurbishement, optional<gyear>);
    ENUM("inertiaClass", inertiaClass, optional<pivotEnergy::InertiaClassType>);
    ATTR("uValue", uValue, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, GoThroughType, EXTENSION("pivotEnergy")) {
    ATTR("percentage", percentage, optional<gml::LengthType>);
    ATTR("ThermalZonePerimeter", ThermalZonePerimeter, optional<long long>);
}

ROWS(pivotEnergy, HydraulicDistributionPortionType, EXTENSION("pivotEnergy")) {
    ENUM("distributionPortionInsulation", distributionPortionInsulation, pivotEnergy::DistributionPortionInsulationEnumType);
}

ROWS(pivotEnergy, HydraulicDistributionType, EXTENSION("pivotEnergy")) {
    ENUM("distributionType", distributionType, pivotEnergy::DistributionTypeEnumerationType);
    ATTR("isCirculation", isCirculation, bool);
    ENUM("disTemperatureProductionManagement", disTemperatureProductionManagement, pivotEnergy::DisTemperatureManagementEnumerationType);
    ENUM("flowManagement", flowManagement, pivotEnergy::FlowManagementEnumerationType);
    ENUM("startAndStopManagement", startAndStopManagement, pivotEnergy::StartAndStopManagementEnumerationType);
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
}

ROWS(pivotEnergy, LightsType, EXTENSION("pivotEnergy")) {
    ATTR("installedPower", installedPower, gml::MeasureType);
    ATTR("nbOfLights", nbOfLights, long long);
    ENUM("lightsType", lightsType, pivotEnergy::LightsTypeEnumerationType);
    ATTR("lightingSpaceRatio", lightingSpaceRatio, gml::ScaleType);
    ENUM("lightingManagement", lightingManagement, pivotEnergy::LightingManagementEnumerationType);
    ENUM("lightingRegulation", lightingRegulation, pivotEnergy::LightingRegulationEnumerationType);
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    ATTR("idLightLayer", idLightLayer, long long);
}

ROWS(pivotEnergy, OpeningThermalPropertiesType, EXTENSION("pivotEnergy")) {
    GROUP_EACH_HELD("shading", shading, ShadingType);
    GROUP_EACH_HELD("transmittance", transmittance, Transmittance);
}

ROWS(pivotEnergy, OrderedComponentType, EXTENSION("pivotEnergy")) {
    ATTR("directOrder", directOrder, bool);
}

ROWS(pivotEnergy, PhotovoltaicCollectorType, EXTENSION("pivotEnergy")) {
    ATTR("photovoltaicCollectorArea", photovoltaicCollectorArea, optional<gml::AreaType>);
    ATTR("azimuth", azimuth, optional<gml::AngleType>);
    ATTR("inclination", inclination, optional<gml::AngleType>);
    ENUM("photovoltaicCollectorType", photovoltaicCollectorType, optional<pivotEnergy::PhotovoltaicCollectorTypeEnumerationType>);
    ATTR("peakPower", peakPower, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, ReturnAirVentsType, EXTENSION("pivotEnergy")) {
    ATTR("airOutletOccupationFlow", airOutletOccupationFlow, gml::MeasureType);
    ATTR("airOutletInnocupationFlow", airOutletInnocupationFlow, gml::MeasureType);
    ATTR("airOutletFreeCoolingFlow", airOutletFreeCoolingFlow, gml::MeasureType);
}

ROWS(pivotEnergy, ShadingTypeType, CURRENT) {
    ENUM("shadingType", shadingType, pivotEnergy::ShadingTypeEnumerationType);
    ENUM("color", color, pivotEnergy::ColorType);
    ENUM("shadingPosition", shadingPosition, pivotEnergy::ShadingPositionEnumerationType);
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
    ENUM("shadingManagement", shadingManagement, pivotEnergy::ShadingManagementEnumerationType);
}

ROWS(pivotEnergy, SolarLoopType, EXTENSION("pivotEnergy")) {
    ATTR("solarHeatingCollectorArea", solarHeatingCollectorArea, optional<gml::AreaType>);
    ATTR("azimuth", azimuth, optional<gml::AngleType>);
    ATTR("inclination", inclination, optional<gml::AngleType>);
    ENUM("solarHeatingCollectorType", solarHeatingCollectorType, optional<pivotEnergy::SolarHeatingCollectorTypeEnumerationType>);
    ATTR("circulatorPower", circulatorPower, optional<gml::MeasureType>);
}

ROWS(pivotEnergy, StandaloneCoolingEmitterType, EXTENSION("pivotEnergy")) {
    ENUM("emitterType", emitterType, optional<pivotEnergy::StandaloneCoolingEmitterTypeEnumerationType>);
    ATTR("condensorTempEER", condensorTempEER, optional<gml::MeasureType>);
    ATTR("evaporatorTempEER", evaporatorTempEER, optional<gml::MeasureType>);
    ATTR("power", power, optional<gml::MeasureType>);
    ENUM("regulationType", regulationType, optional<pivotEnergy::EmitterRegulationTypeEnumerationType>);
    ATTR("efficiency", efficiency, optional<gml::MeasureType>);
    ATTR("spaceRatio", spaceRatio, optional<gml::ScaleType>);
    ENUM("priority", priority, optional<pivotEnergy::EmitterPriorityEnumerationType>);
}

ROWS_OF(pivotEnergy::StandaloneEmitterType) {
    ENUM("emitterProductionControlType", emitterProductionControlType, optional<pivotEnergy::EmitterProductionControlTypeEnumerationType>);
}

bool GmlCorePropertyCreator::visit_pivotEnergy_StandaloneEmitterType(pivotEnergy::StandaloneEmitterType* object) {
    Rows<pivotEnergy::StandaloneEmitterType>(*this, *object, EXTENSION("pivotEnergy")).addAll();
    // Past the rows of a thermal emitter, which a standalone one does not show.
    return CityGMLInheritVisitor::visit_pivotEnergy_ThermalEmitterType(object);
}

ROWS(pivotEnergy, StandaloneHeatingEmitterType, EXTENSION("pivotEnergy")) {
    ENUM("emitterType", emitterType, pivotEnergy::StandaloneHeatingEmitterTypeEnumerationType);
    ATTR("condensorTempCOP", condensorTempCOP, gml::MeasureType);
    ATTR("evaporatorTempCOP", evaporatorTempCOP, gml::MeasureType);
    ATTR("power", power, gml::MeasureType);
    ENUM("regulationType", regulationType, pivotEnergy::EmitterRegulationTypeEnumerationType);
    ATTR("efficiency", efficiency, gml::MeasureType);
    ATTR("spaceRatio", spaceRatio, gml::ScaleType);
    ENUM("priority", priority, pivotEnergy::EmitterPriorityEnumerationType);
}

ROWS(pivotEnergy, StorageType, EXTENSION("pivotEnergy")) {
    ATTR("dateOfRufurbishment", dateOfRufurbishment, gyear);
    ATTR("priorityDHWIndex", priorityDHWIndex, long long);
    ATTR("priorityHeatingIndex", priorityHeatingIndex, long long);
    ATTR("nbAssemblySameType", nbAssemblySameType, long long);
    ATTR("nbStoSameTypeByAssembly", nbStoSameTypeByAssembly, long long);
    ATTR("storageVolume", storageVolume, gml::VolumeType);
    ATTR("isStorageVertical", isStorageVertical, bool);
    ATTR("storageHeatLosses", storageHeatLosses, gml::MeasureType);
    ATTR("storageSetPoint", storageSetPoint, gml::MeasureType);
}

ROWS(pivotEnergy, ThermalBridgeType, EXTENSION("pivotEnergy")) {
    ATTR("psi", psi, optional<gml::MeasureType>);
    ATTR("length", length, optional<gml::LengthType>);
}

ROWS(pivotEnergy, ThermalEmitterType, EXTENSION("pivotEnergy")) {
    ATTR("dateOfRefurbishment", dateOfRefurbishment, optional<gyear>);
    ENUM("emitterProgType", emitterProgType, optional<pivotEnergy::EmitterProgTypeEnumerationType>);
}

ROWS(pivotEnergy, VentilationSystemType, EXTENSION("pivotEnergy")) {
    ENUM("ventilationType", ventilationType, pivotEnergy::VentilationTypeEnumType);
    ATTR("inletFanPower", inletFanPower, gml::MeasureType);
    ATTR("outletFanPower", outletFanPower, gml::MeasureType);
    ATTR("isFreeCooling", isFreeCooling, bool);
    ATTR("epsilon", epsilon, gml::MeasureType);
    ATTR("isByPass", isByPass, bool);
    ATTR("outsideAirRate", outsideAirRate, gml::MeasureType);
    ATTR("dateOfRufurbishment", dateOfRufurbishment, gyear);
}

ROWS(pivotEnergy, VentsType, EXTENSION("pivotEnergy")) {
    ATTR("dateOfRefurbishment", dateOfRefurbishment, gyear);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

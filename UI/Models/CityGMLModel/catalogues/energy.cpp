#include "core/ExternalReferenceType.hxx"
#include "energy/AllTypes.h"
#include "gml/PointPropertyType.hxx"
#include "gml/PointType.hxx"
#include "gml/TimeInstantPropertyType.hxx"
#include "gml/TimeInstantType.hxx"
#include "gml/TimeIntervalLengthType.hxx"
#include "gml/TimePeriodPropertyType.hxx"
#include "gml/TimePeriodType.hxx"
#include "gml/TimePositionType.hxx"
#include "pivotEnergy/BoundaryContextType.hxx"
#include "pivotEnergy/InsulationTypeEnumerationType.hxx"
#include "pivotEnergy/poly_airPermeability.hxx"
#include "pivotEnergy/poly_ceilingHeight.hxx"
#include "pivotEnergy/poly_frontAndRearOverture.hxx"
#include "pivotEnergy/poly_multipleExposure.hxx"
#include "pivotEnergy/poly_nbDwellings.hxx"
#include "pivotEnergy/poly_refurbishementOpportunity.hxx"
#include "pivotEnergy/poly_storeys.hxx"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "energy.instantiations.h"

namespace tolvik {

ROWS(energy, AirCompressorType, EXTENSION("Energy")) {
    ENUM("compressorType", compressorType, energy::CompressorTypeValue);
    ATTR("pressure", pressure, optional<gml::MeasureType>);
}

ROWS(energy, BoilerType, EXTENSION("Energy")) {
    ATTR("condensation", condensation, bool);
}

ROWS(energy, BuildingUnitType, EXTENSION("Energy")) {
    ATTR("numberOfRooms", numberOfRooms, optional<int>);
    ATTR("ownerName", ownerName, optional<string>);
    ATTR("ownershipType", ownershipType, optional<gml::CodeType>);
}

ROWS(energy, ChillerType, EXTENSION("Energy")) {
    ENUM("condensationType", condensationType, energy::CondensationTypeValue);
    ENUM("compressorType", compressorType, energy::CompressorTypeValue);
    ATTR("refrigerant", refrigerant, optional<string>);
}

ROWS(energy, CombinedHeatPowerType, EXTENSION("Energy")) {
    ATTR("technologyType", technologyType, string);
    ATTR("thermalEfficiency", thermalEfficiency, optional<gml::ScaleType>);
    ATTR("electricalEfficiency", electricalEfficiency, optional<gml::ScaleType>);
}

ROWS(energy, ConstantValueScheduleType, CURRENT) {
    ATTR("averageValue", averageValue, gml::MeasureType);
}

ROWS(energy, ConstructionType, EXTENSION("Energy")) {
    ATTR("uValue", uValue, optional<gml::MeasureType>);
    GROUP_EACH_HELD("opticalProperties", opticalProperties, OpticalProperties);
    GROUP_EACH_HELD("serviceLife", serviceLife, ServiceLife);
}

ROWS(energy, DHWFacilitiesType, EXTENSION("Energy")) {
    ATTR("numberOfBaths", numberOfBaths, optional<int>);
}

ROWS(energy, DailyPatternScheduleType, CURRENT) {
    GROUP_EACH_HELD("periodOfYear", periodOfYear, PeriodOfYear);
}

ROWS(energy, DailyScheduleType, CURRENT) {
    ENUM("dayType", dayType, energy::DayTypeValue);
    GROUP_EACH_HELD("schedule", schedule, _TimeSeries);
}

ROWS(energy, DateOfEventType, CURRENT) {
    GROUP_EACH_HELD("instant", instant, TimeInstant);
    GROUP_EACH_HELD("period", period, TimePeriod);
}

ROWS(energy, DualValueScheduleType, CURRENT) {
    ATTR("usageHoursPerDay", usageHoursPerDay, optional<double>);
    ATTR("usageDaysPerYear", usageDaysPerYear, optional<double>);
    ATTR("usageValue", usageValue, gml::MeasureType);
    ATTR("idleValue", idleValue, gml::MeasureType);
}

ROWS(energy, ElectricalAppliancesType, EXTENSION("Energy")) {
    ATTR("electricalPower", electricalPower, optional<gml::MeasureType>);
}

ROWS(energy, EmissivityType, CURRENT) {
    ATTR("fraction", fraction, gml::ScaleType);
    ENUM("surface", surface, energy::SurfaceSide);
}

ROWS(energy, EmitterType, EXTENSION("Energy")) {
    ENUM("emitterType", emitterType, optional<energy::EmitterTypeValue>);
    ATTR("unitNumber", unitNumber, optional<int>);
    ATTR("installedPower", installedPower, optional<gml::MeasureType>);
    GROUP_EACH_HELD("thermalExchange", thermalExchange, HeatExchangeType);
}

ROWS(energy, EnergyCarrierType, CURRENT) {
    ATTR("co2EmissionFactor", co2EmissionFactor, gml::MeasureType);
    ATTR("energyDensity", energyDensity, optional<gml::MeasureType>);
    ATTR("primaryEnergyFactor", primaryEnergyFactor, gml::MeasureType);
    ATTR("type", type, gml::CodeType);
}

ROWS(energy, EnergyConversionSystemType, EXTENSION("Energy")) {
    ATTR("efficiencyIndicator", efficiencyIndicator, optional<string>);
    ATTR("installedNominalPower", installedNominalPower, optional<double>);
    ATTR("model", model, optional<string>);
    ATTR("nominalEfficiency", nominalEfficiency, optional<gml::MeasureType>);
    ATTR("number", number, optional<int>);
    GROUP_EACH("productAndInstallationDocument", productAndInstallationDocument);
    ATTR("yearOfManufacture", yearOfManufacture, optional<gyear>);
    GROUP_EACH_HELD("serviceLife", serviceLife, ServiceLife);
    REFERENCE("installedIn", installedIn);
}

ROWS(energy, EnergyDemandType, EXTENSION("Energy")) {
    GROUP_EACH_HELD("energyAmount", energyAmount, _TimeSeries);
    ENUM("endUse", endUse, energy::EndUseTypeValue);
    ATTR("maximumLoad", maximumLoad, optional<gml::MeasureType>);
}

ROWS(energy, EnergyDistributionSystemType, EXTENSION("Energy")) {
    GROUP_EACH_HELD("serviceLife", serviceLife, ServiceLife);
}

ROWS(energy, EnergyPerformanceCertificationType, NEW_GROUP(SHARED_GROUP("Energy", "energyPerformanceCertifications"), "energyPerformanceCertification")) {
    ATTR("certificationRating", certificationRating, string);
    ATTR("certificationName", certificationName, string);
    ATTR("certificationId", certificationId, optional<string>);
}

ROWS(energy, FacilitiesType, EXTENSION("Energy")) {
    GROUP_EACH_HELD("operationSchedule", operationSchedule, _Schedule);
    GROUP_EACH_HELD("heatDissipation", heatDissipation, HeatExchangeType);
}

ROWS(energy, FinalEnergyType, EXTENSION("Energy")) {
    GROUP_EACH_HELD("energyAmount", energyAmount, _TimeSeries);
    GROUP_EACH("energyCarrier", energyCarrier);
}

ROWS(energy, FloorAreaType, NEW_GROUP(SHARED_GROUP("Energy", "floorAreas"), "floorArea")) {
    ATTR("type", type, gml::CodeType);
    ATTR("value", value, gml::AreaType);
}

ROWS(energy, GasType, EXTENSION("Energy")) {
    ATTR("isVentilated", isVentilated, optional<bool>);
    ATTR("rValue", rValue, optional<gml::MeasureType>);
}

ROWS(energy, HeatExchangeTypeType, CURRENT) {
    ATTR("convectiveFraction", convectiveFraction, optional<gml::ScaleType>);
    ATTR("latentFraction", latentFraction, optional<gml::ScaleType>);
    ATTR("radiantFraction", radiantFraction, optional<gml::ScaleType>);
    ATTR("totalValue", totalValue, gml::MeasureType);
}

ROWS(energy, HeatExchangerType, EXTENSION("Energy")) {
    ATTR("networkId", networkId, string);
    ATTR("networkNodeId", networkNodeId, string);
    ATTR("primaryHeatSupplier", primaryHeatSupplier, optional<string>);
}

ROWS(energy, HeatPumpType, EXTENSION("Energy")) {
    ENUM("heatSource", heatSource, energy::HeatSourceTypeValue);
    ATTR("copSourceTemperature", copSourceTemperature, optional<gml::MeasureType>);
    ATTR("copOperationTemperature", copOperationTemperature, optional<gml::MeasureType>);
}

ROWS(energy, HeightAboveGroundType, NEW_GROUP(SHARED_GROUP("Energy", "heightsAboveGround"), "heightAboveGround")) {
    ENUM("heightReference", heightReference, energy::ElevationReferenceValue);
    ATTR("value", value, gml::LengthType);
}

ROWS(energy, HouseholdType, EXTENSION("Energy")) {
    ENUM("residenceType", residenceType, optional<energy::ResidenceTypeValue>);
    ENUM("householdType", householdType, optional<energy::HouseholdTypeValue>);
}

ROWS(energy, ImageTextureType, EXTENSION("Energy")) {
    ATTR("url", url, uri);
    ATTR("repeatS", repeatS, bool);
    ATTR("repeatT", repeatT, bool);
}

ROWS(energy, IrregularTimeSeriesFileType, CURRENT) {
    ATTR("uom", uom, gml::UnitOfMeasureType);
    ATTR("file", file, uri);
    ATTR("numberOfHeaderLines", numberOfHeaderLines, optional<int>);
    ATTR("fieldSeparator", fieldSeparator, string);
    ATTR("recordSeparator", recordSeparator, optional<string>);
    ATTR("decimalSymbol", decimalSymbol, optional<string>);
    ATTR("timeColumnNumber", timeColumnNumber, optional<int>);
    ATTR("valueColumnNumber", valueColumnNumber, optional<int>);
}

ROWS(energy, IrregularTimeSeriesType, CURRENT) {
    ATTR("uom", uom, gml::UnitOfMeasureType);
    GROUP_EACH_HELD("contains", contains, MeasurementPoint);
}

ROWS(energy, LayerComponentType, EXTENSION("Energy")) {
    ATTR("areaFraction", areaFraction, optional<gml::ScaleType>);
    ATTR("thickness", thickness, optional<gml::LengthType>);
    GROUP_EACH_HELD("serviceLife", serviceLife, ServiceLife);
}

ROWS(energy, LightingFacilitiesType, EXTENSION("Energy")) {
    ATTR("electricalPower", electricalPower, optional<gml::MeasureType>);
}

ROWS(energy, MeasurementPointType, NEW_GROUP(CURRENT, "Measure")) {
    GROUP_EACH("time", time);
    ATTR("value", value, double);
}

ROWS(energy, MechanicalVentilationType, EXTENSION("Energy")) {
    ATTR("heatRecovery", heatRecovery, bool);
    ATTR("recuperationFactor", recuperationFactor, gml::ScaleType);
}

ROWS(energy, OccupantsType, EXTENSION("Energy")) {
    GROUP_EACH_HELD("heatDissipation", heatDissipation, HeatExchangeType);
    ATTR("numberOfOccupants", numberOfOccupants, optional<int>);
    GROUP_EACH_HELD("occupancyRate", occupancyRate, _Schedule);
    ATTR("occupantType", occupantType, optional<gml::CodeType>);
}

ROWS(energy, OpticalPropertiesType, CURRENT) {
    GROUP_EACH_HELD("emissivity", emissivity, Emissivity);
    GROUP_EACH_HELD("reflectance", reflectance, Reflectance);
    GROUP_EACH_HELD("transmittance", transmittance, Transmittance);
    ATTR("glazingRatio", glazingRatio, optional<gml::ScaleType>);
}

ROWS(energy, PeriodOfYearType, CURRENT) {
    GROUP_EACH_HELD("period", period, TimePeriod);
    GROUP_EACH_HELD("dailySchedule", dailySchedule, DailySchedule);
}

ROWS(energy, PhotovoltaicSystemType, EXTENSION("Energy")) {
    ENUM("cellType", cellType, energy::CellTypeValue);
    ATTR("moduleArea", moduleArea, optional<gml::AreaType>);
}

ROWS(energy, PhotovoltaicThermalSystemType, EXTENSION("Energy")) {
    ENUM("cellType", cellType, energy::CellTypeValue);
    ENUM("collectorType", collectorType, energy::CollectorTypeValue);
    ATTR("moduleArea", moduleArea, optional<gml::AreaType>);
    ATTR("apertureArea", apertureArea, optional<gml::AreaType>);
    ATTR("eta0", eta0, optional<double>);
    ATTR("a1", a1, optional<double>);
    ATTR("a2", a2, optional<double>);
}

ROWS(energy, PowerDistributionSystemType, EXTENSION("Energy")) {
    ATTR("current", current, optional<gml::MeasureType>);
    ATTR("voltage", voltage, optional<gml::MeasureType>);
}

ROWS(energy, PowerStorageSystemType, EXTENSION("Energy")) {
    ATTR("batteryTechnology", batteryTechnology, optional<string>);
    ATTR("powerCapacity", powerCapacity, optional<gml::MeasureType>);
}

ROWS(energy, ReflectanceType, CURRENT) {
    ATTR("fraction", fraction, gml::ScaleType);
    ENUM("surface", surface, energy::SurfaceSide);
    ENUM("wavelengthRange", wavelengthRange, energy::WavelengthRangeType);
}

ROWS(energy, RefurbishmentMeasureType, NEW_GROUP(SHARED_GROUP("Energy", "refurbishmentMeasures"), "refurbishmentMeasure")) {
    GROUP_EACH_HELD("dateOfRefurbishment", dateOfRefurbishment, DateOfEvent);
    ATTR("levelOfRefurbishment", levelOfRefurbishment, gml::CodeType);
    ATTR("descriptionOfRefurbishment", descriptionOfRefurbishment, optional<string>);
}

ROWS(energy, RegularTimeSeriesFileType, CURRENT) {
    ATTR("uom", uom, gml::UnitOfMeasureType);
    ATTR("file", file, uri);
    GROUP_EACH_HELD("temporalExtent", temporalExtent, TimePeriod);
    GROUP_EACH("timeInterval", timeInterval);
    ATTR("numberOfHeaderLines", numberOfHeaderLines, optional<int>);
    ATTR("fieldSeparator", fieldSeparator, string);
    ATTR("recordSeparator", recordSeparator, optional<string>);
    ATTR("decimalSymbol", decimalSymbol, optional<string>);
    ATTR("valueColumnNumber", valueColumnNumber, optional<int>);
}

ROWS(energy, RegularTimeSeriesType, CURRENT) {
    GROUP_EACH_HELD("temporalExtent", temporalExtent, TimePeriod);
    GROUP_EACH("timeInterval", timeInterval);
    ATTR("values", values, gml::MeasureListType);
}

ROWS(energy, ServiceLifeType, CURRENT) {
    GROUP_EACH("startOfLife", startOfLife);
    GROUP_EACH("lifeExpectancy", lifeExpectancy);
    GROUP_EACH("mainMaintenanceInterval", mainMaintenanceInterval);
}

ROWS(energy, ShadingTypeType, CURRENT) {
    ATTR("maximumCoverRatio", maximumCoverRatio, gml::ScaleType);
    ATTR("name", name, optional<string>);
    GROUP_EACH_HELD("transmittance", transmittance, Transmittance);
}

ROWS(energy, SolarThermalSystemType, EXTENSION("Energy")) {
    ENUM("collectorType", collectorType, energy::CollectorTypeValue);
    ATTR("apertureArea", apertureArea, optional<gml::AreaType>);
    ATTR("eta0", eta0, optional<double>);
    ATTR("a1", a1, optional<double>);
    ATTR("a2", a2, optional<double>);
}

ROWS(energy, SolidMaterialType, EXTENSION("Energy")) {
    ATTR("conductivity", conductivity, optional<gml::MeasureType>);
    ATTR("density", density, optional<gml::MeasureType>);
    ATTR("permeance", permeance, optional<gml::MeasureType>);
    ATTR("porosity", porosity, optional<gml::ScaleType>);
    ATTR("specificHeat", specificHeat, optional<gml::MeasureType>);
    ATTR("embodiedCarbon", embodiedCarbon, optional<gml::MeasureType>);
    ATTR("embodiedEnergy", embodiedEnergy, optional<gml::MeasureType>);
}

ROWS(energy, SystemOperationType, EXTENSION("Energy")) {
    ENUM("endUse", endUse, energy::EndUseTypeValue);
    GROUP_EACH_HELD("operationTime", operationTime, _Schedule);
    ATTR("yearlyGlobalEfficiency", yearlyGlobalEfficiency, optional<double>);
}

// Called by no visit: thermal boundaries do not show these.
GENERIC_ROWS(thermalBoundary, energy::ThermalBoundaryType, ThermalBoundary) {
    GENERIC_ENUM("insulationTypeEnumeration", pivotEnergy::InsulationTypeEnumerationType, "pivotEnergy");
    GENERIC_ENUM("boundaryContext", pivotEnergy::BoundaryContextType, "pivotEnergy");
    GENERIC("refurbishementOpportunity", pivotEnergy::poly_refurbishementOpportunity, bool, "pivotEnergy");
}

ROWS(energy, ThermalBoundaryType, EXTENSION("Energy")) {
    ENUM("thermalBoundaryType", thermalBoundaryType, energy::ThermalBoundaryTypeValue);
    ATTR("azimuth", azimuth, optional<gml::AngleType>);
    ATTR("inclination", inclination, optional<gml::AngleType>);
    ATTR("area", area, optional<gml::AreaType>);
    if (!object.relatesTo().empty()) {
        // Stays the current group: what is entered later in this feature goes there.
        creator.m_currentParent = addGroup(QStringLiteral("relatesTo"));
        below(creator.m_currentParent).REFERENCE("relateTo", relatesTo);
    }
}

ROWS(energy, ThermalDistributionSystemType, EXTENSION("Energy")) {
    ATTR("isCirculation", isCirculation, optional<bool>);
    ENUM("medium", medium, optional<energy::MediumTypeValue>);
    ATTR("nominalFlow", nominalFlow, optional<gml::MeasureType>);
    ATTR("returnTemperature", returnTemperature, optional<gml::MeasureType>);
    ATTR("supplyTemperature", supplyTemperature, optional<gml::MeasureType>);
    ATTR("thermalLossesFactor", thermalLossesFactor, optional<gml::MeasureType>);
}

ROWS(energy, ThermalOpeningType, EXTENSION("Energy")) {
    ATTR("area", area, gml::AreaType);
    GROUP_EACH_HELD("indoorShading", indoorShading, ShadingType);
    GROUP_EACH_HELD("outdoorShading", outdoorShading, ShadingType);
    ATTR("openableRatio", openableRatio, optional<gml::ScaleType>);
    REFERENCE("relatesTo", relatesTo);
}

ROWS(energy, ThermalStorageSystemType, EXTENSION("Energy")) {
    ATTR("preparationTemperature", preparationTemperature, optional<gml::MeasureType>);
    ENUM("medium", medium, optional<energy::MediumTypeValue>);
    ATTR("thermalLossesFactor", thermalLossesFactor, optional<gml::MeasureType>);
    ATTR("volume", volume, optional<gml::VolumeType>);
}

GENERIC_ROWS(thermalZone, energy::ThermalZoneType, ThermalZone) {
    // Labelled as the count that it stands in front of.
    GENERIC("nbDwellings", pivotEnergy::poly_ceilingHeight, gml::LengthType, "pivotEnergy");
    GENERIC("storeys", pivotEnergy::poly_storeys, long long, "pivotEnergy");
    GENERIC("nbDwellings", pivotEnergy::poly_nbDwellings, long long, "pivotEnergy");
    GENERIC("frontAndRearOverture", pivotEnergy::poly_frontAndRearOverture, bool, "pivotEnergy");
    GENERIC("airPermeability", pivotEnergy::poly_airPermeability, gml::MeasureType, "pivotEnergy");
    GENERIC("multipleExposure", pivotEnergy::poly_multipleExposure, bool, "pivotEnergy");
}

ROWS(energy, ThermalZoneType, EXTENSION("Energy")) {
    ATTR("additionalThermalBridgeUValue", additionalThermalBridgeUValue, optional<gml::MeasureType>);
    ATTR("effectiveThermalCapacity", effectiveThermalCapacity, optional<gml::MeasureType>);
    ATTR("indirectlyHeatedAreaRatio", indirectlyHeatedAreaRatio, optional<gml::ScaleType>);
    ATTR("infiltrationRate", infiltrationRate, optional<gml::MeasureType>);
    ATTR("isCooled", isCooled, bool);
    ATTR("isHeated", isHeated, bool);
    creator.visit_thermalZone_genericProperties(&object);
}

ROWS(energy, TimeSeriesScheduleType, CURRENT) {
    GROUP_EACH_HELD("timeDependingValues", timeDependingValues, _TimeSeries);
}

ROWS(energy, TimeValuesPropertiesType, CURRENT) {
    ENUM("acquisitionMethod", acquisitionMethod, energy::AcquisitionMethodValue);
    ENUM("interpolationType", interpolationType, energy::InterpolationTypeValue);
    ATTR("qualityDescription", qualityDescription, optional<string>);
    ATTR("source", source, optional<string>);
}

ROWS(energy, TransmittanceType, CURRENT) {
    ATTR("fraction", fraction, gml::ScaleType);
    ENUM("wavelengthRange", wavelengthRange, energy::WavelengthRangeType);
}

GENERIC_ROWS(usageZone, energy::UsageZoneType, UsageZone) {
    GENERIC("nbDwellings", pivotEnergy::poly_nbDwellings, long long, "pivotEnergy");
}

ROWS(energy, UsageZoneType, EXTENSION("Energy")) {
    GROUP_EACH_HELD("coolingSchedule", coolingSchedule, _Schedule);
    GROUP_EACH_HELD("heatingSchedule", heatingSchedule, _Schedule);
    ATTR("usageZoneType", usageZoneType, gml::CodeType);
    ATTR("usedFloors", usedFloors, optional<gml::integerList>);
    GROUP_EACH_HELD("ventilationSchedule", ventilationSchedule, _Schedule);
    GROUP_EACH_HELD("averageInternalGains", averageInternalGains, HeatExchangeType);
    creator.visit_usageZone_genericProperties(&object);
}

ROWS(energy, VolumeTypeType, NEW_GROUP(SHARED_GROUP("Energy", "volumes"), "volume")) {
    ENUM("type", type, energy::VolumeTypeValue);
    ATTR("value", value, gml::VolumeType);
}

ROWS(energy, WeatherDataType, NEW_GROUP(SHARED_GROUP("Energy", "weatherDatas"), "weatherData")) {
    ENUM("weatherDataType", weatherDataType, energy::WeatherDataTypeValue);
    GROUP_EACH_HELD("position", position, Point);
    GROUP_EACH_HELD("values", values, _TimeSeries);
}

ROWS_OF(energy::_SolarEnergySystemType) {
    REFERENCE("installedOnBoundarySurface", installedOnBoundarySurface);
}

bool GmlCorePropertyCreator::visit_energy__SolarEnergySystemType(energy::_SolarEnergySystemType* object) {
    Rows<energy::_SolarEnergySystemType>(*this, *object, EXTENSION("Energy")).addAll();
    // Past the rows of an energy conversion system, which a solar one does not show.
    return CityGMLFeaturesVisitor::visit_energy_EnergyConversionSystemType(object);
}

ROWS(energy, _StorageSystemType, EXTENSION("Energy")) {
    GROUP_EACH_HELD("serviceLife", serviceLife, ServiceLife);
}

ROWS(energy, _TimeSeriesType, CURRENT) {
    GROUP_EACH_HELD("variableProperties", variableProperties, TimeValuesProperties);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

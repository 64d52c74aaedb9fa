#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "core/ExternalReferenceType.hxx"
#include "energy/_SchedulePropertyType.hxx"
#include "energy/_ScheduleType.hxx"
#include "energy/_SolarEnergySystemType.hxx"
#include "energy/_StorageSystemType.hxx"
#include "energy/_TimeSeriesPropertyType.hxx"
#include "energy/_TimeSeriesType.hxx"
#include "energy/AirCompressorType.hxx"
#include "energy/BoilerType.hxx"
#include "energy/BuildingUnitType.hxx"
#include "energy/ChillerType.hxx"
#include "energy/CombinedHeatPowerType.hxx"
#include "energy/ConstantValueScheduleType.hxx"
#include "energy/ConstructionType.hxx"
#include "energy/DailyPatternScheduleType.hxx"
#include "energy/DailySchedulePropertyType.hxx"
#include "energy/DailyScheduleType.hxx"
#include "energy/DateOfEventPropertyType.hxx"
#include "energy/DateOfEventType.hxx"
#include "energy/DHWFacilitiesType.hxx"
#include "energy/DualValueScheduleType.hxx"
#include "energy/ElectricalAppliancesType.hxx"
#include "energy/EmissivityPropertyType.hxx"
#include "energy/EmissivityType.hxx"
#include "energy/EmitterType.hxx"
#include "energy/EnergyCarrierPropertyType.hxx"
#include "energy/EnergyCarrierType.hxx"
#include "energy/EnergyConversionSystemType.hxx"
#include "energy/EnergyDemandType.hxx"
#include "energy/EnergyDistributionSystemType.hxx"
#include "energy/EnergyPerformanceCertificationType.hxx"
#include "energy/FacilitiesType.hxx"
#include "energy/FinalEnergyType.hxx"
#include "energy/FloorAreaType.hxx"
#include "energy/GasType.hxx"
#include "energy/HeatExchangerType.hxx"
#include "energy/HeatExchangeTypePropertyType.hxx"
#include "energy/HeatExchangeTypeType.hxx"
#include "energy/HeatPumpType.hxx"
#include "energy/HeightAboveGroundType.hxx"
#include "energy/HouseholdType.hxx"
#include "energy/ImageTextureType.hxx"
#include "energy/IrregularTimeSeriesFileType.hxx"
#include "energy/IrregularTimeSeriesType.hxx"
#include "energy/LayerComponentType.hxx"
#include "energy/LightingFacilitiesType.hxx"
#include "energy/MeasurementPointPropertyType.hxx"
#include "energy/MeasurementPointType.hxx"
#include "energy/MechanicalVentilationType.hxx"
#include "energy/OccupantsType.hxx"
#include "energy/OpticalPropertiesPropertyType.hxx"
#include "energy/OpticalPropertiesType.hxx"
#include "energy/PeriodOfYearPropertyType.hxx"
#include "energy/PeriodOfYearType.hxx"
#include "energy/PhotovoltaicSystemType.hxx"
#include "energy/PhotovoltaicThermalSystemType.hxx"
#include "energy/PowerDistributionSystemType.hxx"
#include "energy/PowerStorageSystemType.hxx"
#include "energy/ReflectancePropertyType.hxx"
#include "energy/ReflectanceType.hxx"
#include "energy/RefurbishmentMeasureType.hxx"
#include "energy/RegularTimeSeriesFileType.hxx"
#include "energy/RegularTimeSeriesType.hxx"
#include "energy/ServiceLifePropertyType.hxx"
#include "energy/ServiceLifeType.hxx"
#include "energy/ShadingTypePropertyType.hxx"
#include "energy/ShadingTypeType.hxx"
#include "energy/SolarThermalSystemType.hxx"
#include "energy/SolidMaterialType.hxx"
#include "energy/SystemOperationType.hxx"
#include "energy/ThermalBoundaryType.hxx"
#include "energy/ThermalDistributionSystemType.hxx"
#include "energy/ThermalOpeningType.hxx"
#include "energy/ThermalStorageSystemType.hxx"
#include "energy/ThermalZoneType.hxx"
#include "energy/TimeSeriesScheduleType.hxx"
#include "energy/TimeValuesPropertiesPropertyType.hxx"
#include "energy/TimeValuesPropertiesType.hxx"
#include "energy/TransmittancePropertyType.hxx"
#include "energy/TransmittanceType.hxx"
#include "energy/UsageZoneType.hxx"
#include "energy/VolumeTypeType.hxx"
#include "energy/WeatherDataType.hxx"
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

#include "energy.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_energy_AirCompressorType(energy::AirCompressorType* object)
{
    const Rows<energy::AirCompressorType> rows(this, object, EXTENSION("Energy"));
    ENUM("compressorType", compressorType, energy::CompressorTypeValue);
    ATTR("pressure", pressure, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_AirCompressorType(object);
}

bool GmlCorePropertyCreator::visit_energy_BoilerType(energy::BoilerType* object)
{
    const Rows<energy::BoilerType> rows(this, object, EXTENSION("Energy"));
    ATTR("condensation", condensation, bool);
    return CityGMLPropertiesVisitor::visit_energy_BoilerType(object);
}

bool GmlCorePropertyCreator::visit_energy_BuildingUnitType(energy::BuildingUnitType* object)
{
    const Rows<energy::BuildingUnitType> rows(this, object, EXTENSION("Energy"));
    ATTR("numberOfRooms", numberOfRooms, optional<int>);
    ATTR("ownerName", ownerName, optional<string>);
    ATTR("ownershipType", ownershipType, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_energy_BuildingUnitType(object);
}

bool GmlCorePropertyCreator::visit_energy_ChillerType(energy::ChillerType* object)
{
    const Rows<energy::ChillerType> rows(this, object, EXTENSION("Energy"));
    ENUM("condensationType", condensationType, energy::CondensationTypeValue);
    ENUM("compressorType", compressorType, energy::CompressorTypeValue);
    ATTR("refrigerant", refrigerant, optional<string>);
    return CityGMLPropertiesVisitor::visit_energy_ChillerType(object);
}

bool GmlCorePropertyCreator::visit_energy_CombinedHeatPowerType(energy::CombinedHeatPowerType* object)
{
    const Rows<energy::CombinedHeatPowerType> rows(this, object, EXTENSION("Energy"));
    ATTR("technologyType", technologyType, string);
    ATTR("thermalEfficiency", thermalEfficiency, optional<gml::ScaleType>);
    ATTR("electricalEfficiency", electricalEfficiency, optional<gml::ScaleType>);
    return CityGMLPropertiesVisitor::visit_energy_CombinedHeatPowerType(object);
}

bool GmlCorePropertyCreator::visit_energy_ConstantValueScheduleType(energy::ConstantValueScheduleType* object)
{
    const Rows<energy::ConstantValueScheduleType> rows(this, object, Place::current());
    ATTR("averageValue", averageValue, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_energy_ConstantValueScheduleType(object);
}

bool GmlCorePropertyCreator::visit_energy_ConstructionType(energy::ConstructionType* object)
{
    const Rows<energy::ConstructionType> rows(this, object, EXTENSION("Energy"));
    ATTR("uValue", uValue, optional<gml::MeasureType>);
    HELD("opticalProperties", opticalProperties, OpticalProperties);
    HELD("serviceLife", serviceLife, ServiceLife);
    return CityGMLPropertiesVisitor::visit_energy_ConstructionType(object);
}

bool GmlCorePropertyCreator::visit_energy_DHWFacilitiesType(energy::DHWFacilitiesType* object)
{
    const Rows<energy::DHWFacilitiesType> rows(this, object, EXTENSION("Energy"));
    ATTR("numberOfBaths", numberOfBaths, optional<int>);
    return CityGMLPropertiesVisitor::visit_energy_DHWFacilitiesType(object);
}

bool GmlCorePropertyCreator::visit_energy_DailyPatternScheduleType(energy::DailyPatternScheduleType* object)
{
    const Rows<energy::DailyPatternScheduleType> rows(this, object, Place::current());
    HELD("periodOfYear", periodOfYear, PeriodOfYear);
    return CityGMLPropertiesVisitor::visit_energy_DailyPatternScheduleType(object);
}

bool GmlCorePropertyCreator::visit_energy_DailyScheduleType(energy::DailyScheduleType* object)
{
    const Rows<energy::DailyScheduleType> rows(this, object, Place::current());
    ENUM("dayType", dayType, energy::DayTypeValue);
    HELD("schedule", schedule, _TimeSeries);
    return CityGMLPropertiesVisitor::visit_energy_DailyScheduleType(object);
}

bool GmlCorePropertyCreator::visit_energy_DateOfEventType(energy::DateOfEventType* object)
{
    const Rows<energy::DateOfEventType> rows(this, object, Place::current());
    HELD("instant", instant, TimeInstant);
    HELD("period", period, TimePeriod);
    return CityGMLPropertiesVisitor::visit_energy_DateOfEventType(object);
}

bool GmlCorePropertyCreator::visit_energy_DualValueScheduleType(energy::DualValueScheduleType* object)
{
    const Rows<energy::DualValueScheduleType> rows(this, object, Place::current());
    ATTR("usageHoursPerDay", usageHoursPerDay, optional<double>);
    ATTR("usageDaysPerYear", usageDaysPerYear, optional<double>);
    ATTR("usageValue", usageValue, gml::MeasureType);
    ATTR("idleValue", idleValue, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_energy_DualValueScheduleType(object);
}

bool GmlCorePropertyCreator::visit_energy_ElectricalAppliancesType(energy::ElectricalAppliancesType* object)
{
    const Rows<energy::ElectricalAppliancesType> rows(this, object, EXTENSION("Energy"));
    ATTR("electricalPower", electricalPower, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_ElectricalAppliancesType(object);
}

bool GmlCorePropertyCreator::visit_energy_EmissivityType(energy::EmissivityType* object)
{
    const Rows<energy::EmissivityType> rows(this, object, Place::current());
    ATTR("fraction", fraction, gml::ScaleType);
    ENUM("surface", surface, energy::SurfaceSide);
    return CityGMLPropertiesVisitor::visit_energy_EmissivityType(object);
}

bool GmlCorePropertyCreator::visit_energy_EmitterType(energy::EmitterType* object)
{
    const Rows<energy::EmitterType> rows(this, object, EXTENSION("Energy"));
    ENUM("emitterType", emitterType, optional<energy::EmitterTypeValue>);
    ATTR("unitNumber", unitNumber, optional<int>);
    ATTR("installedPower", installedPower, optional<gml::MeasureType>);
    HELD("thermalExchange", thermalExchange, HeatExchangeType);
    return CityGMLPropertiesVisitor::visit_energy_EmitterType(object);
}

bool GmlCorePropertyCreator::visit_energy_EnergyCarrierType(energy::EnergyCarrierType* object)
{
    const Rows<energy::EnergyCarrierType> rows(this, object, Place::current());
    ATTR("co2EmissionFactor", co2EmissionFactor, gml::MeasureType);
    ATTR("energyDensity", energyDensity, optional<gml::MeasureType>);
    ATTR("primaryEnergyFactor", primaryEnergyFactor, gml::MeasureType);
    ATTR("type", type, gml::CodeType);
    return CityGMLPropertiesVisitor::visit_energy_EnergyCarrierType(object);
}

bool GmlCorePropertyCreator::visit_energy_EnergyConversionSystemType(energy::EnergyConversionSystemType* object)
{
    const Rows<energy::EnergyConversionSystemType> rows(this, object, EXTENSION("Energy"));
    ATTR("efficiencyIndicator", efficiencyIndicator, optional<string>);
    ATTR("installedNominalPower", installedNominalPower, optional<double>);
    ATTR("model", model, optional<string>);
    ATTR("nominalEfficiency", nominalEfficiency, optional<gml::MeasureType>);
    ATTR("number", number, optional<int>);
    CHILD("productAndInstallationDocument", productAndInstallationDocument);
    ATTR("yearOfManufacture", yearOfManufacture, optional<gyear>);
    HELD("serviceLife", serviceLife, ServiceLife);
    REFERENCE("installedIn", installedIn);
    return CityGMLPropertiesVisitor::visit_energy_EnergyConversionSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_EnergyDemandType(energy::EnergyDemandType* object)
{
    const Rows<energy::EnergyDemandType> rows(this, object, EXTENSION("Energy"));
    HELD("energyAmount", energyAmount, _TimeSeries);
    ENUM("endUse", endUse, energy::EndUseTypeValue);
    ATTR("maximumLoad", maximumLoad, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_EnergyDemandType(object);
}

bool GmlCorePropertyCreator::visit_energy_EnergyDistributionSystemType(energy::EnergyDistributionSystemType* object)
{
    const Rows<energy::EnergyDistributionSystemType> rows(this, object, EXTENSION("Energy"));
    HELD("serviceLife", serviceLife, ServiceLife);
    return CityGMLPropertiesVisitor::visit_energy_EnergyDistributionSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_EnergyPerformanceCertificationType(energy::EnergyPerformanceCertificationType* object)
{
    const Rows<energy::EnergyPerformanceCertificationType> block(this, object, SHARED_GROUP("Energy", "energyPerformanceCertifications"));
    const auto rows = block.below(block.group(QStringLiteral("energyPerformanceCertification")));
    ATTR("certificationRating", certificationRating, string);
    ATTR("certificationName", certificationName, string);
    ATTR("certificationId", certificationId, optional<string>);
    return CityGMLPropertiesVisitor::visit_energy_EnergyPerformanceCertificationType(object);
}

bool GmlCorePropertyCreator::visit_energy_FacilitiesType(energy::FacilitiesType* object)
{
    const Rows<energy::FacilitiesType> rows(this, object, EXTENSION("Energy"));
    HELD("operationSchedule", operationSchedule, _Schedule);
    HELD("heatDissipation", heatDissipation, HeatExchangeType);
    return CityGMLPropertiesVisitor::visit_energy_FacilitiesType(object);
}

bool GmlCorePropertyCreator::visit_energy_FinalEnergyType(energy::FinalEnergyType* object)
{
    const Rows<energy::FinalEnergyType> rows(this, object, EXTENSION("Energy"));
    HELD("energyAmount", energyAmount, _TimeSeries);
    CHILD("energyCarrier", energyCarrier);
    return CityGMLPropertiesVisitor::visit_energy_FinalEnergyType(object);
}

bool GmlCorePropertyCreator::visit_energy_FloorAreaType(energy::FloorAreaType* object)
{
    const Rows<energy::FloorAreaType> block(this, object, SHARED_GROUP("Energy", "floorAreas"));
    const auto rows = block.below(block.group(QStringLiteral("floorArea")));
    ATTR("type", type, gml::CodeType);
    ATTR("value", value, gml::AreaType);
    return CityGMLPropertiesVisitor::visit_energy_FloorAreaType(object);
}

bool GmlCorePropertyCreator::visit_energy_GasType(energy::GasType* object)
{
    const Rows<energy::GasType> rows(this, object, EXTENSION("Energy"));
    ATTR("isVentilated", isVentilated, optional<bool>);
    ATTR("rValue", rValue, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_GasType(object);
}

bool GmlCorePropertyCreator::visit_energy_HeatExchangeTypeType(energy::HeatExchangeTypeType* object)
{
    const Rows<energy::HeatExchangeTypeType> rows(this, object, Place::current());
    ATTR("convectiveFraction", convectiveFraction, optional<gml::ScaleType>);
    ATTR("latentFraction", latentFraction, optional<gml::ScaleType>);
    ATTR("radiantFraction", radiantFraction, optional<gml::ScaleType>);
    ATTR("totalValue", totalValue, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_energy_HeatExchangeTypeType(object);
}

bool GmlCorePropertyCreator::visit_energy_HeatExchangerType(energy::HeatExchangerType* object)
{
    const Rows<energy::HeatExchangerType> rows(this, object, EXTENSION("Energy"));
    ATTR("networkId", networkId, string);
    ATTR("networkNodeId", networkNodeId, string);
    ATTR("primaryHeatSupplier", primaryHeatSupplier, optional<string>);
    return CityGMLPropertiesVisitor::visit_energy_HeatExchangerType(object);
}

bool GmlCorePropertyCreator::visit_energy_HeatPumpType(energy::HeatPumpType* object)
{
    const Rows<energy::HeatPumpType> rows(this, object, EXTENSION("Energy"));
    ENUM("heatSource", heatSource, energy::HeatSourceTypeValue);
    ATTR("copSourceTemperature", copSourceTemperature, optional<gml::MeasureType>);
    ATTR("copOperationTemperature", copOperationTemperature, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_HeatPumpType(object);
}

bool GmlCorePropertyCreator::visit_energy_HeightAboveGroundType(energy::HeightAboveGroundType* object)
{
    const Rows<energy::HeightAboveGroundType> block(this, object, SHARED_GROUP("Energy", "heightsAboveGround"));
    const auto rows = block.below(block.group(QStringLiteral("heightAboveGround")));
    ENUM("heightReference", heightReference, energy::ElevationReferenceValue);
    ATTR("value", value, gml::LengthType);
    return CityGMLPropertiesVisitor::visit_energy_HeightAboveGroundType(object);
}

bool GmlCorePropertyCreator::visit_energy_HouseholdType(energy::HouseholdType* object)
{
    const Rows<energy::HouseholdType> rows(this, object, EXTENSION("Energy"));
    ENUM("residenceType", residenceType, optional<energy::ResidenceTypeValue>);
    ENUM("householdType", householdType, optional<energy::HouseholdTypeValue>);
    return CityGMLPropertiesVisitor::visit_energy_HouseholdType(object);
}

bool GmlCorePropertyCreator::visit_energy_ImageTextureType(energy::ImageTextureType* object)
{
    const Rows<energy::ImageTextureType> rows(this, object, EXTENSION("Energy"));
    ATTR("url", url, uri);
    ATTR("repeatS", repeatS, bool);
    ATTR("repeatT", repeatT, bool);
    return CityGMLPropertiesVisitor::visit_energy_ImageTextureType(object);
}

bool GmlCorePropertyCreator::visit_energy_IrregularTimeSeriesFileType(energy::IrregularTimeSeriesFileType* object)
{
    const Rows<energy::IrregularTimeSeriesFileType> rows(this, object, Place::current());
    ATTR("uom", uom, gml::UnitOfMeasureType);
    ATTR("file", file, uri);
    ATTR("numberOfHeaderLines", numberOfHeaderLines, optional<int>);
    ATTR("fieldSeparator", fieldSeparator, string);
    ATTR("recordSeparator", recordSeparator, optional<string>);
    ATTR("decimalSymbol", decimalSymbol, optional<string>);
    ATTR("timeColumnNumber", timeColumnNumber, optional<int>);
    ATTR("valueColumnNumber", valueColumnNumber, optional<int>);
    return CityGMLPropertiesVisitor::visit_energy_IrregularTimeSeriesFileType(object);
}

bool GmlCorePropertyCreator::visit_energy_IrregularTimeSeriesType(energy::IrregularTimeSeriesType* object)
{
    const Rows<energy::IrregularTimeSeriesType> rows(this, object, Place::current());
    ATTR("uom", uom, gml::UnitOfMeasureType);
    HELD("contains", contains, MeasurementPoint);
    return CityGMLPropertiesVisitor::visit_energy_IrregularTimeSeriesType(object);
}

bool GmlCorePropertyCreator::visit_energy_LayerComponentType(energy::LayerComponentType* object)
{
    const Rows<energy::LayerComponentType> rows(this, object, EXTENSION("Energy"));
    ATTR("areaFraction", areaFraction, optional<gml::ScaleType>);
    ATTR("thickness", thickness, optional<gml::LengthType>);
    HELD("serviceLife", serviceLife, ServiceLife);
    return CityGMLPropertiesVisitor::visit_energy_LayerComponentType(object);
}

bool GmlCorePropertyCreator::visit_energy_LightingFacilitiesType(energy::LightingFacilitiesType* object)
{
    const Rows<energy::LightingFacilitiesType> rows(this, object, EXTENSION("Energy"));
    ATTR("electricalPower", electricalPower, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_LightingFacilitiesType(object);
}

bool GmlCorePropertyCreator::visit_energy_MeasurementPointType(energy::MeasurementPointType* object)
{
    const Rows<energy::MeasurementPointType> block(this, object, Place::current());
    const auto rows = block.below(block.group(QStringLiteral("Measure")));
    CHILD("time", time);
    ATTR("value", value, double);
    return CityGMLPropertiesVisitor::visit_energy_MeasurementPointType(object);
}

bool GmlCorePropertyCreator::visit_energy_MechanicalVentilationType(energy::MechanicalVentilationType* object)
{
    const Rows<energy::MechanicalVentilationType> rows(this, object, EXTENSION("Energy"));
    ATTR("heatRecovery", heatRecovery, bool);
    ATTR("recuperationFactor", recuperationFactor, gml::ScaleType);
    return CityGMLPropertiesVisitor::visit_energy_MechanicalVentilationType(object);
}

bool GmlCorePropertyCreator::visit_energy_OccupantsType(energy::OccupantsType* object)
{
    const Rows<energy::OccupantsType> rows(this, object, EXTENSION("Energy"));
    HELD("heatDissipation", heatDissipation, HeatExchangeType);
    ATTR("numberOfOccupants", numberOfOccupants, optional<int>);
    HELD("occupancyRate", occupancyRate, _Schedule);
    ATTR("occupantType", occupantType, optional<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_energy_OccupantsType(object);
}

bool GmlCorePropertyCreator::visit_energy_OpticalPropertiesType(energy::OpticalPropertiesType* object)
{
    const Rows<energy::OpticalPropertiesType> rows(this, object, Place::current());
    HELD("emissivity", emissivity, Emissivity);
    HELD("reflectance", reflectance, Reflectance);
    HELD("transmittance", transmittance, Transmittance);
    ATTR("glazingRatio", glazingRatio, optional<gml::ScaleType>);
    return CityGMLPropertiesVisitor::visit_energy_OpticalPropertiesType(object);
}

bool GmlCorePropertyCreator::visit_energy_PeriodOfYearType(energy::PeriodOfYearType* object)
{
    const Rows<energy::PeriodOfYearType> rows(this, object, Place::current());
    HELD("period", period, TimePeriod);
    HELD("dailySchedule", dailySchedule, DailySchedule);
    return CityGMLPropertiesVisitor::visit_energy_PeriodOfYearType(object);
}

bool GmlCorePropertyCreator::visit_energy_PhotovoltaicSystemType(energy::PhotovoltaicSystemType* object)
{
    const Rows<energy::PhotovoltaicSystemType> rows(this, object, EXTENSION("Energy"));
    ENUM("cellType", cellType, energy::CellTypeValue);
    ATTR("moduleArea", moduleArea, optional<gml::AreaType>);
    return CityGMLPropertiesVisitor::visit_energy_PhotovoltaicSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_PhotovoltaicThermalSystemType(energy::PhotovoltaicThermalSystemType* object)
{
    const Rows<energy::PhotovoltaicThermalSystemType> rows(this, object, EXTENSION("Energy"));
    ENUM("cellType", cellType, energy::CellTypeValue);
    ENUM("collectorType", collectorType, energy::CollectorTypeValue);
    ATTR("moduleArea", moduleArea, optional<gml::AreaType>);
    ATTR("apertureArea", apertureArea, optional<gml::AreaType>);
    ATTR("eta0", eta0, optional<double>);
    ATTR("a1", a1, optional<double>);
    ATTR("a2", a2, optional<double>);
    return CityGMLPropertiesVisitor::visit_energy_PhotovoltaicThermalSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_PowerDistributionSystemType(energy::PowerDistributionSystemType* object)
{
    const Rows<energy::PowerDistributionSystemType> rows(this, object, EXTENSION("Energy"));
    ATTR("current", current, optional<gml::MeasureType>);
    ATTR("voltage", voltage, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_PowerDistributionSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_PowerStorageSystemType(energy::PowerStorageSystemType* object)
{
    const Rows<energy::PowerStorageSystemType> rows(this, object, EXTENSION("Energy"));
    ATTR("batteryTechnology", batteryTechnology, optional<string>);
    ATTR("powerCapacity", powerCapacity, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_PowerStorageSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_ReflectanceType(energy::ReflectanceType* object)
{
    const Rows<energy::ReflectanceType> rows(this, object, Place::current());
    ATTR("fraction", fraction, gml::ScaleType);
    ENUM("surface", surface, energy::SurfaceSide);
    ENUM("wavelengthRange", wavelengthRange, energy::WavelengthRangeType);
    return CityGMLPropertiesVisitor::visit_energy_ReflectanceType(object);
}

bool GmlCorePropertyCreator::visit_energy_RefurbishmentMeasureType(energy::RefurbishmentMeasureType* object)
{
    const Rows<energy::RefurbishmentMeasureType> block(this, object, SHARED_GROUP("Energy", "refurbishmentMeasures"));
    const auto rows = block.below(block.group(QStringLiteral("refurbishmentMeasure")));
    HELD("dateOfRefurbishment", dateOfRefurbishment, DateOfEvent);
    ATTR("levelOfRefurbishment", levelOfRefurbishment, gml::CodeType);
    ATTR("descriptionOfRefurbishment", descriptionOfRefurbishment, optional<string>);
    return CityGMLPropertiesVisitor::visit_energy_RefurbishmentMeasureType(object);
}

bool GmlCorePropertyCreator::visit_energy_RegularTimeSeriesFileType(energy::RegularTimeSeriesFileType* object)
{
    const Rows<energy::RegularTimeSeriesFileType> rows(this, object, Place::current());
    ATTR("uom", uom, gml::UnitOfMeasureType);
    ATTR("file", file, uri);
    HELD("temporalExtent", temporalExtent, TimePeriod);
    CHILD("timeInterval", timeInterval);
    ATTR("numberOfHeaderLines", numberOfHeaderLines, optional<int>);
    ATTR("fieldSeparator", fieldSeparator, string);
    ATTR("recordSeparator", recordSeparator, optional<string>);
    ATTR("decimalSymbol", decimalSymbol, optional<string>);
    ATTR("valueColumnNumber", valueColumnNumber, optional<int>);
    return CityGMLPropertiesVisitor::visit_energy_RegularTimeSeriesFileType(object);
}

bool GmlCorePropertyCreator::visit_energy_RegularTimeSeriesType(energy::RegularTimeSeriesType* object)
{
    const Rows<energy::RegularTimeSeriesType> rows(this, object, Place::current());
    HELD("temporalExtent", temporalExtent, TimePeriod);
    CHILD("timeInterval", timeInterval);
    ATTR("values", values, gml::MeasureListType);
    return CityGMLPropertiesVisitor::visit_energy_RegularTimeSeriesType(object);
}

bool GmlCorePropertyCreator::visit_energy_ServiceLifeType(energy::ServiceLifeType* object)
{
    const Rows<energy::ServiceLifeType> rows(this, object, Place::current());
    CHILD("startOfLife", startOfLife);
    CHILD("lifeExpectancy", lifeExpectancy);
    CHILD("mainMaintenanceInterval", mainMaintenanceInterval);
    return CityGMLPropertiesVisitor::visit_energy_ServiceLifeType(object);
}

bool GmlCorePropertyCreator::visit_energy_ShadingTypeType(energy::ShadingTypeType* object)
{
    const Rows<energy::ShadingTypeType> rows(this, object, Place::current());
    ATTR("maximumCoverRatio", maximumCoverRatio, gml::ScaleType);
    ATTR("name", name, optional<string>);
    HELD("transmittance", transmittance, Transmittance);
    return CityGMLPropertiesVisitor::visit_energy_ShadingTypeType(object);
}

bool GmlCorePropertyCreator::visit_energy_SolarThermalSystemType(energy::SolarThermalSystemType* object)
{
    const Rows<energy::SolarThermalSystemType> rows(this, object, EXTENSION("Energy"));
    ENUM("collectorType", collectorType, energy::CollectorTypeValue);
    ATTR("apertureArea", apertureArea, optional<gml::AreaType>);
    ATTR("eta0", eta0, optional<double>);
    ATTR("a1", a1, optional<double>);
    ATTR("a2", a2, optional<double>);
    return CityGMLPropertiesVisitor::visit_energy_SolarThermalSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_SolidMaterialType(energy::SolidMaterialType* object)
{
    const Rows<energy::SolidMaterialType> rows(this, object, EXTENSION("Energy"));
    ATTR("conductivity", conductivity, optional<gml::MeasureType>);
    ATTR("density", density, optional<gml::MeasureType>);
    ATTR("permeance", permeance, optional<gml::MeasureType>);
    ATTR("porosity", porosity, optional<gml::ScaleType>);
    ATTR("specificHeat", specificHeat, optional<gml::MeasureType>);
    ATTR("embodiedCarbon", embodiedCarbon, optional<gml::MeasureType>);
    ATTR("embodiedEnergy", embodiedEnergy, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_SolidMaterialType(object);
}

bool GmlCorePropertyCreator::visit_energy_SystemOperationType(energy::SystemOperationType* object)
{
    const Rows<energy::SystemOperationType> rows(this, object, EXTENSION("Energy"));
    ENUM("endUse", endUse, energy::EndUseTypeValue);
    HELD("operationTime", operationTime, _Schedule);
    ATTR("yearlyGlobalEfficiency", yearlyGlobalEfficiency, optional<double>);
    return CityGMLPropertiesVisitor::visit_energy_SystemOperationType(object);
}

// Called by no visit: thermal boundaries do not show these.
void GmlCorePropertyCreator::visit_thermalBoundary_genericProperties(energy::ThermalBoundaryType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfThermalBoundary()) {
        const GenericRows rows(this, element);
        GENERIC_ENUM("insulationTypeEnumeration", pivotEnergy::InsulationTypeEnumerationType, "pivotEnergy");
        GENERIC_ENUM("boundaryContext", pivotEnergy::BoundaryContextType, "pivotEnergy");
        GENERIC("refurbishementOpportunity", pivotEnergy::poly_refurbishementOpportunity, bool, "pivotEnergy");
    }
}

bool GmlCorePropertyCreator::visit_energy_ThermalBoundaryType(energy::ThermalBoundaryType* object)
{
    const Rows<energy::ThermalBoundaryType> rows(this, object, EXTENSION("Energy"));
    ENUM("thermalBoundaryType", thermalBoundaryType, energy::ThermalBoundaryTypeValue);
    ATTR("azimuth", azimuth, optional<gml::AngleType>);
    ATTR("inclination", inclination, optional<gml::AngleType>);
    ATTR("area", area, optional<gml::AreaType>);
    if (!object->relatesTo().empty()) {
        // Stays the current group: what is entered later in this feature goes there.
        m_currentParent = rows.group(QStringLiteral("relatesTo"));
        rows.below(m_currentParent).reference(QStringLiteral("relateTo"), object->relatesTo());
    }
    return CityGMLPropertiesVisitor::visit_energy_ThermalBoundaryType(object);
}

bool GmlCorePropertyCreator::visit_energy_ThermalDistributionSystemType(energy::ThermalDistributionSystemType* object)
{
    const Rows<energy::ThermalDistributionSystemType> rows(this, object, EXTENSION("Energy"));
    ATTR("isCirculation", isCirculation, optional<bool>);
    ENUM("medium", medium, optional<energy::MediumTypeValue>);
    ATTR("nominalFlow", nominalFlow, optional<gml::MeasureType>);
    ATTR("returnTemperature", returnTemperature, optional<gml::MeasureType>);
    ATTR("supplyTemperature", supplyTemperature, optional<gml::MeasureType>);
    ATTR("thermalLossesFactor", thermalLossesFactor, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_energy_ThermalDistributionSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy_ThermalOpeningType(energy::ThermalOpeningType* object)
{
    const Rows<energy::ThermalOpeningType> rows(this, object, EXTENSION("Energy"));
    ATTR("area", area, gml::AreaType);
    HELD("indoorShading", indoorShading, ShadingType);
    HELD("outdoorShading", outdoorShading, ShadingType);
    ATTR("openableRatio", openableRatio, optional<gml::ScaleType>);
    REFERENCE("relatesTo", relatesTo);
    return CityGMLPropertiesVisitor::visit_energy_ThermalOpeningType(object);
}

bool GmlCorePropertyCreator::visit_energy_ThermalStorageSystemType(energy::ThermalStorageSystemType* object)
{
    const Rows<energy::ThermalStorageSystemType> rows(this, object, EXTENSION("Energy"));
    ATTR("preparationTemperature", preparationTemperature, optional<gml::MeasureType>);
    ENUM("medium", medium, optional<energy::MediumTypeValue>);
    ATTR("thermalLossesFactor", thermalLossesFactor, optional<gml::MeasureType>);
    ATTR("volume", volume, optional<gml::VolumeType>);
    return CityGMLPropertiesVisitor::visit_energy_ThermalStorageSystemType(object);
}

void GmlCorePropertyCreator::visit_thermalZone_genericProperties(energy::ThermalZoneType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfThermalZone()) {
        const GenericRows rows(this, element);
        // Labelled as the count that it stands in front of.
        GENERIC("nbDwellings", pivotEnergy::poly_ceilingHeight, gml::LengthType, "pivotEnergy");
        GENERIC("storeys", pivotEnergy::poly_storeys, long long, "pivotEnergy");
        GENERIC("nbDwellings", pivotEnergy::poly_nbDwellings, long long, "pivotEnergy");
        GENERIC("frontAndRearOverture", pivotEnergy::poly_frontAndRearOverture, bool, "pivotEnergy");
        GENERIC("airPermeability", pivotEnergy::poly_airPermeability, gml::MeasureType, "pivotEnergy");
        GENERIC("multipleExposure", pivotEnergy::poly_multipleExposure, bool, "pivotEnergy");
    }
}

bool GmlCorePropertyCreator::visit_energy_ThermalZoneType(energy::ThermalZoneType* object)
{
    const Rows<energy::ThermalZoneType> rows(this, object, EXTENSION("Energy"));
    ATTR("additionalThermalBridgeUValue", additionalThermalBridgeUValue, optional<gml::MeasureType>);
    ATTR("effectiveThermalCapacity", effectiveThermalCapacity, optional<gml::MeasureType>);
    ATTR("indirectlyHeatedAreaRatio", indirectlyHeatedAreaRatio, optional<gml::ScaleType>);
    ATTR("infiltrationRate", infiltrationRate, optional<gml::MeasureType>);
    ATTR("isCooled", isCooled, bool);
    ATTR("isHeated", isHeated, bool);
    visit_thermalZone_genericProperties(object);
    return CityGMLPropertiesVisitor::visit_energy_ThermalZoneType(object);
}

bool GmlCorePropertyCreator::visit_energy_TimeSeriesScheduleType(energy::TimeSeriesScheduleType* object)
{
    const Rows<energy::TimeSeriesScheduleType> rows(this, object, Place::current());
    HELD("timeDependingValues", timeDependingValues, _TimeSeries);
    return CityGMLPropertiesVisitor::visit_energy_TimeSeriesScheduleType(object);
}

bool GmlCorePropertyCreator::visit_energy_TimeValuesPropertiesType(energy::TimeValuesPropertiesType* object)
{
    const Rows<energy::TimeValuesPropertiesType> rows(this, object, Place::current());
    ENUM("acquisitionMethod", acquisitionMethod, energy::AcquisitionMethodValue);
    ENUM("interpolationType", interpolationType, energy::InterpolationTypeValue);
    ATTR("qualityDescription", qualityDescription, optional<string>);
    ATTR("source", source, optional<string>);
    return CityGMLPropertiesVisitor::visit_energy_TimeValuesPropertiesType(object);
}

bool GmlCorePropertyCreator::visit_energy_TransmittanceType(energy::TransmittanceType* object)
{
    const Rows<energy::TransmittanceType> rows(this, object, Place::current());
    ATTR("fraction", fraction, gml::ScaleType);
    ENUM("wavelengthRange", wavelengthRange, energy::WavelengthRangeType);
    return CityGMLPropertiesVisitor::visit_energy_TransmittanceType(object);
}

void GmlCorePropertyCreator::visit_usageZone_genericProperties(energy::UsageZoneType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfUsageZone()) {
        const GenericRows rows(this, element);
        GENERIC("nbDwellings", pivotEnergy::poly_nbDwellings, long long, "pivotEnergy");
    }
}

bool GmlCorePropertyCreator::visit_energy_UsageZoneType(energy::UsageZoneType* object)
{
    const Rows<energy::UsageZoneType> rows(this, object, EXTENSION("Energy"));
    HELD("coolingSchedule", coolingSchedule, _Schedule);
    HELD("heatingSchedule", heatingSchedule, _Schedule);
    ATTR("usageZoneType", usageZoneType, gml::CodeType);
    ATTR("usedFloors", usedFloors, optional<gml::integerList>);
    HELD("ventilationSchedule", ventilationSchedule, _Schedule);
    HELD("averageInternalGains", averageInternalGains, HeatExchangeType);
    visit_usageZone_genericProperties(object);
    return CityGMLPropertiesVisitor::visit_energy_UsageZoneType(object);
}

bool GmlCorePropertyCreator::visit_energy_VolumeTypeType(energy::VolumeTypeType* object)
{
    const Rows<energy::VolumeTypeType> block(this, object, SHARED_GROUP("Energy", "volumes"));
    const auto rows = block.below(block.group(QStringLiteral("volume")));
    ENUM("type", type, energy::VolumeTypeValue);
    ATTR("value", value, gml::VolumeType);
    return CityGMLPropertiesVisitor::visit_energy_VolumeTypeType(object);
}

bool GmlCorePropertyCreator::visit_energy_WeatherDataType(energy::WeatherDataType* object)
{
    const Rows<energy::WeatherDataType> block(this, object, SHARED_GROUP("Energy", "weatherDatas"));
    const auto rows = block.below(block.group(QStringLiteral("weatherData")));
    ENUM("weatherDataType", weatherDataType, energy::WeatherDataTypeValue);
    HELD("position", position, Point);
    HELD("values", values, _TimeSeries);
    return CityGMLPropertiesVisitor::visit_energy_WeatherDataType(object);
}

bool GmlCorePropertyCreator::visit_energy__SolarEnergySystemType(energy::_SolarEnergySystemType* object)
{
    const Rows<energy::_SolarEnergySystemType> rows(this, object, EXTENSION("Energy"));
    REFERENCE("installedOnBoundarySurface", installedOnBoundarySurface);
    // Past the rows of an energy conversion system, which a solar one does not show.
    return CityGMLFeaturesVisitor::visit_energy_EnergyConversionSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy__StorageSystemType(energy::_StorageSystemType* object)
{
    const Rows<energy::_StorageSystemType> rows(this, object, EXTENSION("Energy"));
    HELD("serviceLife", serviceLife, ServiceLife);
    return CityGMLPropertiesVisitor::visit_energy__StorageSystemType(object);
}

bool GmlCorePropertyCreator::visit_energy__TimeSeriesType(energy::_TimeSeriesType* object)
{
    const Rows<energy::_TimeSeriesType> rows(this, object, Place::current());
    HELD("variableProperties", variableProperties, TimeValuesProperties);
    return CityGMLPropertiesVisitor::visit_energy__TimeSeriesType(object);
}

} // namespace tolvik

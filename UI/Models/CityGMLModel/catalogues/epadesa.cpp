#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "epadesa/BenchType.hxx"
#include "epadesa/BollardType.hxx"
#include "epadesa/BuildingInformationType.hxx"
#include "epadesa/BuildingUnitType.hxx"
#include "epadesa/CityLightType.hxx"
#include "epadesa/CyclePathType.hxx"
#include "epadesa/FenceType.hxx"
#include "epadesa/GreenAreaType.hxx"
#include "epadesa/InformationTerminalType.hxx"
#include "epadesa/InfrastructureType.hxx"
#include "epadesa/KerbstoneType.hxx"
#include "epadesa/LampType.hxx"
#include "epadesa/ParkingType.hxx"
#include "epadesa/PedestrianCrossingType.hxx"
#include "epadesa/PoleType.hxx"
#include "epadesa/PostType.hxx"
#include "epadesa/PublicTransportStationType.hxx"
#include "epadesa/RailwayType.hxx"
#include "epadesa/RampType.hxx"
#include "epadesa/ShelterType.hxx"
#include "epadesa/SquareType.hxx"
#include "epadesa/StairsType.hxx"
#include "gml/TimeIntervalLengthType.hxx"

#include "epadesa.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_epadesa_BenchType(epadesa::BenchType* object)
{
    const Rows<epadesa::BenchType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("orientation", orientation, optional<string>);
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("depth", depth, optional<gml::MeasureType>);
    ATTR("heightOfSeat", heightOfSeat, optional<gml::MeasureType>);
    ATTR("heightOfSupport", heightOfSupport, optional<gml::MeasureType>);
    ATTR("seatInclination", seatInclination, optional<gml::AngleType>);
    ATTR("backrestInclination", backrestInclination, optional<gml::AngleType>);
    ATTR("seatMaterial", seatMaterial, optional<string>);
    ATTR("structureMaterial", structureMaterial, optional<string>);
    ATTR("cleanliness", cleanliness, optional<bool>);
    ATTR("damaged", damaged, optional<bool>);
    ATTR("dateOfRepair", dateOfRepair, optional<date>);
    ATTR("seatColour", seatColour, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_BenchType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_BollardType(epadesa::BollardType* object)
{
    const Rows<epadesa::BollardType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("material", material, optional<string>);
    ATTR("dateOfInstallation", dateOfInstallation, optional<date>);
    ATTR("diameterOfTheBase", diameterOfTheBase, optional<gml::MeasureType>);
    ATTR("diameterOfTheTop", diameterOfTheTop, optional<gml::MeasureType>);
    ATTR("height", height, gml::MeasureType);
    ATTR("colour", colour, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_BollardType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_BuildingInformationType(epadesa::BuildingInformationType* object)
{
    const Rows<epadesa::BuildingInformationType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("type", type, optional<string>);
    ATTR("status", status, optional<string>);
    ATTR("altimetryOfTheHighestPoint", altimetryOfTheHighestPoint, optional<gml::MeasureType>);
    ATTR("buildingInProject", buildingInProject, optional<bool>);
    ATTR("buildingWrecked", buildingWrecked, optional<bool>);
    ATTR("description", description1, optional<string>);
    ATTR("shon", shon, optional<gml::AreaType>);
    ATTR("detail", detail, optional<string>);
    ATTR("shob", shob, optional<gml::AreaType>);
    ATTR("wallArea", wallArea, optional<gml::AreaType>);
    ATTR("roofArea", roofArea, optional<gml::AreaType>);
    ATTR("housingUnits", housingUnits, optional<long long>);
    ATTR("yearOfRefurbishment", yearOfRefurbishment, optional<gyear>);
    ATTR("floorArea", floorArea, optional<gml::AreaType>);
    ATTR("mainMaterial", mainMaterial, optional<string>);
    ATTR("mainConstructionSystem", mainConstructionSystem, optional<string>);
    ATTR("facadeMainFillingMaterial", facadeMainFillingMaterial, optional<string>);
    ATTR("foundationConstructiveSystem", foundationConstructiveSystem, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_BuildingInformationType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_BuildingUnitType(epadesa::BuildingUnitType* object)
{
    const Rows<epadesa::BuildingUnitType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("occupant", occupant, optional<long long>);
    ATTR("numberOfCompanies", numberOfCompanies, optional<long long>);
    ATTR("buildingPartOwner", buildingPartOwner, optional<bool>);
    ATTR("buildingPartResident", buildingPartResident, optional<bool>);
    ATTR("buildingPartManager", buildingPartManager, optional<bool>);
    return CityGMLPropertiesVisitor::visit_epadesa_BuildingUnitType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_CityLightType(epadesa::CityLightType* object)
{
    const Rows<epadesa::CityLightType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("cityLightType", cityLightType, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_CityLightType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_CyclePathType(epadesa::CyclePathType* object)
{
    const Rows<epadesa::CyclePathType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("direction", direction, optional<bool>);
    ATTR("width", width, optional<gml::MeasureType>);
    ATTR("onBusLane", onBusLane, optional<bool>);
    return CityGMLPropertiesVisitor::visit_epadesa_CyclePathType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_FenceType(epadesa::FenceType* object)
{
    const Rows<epadesa::FenceType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("height", height, optional<gml::MeasureType>);
    ATTR("structureMaterial", structureMaterial, optional<string>);
    ATTR("damaged", damaged, optional<bool>);
    ATTR("dateOfRepair", dateOfRepair, optional<date>);
    ATTR("colour", colour, optional<string>);
    ATTR("antiNoiseBarriers", antiNoiseBarriers, optional<bool>);
    return CityGMLPropertiesVisitor::visit_epadesa_FenceType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_GreenAreaType(epadesa::GreenAreaType* object)
{
    const Rows<epadesa::GreenAreaType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("pitOfTreeLength", pitOfTreeLength, optional<gml::MeasureType>);
    ATTR("pitOfTreeDepth", pitOfTreeDepth, optional<gml::MeasureType>);
    ATTR("pitOfTreeLength", pitOfTreeLength, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_epadesa_GreenAreaType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_InformationTerminalType(epadesa::InformationTerminalType* object)
{
    const Rows<epadesa::InformationTerminalType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("screen", screen, optional<bool>);
    ATTR("soundDiffuser", soundDiffuser, optional<bool>);
    return CityGMLPropertiesVisitor::visit_epadesa_InformationTerminalType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_InfrastructureType(epadesa::InfrastructureType* object)
{
    const Rows<epadesa::InfrastructureType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("width", width, optional<gml::MeasureType>);
    ATTR("positionRelativeToGround", positionRelativeToGround, optional<long long>);
    ATTR("infrastructureInProject", infrastructureInProject, optional<bool>);
    ATTR("yearOfComissioning", yearOfComissioning, optional<gyear>);
    ATTR("trackNumber", trackNumber, optional<long long>);
    ATTR("fromNodeId", fromNodeId, optional<string>);
    ATTR("toNodeId", toNodeId, optional<string>);
    ATTR("speedLimit", speedLimit, optional<gml::MeasureType>);
    ATTR("vehiculeHourVolume", vehiculeHourVolume, optional<gml::MeasureType>);
    ATTR("morningRushHour", morningRushHour, optional<long long>);
    ATTR("eveningRushHour", eveningRushHour, optional<long long>);
    ATTR("averageSpeedLimit", averageSpeedLimit, optional<gml::MeasureType>);
    ATTR("crossing", crossing, optional<string>);
    ATTR("irisCode", irisCode, optional<string>);
    ATTR("status", status, optional<string>);
    ATTR("altimetryOfTheBottomPoint", altimetryOfTheBottomPoint, optional<double>);
    ATTR("altimetryOfTheTopPoint", altimetryOfTheTopPoint, optional<double>);
    ATTR("laneReservedFor", laneReservedFor, optional<string>);
    ATTR("name", name1, optional<string>);
    ATTR("infrastructureNumber", infrastructureNumber, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_InfrastructureType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_KerbstoneType(epadesa::KerbstoneType* object)
{
    const Rows<epadesa::KerbstoneType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("kerbstoneMaterial", kerbstoneMaterial, optional<string>);
    ATTR("kerbstoneType", kerbstoneType, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_KerbstoneType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_LampType(epadesa::LampType* object)
{
    const Rows<epadesa::LampType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("brandType", brand, optional<string>);
    ATTR("lightingClass", lightingClass, optional<string>);
    ATTR("lightingQualification", lightingQualification, optional<string>);
    ATTR("qualificationUniformityOfLighting", qualificationUniformityOfLighting, optional<string>);
    ATTR("power", power, optional<gml::MeasureType>);
    ATTR("averageOfLuminousFlux", averageOfLuminousFlux, optional<gml::MeasureType>);
    ATTR("averageOfLuminousFluxRequired", averageOfLuminousFluxRequired, gml::MeasureType);
    ATTR("uniformityOfLightingRequired", uniformityOfLightingRequired, optional<double>);
    ATTR("uniformityOfLighting", uniformityOfLighting, optional<double>);
    ATTR("lastRelampingDate", lastRelampingDate, optional<date>);
    return CityGMLPropertiesVisitor::visit_epadesa_LampType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_ParkingType(epadesa::ParkingType* object)
{
    const Rows<epadesa::ParkingType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("paying", paying, optional<bool>);
    ATTR("type", type, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_ParkingType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_PedestrianCrossingType(epadesa::PedestrianCrossingType* object)
{
    const Rows<epadesa::PedestrianCrossingType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("width", width, optional<gml::MeasureType>);
    ATTR("distanceFromNodId", distanceFromNodId, optional<gml::MeasureType>);
    ATTR("distanceToId", distanceToId, optional<gml::MeasureType>);
    ATTR("trafficlight", trafficlight, optional<bool>);
    ATTR("accessibilityDisabled", accessibilityDisabled, optional<bool>);
    ATTR("bicyclePath", bicyclePath, optional<bool>);
    return CityGMLPropertiesVisitor::visit_epadesa_PedestrianCrossingType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_PoleType(epadesa::PoleType* object)
{
    const Rows<epadesa::PoleType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("position", position, optional<string>);
    ATTR("orientation", orientation, optional<string>);
    ATTR("mainMaterial", mainMaterial, optional<string>);
    ATTR("measuredHeight", measuredHeight, optional<gml::MeasureType>);
    ATTR("installationDate", installationDate, optional<date>);
    return CityGMLPropertiesVisitor::visit_epadesa_PoleType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_PostType(epadesa::PostType* object)
{
    const Rows<epadesa::PostType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("trafficNews", trafficNews, optional<uri>);
    ATTR("timeTables", timeTables, uri);
    ATTR("lineMaps", lineMaps, optional<uri>);
    return CityGMLPropertiesVisitor::visit_epadesa_PostType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_PublicTransportStationType(epadesa::PublicTransportStationType* object)
{
    const Rows<epadesa::PublicTransportStationType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("accessibilityDisabled", accessibilityDisabled, optional<bool>);
    ATTR("position", position, optional<string>);
    ATTR("borderHeight", borderHeight, optional<gml::MeasureType>);
    ATTR("offCreepLength", offCreepLength, optional<gml::LengthType>);
    ATTR("borderMaterial", borderMaterial, optional<string>);
    ATTR("station", station, optional<string>);
    ATTR("numberOfLinesServed", numberOfLinesServed, optional<long long>);
    return CityGMLPropertiesVisitor::visit_epadesa_PublicTransportStationType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_RailwayType(epadesa::RailwayType* object)
{
    const Rows<epadesa::RailwayType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("railwayManager", railwayManager, optional<string>);
    ATTR("trackAssignedTo", trackAssignedTo, optional<string>);
    ATTR("rollingStock", rollingStock, optional<string>);
    ATTR("numberOfPassages", numberOfPassages, optional<long long>);
    return CityGMLPropertiesVisitor::visit_epadesa_RailwayType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_RampType(epadesa::RampType* object)
{
    const Rows<epadesa::RampType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("width", width, optional<gml::MeasureType>);
    ATTR("inclinationAngle", inclinationAngle, optional<gml::AngleType>);
    return CityGMLPropertiesVisitor::visit_epadesa_RampType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_ShelterType(epadesa::ShelterType* object)
{
    const Rows<epadesa::ShelterType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("supplier", supplier, optional<string>);
    ATTR("type", type, optional<string>);
    ATTR("version", version, optional<bool>);
    ATTR("capacity", capacity, optional<long long>);
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("depth", depth, optional<gml::MeasureType>);
    ATTR("height", height, optional<gml::MeasureType>);
    ATTR("structureMaterial", structureMaterial, optional<string>);
    return CityGMLPropertiesVisitor::visit_epadesa_ShelterType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_SquareType(epadesa::SquareType* object)
{
    const Rows<epadesa::SquareType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("roundabout", roundabout, optional<bool>);
    ATTR("trafficlight", trafficlight, optional<bool>);
    ATTR("numberOfInsertionLane", numberOfInsertionLane, optional<long long>);
    CHILD("duringOfTrafficlightPhase", duringOfTrafficlightPhase);
    return CityGMLPropertiesVisitor::visit_epadesa_SquareType(object);
}

bool GmlCorePropertyCreator::visit_epadesa_StairsType(epadesa::StairsType* object)
{
    const Rows<epadesa::StairsType> rows(this, object, EXTENSION("Epadesa"));
    ATTR("height", height, optional<gml::MeasureType>);
    ATTR("lengthOfTread", lengthOfTread, optional<gml::MeasureType>);
    ATTR("heightOfRiser", heightOfRiser, optional<gml::MeasureType>);
    return CityGMLPropertiesVisitor::visit_epadesa_StairsType(object);
}

} // namespace tolvik

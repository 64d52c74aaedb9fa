#include "epadesa/AllTypes.h"
#include "gml/TimeIntervalLengthType.hxx"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "epadesa.instantiations.h"

namespace tolvik {

ROWS(epadesa, BenchType, EXTENSION("Epadesa")) {
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
}

ROWS(epadesa, BollardType, EXTENSION("Epadesa")) {
    ATTR("material", material, optional<string>);
    ATTR("dateOfInstallation", dateOfInstallation, optional<date>);
    ATTR("diameterOfTheBase", diameterOfTheBase, optional<gml::MeasureType>);
    ATTR("diameterOfTheTop", diameterOfTheTop, optional<gml::MeasureType>);
    ATTR("height", height, gml::MeasureType);
    ATTR("colour", colour, optional<string>);
}

ROWS(epadesa, BuildingInformationType, EXTENSION("Epadesa")) {
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
}

ROWS(epadesa, BuildingUnitType, EXTENSION("Epadesa")) {
    ATTR("occupant", occupant, optional<long long>);
    ATTR("numberOfCompanies", numberOfCompanies, optional<long long>);
    ATTR("buildingPartOwner", buildingPartOwner, optional<bool>);
    ATTR("buildingPartResident", buildingPartResident, optional<bool>);
    ATTR("buildingPartManager", buildingPartManager, optional<bool>);
}

ROWS(epadesa, CityLightType, EXTENSION("Epadesa")) {
    ATTR("cityLightType", cityLightType, optional<string>);
}

ROWS(epadesa, CyclePathType, EXTENSION("Epadesa")) {
    ATTR("direction", direction, optional<bool>);
    ATTR("width", width, optional<gml::MeasureType>);
    ATTR("onBusLane", onBusLane, optional<bool>);
}

ROWS(epadesa, FenceType, EXTENSION("Epadesa")) {
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("height", height, optional<gml::MeasureType>);
    ATTR("structureMaterial", structureMaterial, optional<string>);
    ATTR("damaged", damaged, optional<bool>);
    ATTR("dateOfRepair", dateOfRepair, optional<date>);
    ATTR("colour", colour, optional<string>);
    ATTR("antiNoiseBarriers", antiNoiseBarriers, optional<bool>);
}

ROWS(epadesa, GreenAreaType, EXTENSION("Epadesa")) {
    ATTR("pitOfTreeLength", pitOfTreeLength, optional<gml::MeasureType>);
    ATTR("pitOfTreeDepth", pitOfTreeDepth, optional<gml::MeasureType>);
    ATTR("pitOfTreeLength", pitOfTreeLength, optional<gml::MeasureType>);
}

ROWS(epadesa, InformationTerminalType, EXTENSION("Epadesa")) {
    ATTR("screen", screen, optional<bool>);
    ATTR("soundDiffuser", soundDiffuser, optional<bool>);
}

ROWS(epadesa, InfrastructureType, EXTENSION("Epadesa")) {
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
}

ROWS(epadesa, KerbstoneType, EXTENSION("Epadesa")) {
    ATTR("kerbstoneMaterial", kerbstoneMaterial, optional<string>);
    ATTR("kerbstoneType", kerbstoneType, optional<string>);
}

ROWS(epadesa, LampType, EXTENSION("Epadesa")) {
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
}

ROWS(epadesa, ParkingType, EXTENSION("Epadesa")) {
    ATTR("paying", paying, optional<bool>);
    ATTR("type", type, optional<string>);
}

ROWS(epadesa, PedestrianCrossingType, EXTENSION("Epadesa")) {
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("width", width, optional<gml::MeasureType>);
    ATTR("distanceFromNodId", distanceFromNodId, optional<gml::MeasureType>);
    ATTR("distanceToId", distanceToId, optional<gml::MeasureType>);
    ATTR("trafficlight", trafficlight, optional<bool>);
    ATTR("accessibilityDisabled", accessibilityDisabled, optional<bool>);
    ATTR("bicyclePath", bicyclePath, optional<bool>);
}

ROWS(epadesa, PoleType, EXTENSION("Epadesa")) {
    ATTR("position", position, optional<string>);
    ATTR("orientation", orientation, optional<string>);
    ATTR("mainMaterial", mainMaterial, optional<string>);
    ATTR("measuredHeight", measuredHeight, optional<gml::MeasureType>);
    ATTR("installationDate", installationDate, optional<date>);
}

ROWS(epadesa, PostType, EXTENSION("Epadesa")) {
    ATTR("trafficNews", trafficNews, optional<uri>);
    ATTR("timeTables", timeTables, uri);
    ATTR("lineMaps", lineMaps, optional<uri>);
}

ROWS(epadesa, PublicTransportStationType, EXTENSION("Epadesa")) {
    ATTR("accessibilityDisabled", accessibilityDisabled, optional<bool>);
    ATTR("position", position, optional<string>);
    ATTR("borderHeight", borderHeight, optional<gml::MeasureType>);
    ATTR("offCreepLength", offCreepLength, optional<gml::LengthType>);
    ATTR("borderMaterial", borderMaterial, optional<string>);
    ATTR("station", station, optional<string>);
    ATTR("numberOfLinesServed", numberOfLinesServed, optional<long long>);
}

ROWS(epadesa, RailwayType, EXTENSION("Epadesa")) {
    ATTR("railwayManager", railwayManager, optional<string>);
    ATTR("trackAssignedTo", trackAssignedTo, optional<string>);
    ATTR("rollingStock", rollingStock, optional<string>);
    ATTR("numberOfPassages", numberOfPassages, optional<long long>);
}

ROWS(epadesa, RampType, EXTENSION("Epadesa")) {
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("width", width, optional<gml::MeasureType>);
    ATTR("inclinationAngle", inclinationAngle, optional<gml::AngleType>);
}

ROWS(epadesa, ShelterType, EXTENSION("Epadesa")) {
    ATTR("supplier", supplier, optional<string>);
    ATTR("type", type, optional<string>);
    ATTR("version", version, optional<bool>);
    ATTR("capacity", capacity, optional<long long>);
    ATTR("length", length, optional<gml::LengthType>);
    ATTR("depth", depth, optional<gml::MeasureType>);
    ATTR("height", height, optional<gml::MeasureType>);
    ATTR("structureMaterial", structureMaterial, optional<string>);
}

ROWS(epadesa, SquareType, EXTENSION("Epadesa")) {
    ATTR("roundabout", roundabout, optional<bool>);
    ATTR("trafficlight", trafficlight, optional<bool>);
    ATTR("numberOfInsertionLane", numberOfInsertionLane, optional<long long>);
    GROUP_EACH("duringOfTrafficlightPhase", duringOfTrafficlightPhase);
}

ROWS(epadesa, StairsType, EXTENSION("Epadesa")) {
    ATTR("height", height, optional<gml::MeasureType>);
    ATTR("lengthOfTread", lengthOfTread, optional<gml::MeasureType>);
    ATTR("heightOfRiser", heightOfRiser, optional<gml::MeasureType>);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

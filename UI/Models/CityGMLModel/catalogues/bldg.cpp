#include "bldg/AllTypes.h"
#include "energy/ConstructionWeightValue.hxx"
#include "energy/poly_buildingType.hxx"
#include "energy/poly_isLandmarked.hxx"
#include "energy/poly_referencePoint.hxx"
#include "gml/PointType.hxx"
#include "pivotEnergy/EnvironnementContextTypeType.hxx"
#include "pivotEnergy/LifeCycleStageType.hxx"
#include "pivotEnergy/poly_buildingLifeExpectancy.hxx"
#include "pivotEnergy/poly_durationOfConstruction.hxx"
#include "pivotEnergy/poly_facadeMainFillingMaterial.hxx"
#include "pivotEnergy/poly_footprintArea.hxx"
#include "pivotEnergy/poly_foundationConstructiveSystem.hxx"
#include "pivotEnergy/poly_mainConstructionSystem.hxx"
#include "pivotEnergy/poly_mainMaterial.hxx"
#include "pivotEnergy/poly_minSoundInsulation.hxx"
#include "pivotEnergy/poly_shapeLevelDifference.hxx"
#include "pivotEnergy/poly_yearOfRefurbishment.hxx"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"
#include "utility/poly_buildingHabitants.hxx"

#include "bldg.instantiations.h"

namespace tolvik {

GENERIC_ROWS(abstractBuilding, bldg::AbstractBuildingType, AbstractBuilding) {
    GENERIC("buildingHabitants", utility::poly_buildingHabitants, long long, "UtilityNetwork");
    GENERIC("buildingType", energy::poly_buildingType, string, "Energy");
    GENERIC_ENUM("constructionWeight", energy::ConstructionWeightValue, "Energy");
    GENERIC("isLandmarked", energy::poly_isLandmarked, bool, "Energy");
    GENERIC_EACH_HELD("referencePoint", energy::poly_referencePoint, Point, "Energy");
    GENERIC_EACH("durationOfConstruction", pivotEnergy::poly_durationOfConstruction, "pivotEnergy");
    GENERIC_EACH("buildingLifeExpectancy", pivotEnergy::poly_buildingLifeExpectancy, "pivotEnergy");
    GENERIC_ENUM("environnementContext", pivotEnergy::EnvironnementContextTypeType, "pivotEnergy");
    GENERIC("footprintArea", pivotEnergy::poly_footprintArea, gml::AreaType, "pivotEnergy");
    GENERIC("minSoundInsulation", pivotEnergy::poly_minSoundInsulation, gml::MeasureType, "pivotEnergy");
    GENERIC("shapeLevelDifference", pivotEnergy::poly_shapeLevelDifference, gml::MeasureType, "pivotEnergy");
    GENERIC("facadeMainFillingMaterial", pivotEnergy::poly_facadeMainFillingMaterial, gml::CodeType, "pivotEnergy");
    GENERIC("mainConstructionSystem", pivotEnergy::poly_mainConstructionSystem, gml::CodeType, "pivotEnergy");
    GENERIC("mainMaterial", pivotEnergy::poly_mainMaterial, gml::CodeType, "pivotEnergy");
    GENERIC("foundationConstructiveSystem", pivotEnergy::poly_foundationConstructiveSystem, gml::CodeType, "pivotEnergy");
    GENERIC("yearOfRefurbishment", pivotEnergy::poly_yearOfRefurbishment, gyear, "pivotEnergy");
    GENERIC("nextLifeCycleStage", pivotEnergy::LifeCycleStageType, pivotEnergy::LifeCycleStageType, "pivotEnergy");
}

ROWS(bldg, AbstractBuildingType, FIELDS) {
    CLASS_FUNCTION_USAGE();
    ATTR("RoofType", roofType, optional<gml::CodeType>);
    ATTR("YearOfConstruction", yearOfConstruction, optional<gyear>);
    ATTR("YearOfDemolition", yearOfDemolition, optional<gyear>);
    ATTR("MeasuredHeight", measuredHeight, optional<gml::LengthType>);
    ATTR("StoreysAboveGround", storeysAboveGround, optional<unsigned long long>);
    ATTR("StoreysBelowGround", storeysBelowGround, optional<unsigned long long>);
    ATTR("StoreyHeightsAboveGround", storeyHeightsAboveGround, optional<gml::MeasureOrNullListType>);
    ATTR("StoreyHeightsBelowGround", storeyHeightsBelowGround, optional<gml::MeasureOrNullListType>);
    creator.visit_abstractBuilding_genericProperties(&object);
}

ROWS(bldg, BuildingFurnitureType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(bldg, BuildingInstallationType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(bldg, IntBuildingInstallationType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(bldg, RoomType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

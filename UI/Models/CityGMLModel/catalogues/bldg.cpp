#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "bldg/AbstractBuildingType.hxx"
#include "bldg/BuildingFurnitureType.hxx"
#include "bldg/BuildingInstallationType.hxx"
#include "bldg/IntBuildingInstallationType.hxx"
#include "bldg/RoomType.hxx"
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
#include "utility/poly_buildingHabitants.hxx"

#include "bldg.instantiations.h"

namespace tolvik {

void GmlCorePropertyCreator::visit_abstractBuilding_genericProperties(bldg::AbstractBuildingType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfAbstractBuilding()) {
        const GenericRows rows(this, element);
        GENERIC("buildingHabitants", utility::poly_buildingHabitants, long long, "UtilityNetwork");
        GENERIC("buildingType", energy::poly_buildingType, string, "Energy");
        GENERIC_ENUM("constructionWeight", energy::ConstructionWeightValue, "Energy");
        GENERIC("isLandmarked", energy::poly_isLandmarked, bool, "Energy");
        GENERIC_HELD("referencePoint", energy::poly_referencePoint, Point, "Energy");
        GENERIC_CHILD("durationOfConstruction", pivotEnergy::poly_durationOfConstruction, "pivotEnergy");
        GENERIC_CHILD("buildingLifeExpectancy", pivotEnergy::poly_buildingLifeExpectancy, "pivotEnergy");
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
}

bool GmlCorePropertyCreator::visit_bldg_AbstractBuildingType(bldg::AbstractBuildingType* object)
{
    const Rows<bldg::AbstractBuildingType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    ATTR("RoofType", roofType, optional<gml::CodeType>);
    ATTR("YearOfConstruction", yearOfConstruction, optional<gyear>);
    ATTR("YearOfDemolition", yearOfDemolition, optional<gyear>);
    ATTR("MeasuredHeight", measuredHeight, optional<gml::LengthType>);
    ATTR("StoreysAboveGround", storeysAboveGround, optional<unsigned long long>);
    ATTR("StoreysBelowGround", storeysBelowGround, optional<unsigned long long>);
    ATTR("StoreyHeightsAboveGround", storeyHeightsAboveGround, optional<gml::MeasureOrNullListType>);
    ATTR("StoreyHeightsBelowGround", storeyHeightsBelowGround, optional<gml::MeasureOrNullListType>);
    visit_abstractBuilding_genericProperties(object);
    return CityGMLPropertiesVisitor::visit_bldg_AbstractBuildingType(object);
}

bool GmlCorePropertyCreator::visit_bldg_BuildingFurnitureType(bldg::BuildingFurnitureType* object)
{
    const Rows<bldg::BuildingFurnitureType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_bldg_BuildingFurnitureType(object);
}

bool GmlCorePropertyCreator::visit_bldg_BuildingInstallationType(bldg::BuildingInstallationType* object)
{
    const Rows<bldg::BuildingInstallationType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_bldg_BuildingInstallationType(object);
}

bool GmlCorePropertyCreator::visit_bldg_IntBuildingInstallationType(bldg::IntBuildingInstallationType* object)
{
    const Rows<bldg::IntBuildingInstallationType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_bldg_IntBuildingInstallationType(object);
}

bool GmlCorePropertyCreator::visit_bldg_RoomType(bldg::RoomType* object)
{
    const Rows<bldg::RoomType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_bldg_RoomType(object);
}

} // namespace tolvik

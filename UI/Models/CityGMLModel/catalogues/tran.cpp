#include "epadesa/poly_area.hxx"
#include "epadesa/poly_auxiliaryTrafficAreaType.hxx"
#include "epadesa/poly_typeOfLaneMarking.hxx"
#include "tran/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "tran.instantiations.h"

namespace tolvik {

GENERIC_ROWS(trafficArea, tran::TrafficAreaType, TrafficArea) {
    GENERIC("typeOfLaneMarking", epadesa::poly_typeOfLaneMarking, string, "Epadesa");
}

ROWS(tran, TrafficAreaType, FIELDS) {
    CLASS_FUNCTION_USAGE();
    ATTR("SurfaceMaterial", surfaceMaterial, optional<gml::CodeType>);
    creator.visit_trafficArea_genericProperties(&object);
}

GENERIC_ROWS(auxiliaryTrafficArea, tran::AuxiliaryTrafficAreaType, AuxiliaryTrafficArea) {
    GENERIC("auxiliaryTrafficAreaType", epadesa::poly_auxiliaryTrafficAreaType, string, "Epadesa");
    GENERIC("area", epadesa::poly_area, gml::AreaType, "Epadesa");
}

ROWS(tran, AuxiliaryTrafficAreaType, FIELDS) {
    CLASS_FUNCTION_USAGE();
    ATTR("SurfaceMaterial", surfaceMaterial, optional<gml::CodeType>);
    creator.visit_auxiliaryTrafficArea_genericProperties(&object);
}

ROWS(tran, TransportationComplexType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

bool GmlCorePropertyCreator::visit_tran_RailwayType(tran::RailwayType* object) {
    return CityGMLPropertiesVisitor::visit_tran_RailwayType(object);
}

bool GmlCorePropertyCreator::visit_tran_SquareType(tran::SquareType* object) {
    return CityGMLPropertiesVisitor::visit_tran_SquareType(object);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

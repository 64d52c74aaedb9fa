#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "epadesa/poly_area.hxx"
#include "epadesa/poly_auxiliaryTrafficAreaType.hxx"
#include "epadesa/poly_typeOfLaneMarking.hxx"
#include "tran/AuxiliaryTrafficAreaType.hxx"
#include "tran/RailwayType.hxx"
#include "tran/SquareType.hxx"
#include "tran/TrafficAreaType.hxx"
#include "tran/TransportationComplexType.hxx"

#include "tran.instantiations.h"

namespace tolvik {

void GmlCorePropertyCreator::visit_trafficArea_genericProperties(tran::TrafficAreaType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfTrafficArea()) {
        const GenericRows rows(this, element);
        GENERIC("typeOfLaneMarking", epadesa::poly_typeOfLaneMarking, string, "Epadesa");
    }
}

bool GmlCorePropertyCreator::visit_tran_TrafficAreaType(tran::TrafficAreaType* object)
{
    const Rows<tran::TrafficAreaType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    ATTR("SurfaceMaterial", surfaceMaterial, optional<gml::CodeType>);
    visit_trafficArea_genericProperties(object);
    return CityGMLPropertiesVisitor::visit_tran_TrafficAreaType(object);
}

void GmlCorePropertyCreator::visit_auxiliaryTrafficArea_genericProperties(tran::AuxiliaryTrafficAreaType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfAuxiliaryTrafficArea()) {
        const GenericRows rows(this, element);
        GENERIC("auxiliaryTrafficAreaType", epadesa::poly_auxiliaryTrafficAreaType, string, "Epadesa");
        GENERIC("area", epadesa::poly_area, gml::AreaType, "Epadesa");
    }
}

bool GmlCorePropertyCreator::visit_tran_AuxiliaryTrafficAreaType(tran::AuxiliaryTrafficAreaType* object)
{
    const Rows<tran::AuxiliaryTrafficAreaType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    ATTR("SurfaceMaterial", surfaceMaterial, optional<gml::CodeType>);
    visit_auxiliaryTrafficArea_genericProperties(object);
    return CityGMLPropertiesVisitor::visit_tran_AuxiliaryTrafficAreaType(object);
}

bool GmlCorePropertyCreator::visit_tran_TransportationComplexType(tran::TransportationComplexType* object)
{
    const Rows<tran::TransportationComplexType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_tran_TransportationComplexType(object);
}

bool GmlCorePropertyCreator::visit_tran_RailwayType(tran::RailwayType* object)
{
    return CityGMLPropertiesVisitor::visit_tran_RailwayType(object);
}

bool GmlCorePropertyCreator::visit_tran_SquareType(tran::SquareType* object)
{
    return CityGMLPropertiesVisitor::visit_tran_SquareType(object);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "epadesa/poly_cityFurnitureType.hxx"
#include "frn/CityFurnitureType.hxx"

#include "frn.instantiations.h"

namespace tolvik {

// Called by no visit: city furniture does not show these.
void GmlCorePropertyCreator::visit_cityFurniture_genericProperties(frn::CityFurnitureType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfCityFurniture()) {
        const GenericRows rows(this, element);
        GENERIC("cityFurnitureType", epadesa::poly_cityFurnitureType, string, "Epadesa");
    }
}

bool GmlCorePropertyCreator::visit_frn_CityFurnitureType(frn::CityFurnitureType* object)
{
    const Rows<frn::CityFurnitureType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_frn_CityFurnitureType(object);
}

} // namespace tolvik

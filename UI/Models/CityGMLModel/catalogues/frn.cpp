#include "epadesa/poly_cityFurnitureType.hxx"
#include "frn/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "frn.instantiations.h"

namespace tolvik {

// Called by no visit: city furniture does not show these.
GENERIC_ROWS(cityFurniture, frn::CityFurnitureType, CityFurniture) {
    GENERIC("cityFurnitureType", epadesa::poly_cityFurnitureType, string, "Epadesa");
}

ROWS(frn, CityFurnitureType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

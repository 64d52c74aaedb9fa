#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"
#include "wtr/AllTypes.h"

#include "wtr.instantiations.h"

namespace tolvik {

ROWS(wtr, WaterSurfaceType, FIELDS) {
    ATTR("WaterLevel", waterLevel, optional<gml::CodeType>);
}

ROWS(wtr, WaterBodyType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

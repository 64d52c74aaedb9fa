#include "luse/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "luse.instantiations.h"

namespace tolvik {

ROWS(luse, LandUseType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

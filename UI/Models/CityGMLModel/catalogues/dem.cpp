#include "dem/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "dem.instantiations.h"

namespace tolvik {

ROWS(dem, ReliefFeatureType, FIELDS) {
    ATTR("Lod", lod, core::integerBetween0and4);
}

ROWS(dem, AbstractReliefComponentType, FIELDS) {
    ATTR("Lod", lod, core::integerBetween0and4);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

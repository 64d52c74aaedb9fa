#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"
#include "veg/AllTypes.h"

#include "veg.instantiations.h"

namespace tolvik {

ROWS(veg, PlantCoverType, FIELDS) {
    CLASS_FUNCTION_USAGE();
    ATTR("AverageHeight", averageHeight, optional<gml::LengthType>);
}

ROWS(veg, SolitaryVegetationObjectType, FIELDS) {
    CLASS_FUNCTION_USAGE();
    ATTR("Species", species, optional<gml::CodeType>);
    ATTR("Height", height, optional<gml::LengthType>);
    ATTR("TrunkDiameter", trunkDiameter, optional<gml::LengthType>);
    ATTR("CrownDiameter", crownDiameter, optional<gml::LengthType>);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

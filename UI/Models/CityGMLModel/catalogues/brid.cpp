#include "brid/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "brid.instantiations.h"

namespace tolvik {

ROWS(brid, AbstractBridgeType, FIELDS) {
    CLASS_FUNCTION_USAGE();
    ATTR("YearOfConstruction", yearOfConstruction, optional<gyear>);
    ATTR("YearOfDemolition", yearOfDemolition, optional<gyear>);
    ATTR("IsMovable", isMovable, optional<bool>);
}

ROWS(brid, BridgeConstructionElementType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(brid, BridgeFurnitureType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(brid, BridgeInstallationType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(brid, BridgeRoomType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(brid, IntBridgeInstallationType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

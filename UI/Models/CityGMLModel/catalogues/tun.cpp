#include "tun/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "tun.instantiations.h"

namespace tolvik {

ROWS(tun, AbstractTunnelType, FIELDS) {
    CLASS_FUNCTION_USAGE();
    ATTR("YearOfConstruction", yearOfConstruction, optional<gyear>);
    ATTR("YearOfDemolition", yearOfDemolition, optional<gyear>);
}

ROWS(tun, HollowSpaceType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(tun, IntTunnelInstallationType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(tun, TunnelFurnitureType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(tun, TunnelInstallationType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

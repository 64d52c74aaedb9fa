#include "grp/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "grp.instantiations.h"

namespace tolvik {

ROWS(grp, CityObjectGroupMemberType, FIELDS) {
    ATTR("Role", role, optional<string>);
}

ROWS(grp, CityObjectGroupType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

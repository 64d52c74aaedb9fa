#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"
#include "xAL_2_0/AddressDetails.hxx"

#include "xAL_2_0.instantiations.h"

namespace tolvik {

ROWS(xAL_2_0, AddressDetails, CURRENT) {
    ATTR("AddressType", AddressType, optional<simple_type>);
    ATTR("CurrentStatus", CurrentStatus, optional<simple_type>);
    ATTR("ValidFromDate", ValidFromDate, optional<simple_type>);
    ATTR("ValidToDate", ValidToDate, optional<simple_type>);
    ATTR("Usage", Usage, optional<simple_type>);
    ATTR("Code", Code, optional<simple_type>);
    ATTR("AddressDetailsKey", AddressDetailsKey, optional<simple_type>);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "xAL_2_0/AddressDetails.hxx"

#include "xAL_2_0.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_xAL_2_0_AddressDetails(xAL_2_0::AddressDetails* object)
{
    const Rows<xAL_2_0::AddressDetails> rows(this, object, Place::current());
    ATTR("AddressType", AddressType, optional<simple_type>);
    ATTR("CurrentStatus", CurrentStatus, optional<simple_type>);
    ATTR("ValidFromDate", ValidFromDate, optional<simple_type>);
    ATTR("ValidToDate", ValidToDate, optional<simple_type>);
    ATTR("Usage", Usage, optional<simple_type>);
    ATTR("Code", Code, optional<simple_type>);
    ATTR("AddressDetailsKey", AddressDetailsKey, optional<simple_type>);
    return CityGMLPropertiesVisitor::visit_xAL_2_0_AddressDetails(object);
}

} // namespace tolvik

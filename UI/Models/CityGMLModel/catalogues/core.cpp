#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "core/AbstractCityObjectType.hxx"
#include "core/ExternalObjectReferenceType.hxx"
#include "core/ExternalReferenceType.hxx"
#include "core/GeneralizationRelationType.hxx"
#include "core/xalAddressPropertyType.hxx"
#include "xAL_2_0/AddressDetails.hxx"

#include "core.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_core_AbstractCityObjectType(core::AbstractCityObjectType* object)
{
    const Rows<core::AbstractCityObjectType> rows(this, object, Place::fields());
    ATTR("CreationDate", creationDate, optional<date>);
    ATTR("TerminationDate", terminationDate, optional<date>);
    ENUM("RelativeToTerrain", relativeToTerrain, optional<core::RelativeToTerrainType>);
    ENUM("RelativeToWater", relativeToWater, optional<core::RelativeToWaterType>);
    CHILDREN("ExternalReferences", externalReference, externalObject);
    if (!object->generalizesTo().empty()) {
        const auto targets = rows.below(rows.group(QStringLiteral("GeneralizesTo")));
        for (core::GeneralizationRelationType& relation : object->generalizesTo()) {
            if (relation._CityObject().present() && relation._CityObject()->id().present()) {
                targets.readOnly(QStringLiteral("Generalize"), QString::fromStdString("#" + relation._CityObject()->id().get()));
            }
        }
    }
    return CityGMLPropertiesVisitor::visit_core_AbstractCityObjectType(object);
}

bool GmlCorePropertyCreator::visit_core_ExternalObjectReferenceType(core::ExternalObjectReferenceType* object)
{
    const Rows<core::ExternalObjectReferenceType> reference(this, object, Place::current());
    const auto rows = reference.below(reference.group(QStringLiteral("externalObjectReference")));
    ATTR("ReferenceName", name, optional<string>);
    ATTR("ReferenceUri", uri, optional<uri>);
    return CityGMLPropertiesVisitor::visit_core_ExternalObjectReferenceType(object);
}

bool GmlCorePropertyCreator::visit_core_ExternalReferenceType(core::ExternalReferenceType* object)
{
    const Rows<core::ExternalReferenceType> rows(this, object, Place::current());
    ATTR("informationSystem", informationSystem, optional<uri>);
    CoreProperty* const outer = m_currentParent;
    m_currentParent = rows.group(QStringLiteral("externalObject"));
    object->externalObject().accept(this);
    // What the bases have to show belongs to the group too.
    const bool result = CityGMLPropertiesVisitor::visit_core_ExternalReferenceType(object);
    m_currentParent = outer;
    return result;
}

bool GmlCorePropertyCreator::visit_core_xalAddressPropertyType(core::xalAddressPropertyType* object)
{
    const Rows<core::xalAddressPropertyType> rows(this, object, Place::fields());
    m_currentParent = rows.group(QStringLiteral("Address"));
    object->AddressDetails().accept(this);
    // Not by way of the direct base, which enters the details too.
    const bool result = CityGMLInheritVisitor::visit_core_xalAddressPropertyType(object);
    // An address ends the group that it stands in: the outer group does not come back.
    m_currentParent = nullptr;
    return result;
}

} // namespace tolvik

#include "core/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"
#include "xAL_2_0/AddressDetails.hxx"

#include "core.instantiations.h"

namespace tolvik {

ROWS(core, AbstractCityObjectType, FIELDS) {
    ATTR("CreationDate", creationDate, optional<date>);
    ATTR("TerminationDate", terminationDate, optional<date>);
    ENUM("RelativeToTerrain", relativeToTerrain, optional<core::RelativeToTerrainType>);
    ENUM("RelativeToWater", relativeToWater, optional<core::RelativeToWaterType>);
    GROUP_ALL_HELD("ExternalReferences", externalReference, externalObject);
    if (!object.generalizesTo().empty()) {
        const Rows targets = below(addGroup(QStringLiteral("GeneralizesTo")));
        for (core::GeneralizationRelationType& relation : object.generalizesTo()) {
            if (relation._CityObject().present() && relation._CityObject()->id().present()) {
                targets.readOnly(QStringLiteral("Generalize"), QString::fromStdString("#" + relation._CityObject()->id().get()));
            }
        }
    }
}

ROWS(core, ExternalObjectReferenceType, NEW_GROUP(CURRENT, "externalObjectReference")) {
    ATTR("ReferenceName", name, optional<string>);
    ATTR("ReferenceUri", uri, optional<uri>);
}

ROWS_OF(core::ExternalReferenceType) {
    ATTR("informationSystem", informationSystem, optional<uri>);
}

bool GmlCorePropertyCreator::visit_core_ExternalReferenceType(core::ExternalReferenceType* object) {
    Rows<core::ExternalReferenceType>(*this, *object, CURRENT).addAll();
    const QScopedValueRollback<CoreProperty*> inside(m_currentParent, addGroup(CURRENT, QStringLiteral("externalObject")));
    object->externalObject().accept(this);
    // What the bases have to show belongs to the group too.
    return CityGMLPropertiesVisitor::visit_core_ExternalReferenceType(object);
}

bool GmlCorePropertyCreator::visit_core_xalAddressPropertyType(core::xalAddressPropertyType* object) {
    // An address ends the group that it stands in: the outer group does not come back.
    m_currentParent = nullptr;
    const QScopedValueRollback<CoreProperty*> inside(m_currentParent, addGroup(FIELDS, QStringLiteral("Address")));
    object->AddressDetails().accept(this);
    // Not by way of the direct base, which enters the details too.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return CityGMLInheritVisitor::visit_core_xalAddressPropertyType(object); // clazy:exclude=skipped-base-method
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"

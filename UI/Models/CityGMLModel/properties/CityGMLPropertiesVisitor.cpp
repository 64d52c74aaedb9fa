#include "UI/Models/CityGMLModel/properties/CityGMLPropertiesVisitor.h"

#include "bldg/AbstractBuildingType.hxx"
#include "core/AddressPropertyType.hxx"
#include "core/AddressType.hxx"
#include "core/xalAddressPropertyType.hxx"
#include "energy/AllTypes.h"
#include "gen/AbstractGenericAttributeType.hxx"
#include "gen/GenericAttributeSetType.hxx"
#include "gml/AbstractFeatureType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/EnvelopeType.hxx"
#include "grp/CityObjectGroupMemberType.hxx"
#include "grp/CityObjectGroupType.hxx"
#include "xAL_2_0/AllTypes.h"

namespace tolvik {

namespace {

template <typename T>
void acceptPresent(xsd::cxx::tree::optional<T>& object, citygml::CityGMLBaseVisitor* visitor)
{
    if (object.present()) {
        object->accept(visitor);
    }
}

/// Enters the object inside a property element of one class.
/// \param held the member of the class that has the object
/// \return whether the element is of that class
template <class Element, class Held>
bool acceptHeld(xml_schema::type& element, Held& (Element::*held)(), citygml::CityGMLBaseVisitor* visitor)
{
    auto* const match = dynamic_cast<Element*>(&element);
    if (match != nullptr) {
        acceptPresent((match->*held)(), visitor);
    }
    return match != nullptr;
}

} // namespace

CityGMLPropertiesVisitor::CityGMLPropertiesVisitor()
{
    walkChildren = false;
}

CityGMLPropertiesVisitor::~CityGMLPropertiesVisitor() = default;

bool CityGMLPropertiesVisitor::visit_bldg_AbstractBuildingType(bldg::AbstractBuildingType* building)
{
    for (core::AddressPropertyType& address : building->address()) {
        if (address.Address().present()) {
            address.Address()->xalAddress().accept(this);
        }
    }
    for (xml_schema::type& element : building->_GenericApplicationPropertyOfAbstractBuilding()) {
        using namespace energy;
        acceptHeld(element, &EnergyPerformanceCertificationPropertyType::EnergyPerformanceCertification,
                   this) ||
            acceptHeld(element, &VolumeTypePropertyType::VolumeType, this) ||
            acceptHeld(element, &RefurbishmentMeasurePropertyType::RefurbishmentMeasure, this) ||
            acceptHeld(element, &FloorAreaPropertyType::FloorArea, this) ||
            acceptHeld(element, &HeightAboveGroundPropertyType::HeightAboveGround, this);
    }
    return CityGMLFeaturesVisitor::visit_bldg_AbstractBuildingType(building);
}

bool CityGMLPropertiesVisitor::visit_core_AbstractCityObjectType(core::AbstractCityObjectType* object)
{
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfCityObject()) {
        if (auto* const attribute = dynamic_cast<gen::AbstractGenericAttributeType*>(&element)) {
            attribute->accept(this);
        }
    }
    for (xml_schema::type& element : object->_GenericApplicationPropertyOfCityObject()) {
        acceptHeld(element, &energy::WeatherDataPropertyType::WeatherData, this);
    }
    return CityGMLFeaturesVisitor::visit_core_AbstractCityObjectType(object);
}

bool CityGMLPropertiesVisitor::visit_core_xalAddressPropertyType(core::xalAddressPropertyType* address)
{
    address->AddressDetails().accept(this);
    return CityGMLFeaturesVisitor::visit_core_xalAddressPropertyType(address);
}

bool CityGMLPropertiesVisitor::visit_energy_BuildingUnitType(energy::BuildingUnitType* unit)
{
    for (energy::EnergyPerformanceCertificationPropertyType& certification :
         unit->energyPerformanceCertification()) {
        acceptPresent(certification.EnergyPerformanceCertification(), this);
    }
    for (energy::FloorAreaPropertyType& area : unit->floorArea()) {
        acceptPresent(area.FloorArea(), this);
    }
    return CityGMLFeaturesVisitor::visit_energy_BuildingUnitType(unit);
}

bool CityGMLPropertiesVisitor::visit_energy_ThermalBoundaryType(energy::ThermalBoundaryType* boundary)
{
    for (energy::RefurbishmentMeasurePropertyType& measure : boundary->refurbishmentMeasure()) {
        acceptPresent(measure.RefurbishmentMeasure(), this);
    }
    return CityGMLFeaturesVisitor::visit_energy_ThermalBoundaryType(boundary);
}

bool CityGMLPropertiesVisitor::visit_energy_ThermalZoneType(energy::ThermalZoneType* zone)
{
    for (energy::FloorAreaPropertyType& area : zone->floorArea()) {
        acceptPresent(area.FloorArea(), this);
    }
    for (energy::VolumeTypePropertyType& volume : zone->volume()) {
        acceptPresent(volume.VolumeType(), this);
    }
    return CityGMLFeaturesVisitor::visit_energy_ThermalZoneType(zone);
}

bool CityGMLPropertiesVisitor::visit_energy_UsageZoneType(energy::UsageZoneType* zone)
{
    for (energy::FloorAreaPropertyType& area : zone->floorArea()) {
        acceptPresent(area.FloorArea(), this);
    }
    return CityGMLFeaturesVisitor::visit_energy_UsageZoneType(zone);
}

bool CityGMLPropertiesVisitor::visit_gen_GenericAttributeSetType(gen::GenericAttributeSetType* set)
{
    for (gen::AbstractGenericAttributeType& attribute : set->_genericAttribute()) {
        attribute.accept(this);
    }
    return CityGMLFeaturesVisitor::visit_gen_GenericAttributeSetType(set);
}

bool CityGMLPropertiesVisitor::visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature)
{
    acceptPresent(feature->boundedBy(), this);
    return CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(feature);
}

bool CityGMLPropertiesVisitor::visit_gml_BoundingShapeType(gml::BoundingShapeType* shape)
{
    acceptPresent(shape->Envelope(), this);
    return CityGMLFeaturesVisitor::visit_gml_BoundingShapeType(shape);
}

bool CityGMLPropertiesVisitor::visit_grp_CityObjectGroupType(grp::CityObjectGroupType* group)
{
    for (grp::CityObjectGroupMemberType& member : group->groupMember()) {
        member.accept(this);
    }
    return CityGMLFeaturesVisitor::visit_grp_CityObjectGroupType(group);
}

bool CityGMLPropertiesVisitor::visit_xAL_2_0_AddressDetails(xAL_2_0::AddressDetails* details)
{
    acceptPresent(details->PostalServiceElements(), this);
    acceptPresent(details->Address(), this);
    acceptPresent(details->AddressLines(), this);
    acceptPresent(details->AdministrativeArea(), this);
    acceptPresent(details->Locality(), this);
    acceptPresent(details->Thoroughfare(), this);
    // Twice, and visitors count on it.
    acceptPresent(details->AdministrativeArea(), this);
    acceptPresent(details->Country(), this);
    return CityGMLFeaturesVisitor::visit_xAL_2_0_AddressDetails(details);
}

bool CityGMLPropertiesVisitor::visit_bldg_AbstractBoundarySurfaceType(
    bldg::AbstractBoundarySurfaceType* surface)
{
    return CityGMLFeaturesVisitor::visit_bldg_AbstractBoundarySurfaceType(surface);
}

bool CityGMLPropertiesVisitor::visit_brid_AbstractBoundarySurfaceType(
    brid::AbstractBoundarySurfaceType* surface)
{
    return CityGMLFeaturesVisitor::visit_brid_AbstractBoundarySurfaceType(surface);
}

bool CityGMLPropertiesVisitor::visit_gml_AbstractFeatureCollectionType(
    gml::AbstractFeatureCollectionType* collection)
{
    return CityGMLFeaturesVisitor::visit_gml_AbstractFeatureCollectionType(collection);
}

bool CityGMLPropertiesVisitor::visit_tun_AbstractBoundarySurfaceType(
    tun::AbstractBoundarySurfaceType* surface)
{
    return CityGMLFeaturesVisitor::visit_tun_AbstractBoundarySurfaceType(surface);
}

} // namespace tolvik

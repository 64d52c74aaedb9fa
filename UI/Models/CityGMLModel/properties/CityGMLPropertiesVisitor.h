#pragma once

#include "citygml/CityGMLFeaturesVisitor.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

namespace tolvik {

/// Base of the visitors that look at one feature: it stays inside the feature it is started on, and enters
/// the objects that hang from it without being features themselves, such as addresses and generic attributes.
/// Each visit enters what its type declares, and then goes on to the bases.
class CITYGMLMODEL_EXPORT CityGMLPropertiesVisitor : public CityGMLFeaturesVisitor
{
public:
    CityGMLPropertiesVisitor();
    ~CityGMLPropertiesVisitor() override;

    /// Addresses, and the objects of the energy extension that hang on a building.
    bool visit_bldg_AbstractBuildingType(bldg::AbstractBuildingType* building) override;
    /// Generic attributes, and weather data of the energy extension.
    bool visit_core_AbstractCityObjectType(core::AbstractCityObjectType* object) override;
    bool visit_core_xalAddressPropertyType(core::xalAddressPropertyType* address) override;
    bool visit_energy_BuildingUnitType(energy::BuildingUnitType* unit) override;
    bool visit_energy_ThermalBoundaryType(energy::ThermalBoundaryType* boundary) override;
    bool visit_energy_ThermalZoneType(energy::ThermalZoneType* zone) override;
    bool visit_energy_UsageZoneType(energy::UsageZoneType* zone) override;
    bool visit_gen_GenericAttributeSetType(gen::GenericAttributeSetType* set) override;
    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override;
    bool visit_gml_BoundingShapeType(gml::BoundingShapeType* shape) override;
    bool visit_grp_CityObjectGroupType(grp::CityObjectGroupType* group) override;
    bool visit_xAL_2_0_AddressDetails(xAL_2_0::AddressDetails* details) override;

    // Nothing to enter at the level of these types.
    bool visit_bldg_AbstractBoundarySurfaceType(bldg::AbstractBoundarySurfaceType* surface) override;
    bool visit_brid_AbstractBoundarySurfaceType(brid::AbstractBoundarySurfaceType* surface) override;
    bool visit_gml_AbstractFeatureCollectionType(gml::AbstractFeatureCollectionType* collection) override;
    bool visit_tun_AbstractBoundarySurfaceType(tun::AbstractBoundarySurfaceType* surface) override;
};

} // namespace tolvik

#include "support/Features.h"

#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/OpeningPropertyType.hxx"
#include "gml/FeaturePropertyType.hxx"

namespace testsupport {

namespace {

/// Puts an empty property behind the others.
/// \return the property
template <class Property, class Properties>
Property& addProperty(Properties& properties)
{
    properties.push_back(Property());
    return properties.back();
}

} // namespace

gml::AbstractFeatureType* addMember(core::CityModelType& document, const gml::AbstractFeatureType& feature)
{
    auto& member = addProperty<gml::FeaturePropertyType>(document.featureMember());
    member._Feature(feature);
    return &member._Feature().get();
}

bldg::AbstractBoundarySurfaceType* addSurface(bldg::AbstractBuildingType& building,
                                              const bldg::AbstractBoundarySurfaceType& surface)
{
    auto& member = addProperty<bldg::BoundarySurfacePropertyType>(building.boundedBy1());
    member._BoundarySurface(surface);
    return &member._BoundarySurface().get();
}

bldg::AbstractOpeningType* addOpening(bldg::AbstractBoundarySurfaceType& surface,
                                      const bldg::AbstractOpeningType& opening)
{
    auto& member = addProperty<bldg::OpeningPropertyType>(surface.opening());
    member._Opening(opening);
    return &member._Opening().get();
}

} // namespace testsupport

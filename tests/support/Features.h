#pragma once

#include "bldg/AbstractBoundarySurfaceType.hxx"
#include "bldg/AbstractBuildingType.hxx"
#include "bldg/BuildingType.hxx"
#include "bldg/DoorType.hxx"
#include "bldg/WallSurfaceType.hxx"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"

#include <string>

namespace testsupport {

/// A feature of type T with an identifier.
template <class T>
T makeFeature(const std::string& id)
{
    T feature;
    feature.id(gml::AbstractGMLType::id_type(id));
    return feature;
}

inline bldg::BuildingType makeBuilding(const std::string& id)
{
    return makeFeature<bldg::BuildingType>(id);
}

inline bldg::WallSurfaceType makeWall(const std::string& id)
{
    return makeFeature<bldg::WallSurfaceType>(id);
}

inline bldg::DoorType makeDoor(const std::string& id)
{
    return makeFeature<bldg::DoorType>(id);
}

/// Puts a copy of the feature into the document, behind its other members.
/// \return the copy
gml::AbstractFeatureType* addMember(core::CityModelType& document, const gml::AbstractFeatureType& feature);

/// The same for a surface of a building.
bldg::AbstractBoundarySurfaceType* addSurface(bldg::AbstractBuildingType& building,
                                              const bldg::AbstractBoundarySurfaceType& surface);

/// The same for an opening of a surface.
bldg::AbstractOpeningType* addOpening(bldg::AbstractBoundarySurfaceType& surface,
                                      const bldg::AbstractOpeningType& opening);

} // namespace testsupport

#pragma once

// The schema types that have rows in the property tree. `V(prefix, Type)` is expanded for each.

#define TOLVIK_CITYGML_PROPERTY_VISITS(V) \
    V(gml, AbstractFeatureType) \
    V(gml, EnvelopeType) \
    V(gml, PointType) \
    V(gml, TimeIntervalLengthType) \
    V(gml, TimePeriodType) \
    V(gml, TimePositionType) \
    V(core, AbstractCityObjectType) \
    V(core, ExternalObjectReferenceType) \
    V(core, ExternalReferenceType) \
    V(core, xalAddressPropertyType) \
    V(xAL_2_0, AddressDetails) \
    V(bldg, AbstractBuildingType) \
    V(bldg, BuildingFurnitureType) \
    V(bldg, BuildingInstallationType) \
    V(bldg, IntBuildingInstallationType) \
    V(bldg, RoomType) \
    V(brid, AbstractBridgeType) \
    V(brid, BridgeConstructionElementType) \
    V(brid, BridgeFurnitureType) \
    V(brid, BridgeInstallationType) \
    V(brid, BridgeRoomType) \
    V(brid, IntBridgeInstallationType) \
    V(tun, AbstractTunnelType) \
    V(tun, HollowSpaceType) \
    V(tun, IntTunnelInstallationType) \
    V(tun, TunnelFurnitureType) \
    V(tun, TunnelInstallationType) \
    V(tran, TrafficAreaType) \
    V(tran, AuxiliaryTrafficAreaType) \
    V(tran, TransportationComplexType) \
    V(tran, RailwayType) \
    V(tran, SquareType) \
    V(wtr, WaterSurfaceType) \
    V(wtr, WaterBodyType) \
    V(veg, PlantCoverType) \
    V(veg, SolitaryVegetationObjectType) \
    V(frn, CityFurnitureType) \
    V(luse, LandUseType) \
    V(dem, ReliefFeatureType) \
    V(dem, AbstractReliefComponentType) \
    V(grp, CityObjectGroupMemberType) \
    V(grp, CityObjectGroupType) \
    V(gen, GenericCityObjectType) \
    V(gen, StringAttributeType) \
    V(gen, IntAttributeType) \
    V(gen, DoubleAttributeType) \
    V(gen, DateAttributeType) \
    V(gen, UriAttributeType) \
    V(gen, MeasureAttributeType) \
    V(gen, GenericAttributeSetType)

#define TOLVIK_PROPERTY_VISITS(V) TOLVIK_CITYGML_PROPERTY_VISITS(V)

#pragma once

/// The schema types that hold features, or stand between a feature and the features below it. `V(prefix, Type)` is
/// expanded for each.
#define TOLVIK_FEATURE_VISITS(V) \
    V(bldg, AbstractBoundarySurfaceType) \
    V(bldg, AbstractBuildingType) \
    V(bldg, BuildingInstallationType) \
    V(bldg, IntBuildingInstallationType) \
    V(bldg, RoomType) \
    V(brid, AbstractBoundarySurfaceType) \
    V(brid, AbstractBridgeType) \
    V(brid, BridgeConstructionElementType) \
    V(brid, BridgeInstallationType) \
    V(brid, BridgeRoomType) \
    V(brid, IntBridgeInstallationType) \
    V(core, AbstractCityObjectType) \
    V(dem, ReliefFeatureType) \
    V(frn, CityFurnitureType) \
    V(gml, AbstractFeatureCollectionType) \
    V(gml, AbstractFeatureType) \
    V(grp, CityObjectGroupType) \
    V(tran, AuxiliaryTrafficAreaType) \
    V(tran, RailwayType) \
    V(tran, SquareType) \
    V(tran, TrafficAreaType) \
    V(tran, TransportationComplexType) \
    V(tun, AbstractBoundarySurfaceType) \
    V(tun, AbstractTunnelType) \
    V(tun, HollowSpaceType) \
    V(tun, IntTunnelInstallationType) \
    V(tun, TunnelInstallationType) \
    V(wtr, WaterBodyType)

#pragma once

/// The schema types that hold features, or stand between a feature and the features below it, each with the
/// members that lead there: directly, through a property, or through the hook for attributes of extensions.
/// `V(prefix, Type, members)` is expanded for each; the members are a text of names with spaces between them.
#define TOLVIK_FEATURE_VISITS(V)                                                                             \
    V(bldg, AbstractBoundarySurfaceType, "opening _GenericApplicationPropertyOfBoundarySurface")             \
    V(bldg, AbstractBuildingType,                                                                            \
      "outerBuildingInstallation interiorBuildingInstallation boundedBy interiorRoom "                       \
      "consistsOfBuildingPart address _GenericApplicationPropertyOfAbstractBuilding")                        \
    V(bldg, BuildingInstallationType, "boundedBy _GenericApplicationPropertyOfBuildingInstallation")         \
    V(bldg, IntBuildingInstallationType, "boundedBy _GenericApplicationPropertyOfIntBuildingInstallation")   \
    V(bldg, RoomType, "boundedBy interiorFurniture roomInstallation _GenericApplicationPropertyOfRoom")      \
    V(brid, AbstractBoundarySurfaceType, "opening _GenericApplicationPropertyOfBoundarySurface")             \
    V(brid, AbstractBridgeType,                                                                              \
      "outerBridgeConstruction outerBridgeInstallation interiorBridgeInstallation boundedBy "                \
      "interiorBridgeRoom consistsOfBridgePart address _GenericApplicationPropertyOfAbstractBridge")         \
    V(brid, BridgeConstructionElementType,                                                                   \
      "boundedBy _GenericApplicationPropertyOfBridgeConstructionElement")                                    \
    V(brid, BridgeInstallationType, "boundedBy _GenericApplicationPropertyOfBridgeInstallation")             \
    V(brid, BridgeRoomType,                                                                                  \
      "boundedBy interiorFurniture bridgeRoomInstallation _GenericApplicationPropertyOfBridgeRoom")          \
    V(brid, IntBridgeInstallationType, "boundedBy _GenericApplicationPropertyOfIntBridgeInstallation")       \
    V(component, AbstractSurfaceComponentTypeType, "layer")                                                  \
    V(component, ComponentType, "componentType")                                                             \
    V(component, GeneralComponentTypeType, "componentReference")                                             \
    V(component, OpeningComponentTypeType, "part _GenericApplicationPropertyOfOpeningComponentType")         \
    V(component, WallComponentTypeType, "opening")                                                           \
    V(core, AbstractCityObjectType, "generalizesTo _GenericApplicationPropertyOfCityObject")                 \
    V(dem, ReliefFeatureType, "reliefComponent _GenericApplicationPropertyOfReliefFeature")                  \
    V(energy, AbstractMaterialType, "imageTexture")                                                          \
    V(energy, BuildingUnitType, "occupiedBy equippedWith")                                                   \
    V(energy, ConstructionType, "layer")                                                                     \
    V(energy, EnergyConversionSystemType, "hasOperation consumes produces")                                  \
    V(energy, EnergyDemandType, "energySource energyDistribution energyStorage energyEmission")              \
    V(energy, FinalEnergyType, "isProducedBy isConsumedBy")                                                  \
    V(energy, LayerComponentType, "material")                                                                \
    V(energy, LayerType, "layerComponent")                                                                   \
    V(energy, ReverseConstructionType, "baseConstruction")                                                   \
    V(energy, ThermalBoundaryType,                                                                           \
      "construction contains delimits _GenericApplicationPropertyOfThermalBoundary")                         \
    V(energy, ThermalOpeningType, "construction _GenericApplicationPropertyOfThermalOpening")                \
    V(energy, ThermalZoneType, "boundedBy contains interiorRoom _GenericApplicationPropertyOfThermalZone")   \
    V(energy, UsageZoneType, "contains occupiedBy equippedWith _GenericApplicationPropertyOfUsageZone")      \
    V(energy, _SolarEnergySystemType, "energyStorage")                                                       \
    V(epadesa, BuildingInformationType, "buildingUnit")                                                      \
    V(epadesa, CityLightType, "pole lamp")                                                                   \
    V(epadesa, PublicTransportStationType, "post shelter")                                                   \
    V(frn, CityFurnitureType, "_GenericApplicationPropertyOfCityFurniture")                                  \
    V(gml, AbstractFeatureCollectionType, "featureMember featureMembers")                                    \
    V(gml, AbstractFeatureType, "")                                                                          \
    V(grp, CityObjectGroupType, "groupMember parent _GenericApplicationPropertyOfCityObjectGroup")           \
    V(ladmfr, FR_ActeType, "signature")                                                                      \
    V(ladmfr, FR_BoundaryType, "point")                                                                      \
    V(ladmfr, FR_ParcelleCadastraleType, "boundary pdl")                                                     \
    V(ladmfr, FR_PdlLotType, "division")                                                                     \
    V(ladmfr, FR_PdlType, "lot")                                                                             \
    V(ladmfr, LA_BAUnitType, "rrr spatialUnit source relatedBAUnit")                                         \
    V(ladmfr, LA_LevelType, "spatialUnit")                                                                   \
    V(ladmfr, LA_PartyType, "rrr groupParty")                                                                \
    V(ladmfr, LA_RRRType, "party baUnit source")                                                             \
    V(ladmfr, LA_SpatialSourceType, "point")                                                                 \
    V(ladmfr, LA_SpatialUnitGroupType, "spatialUnit subGroup")                                               \
    V(ladmfr, LA_SpatialUnitType,                                                                            \
      "level spatialUnitGroup baUnit boundaryFaceString boundaryFace spatialSource")                         \
    V(pivotEnergy, AbstractSystemObjectType, "servedZone")                                                   \
    V(pivotEnergy, AeraulicDistributionType, "portion ventilationSystem")                                    \
    V(pivotEnergy, BlowerVentsType, "distribution")                                                          \
    V(pivotEnergy, ConnectedCoolingEmitterType, "distribution")                                              \
    V(pivotEnergy, ConnectedEmitterType, "heatingEmitter coolingEmitter")                                    \
    V(pivotEnergy, ConnectedHeatingEmitterType, "distribution")                                              \
    V(pivotEnergy, DHWEmitterType, "distribution")                                                           \
    V(pivotEnergy, DistributionPortionType, "goThrough")                                                     \
    V(pivotEnergy, EnergyConsumptionType, "system")                                                          \
    V(pivotEnergy, GenerationManagementType, "generateur generatorControl storage")                          \
    V(pivotEnergy, HydraulicDistributionType, "portion generation")                                          \
    V(pivotEnergy, OrderedComponentType, "component")                                                        \
    V(pivotEnergy, ReturnAirVentsType, "distribution")                                                       \
    V(pivotEnergy, StandaloneEmitterType, "heatingEmitter coolingEmitter")                                   \
    V(pivotEnergy, StorageType, "solarLoop")                                                                 \
    V(tran, AuxiliaryTrafficAreaType, "_GenericApplicationPropertyOfAuxiliaryTrafficArea")                   \
    V(tran, RailwayType, "_GenericApplicationPropertyOfRailway")                                             \
    V(tran, SquareType, "_GenericApplicationPropertyOfSquare")                                               \
    V(tran, TrafficAreaType, "_GenericApplicationPropertyOfTrafficArea")                                     \
    V(tran, TransportationComplexType,                                                                       \
      "trafficArea auxiliaryTrafficArea _GenericApplicationPropertyOfTransportationComplex")                 \
    V(tun, AbstractBoundarySurfaceType, "opening _GenericApplicationPropertyOfBoundarySurface")              \
    V(tun, AbstractTunnelType,                                                                               \
      "outerTunnelInstallation interiorTunnelInstallation boundedBy interiorHollowSpace "                    \
      "consistsOfTunnelPart _GenericApplicationPropertyOfAbstractTunnel")                                    \
    V(tun, HollowSpaceType,                                                                                  \
      "boundedBy interiorFurniture hollowSpaceInstallation _GenericApplicationPropertyOfHollowSpace")        \
    V(tun, IntTunnelInstallationType, "boundedBy _GenericApplicationPropertyOfIntTunnelInstallation")        \
    V(tun, TunnelInstallationType, "boundedBy _GenericApplicationPropertyOfTunnelInstallation")              \
    V(utility, AbstractCommodityClassifierType, "composedOf")                                                \
    V(utility, AbstractCommodityType, "isClassifiedBy")                                                      \
    V(utility, AbstractFeatureMaterialType, "layer")                                                         \
    V(utility, AbstractHollowSpaceType, "consistsOf contains")                                               \
    V(utility, AbstractLinkType, "start end linkControl")                                                    \
    V(utility, AbstractNetworkFeatureType, "hasMaterial consistsOf roleInNetwork hollowSpace topoGraph")     \
    V(utility, FeatureGraphType, "nodeMember linkMember")                                                    \
    V(utility, NetworkGraphType, "featureGraphMember linkMember networkLinkMember")                          \
    V(utility, NetworkType,                                                                                  \
      "transportedMedium component topologyGraph superOrdinateNetwork subOrdinateNetwork supplyArea")        \
    V(utility, NodeType, "connectionSignature linkControl")                                                  \
    V(utility, ProtectiveElementType, "protects fillingMaterial")                                            \
    V(utility, RoleInNetworkType, "network")                                                                 \
    V(wtr, WaterBodyType, "boundedBy _GenericApplicationPropertyOfWaterBody")

#include "citygml/CityGMLFeaturesVisitor.h"

#include "citygml/AllTypes.h"
#include "platform/binding/Tables.h"

#include <array>
#include <stdexcept>
#include <string>
#include <typeindex>
#include <unordered_map>

namespace tolvik {

namespace {

using citygml::binding::Member;
using citygml::binding::MemberOps;
using citygml::binding::recordOf;
using citygml::binding::TypeRecord;

enum Visit {
#define TOLVIK_VISIT_NUMBER(prefix, Type) prefix##_##Type,
    TOLVIK_FEATURE_VISITS(TOLVIK_VISIT_NUMBER)
#undef TOLVIK_VISIT_NUMBER
        VisitCount
};

struct Walk
{
    Visit type;
    std::vector<const char*> members;
};

/// The members of each type that lead to features: directly, through a property, or through the hook for
/// attributes of extensions.
const std::vector<Walk>& walks()
{
    static const std::vector<Walk> table = {
        {gml_AbstractFeatureType, {}},
        {gml_AbstractFeatureCollectionType, {"featureMember", "featureMembers"}},
        {core_AbstractCityObjectType, {"generalizesTo", "_GenericApplicationPropertyOfCityObject"}},

        {bldg_AbstractBuildingType,
         {"outerBuildingInstallation", "interiorBuildingInstallation", "boundedBy", "interiorRoom",
          "consistsOfBuildingPart", "address", "_GenericApplicationPropertyOfAbstractBuilding"}},
        {bldg_AbstractBoundarySurfaceType, {"opening", "_GenericApplicationPropertyOfBoundarySurface"}},
        {bldg_BuildingInstallationType, {"boundedBy", "_GenericApplicationPropertyOfBuildingInstallation"}},
        {bldg_IntBuildingInstallationType,
         {"boundedBy", "_GenericApplicationPropertyOfIntBuildingInstallation"}},
        {bldg_RoomType,
         {"boundedBy", "interiorFurniture", "roomInstallation", "_GenericApplicationPropertyOfRoom"}},

        {brid_AbstractBridgeType,
         {"outerBridgeConstruction", "outerBridgeInstallation", "interiorBridgeInstallation", "boundedBy",
          "interiorBridgeRoom", "consistsOfBridgePart", "address",
          "_GenericApplicationPropertyOfAbstractBridge"}},
        {brid_AbstractBoundarySurfaceType, {"opening", "_GenericApplicationPropertyOfBoundarySurface"}},
        {brid_BridgeConstructionElementType,
         {"boundedBy", "_GenericApplicationPropertyOfBridgeConstructionElement"}},
        {brid_BridgeInstallationType, {"boundedBy", "_GenericApplicationPropertyOfBridgeInstallation"}},
        {brid_BridgeRoomType,
         {"boundedBy", "interiorFurniture", "bridgeRoomInstallation",
          "_GenericApplicationPropertyOfBridgeRoom"}},
        {brid_IntBridgeInstallationType, {"boundedBy", "_GenericApplicationPropertyOfIntBridgeInstallation"}},

        {tun_AbstractTunnelType,
         {"outerTunnelInstallation", "interiorTunnelInstallation", "boundedBy", "interiorHollowSpace",
          "consistsOfTunnelPart", "_GenericApplicationPropertyOfAbstractTunnel"}},
        {tun_AbstractBoundarySurfaceType, {"opening", "_GenericApplicationPropertyOfBoundarySurface"}},
        {tun_HollowSpaceType,
         {"boundedBy", "interiorFurniture", "hollowSpaceInstallation",
          "_GenericApplicationPropertyOfHollowSpace"}},
        {tun_IntTunnelInstallationType, {"boundedBy", "_GenericApplicationPropertyOfIntTunnelInstallation"}},
        {tun_TunnelInstallationType, {"boundedBy", "_GenericApplicationPropertyOfTunnelInstallation"}},

        {tran_TransportationComplexType,
         {"trafficArea", "auxiliaryTrafficArea", "_GenericApplicationPropertyOfTransportationComplex"}},
        {tran_TrafficAreaType, {"_GenericApplicationPropertyOfTrafficArea"}},
        {tran_AuxiliaryTrafficAreaType, {"_GenericApplicationPropertyOfAuxiliaryTrafficArea"}},
        {tran_RailwayType, {"_GenericApplicationPropertyOfRailway"}},
        {tran_SquareType, {"_GenericApplicationPropertyOfSquare"}},

        {wtr_WaterBodyType, {"boundedBy", "_GenericApplicationPropertyOfWaterBody"}},
        {dem_ReliefFeatureType, {"reliefComponent", "_GenericApplicationPropertyOfReliefFeature"}},
        {frn_CityFurnitureType, {"_GenericApplicationPropertyOfCityFurniture"}},
        {grp_CityObjectGroupType, {"groupMember", "parent", "_GenericApplicationPropertyOfCityObjectGroup"}},

        {component_AbstractSurfaceComponentTypeType, {"layer"}},
        {component_ComponentType, {"componentType"}},
        {component_GeneralComponentTypeType, {"componentReference"}},
        {component_OpeningComponentTypeType, {"part", "_GenericApplicationPropertyOfOpeningComponentType"}},
        {component_WallComponentTypeType, {"opening"}},

        {energy_AbstractMaterialType, {"imageTexture"}},
        {energy_BuildingUnitType, {"occupiedBy", "equippedWith"}},
        {energy_ConstructionType, {"layer"}},
        {energy_EnergyConversionSystemType, {"hasOperation", "consumes", "produces"}},
        {energy_EnergyDemandType, {"energySource", "energyDistribution", "energyStorage", "energyEmission"}},
        {energy_FinalEnergyType, {"isProducedBy", "isConsumedBy"}},
        {energy_LayerComponentType, {"material"}},
        {energy_LayerType, {"layerComponent"}},
        {energy_ReverseConstructionType, {"baseConstruction"}},
        {energy_ThermalBoundaryType,
         {"construction", "contains", "delimits", "_GenericApplicationPropertyOfThermalBoundary"}},
        {energy_ThermalOpeningType, {"construction", "_GenericApplicationPropertyOfThermalOpening"}},
        {energy_ThermalZoneType,
         {"boundedBy", "contains", "interiorRoom", "_GenericApplicationPropertyOfThermalZone"}},
        {energy_UsageZoneType,
         {"contains", "occupiedBy", "equippedWith", "_GenericApplicationPropertyOfUsageZone"}},
        {energy__SolarEnergySystemType, {"energyStorage"}},

        {epadesa_BuildingInformationType, {"buildingUnit"}},
        {epadesa_CityLightType, {"pole", "lamp"}},
        {epadesa_PublicTransportStationType, {"post", "shelter"}},

        {ladmfr_FR_ActeType, {"signature"}},
        {ladmfr_FR_BoundaryType, {"point"}},
        {ladmfr_FR_ParcelleCadastraleType, {"boundary", "pdl"}},
        {ladmfr_FR_PdlLotType, {"division"}},
        {ladmfr_FR_PdlType, {"lot"}},
        {ladmfr_LA_BAUnitType, {"rrr", "spatialUnit", "source", "relatedBAUnit"}},
        {ladmfr_LA_LevelType, {"spatialUnit"}},
        {ladmfr_LA_PartyType, {"rrr", "groupParty"}},
        {ladmfr_LA_RRRType, {"party", "baUnit", "source"}},
        {ladmfr_LA_SpatialSourceType, {"point"}},
        {ladmfr_LA_SpatialUnitGroupType, {"spatialUnit", "subGroup"}},
        {ladmfr_LA_SpatialUnitType,
         {"level", "spatialUnitGroup", "baUnit", "boundaryFaceString", "boundaryFace", "spatialSource"}},

        {pivotEnergy_AbstractSystemObjectType, {"servedZone"}},
        {pivotEnergy_AeraulicDistributionType, {"portion", "ventilationSystem"}},
        {pivotEnergy_BlowerVentsType, {"distribution"}},
        {pivotEnergy_ConnectedCoolingEmitterType, {"distribution"}},
        {pivotEnergy_ConnectedEmitterType, {"heatingEmitter", "coolingEmitter"}},
        {pivotEnergy_ConnectedHeatingEmitterType, {"distribution"}},
        {pivotEnergy_DHWEmitterType, {"distribution"}},
        {pivotEnergy_DistributionPortionType, {"goThrough"}},
        {pivotEnergy_EnergyConsumptionType, {"system"}},
        {pivotEnergy_GenerationManagementType, {"generateur", "generatorControl", "storage"}},
        {pivotEnergy_HydraulicDistributionType, {"portion", "generation"}},
        {pivotEnergy_OrderedComponentType, {"component"}},
        {pivotEnergy_ReturnAirVentsType, {"distribution"}},
        {pivotEnergy_StandaloneEmitterType, {"heatingEmitter", "coolingEmitter"}},
        {pivotEnergy_StorageType, {"solarLoop"}},

        {utility_AbstractCommodityClassifierType, {"composedOf"}},
        {utility_AbstractCommodityType, {"isClassifiedBy"}},
        {utility_AbstractFeatureMaterialType, {"layer"}},
        {utility_AbstractHollowSpaceType, {"consistsOf", "contains"}},
        {utility_AbstractLinkType, {"start", "end", "linkControl"}},
        {utility_AbstractNetworkFeatureType,
         {"hasMaterial", "consistsOf", "roleInNetwork", "hollowSpace", "topoGraph"}},
        {utility_FeatureGraphType, {"nodeMember", "linkMember"}},
        {utility_NetworkGraphType, {"featureGraphMember", "linkMember", "networkLinkMember"}},
        {utility_NetworkType,
         {"transportedMedium", "component", "topologyGraph", "superOrdinateNetwork", "subOrdinateNetwork",
          "supplyArea"}},
        {utility_NodeType, {"connectionSignature", "linkControl"}},
        {utility_ProtectiveElementType, {"protects", "fillingMaterial"}},
        {utility_RoleInNetworkType, {"network"}},
    };
    return table;
}

const std::type_info& typeOfVisit(int visit)
{
    static const std::array<const std::type_info*, VisitCount> types = {
#define TOLVIK_VISIT_TYPE(prefix, Type) &typeid(prefix::Type),
        TOLVIK_FEATURE_VISITS(TOLVIK_VISIT_TYPE)
#undef TOLVIK_VISIT_TYPE
    };
    return *types[static_cast<std::size_t>(visit)];
}

/// What the walk needs of a type.
struct Shape
{
    bool isFeature = false;
    /// Whether the type or a base of it has a row in the table.
    bool isWalked = false;
    /// Members that hold objects, those of the bases in front.
    std::vector<const MemberOps*> content;
};

using Operations = std::vector<const MemberOps*>;

/// The table with its names looked up.
class WalkTable
{
public:
    static WalkTable& instance()
    {
        static WalkTable table;
        return table;
    }

    const Operations& membersOf(int visit) const { return m_members[static_cast<std::size_t>(visit)]; }

    const Shape& shapeOf(const TypeRecord* record)
    {
        const auto found = m_shapes.find(record);
        return found != m_shapes.end() ? found->second
                                       : m_shapes.emplace(record, makeShape(record)).first->second;
    }

private:
    WalkTable()
    {
        std::unordered_map<std::type_index, const TypeRecord*> records;
        for (std::size_t i = 0; i < citygml::binding::allTypesCount; ++i)
            records[*citygml::binding::allTypes[i]->info] = citygml::binding::allTypes[i];
        for (const Walk& walk : walks()) {
            const TypeRecord* record = records.at(typeOfVisit(walk.type));
            m_walked[record] = true;
            for (const char* name : walk.members)
                m_members[walk.type].push_back(find(*record, name).ops);
        }
    }

    static const Member& find(const TypeRecord& record, const std::string& name)
    {
        for (std::size_t i = 0; i < record.memberCount; ++i) {
            if (!record.members[i].isAttribute && record.members[i].name == name)
                return record.members[i];
        }
        throw std::logic_error(std::string(record.name) + " has no member " + name);
    }

    Shape makeShape(const TypeRecord* record) const
    {
        Shape shape;
        if (record->base != nullptr)
            shape = makeShape(record->base);
        shape.isFeature = shape.isFeature || *record->info == typeid(gml::AbstractFeatureType);
        shape.isWalked = shape.isWalked || m_walked.count(record) != 0;
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            const Member& member = record->members[i];
            if (!member.isAttribute && member.type != nullptr)
                shape.content.push_back(member.ops);
        }
        return shape;
    }

    std::array<Operations, VisitCount> m_members;
    std::unordered_map<const TypeRecord*, bool> m_walked;
    std::unordered_map<const TypeRecord*, Shape> m_shapes;
};

} // namespace

CityGMLFeaturesVisitor::CityGMLFeaturesVisitor() = default;

// A walk in progress stays with the visitor that runs it.
CityGMLFeaturesVisitor::CityGMLFeaturesVisitor(const CityGMLFeaturesVisitor& other)
    : citygml::CityGMLBaseVisitor(other), citygml::CityGMLInheritVisitor(other), Fondo::Referenced(other),
      walkChildren(other.walkChildren), walkStart(other.walkStart)
{
}

CityGMLFeaturesVisitor& CityGMLFeaturesVisitor::operator=(const CityGMLFeaturesVisitor& other)
{
    walkChildren = other.walkChildren;
    walkStart = other.walkStart;
    return *this;
}

CityGMLFeaturesVisitor::~CityGMLFeaturesVisitor() = default;

#define TOLVIK_DEFINE_VISIT(prefix, Type)                                                                    \
    bool CityGMLFeaturesVisitor::visit_##prefix##_##Type(prefix::Type* object)                               \
    {                                                                                                        \
        visitLevel(object, prefix##_##Type);                                                                 \
        return citygml::CityGMLInheritVisitor::visit_##prefix##_##Type(object);                              \
    }
TOLVIK_FEATURE_VISITS(TOLVIK_DEFINE_VISIT)
#undef TOLVIK_DEFINE_VISIT

void CityGMLFeaturesVisitor::visitLevel(xml_schema::type* object, int type)
{
    if (!walkChildren)
        return;
    if (walkStart) {
        walk({object, type});
        return;
    }
    // The visit runs from the derived type to its bases, and the document has the members of the bases in
    // front. So a deep walk enters them when the visit has reached the top.
    m_pending.push_back({object, type});
    if (type == gml_AbstractFeatureType)
        walkPending(m_first);
}

void CityGMLFeaturesVisitor::walkPending(std::size_t first)
{
    while (m_pending.size() > first) {
        const Level level = m_pending.back();
        m_pending.pop_back();
        walk(level);
    }
}

void CityGMLFeaturesVisitor::walk(const Level& level)
{
    for (const MemberOps* member : WalkTable::instance().membersOf(level.type)) {
        const std::size_t count = member->count(*level.object);
        for (std::size_t i = 0; i < count; ++i)
            enterContent(const_cast<xml_schema::type&>(member->at(*level.object, i)));
    }
}

void CityGMLFeaturesVisitor::enterContent(xml_schema::type& value)
{
    const Shape& shape = WalkTable::instance().shapeOf(recordOf(value));
    if (shape.isFeature || shape.isWalked) {
        enter(value);
        return;
    }
    for (const MemberOps* member : shape.content) {
        const std::size_t count = member->count(value);
        for (std::size_t i = 0; i < count; ++i) {
            auto& held = const_cast<xml_schema::type&>(member->at(value, i));
            const Shape& heldShape = WalkTable::instance().shapeOf(recordOf(held));
            if (heldShape.isFeature || heldShape.isWalked)
                enter(held);
        }
    }
}

void CityGMLFeaturesVisitor::enter(xml_schema::type& object)
{
    if (walkStart) {
        // A feature below the start is visited and not walked; what is no feature only leads on.
        const bool walked = walkChildren;
        walkChildren = !WalkTable::instance().shapeOf(recordOf(object)).isFeature;
        object.accept(this);
        walkChildren = walked;
        return;
    }
    const std::size_t outer = m_first;
    m_first = m_pending.size();
    object.accept(this);
    walkPending(m_first);
    m_first = outer;
}

} // namespace tolvik

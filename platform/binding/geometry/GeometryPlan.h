#pragma once

#include "platform/binding/SchemaIndex.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace citygml {
namespace binding {

/// What the geometry walk does with the objects of one type.
struct GeometryPlan
{
    enum class Role {
        None,      ///< no geometry is in it
        Passage,   ///< it is gone through
        Feature,   ///< a feature, with geometries of its own
        Surface,   ///< a polygon or a patch of a surface
        Line,      ///< a curve or a segment of one that has positions
        Segmented, ///< a curve made of segments
        Arc,       ///< a segment of arcs through three points each
        Circle,
        LinearRing,
        Ring,
        OrientableSurface,
        OrientableCurve,
        Point,
        Implicit
    };
    enum class PositionForm { Single, List, Property, Text, Coordinate };
    struct PositionMember
    {
        PositionForm form;
        const MemberOps* ops;
    };

    Role role = Role::None;
    /// Whether the objects are of `gml:_Geometry`.
    bool isGeometry = false;
    /// Those in which a geometry may be, in the order of the schema.
    std::vector<const TypeIndex::FlatMember*> members;
    /// Those that hold coordinates.
    std::vector<PositionMember> positions;
    /// The `xlink:href`; null for a type without one.
    const MemberOps* href = nullptr;
    /// The member `lod` of relief components and others that tell it by a number; null without one.
    const TypeIndex::FlatMember* lod = nullptr;
};

/// The plans of all types, made once for the process. Any number of threads may look up.
class GeometryPlans
{
public:
    static const GeometryPlans& instance();

    const GeometryPlan& of(const xml_schema::type& object) const
    {
        return plans.at(&SchemaIndex::instance().typeOf(object));
    }

private:
    GeometryPlans();

    GeometryPlan planOf(const TypeIndex& type) const;
    void findPassages(const std::vector<const TypeIndex*>& types);
    void setLeading(const TypeIndex& type);
    bool hasLeadingMember(const TypeIndex& type) const;
    bool isLeading(const TypeIndex::FlatMember& member) const;

    std::unordered_map<const TypeIndex*, GeometryPlan> plans;
    /// The types of members that may hold a geometry, or something that leads to one.
    std::unordered_set<const TypeIndex*> leading;
};

} // namespace binding
} // namespace citygml

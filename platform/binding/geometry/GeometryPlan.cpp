#include "platform/binding/geometry/GeometryPlan.h"

#include <algorithm>
#include <utility>

namespace citygml {
namespace binding {

namespace {

using Role = GeometryPlan::Role;
using PositionForm = GeometryPlan::PositionForm;

constexpr const char* gmlUri = "http://www.opengis.net/gml";
constexpr const char* coreUri = "http://www.opengis.net/citygml/2.0";
constexpr const char* xlinkUri = "http://www.w3.org/1999/xlink";

struct RoleOfType
{
    const char* uri;
    const char* name;
    Role role;
};

/// A type gets the role of the first of these that it is or is derived from.
constexpr RoleOfType roles[] = {
    {gmlUri, "AbstractFeatureType", Role::Feature},
    {gmlUri, "PolygonType", Role::Surface},
    {gmlUri, "PolygonPatchType", Role::Surface},
    {gmlUri, "TriangleType", Role::Surface},
    {gmlUri, "RectangleType", Role::Surface},
    {gmlUri, "OrientableSurfaceType", Role::OrientableSurface},
    {gmlUri, "OrientableCurveType", Role::OrientableCurve},
    {gmlUri, "LinearRingType", Role::LinearRing},
    {gmlUri, "RingType", Role::Ring},
    {gmlUri, "LineStringType", Role::Line},
    {gmlUri, "CurveType", Role::Segmented},
    {gmlUri, "CircleType", Role::Circle},
    {gmlUri, "ArcStringType", Role::Arc},
    {gmlUri, "AbstractCurveSegmentType", Role::Line},
    {gmlUri, "PointType", Role::Point},
    {coreUri, "ImplicitGeometryType", Role::Implicit},
};

constexpr std::pair<const char*, PositionForm> positionForms[] = {
    {"pos", PositionForm::Single},
    {"posList", PositionForm::List},
    {"pointProperty", PositionForm::Property},
    {"pointRep", PositionForm::Property},
    {"coordinates", PositionForm::Text},
    {"coord", PositionForm::Coordinate},
};

Role roleOf(const SchemaIndex& index, const TypeIndex& type)
{
    for (const RoleOfType& entry : roles) {
        if (type.isDerivedFrom(index.findType(entry.uri, entry.name))) {
            return entry.role;
        }
    }
    return Role::None;
}

bool isAnyType(const TypeIndex& type)
{
    return *type.record()->info == typeid(xml_schema::type);
}

} // namespace

const GeometryPlans& GeometryPlans::instance()
{
    static const GeometryPlans plans;
    return plans;
}

GeometryPlans::GeometryPlans()
{
    const SchemaIndex& index = SchemaIndex::instance();
    std::vector<const TypeIndex*> types;
    for (std::size_t i = 0; i < allTypesCount; ++i) {
        types.push_back(&index.typeOf(*allTypes[i]));
        plans.emplace(types.back(), planOf(*types.back()));
    }
    findPassages(types);
    for (auto& [type, plan] : plans) {
        for (const TypeIndex::FlatMember& member : type->members()) {
            if (isLeading(member)) {
                plan.members.push_back(&member);
            }
        }
        if (plan.role == Role::None && !plan.members.empty()) {
            plan.role = Role::Passage;
        }
    }
}

GeometryPlan GeometryPlans::planOf(const TypeIndex& type) const
{
    const SchemaIndex& index = SchemaIndex::instance();
    GeometryPlan plan;
    plan.role = roleOf(index, type);
    plan.isGeometry = type.isDerivedFrom(index.findType(gmlUri, "AbstractGeometryType"));
    for (const TypeIndex::FlatMember& member : type.members()) {
        const QualifiedName& name = index.name(member.name);
        if (name.uri == xlinkUri && name.name == "href") {
            plan.href = member.declaration->ops;
        }
        if (name.name == "lod" && !member.declaration->isAttribute && member.type != nullptr) {
            plan.lod = &member;
        }
        for (const auto& [formName, form] : positionForms) {
            if (name.uri == gmlUri && name.name == formName) {
                plan.positions.push_back({form, member.declaration->ops});
            }
        }
    }
    return plan;
}

/// Marks the types that lead to a geometry through any number of members, until no more are found.
void GeometryPlans::findPassages(const std::vector<const TypeIndex*>& types)
{
    for (const auto& [type, plan] : plans) {
        if (plan.role != Role::None && plan.role != Role::Feature) {
            setLeading(*type);
        }
    }
    std::size_t found = 0;
    do {
        found = leading.size();
        for (const TypeIndex* type : types) {
            if (plans.at(type).role == Role::None && hasLeadingMember(*type)) {
                setLeading(*type);
            }
        }
    } while (leading.size() != found);
}

/// Marks a type and its bases: a member of a base may hold an object of the type.
void GeometryPlans::setLeading(const TypeIndex& type)
{
    const SchemaIndex& index = SchemaIndex::instance();
    for (const TypeRecord* record = type.record(); record != nullptr; record = record->base) {
        const TypeIndex& base = index.typeOf(*record);
        if (plans.at(&base).role != Role::Feature && !isAnyType(base)) {
            leading.insert(&base);
        }
    }
}

bool GeometryPlans::hasLeadingMember(const TypeIndex& type) const
{
    return std::any_of(type.members().begin(), type.members().end(),
                       [this](const TypeIndex::FlatMember& member) { return isLeading(member); });
}

bool GeometryPlans::isLeading(const TypeIndex::FlatMember& member) const
{
    return !member.declaration->isAttribute && leading.count(member.type) != 0;
}

} // namespace binding
} // namespace citygml

#include "citygml/CityGMLFeaturesVisitor.h"

#include "citygml/AllTypes.h"
#include "platform/binding/Tables.h"

#include <array>
#include <QScopedValueRollback>
#include <sstream>
#include <stdexcept>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <unordered_set>

namespace tolvik {

namespace {

using citygml::binding::Member;
using citygml::binding::MemberOps;
using citygml::binding::recordOf;
using citygml::binding::TypeRecord;

/// The types of the walk, as indexes of its tables.
enum WalkedType {
#define TOLVIK_WALKED_TYPE(prefix, Type, members) prefix##_##Type,
    TOLVIK_FEATURE_VISITS(TOLVIK_WALKED_TYPE)
#undef TOLVIK_WALKED_TYPE
        walkedTypeCount
};

struct Walk
{
    const std::type_info* type;
    const char* members;
};

/// In the order of WalkedType.
const std::array<Walk, walkedTypeCount> walks = {{
#define TOLVIK_WALK(prefix, Type, members) {&typeid(prefix::Type), members},
    TOLVIK_FEATURE_VISITS(TOLVIK_WALK)
#undef TOLVIK_WALK
}};

/// What the walk needs of a type.
struct Shape
{
    bool isFeature = false;
    /// Whether the type or a base of it is one of WalkedType.
    bool isWalked = false;
    /// Members that hold objects, those of the bases in front.
    std::vector<const MemberOps*> content;
};

using Operations = std::vector<const MemberOps*>;

/// The members that lead to features, looked up by their names once for the process.
class WalkTable
{
public:
    static const WalkTable& instance()
    {
        static const WalkTable table;
        return table;
    }

    const Operations& membersOf(int type) const { return members[static_cast<std::size_t>(type)]; }

    const Shape& shapeOf(const xml_schema::type& object) const { return shapes.at(recordOf(object)); }

private:
    WalkTable()
    {
        const auto* const begin = citygml::binding::allTypes;
        const auto* const end = begin + citygml::binding::allTypesCount;
        std::unordered_map<std::type_index, const TypeRecord*> records;
        for (const auto* record = begin; record != end; ++record) {
            records[*(*record)->info] = *record;
        }
        for (std::size_t i = 0; i < walks.size(); ++i) {
            const TypeRecord* const record = records.at(*walks[i].type);
            walked.insert(record);
            std::istringstream names(walks[i].members);
            for (std::string name; names >> name;) {
                members[i].push_back(find(*record, name).ops);
            }
        }
        for (const auto* record = begin; record != end; ++record) {
            addShape(*record);
        }
    }

    static const Member& find(const TypeRecord& record, const std::string& name)
    {
        for (std::size_t i = 0; i < record.memberCount; ++i) {
            if (!record.members[i].isAttribute && record.members[i].name == name) {
                return record.members[i];
            }
        }
        throw std::logic_error(std::string(record.name) + " has no member " + name);
    }

    const Shape& addShape(const TypeRecord* record)
    {
        const auto found = shapes.find(record);
        if (found != shapes.end()) {
            return found->second;
        }
        Shape shape;
        if (record->base != nullptr) {
            shape = addShape(record->base);
        }
        shape.isFeature = shape.isFeature || *record->info == typeid(gml::AbstractFeatureType);
        shape.isWalked = shape.isWalked || walked.count(record) != 0;
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            const Member& member = record->members[i];
            if (!member.isAttribute && member.type != nullptr) {
                shape.content.push_back(member.ops);
            }
        }
        return shapes.emplace(record, std::move(shape)).first->second;
    }

    std::array<Operations, walkedTypeCount> members;
    std::unordered_set<const TypeRecord*> walked;
    std::unordered_map<const TypeRecord*, Shape> shapes;
};

} // namespace

/// The visit of one object in a deep walk. It lasts from the first of the object's types that has a place in
/// the walk to the end of its chain of bases, and leaves nothing behind, whichever way it ends.
class CityGMLFeaturesVisitor::ObjectVisit
{
public:
    ObjectVisit(CityGMLFeaturesVisitor& visitor, const xml_schema::type* object)
        : visitor(visitor), outerFirst(visitor.first),
          isFirstLevel(visitor.pending.size() == visitor.first || visitor.pending.back().object != object)
    {
        if (isFirstLevel) {
            visitor.first = visitor.pending.size();
        }
    }
    ~ObjectVisit()
    {
        if (isFirstLevel) {
            visitor.pending.resize(visitor.first);
            visitor.first = outerFirst;
        }
    }
    ObjectVisit(const ObjectVisit&) = delete;
    ObjectVisit& operator=(const ObjectVisit&) = delete;

    /// Whether the visit began here, and did not come from a derived type.
    bool startsHere() const { return isFirstLevel; }

private:
    CityGMLFeaturesVisitor& visitor;
    const std::size_t outerFirst;
    const bool isFirstLevel;
};

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

#define TOLVIK_DEFINE_VISIT(prefix, Type, members)                                                           \
    bool CityGMLFeaturesVisitor::visit_##prefix##_##Type(prefix::Type* object)                               \
    {                                                                                                        \
        return visitLevel({object, prefix##_##Type}, [this, object] {                                        \
            return citygml::CityGMLInheritVisitor::visit_##prefix##_##Type(object);                          \
        });                                                                                                  \
    }
TOLVIK_FEATURE_VISITS(TOLVIK_DEFINE_VISIT)
#undef TOLVIK_DEFINE_VISIT

template <class VisitBases>
bool CityGMLFeaturesVisitor::visitLevel(const Level& level, VisitBases visitBases)
{
    if (!walkChildren) {
        return visitBases();
    }
    if (walkStart) {
        walk(level);
        return visitBases();
    }
    // The visit runs from the derived type to its bases, and the document has the members of the bases in
    // front. So a deep walk enters them when the visit has reached the top, or at its end if the object is no
    // feature.
    const ObjectVisit visit(*this, level.object);
    pending.push_back(level);
    if (level.type == gml_AbstractFeatureType) {
        walkPending();
    }
    const bool accepted = visitBases();
    if (accepted && visit.startsHere()) {
        walkPending();
    }
    return accepted;
}

void CityGMLFeaturesVisitor::walkPending()
{
    while (pending.size() > first) {
        const Level level = pending.back();
        pending.pop_back();
        walk(level);
    }
}

void CityGMLFeaturesVisitor::walk(const Level& level)
{
    for (const MemberOps* member : WalkTable::instance().membersOf(level.type)) {
        const std::size_t count = member->count(*level.object);
        for (std::size_t i = 0; i < count; ++i) {
            enterContent(const_cast<xml_schema::type&>(member->at(*level.object, i)));
        }
    }
}

void CityGMLFeaturesVisitor::enterContent(xml_schema::type& value)
{
    const WalkTable& table = WalkTable::instance();
    const Shape& shape = table.shapeOf(value);
    if (shape.isFeature || shape.isWalked) {
        enter(value);
        return;
    }
    for (const MemberOps* member : shape.content) {
        const std::size_t count = member->count(value);
        for (std::size_t i = 0; i < count; ++i) {
            auto& held = const_cast<xml_schema::type&>(member->at(value, i));
            const Shape& heldShape = table.shapeOf(held);
            if (heldShape.isFeature || heldShape.isWalked) {
                enter(held);
            }
        }
    }
}

void CityGMLFeaturesVisitor::enter(xml_schema::type& object)
{
    if (!walkStart) {
        object.accept(this);
        return;
    }
    // A feature below the start is visited and not walked; what is no feature only leads on.
    const QScopedValueRollback<bool> inside(walkChildren, !WalkTable::instance().shapeOf(object).isFeature);
    object.accept(this);
}

} // namespace tolvik

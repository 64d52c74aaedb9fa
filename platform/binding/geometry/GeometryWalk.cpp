#include "citygml/GeometryWalk.h"

#include "core/ImplicitGeometryType.hxx"
#include "core/integerBetween0and4.hxx"
#include "core/TransformationMatrix4x4Type.hxx"
#include "gml/AbstractFeatureType.hxx"
#include "gml/AbstractGeometryType.hxx"
#include "gml/CodeType.hxx"
#include "gml/OrientableCurveType.hxx"
#include "gml/OrientableSurfaceType.hxx"
#include "gml/SignType.hxx"
#include "platform/binding/geometry/Arcs.h"
#include "platform/binding/geometry/GeometryPlan.h"
#include "platform/binding/geometry/Positions.h"
#include "platform/binding/kept/KeptContent.h"

#include <algorithm>
#include <utility>

namespace citygml {

namespace binding {

namespace {

using Role = GeometryPlan::Role;
using Kind = GeometryPiece::Kind;

/// Objects in each other, those that references lead to included.
constexpr int deepest = 64;
/// References that one walk follows. A few of them can be laid out so that they multiply.
constexpr int mostReferences = 1000000;

/// The level of detail that a member's name begins with, as `lod2Solid` does; -1 for any other.
int lodOfName(const std::string& name)
{
    const bool isLod = name.size() > 3 && name.compare(0, 3, "lod") == 0 && name[3] >= '0' && name[3] <= '4';
    return isLod ? name[3] - '0' : -1;
}

/// Name of the element that holds an object in a member of its parent.
const std::string& elementNameOf(const TypeIndex::FlatMember& member, const xml_schema::type& object)
{
    const NameId kept = KeptContent::elementName(object);
    return SchemaIndex::instance().name(kept != 0 ? kept : member.name).name;
}

/// The level of detail that a feature tells of itself, as relief components do; -1 for any other.
int lodOfFeature(const xml_schema::type& feature, const GeometryPlan& plan)
{
    if (plan.lod != nullptr && plan.lod->declaration->ops->count(feature) != 0) {
        const auto* const value =
            dynamic_cast<const core::integerBetween0and4*>(&plan.lod->declaration->ops->at(feature, 0));
        if (value != nullptr && *value >= 0 && *value <= 4) {
            return static_cast<int>(*value);
        }
    }
    return -1;
}

/// Takes the positions of relative geometry to where a matrix and a reference point put it.
struct Placement
{
    std::array<double, 16> matrix;

    Position operator()(const Position& p) const
    {
        Position placed;
        for (std::size_t row = 0; row < 3; ++row) {
            const double* const m = &matrix[4 * row];
            placed[row] = m[0] * p[0] + m[1] * p[1] + m[2] * p[2] + m[3];
        }
        return placed;
    }
};

class GeometryWalker
{
public:
    GeometryWalker(const gml::AbstractFeatureType& feature,
                   const std::function<bool(const GeometryPiece& piece)>& receive)
        : feature(feature), receive(receive)
    {
        piece.owner = &feature;
    }

    /// \return whether it was stopped
    bool walk(GeometryWalkPlace& place)
    {
        begun = std::move(place.path);
        references = place.references;
        const GeometryPlan& plan = plans.of(feature);
        const int ownLod = lodOfFeature(feature, plan);
        Steps steps(*this);
        steps.throughMembers(feature, plan,
                             [&](const TypeIndex::FlatMember& member, const xml_schema::type& child) {
                                 piece.member = &elementNameOf(member, child);
                                 const int lod = lodOfName(*piece.member);
                                 piece.lod = lod >= 0 ? lod : ownLod;
                                 enter(child);
                             });
        place.path.assign(stopped.rbegin(), stopped.rend());
        place.references = references;
        return isStopped;
    }

private:
    /// Goes through what is in one object, from where an earlier part of the walk has stopped.
    class Steps
    {
    public:
        explicit Steps(GeometryWalker& walker)
            : walker(walker), first(walker.level < walker.begun.size() ? walker.begun[walker.level] : 0)
        {
            ++walker.level;
        }
        ~Steps() { --walker.level; }
        Steps(const Steps&) = delete;
        Steps& operator=(const Steps&) = delete;

        /// \param visit called with each member and what is in it
        template <typename Visit>
        void throughMembers(const xml_schema::type& object, const GeometryPlan& plan, Visit visit)
        {
            for (const TypeIndex::FlatMember* member : plan.members) {
                const MemberOps& ops = *member->declaration->ops;
                const std::size_t count = ops.count(object);
                for (std::size_t i = pass(count); i < count && !walker.isStopped; ++i) {
                    take([&] { visit(*member, ops.at(object, i)); });
                }
            }
        }
        /// What there is besides members.
        template <typename Visit>
        void through(Visit visit)
        {
            if (pass(1) == 0 && !walker.isStopped) {
                take(visit);
            }
        }
        bool isEmpty() const { return next == 0; }

    private:
        /// Passes over what has been done.
        /// \return how many of so many that is
        std::size_t pass(std::size_t count)
        {
            const std::size_t done = std::min(count, first - std::min(first, next));
            next += done;
            return done;
        }
        template <typename Visit>
        void take(Visit visit)
        {
            if (next > first) {
                walker.begun.clear();
            }
            visit();
            if (walker.isStopped) {
                // The innermost step is done, those around it go on within.
                walker.stopped.push_back(walker.stopped.empty() ? next + 1 : next);
            }
            ++next;
        }

        GeometryWalker& walker;
        const std::size_t first;
        std::size_t next = 0;
    };

    /// Sets a value until the end of a block.
    template <typename T>
    class Set
    {
    public:
        Set(T& variable, T value) : variable(variable), former(variable) { variable = value; }
        ~Set() { variable = former; }
        Set(const Set&) = delete;
        Set& operator=(const Set&) = delete;

    private:
        T& variable;
        const T former;
    };

    void enter(const xml_schema::type& object)
    {
        const GeometryPlan& plan = plans.of(object);
        if (plan.role == Role::None || plan.role == Role::Feature || depth == deepest) {
            return;
        }
        const Set<int> deeper(depth, depth + 1);
        const bool isNamed = plan.isGeometry || plan.role == Role::Surface;
        if (isNamed) {
            piece.objects.push_back(&object);
        }
        enterByRole(object, plan);
        if (isNamed) {
            piece.objects.pop_back();
        }
    }

    void enterByRole(const xml_schema::type& object, const GeometryPlan& plan)
    {
        switch (plan.role) {
        case Role::Surface:
            return sendSurface(object, plan);
        case Role::Line:
        case Role::Segmented:
        case Role::Arc:
        case Role::Circle:
        case Role::LinearRing:
        case Role::Ring:
            return sendLine(object);
        case Role::Point:
            return sendPoint(object, plan);
        case Role::OrientableSurface:
            return enterTurned<gml::OrientableSurfaceType>(object, plan);
        case Role::OrientableCurve:
            return enterTurned<gml::OrientableCurveType>(object, plan);
        case Role::Implicit:
            return enterImplicit(static_cast<const core::ImplicitGeometryType&>(object), plan);
        default:
            return enterMembers(object, plan);
        }
    }

    void enterMembers(const xml_schema::type& object, const GeometryPlan& plan)
    {
        Steps steps(*this);
        steps.throughMembers(
            object, plan,
            [this](const TypeIndex::FlatMember&, const xml_schema::type& child) { enter(child); });
        if (steps.isEmpty()) {
            steps.through([&] { enterReference(object, plan); });
        }
    }

    template <typename Orientable>
    void enterTurned(const xml_schema::type& object, const GeometryPlan& plan)
    {
        const Set<bool> turned(piece.isReversed, piece.isReversed != isTurned<Orientable>(object));
        enterMembers(object, plan);
    }

    void enterReference(const xml_schema::type& object, const GeometryPlan& plan)
    {
        const xml_schema::type* const target = targetOf(object, plan);
        if (target == nullptr) {
            return;
        }
        const gml::AbstractFeatureType* const around = featureAround(*target);
        // The prototype of an implicit geometry is nowhere by itself.
        const bool isElsewhere = around != nullptr && around != &feature && !piece.isImplicit;
        const Set<const gml::AbstractFeatureType*> holder(piece.holder, isElsewhere ? around : piece.holder);
        const Set<int> holderLod(piece.holderLod,
                                 isElsewhere ? lodWithin(*around, *target) : piece.holderLod);
        enter(*target);
    }

    const xml_schema::type* targetOf(const xml_schema::type& object, const GeometryPlan& plan)
    {
        if (plan.href == nullptr || plan.href->count(object) == 0 || ++references > mostReferences) {
            return nullptr;
        }
        const auto& href = dynamic_cast<const std::string&>(plan.href->at(object, 0));
        return href.size() > 1 && href[0] == '#' ? findById(feature, href.substr(1)) : nullptr;
    }

    /// The level of detail that an object has in the feature around it.
    int lodWithin(const gml::AbstractFeatureType& around, const xml_schema::type& object) const
    {
        const xml_schema::type_base* below = &object;
        while (below->_container() != &around) {
            below = below->_container();
        }
        const GeometryPlan& plan = plans.of(around);
        for (const TypeIndex::FlatMember* member : plan.members) {
            const MemberOps& ops = *member->declaration->ops;
            const std::size_t count = ops.count(around);
            for (std::size_t i = 0; i < count; ++i) {
                const xml_schema::type& child = ops.at(around, i);
                if (&child == below) {
                    const int lod = lodOfName(elementNameOf(*member, child));
                    return lod >= 0 ? lod : lodOfFeature(around, plan);
                }
            }
        }
        return -1;
    }

    void enterImplicit(const core::ImplicitGeometryType& implicit, const GeometryPlan& plan)
    {
        if (piece.isImplicit) {
            return;
        }
        const Set<bool> isImplicit(piece.isImplicit, true);
        placement.matrix = placementOf(implicit, plan);
        Steps steps(*this);
        steps.through([&] {
            if (implicit.libraryObject().present()) {
                sendLibraryObject(implicit);
            }
        });
        steps.throughMembers(implicit, plan,
                             [this](const TypeIndex::FlatMember& member, const xml_schema::type& child) {
                                 if (!isReferencePoint(member)) {
                                     enter(child);
                                 }
                             });
    }

    static bool isReferencePoint(const TypeIndex::FlatMember& member)
    {
        return SchemaIndex::instance().name(member.name).name == "referencePoint";
    }

    std::array<double, 16> placementOf(const core::ImplicitGeometryType& implicit, const GeometryPlan& plan)
    {
        std::array<double, 16> matrix = GeometryPiece().placement;
        if (implicit.transformationMatrix().present() && implicit.transformationMatrix()->size() == 16) {
            std::copy(implicit.transformationMatrix()->begin(), implicit.transformationMatrix()->end(),
                      matrix.begin());
        }
        for (const TypeIndex::FlatMember* member : plan.members) {
            const MemberOps& ops = *member->declaration->ops;
            if (isReferencePoint(*member) && ops.count(implicit) != 0) {
                std::vector<Position> point;
                appendPointOf(ops.at(implicit, 0), point);
                for (std::size_t axis = 0; axis < 3 && !point.empty(); ++axis) {
                    matrix[4 * axis + 3] += point.front()[axis];
                }
            }
        }
        return matrix;
    }

    void sendLibraryObject(const core::ImplicitGeometryType& implicit)
    {
        piece.kind = Kind::LibraryObject;
        piece.positions.clear();
        piece.runs.clear();
        piece.libraryObject = *implicit.libraryObject();
        piece.mimeType = implicit.mimeType().present() ? std::string(*implicit.mimeType()) : std::string();
        piece.placement = placement.matrix;
        isStopped = !receive(piece);
        piece.placement = GeometryPiece().placement;
        piece.libraryObject.clear();
        piece.mimeType.clear();
    }

    void sendSurface(const xml_schema::type& object, const GeometryPlan& plan)
    {
        begin(Kind::Surface);
        // The outer ring's member comes before that of the holes.
        for (const TypeIndex::FlatMember* member : plan.members) {
            const bool isOuter = SchemaIndex::instance().name(member->name).name == "exterior";
            const MemberOps& ops = *member->declaration->ops;
            const std::size_t count = ops.count(object);
            if (!isOuter && piece.runs.empty()) {
                return;
            }
            for (std::size_t i = 0; i < count; ++i) {
                appendRingsOf(ops.at(object, i));
            }
        }
        if (!piece.runs.empty()) {
            send();
        }
    }

    /// Appends the rings in the property of a surface.
    void appendRingsOf(const xml_schema::type& property)
    {
        const GeometryPlan& plan = plans.of(property);
        for (const TypeIndex::FlatMember* member : plan.members) {
            const MemberOps& ops = *member->declaration->ops;
            const std::size_t count = ops.count(property);
            for (std::size_t i = 0; i < count; ++i) {
                appendRun(ops.at(property, i));
            }
        }
    }

    void appendRun(const xml_schema::type& object)
    {
        const std::size_t begin = piece.positions.size();
        appendCurve(object, depth, piece.positions);
        if (piece.positions.size() > begin) {
            piece.runs.push_back({begin, piece.positions.size(), &object});
        }
    }

    /// Appends the positions of a curve, a ring or a segment.
    void appendCurve(const xml_schema::type& object, int level, std::vector<Position>& positions)
    {
        const GeometryPlan& plan = plans.of(object);
        if (level == deepest) {
            return;
        }
        if (plan.role == Role::Line || plan.role == Role::LinearRing) {
            appendOwnPositions(object, plan, positions);
        } else if (plan.role == Role::Arc || plan.role == Role::Circle) {
            std::vector<Position> points;
            appendOwnPositions(object, plan, points);
            const bool isCircle = plan.role == Role::Circle;
            append(isCircle ? circlePositions(points) : arcPositions(points), positions);
        } else {
            append(joinedCurves(object, plan, level), positions);
        }
    }

    /// The positions of a curve that is made of others, each of which begins where the one before ends.
    std::vector<Position> joinedCurves(const xml_schema::type& object, const GeometryPlan& plan, int level)
    {
        std::vector<Position> joined;
        bool isEmpty = true;
        for (const TypeIndex::FlatMember* member : plan.members) {
            const MemberOps& ops = *member->declaration->ops;
            const std::size_t count = ops.count(object);
            for (std::size_t i = 0; i < count; ++i) {
                std::vector<Position> next;
                appendCurve(ops.at(object, i), level + 1, next);
                const bool goesOn = !joined.empty() && !next.empty() && joined.back() == next.front();
                joined.insert(joined.end(), next.begin() + (goesOn ? 1 : 0), next.end());
                isEmpty = false;
            }
        }
        const xml_schema::type* const target = isEmpty ? targetOf(object, plan) : nullptr;
        if (target != nullptr) {
            appendCurve(*target, level + 1, joined);
        }
        if (plan.role == Role::OrientableCurve && isTurned<gml::OrientableCurveType>(object)) {
            std::reverse(joined.begin(), joined.end());
        }
        return joined;
    }

    static void append(const std::vector<Position>& from, std::vector<Position>& positions)
    {
        positions.insert(positions.end(), from.begin(), from.end());
    }

    template <typename Orientable>
    static bool isTurned(const xml_schema::type& object)
    {
        return static_cast<const std::string&>(static_cast<const Orientable&>(object).orientation()) == "-";
    }

    void sendLine(const xml_schema::type& object)
    {
        begin(Kind::Line);
        appendRun(object);
        if (piece.positions.size() > 1) {
            send();
        }
    }

    void sendPoint(const xml_schema::type& object, const GeometryPlan& plan)
    {
        begin(Kind::Point);
        appendOwnPositions(object, plan, piece.positions);
        if (piece.positions.size() == 1) {
            send();
        }
    }

    void appendOwnPositions(const xml_schema::type& object, const GeometryPlan& plan,
                            std::vector<Position>& positions)
    {
        for (const GeometryPlan::PositionMember& member : plan.positions) {
            const std::size_t count = member.ops->count(object);
            for (std::size_t i = 0; i < count; ++i) {
                const xml_schema::type& value = member.ops->at(object, i);
                if (member.form == GeometryPlan::PositionForm::Property) {
                    appendPointOf(value, positions);
                } else {
                    const int dimension = appendPositions(value, member.form, dimensionAround(), positions);
                    piece.dimension = std::min(piece.dimension, dimension);
                }
            }
        }
    }

    /// Appends the position of the point in a property, or of that which it refers to.
    void appendPointOf(const xml_schema::type& property, std::vector<Position>& positions)
    {
        const GeometryPlan& plan = plans.of(property);
        const xml_schema::type* point = nullptr;
        for (const TypeIndex::FlatMember* member : plan.members) {
            if (member->declaration->ops->count(property) != 0) {
                point = &member->declaration->ops->at(property, 0);
            }
        }
        if (point == nullptr) {
            point = targetOf(property, plan);
        }
        if (point == nullptr || plans.of(*point).role != Role::Point) {
            return;
        }
        for (const GeometryPlan::PositionMember& member : plans.of(*point).positions) {
            if (member.ops->count(*point) != 0) {
                appendPositions(member.ops->at(*point, 0), member.form, dimensionAround(), positions);
            }
        }
    }

    /// Number of coordinates of a position, as the innermost geometry tells it that does.
    int dimensionAround() const
    {
        for (auto object = piece.objects.rbegin(); object != piece.objects.rend(); ++object) {
            if (plans.of(**object).isGeometry) {
                const auto& geometry = static_cast<const gml::AbstractGeometryType&>(**object);
                if (geometry.srsDimension().present()) {
                    return geometry.srsDimension().get() == 2 ? 2 : 3;
                }
            }
        }
        return 3;
    }

    void begin(Kind kind)
    {
        piece.kind = kind;
        piece.dimension = 3;
        piece.positions.clear();
        piece.runs.clear();
    }

    void send()
    {
        if (piece.isImplicit) {
            std::transform(piece.positions.begin(), piece.positions.end(), piece.positions.begin(),
                           placement);
        }
        isStopped = !receive(piece);
    }

    const GeometryPlans& plans = GeometryPlans::instance();
    const gml::AbstractFeatureType& feature;
    const std::function<bool(const GeometryPiece& piece)>& receive;
    GeometryPiece piece;
    Placement placement = {GeometryPiece().placement};
    int depth = 0;
    int references = 0;

    /// Of the steps around each other, the outermost first: with which each goes on that was stopped before.
    std::vector<std::size_t> begun;
    /// The same for the next part of the walk, the innermost first.
    std::vector<std::size_t> stopped;
    std::size_t level = 0;
    bool isStopped = false;
};

} // namespace

} // namespace binding

void walkGeometry(const gml::AbstractFeatureType& feature,
                  const std::function<void(const GeometryPiece& piece)>& receive)
{
    GeometryWalkPlace place;
    walkGeometry(feature, place, [&receive](const GeometryPiece& piece) {
        receive(piece);
        return true;
    });
}

bool walkGeometry(const gml::AbstractFeatureType& feature, GeometryWalkPlace& place,
                  const std::function<bool(const GeometryPiece& piece)>& receive)
{
    return binding::GeometryWalker(feature, receive).walk(place);
}

const gml::AbstractFeatureType* featureAround(const xml_schema::type& object)
{
    for (const xml_schema::type_base* around = &object; around != nullptr; around = around->_container()) {
        if (const auto* const feature = dynamic_cast<const gml::AbstractFeatureType*>(around)) {
            return feature;
        }
    }
    return nullptr;
}

const xml_schema::type* findById(const xml_schema::type& document, const std::string& id)
{
    const xml_schema::ncname name(id);
    const xsd::cxx::tree::identity_impl<char, xml_schema::ncname> identity(name);
    // The root of a document has no root.
    const xml_schema::type_base* const root = document._root();
    return dynamic_cast<const xml_schema::type*>((root != nullptr ? root : &document)->_lookup_id(identity));
}

} // namespace citygml

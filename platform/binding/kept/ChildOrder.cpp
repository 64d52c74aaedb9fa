#include "platform/binding/kept/ChildOrder.h"

#include "platform/binding/xml/PrefixedName.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace citygml {
namespace binding {

namespace {

using Position = KeptContent::Position;

/// Children of a member that the document did not have.
struct NewChildren
{
    /// Number of children of the document in front of them.
    std::size_t behind;
    MemberIndex member;
    std::size_t count;
};

/// The order of the children. An object may have that of another one, of a type derived from its own, which
/// has further members.
std::vector<MemberIndex> orderOf(const KeptContent& kept, const TypeIndex& type)
{
    std::vector<MemberIndex> order = kept.childOrder();
    const auto isOther = [&](MemberIndex member) { return member >= type.elementCount(); };
    order.erase(std::remove_if(order.begin(), order.end(), isOther), order.end());
    return order;
}

/// The place in an order at which fewest children stand on the wrong side; of several the last.
std::size_t placeOf(MemberIndex member, const TypeIndex& type, const std::vector<MemberIndex>& order)
{
    const MemberIndex group = type.members()[member].groupBegin;
    std::size_t ofGroup = 0, best = 0;
    // Counted from the front, where those that belong in front of it are wrong.
    std::ptrdiff_t wrong = 0, fewest = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const MemberIndex other = type.members()[order[i]].groupBegin;
        if (other == group) {
            ofGroup = i + 1;
        }
        wrong += other < group ? -1 : 1;
        if (wrong <= fewest) {
            fewest = wrong;
            best = i + 1;
        }
    }
    return ofGroup != 0 ? ofGroup : best;
}

std::vector<NewChildren> newChildren(const TypeIndex& type, const std::vector<MemberIndex>& order,
                                     const std::vector<std::size_t>& counts)
{
    std::vector<std::size_t> known(counts.size());
    for (const MemberIndex member : order) {
        ++known[member];
    }
    std::vector<NewChildren> result;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (counts[i] > known[i]) {
            const auto member = static_cast<MemberIndex>(i);
            result.push_back({placeOf(member, type, order), member, counts[i] - known[i]});
        }
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const NewChildren& a, const NewChildren& b) { return a.behind < b.behind; });
    return result;
}

/// Changes the positions of nodes that count all children, so that they count those of members.
void countByMember(KeptContent& kept, const TypeIndex& type, const std::vector<MemberIndex>& children)
{
    std::vector<Position> positions{Position::inFront()};
    positions.reserve(children.size() + 1);
    for (std::size_t i = 0; i < children.size(); ++i) {
        const MemberIndex group = type.members()[children[i]].groupBegin;
        const bool isNext = i != 0 && positions.back().member() == group;
        positions.push_back(Position::behind(group, isNext ? positions.back().count() + 1 : 1));
    }
    kept.moveNodes([&](const KeptContent::Node& node) { return positions[node.position.count()]; });
}

/// Sorts the children by their members, and moves the nodes with the child that they stand behind.
void sortChildren(KeptContent& kept, const TypeIndex& type)
{
    const std::vector<MemberIndex> order = orderOf(kept, type);
    std::vector<std::size_t> sorted(order.size());
    std::iota(sorted.begin(), sorted.end(), std::size_t(0));
    std::stable_sort(sorted.begin(), sorted.end(), [&](std::size_t a, std::size_t b) {
        return type.members()[order[a]].groupBegin < type.members()[order[b]].groupBegin;
    });
    std::vector<MemberIndex> members;
    std::vector<std::size_t> places(order.size() + 1);
    for (const std::size_t child : sorted) {
        members.push_back(order[child]);
        places[child + 1] = members.size();
    }
    kept.moveNodes([&](const KeptContent::Node& node) {
        return Position::behindChildren(places[std::min(node.position.count(), order.size())]);
    });
    keepOrder(kept, type, std::move(members));
}

/// The name that an element has by its markup; 0 for one that the schema does not know.
NameId nameOf(const KeptContent::Node& element, const SchemaIndex& index)
{
    const std::string_view tag = std::string_view(element.xml).substr(0, element.xml.find('>'));
    const PrefixedName name(tag.substr(1, tag.find_first_of(" />") - 1));
    // Most schema namespaces are declared around the element.
    const std::string own = (name.prefix.empty() ? " xmlns" : " xmlns:") + std::string(name.prefix) + "=\"";
    const std::size_t declaration = tag.find(own);
    if (declaration != std::string_view::npos) {
        const std::string_view rest = tag.substr(declaration + own.size());
        return index.nameId(rest.substr(0, rest.find('"')), name.local);
    }
    const std::string* const uri = element.scope ? element.scope->namespaceOf(name.prefix) : nullptr;
    return uri != nullptr ? index.nameId(*uri, name.local) : 0;
}

/// Where an element belongs, that is kept though the object's type has a member for it.
///
/// \return nothing for any other node, and where the member is a list, in which it has its place.
std::optional<Position> placeOfSurplus(const KeptContent& kept, const TypeIndex& type,
                                       const KeptContent::Node& node)
{
    const SchemaIndex& index = SchemaIndex::instance();
    const NameId name = node.kind == KeptContent::Kind::Element ? nameOf(node, index) : 0;
    const MemberSlot* const slot = name != 0 ? index.slotOf(type, name) : nullptr;
    if (slot == nullptr || !type.members()[slot->member].declaration->ops->single) {
        return std::nullopt;
    }
    const auto& order = kept.childOrder();
    if (order.empty()) {
        return Position::behindAll(slot->member);
    }
    const auto isInFront = [&](MemberIndex member) { return member <= slot->member; };
    return Position::behindChildren(
        static_cast<std::size_t>(std::count_if(order.begin(), order.end(), isInFront)));
}

} // namespace

std::vector<ChildStep> childSteps(const KeptContent& kept, const TypeIndex& type,
                                  std::vector<std::size_t> counts)
{
    const std::vector<MemberIndex> order = orderOf(kept, type);
    const std::vector<NewChildren> additions = newChildren(type, order, counts);
    std::vector<ChildStep> steps;
    auto addition = additions.begin();
    for (std::size_t number = 0; number <= order.size(); ++number) {
        if (number != 0 && counts[order[number - 1]] != 0) {
            const MemberIndex member = order[number - 1];
            steps.push_back({member, Position::behindChildren(number)});
            --counts[member];
        }
        for (; addition != additions.end() && addition->behind == number; ++addition) {
            steps.insert(steps.end(), addition->count,
                         {addition->member, Position::behindChildren(number + 1)});
        }
    }
    return steps;
}

void keepOrder(KeptContent& kept, const TypeIndex& type, std::vector<MemberIndex> children)
{
    if (std::is_sorted(children.begin(), children.end())) {
        countByMember(kept, type, children);
        children.clear();
    }
    kept.setChildOrder(std::move(children));
}

bool putInSchemaOrder(KeptContent& kept, const TypeIndex& type)
{
    const std::vector<MemberIndex> former = kept.childOrder();
    if (!former.empty()) {
        sortChildren(kept, type);
    }
    bool hasMoved = kept.childOrder() != former;
    kept.moveNodes([&](const KeptContent::Node& node) {
        const Position place = placeOfSurplus(kept, type, node).value_or(node.position);
        hasMoved = hasMoved || place < node.position || node.position < place;
        return place;
    });
    kept.seal();
    return hasMoved;
}

} // namespace binding
} // namespace citygml

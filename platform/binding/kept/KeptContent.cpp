#include "platform/binding/kept/KeptContent.h"

#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"

#include <algorithm>
#include <iterator>

namespace citygml {
namespace binding {

namespace {

template <typename Item, typename IsBefore>
void sortOnce(std::vector<Item>& items, IsBefore isBefore)
{
    // Most documents stand in the order of the schema already.
    if (!std::is_sorted(items.begin(), items.end(), isBefore)) {
        std::stable_sort(items.begin(), items.end(), isBefore);
    }
}

bool isWhiteSpace(const KeptContent::Node& node)
{
    return node.kind == KeptContent::Kind::Text && isBlank(node.xml);
}

bool isVisibleText(const KeptContent::Node& node)
{
    return node.kind == KeptContent::Kind::Text && !isBlank(node.xml);
}

} // namespace

const std::string* KeptContent::Scope::namespaceOf(std::string_view prefix) const
{
    for (const Scope* scope = this; scope != nullptr; scope = scope->outer.get()) {
        for (auto i = scope->declarations.rbegin(); i != scope->declarations.rend(); ++i) {
            if (i->first == prefix) {
                return i->second.get();
            }
        }
    }
    return nullptr;
}

bool KeptContent::Attribute::isNil() const
{
    return is(xsiUri, "nil");
}

KeptContent::NodeCursor::NodeCursor(const KeptContent* kept)
{
    if (kept != nullptr) {
        next = kept->keptNodes.data();
        end = next + kept->keptNodes.size();
    }
}

const KeptContent::Node* KeptContent::NodeCursor::takeInFrontOf(const Position& child)
{
    return next != end && next->position < child ? next++ : nullptr;
}

const KeptContent::Node* KeptContent::NodeCursor::take()
{
    return next != end ? next++ : nullptr;
}

KeptContent& KeptContent::of(xml_schema::type& object)
{
    if (!object.kept) {
        object.kept = std::make_unique<KeptContent>();
    }
    return *object.kept;
}

void KeptContent::assign(xml_schema::type& target, const xml_schema::type& source)
{
    const bool isOfDocument = source.elementName != 0 || isMissing(source);
    if (isOfDocument) {
        copy(target, source);
    } else {
        setGiven(target);
    }
}

void KeptContent::copy(xml_schema::type& target, const xml_schema::type& source)
{
    target.elementName = source.elementName;
    target.spelledOut = source.spelledOut;
    target.kept = source.kept ? std::make_unique<KeptContent>(*source.kept) : nullptr;
}

void KeptContent::setGiven(xml_schema::type& object)
{
    object.spelledOut = static_cast<std::uint16_t>(object.spelledOut & ~missingBit);
    if (object.kept) {
        object.kept->forgetFaults();
    }
}

void KeptContent::addSpelling(std::optional<MemberIndex> member, std::string_view text)
{
    Value value;
    value.member = member;
    value.spelling = text;
    addValue(std::move(value));
}

void KeptContent::addMissing(MemberIndex member)
{
    Value value;
    value.member = member;
    value.isMissing = true;
    addValue(std::move(value));
}

KeptContent::Attribute* KeptContent::attribute(std::size_t index)
{
    return index < keptAttributes.size() ? &keptAttributes[index] : nullptr;
}

KeptContent::Node* KeptContent::node(std::size_t index)
{
    return index < keptNodes.size() ? &keptNodes[index] : nullptr;
}

KeptContent::Value* KeptContent::value(std::optional<MemberIndex> member, std::size_t number)
{
    const Values values = valuesOf(member);
    const bool isThere = number < static_cast<std::size_t>(values.end() - values.begin());
    return isThere ? const_cast<Value*>(values.begin() + number) : nullptr;
}

void KeptContent::seal()
{
    sortOnce(keptValues, [](const Value& a, const Value& b) {
        return a.member != b.member ? a.member < b.member : a.index < b.index;
    });
    sortOnce(keptNodes, [](const Node& a, const Node& b) { return a.position < b.position; });
    if (std::none_of(keptNodes.begin(), keptNodes.end(), &isVisibleText)) {
        keptNodes.erase(std::remove_if(keptNodes.begin(), keptNodes.end(), &isWhiteSpace), keptNodes.end());
    }
}

void KeptContent::seal(xml_schema::type& object)
{
    if (object.kept) {
        object.kept->seal();
        if (object.kept->isEmpty()) {
            object.kept = nullptr;
        }
    }
}

void KeptContent::setValues(MemberIndex member, std::vector<Value> values)
{
    const auto isOfMember = [member](const Value& value) { return value.member == member; };
    keptValues.erase(std::remove_if(keptValues.begin(), keptValues.end(), isOfMember), keptValues.end());
    std::move(values.begin(), values.end(), std::back_inserter(keptValues));
    seal();
}

bool KeptContent::isEmpty() const
{
    return keptAttributes.empty() && keptNodes.empty() && keptValues.empty() && order.empty() && !ofDocument;
}

bool KeptContent::hasNilAttribute() const
{
    return std::any_of(keptAttributes.begin(), keptAttributes.end(),
                       [](const Attribute& attribute) { return attribute.isNil(); });
}

bool KeptContent::hasText() const
{
    return std::any_of(keptNodes.begin(), keptNodes.end(),
                       [](const Node& node) { return node.kind == Kind::Text; });
}

KeptContent::Values KeptContent::valuesOf(std::optional<MemberIndex> member) const
{
    const Value* const end = keptValues.data() + keptValues.size();
    const Value* const first =
        std::lower_bound(keptValues.data(), end, member,
                         [](const Value& value, std::optional<MemberIndex> m) { return value.member < m; });
    const Value* const last =
        std::upper_bound(first, end, member,
                         [](std::optional<MemberIndex> m, const Value& value) { return m < value.member; });
    return Values(first, last);
}

bool KeptContent::hasAbsentValue(MemberIndex member) const
{
    return std::any_of(keptValues.begin(), keptValues.end(),
                       [member](const Value& value) { return value.isAbsent && value.member == member; });
}

bool KeptContent::lacks(MemberIndex member) const
{
    const Values values = valuesOf(member);
    return std::any_of(values.begin(), values.end(), [](const Value& value) { return value.isMissing; });
}

const KeptContent::Value* KeptContent::wrongValueOf(std::optional<MemberIndex> member) const
{
    const Values values = valuesOf(member);
    const Value* const value = values.begin();
    return value != values.end() && value->isWrong ? value : nullptr;
}

void KeptContent::forgetFaults()
{
    const auto isFault = [](const Value& value) {
        return value.isMissing || (!value.member && value.isWrong);
    };
    keptValues.erase(std::remove_if(keptValues.begin(), keptValues.end(), isFault), keptValues.end());
}

bool KeptContent::hasStandIn(MemberIndex member) const
{
    return std::any_of(keptNodes.begin(), keptNodes.end(),
                       [member](const Node& node) { return node.standsFor == member + 1; });
}

void KeptContent::releaseStandIns(MemberIndex member)
{
    for (Node& node : keptNodes) {
        if (node.standsFor == member + 1) {
            node.standsFor = 0;
        }
    }
}

std::string_view KeptContent::spellingOf(std::optional<MemberIndex> member) const
{
    const Values values = valuesOf(member);
    const bool isSpelled = values.begin() != values.end() && !values.begin()->isWrong;
    return isSpelled ? std::string_view(values.begin()->spelling) : std::string_view();
}

} // namespace binding
} // namespace citygml

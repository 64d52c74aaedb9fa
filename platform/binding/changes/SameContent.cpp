#include "platform/binding/changes/SameContent.h"

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <typeinfo>
#include <vector>

namespace citygml {
namespace binding {

namespace {

using Attribute = KeptContent::Attribute;
using Node = KeptContent::Node;
using Scope = KeptContent::Scope;
using Value = KeptContent::Value;

/// The prefixes of a qualified name are not looked at: it has the namespace itself.
class WholeNames : public NameScope
{
public:
    std::string namespaceOf(std::string_view) const override { return std::string(); }
    std::string prefixOf(const std::string& uri) const override { return uri; }
};

template <typename T>
bool areSame(const std::shared_ptr<const T>& a, const std::shared_ptr<const T>& b);

bool areSame(const std::string& a, const std::string& b)
{
    return a == b;
}

bool areSame(const Attribute& a, const Attribute& b)
{
    return a.prefix == b.prefix && a.name == b.name && a.value == b.value && a.isOtherType == b.isOtherType &&
           areSame(a.uri, b.uri);
}

bool areSame(const Scope& a, const Scope& b)
{
    const auto isSame = [](const auto& x, const auto& y) {
        return x.first == y.first && areSame(x.second, y.second);
    };
    return std::equal(a.declarations.begin(), a.declarations.end(), b.declarations.begin(),
                      b.declarations.end(), isSame) &&
           areSame(a.outer, b.outer);
}

/// Where they stand is not looked at: what no member holds stays in its place.
bool areSame(const Node& a, const Node& b)
{
    return a.kind == b.kind && a.standsFor == b.standsFor && a.xml == b.xml && areSame(a.scope, b.scope);
}

template <typename T>
bool areSame(const std::vector<T>& a, const std::vector<T>& b);

bool areSame(const Value& a, const Value& b)
{
    return a.member == b.member && a.index == b.index && a.isAbsent == b.isAbsent && a.isWrong == b.isWrong &&
           a.isMissing == b.isMissing && a.spelling == b.spelling && areSame(a.attributes, b.attributes) &&
           areSame(a.nodes, b.nodes);
}

template <typename T>
bool areSame(const std::vector<T>& a, const std::vector<T>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const T& x, const T& y) { return areSame(x, y); });
}

template <typename T>
bool areSame(const std::shared_ptr<const T>& a, const std::shared_ptr<const T>& b)
{
    return a == b || (a != nullptr && b != nullptr && areSame(*a, *b));
}

bool isSameKept(const xml_schema::type& a, const xml_schema::type& b)
{
    const KeptContent* const keptA = KeptContent::find(a);
    const KeptContent* const keptB = KeptContent::find(b);
    if (keptA == nullptr || keptB == nullptr) {
        return keptA == keptB;
    }
    return areSame(keptA->attributes(), keptB->attributes()) && areSame(keptA->nodes(), keptB->nodes()) &&
           areSame(keptA->values(), keptB->values()) && keptA->childOrder() == keptB->childOrder();
}

/// Numbers are compared by their bits, so that what is no number is the same as itself.
bool areSameNumbers(const std::vector<double>& a, const std::vector<double>& b)
{
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0);
}

bool isSameText(const xml_schema::type& a, const xml_schema::type& b, const TextOps& ops)
{
    if (const auto* const text = dynamic_cast<const std::string*>(&a)) {
        return *text == dynamic_cast<const std::string&>(b);
    }
    if (const auto* const numbers = dynamic_cast<const std::vector<double>*>(&a)) {
        return areSameNumbers(*numbers, dynamic_cast<const std::vector<double>&>(b));
    }
    std::string textA, textB;
    ops.format(a, textA, WholeNames());
    ops.format(b, textB, WholeNames());
    return textA == textB;
}

bool isSameMember(const xml_schema::type& a, const xml_schema::type& b, const TypeIndex::FlatMember& member)
{
    const MemberOps& ops = *member.declaration->ops;
    const std::size_t count = ops.count(a);
    if (count != ops.count(b)) {
        return false;
    }
    // A required number may have been set without the member's knowing.
    const std::size_t values = member.type == nullptr && member.requiredBit != 0 ? 1 : count;
    std::string textA, textB;
    for (std::size_t i = 0; i < values; ++i) {
        if (member.type != nullptr) {
            if (!haveSameContent(ops.at(a, i), ops.at(b, i))) {
                return false;
            }
            continue;
        }
        textA.clear();
        textB.clear();
        ops.format(a, i, textA);
        ops.format(b, i, textB);
        if (textA != textB) {
            return false;
        }
    }
    return true;
}

} // namespace

bool haveSameContent(const xml_schema::type& a, const xml_schema::type& b)
{
    if (typeid(a) != typeid(b) || KeptContent::elementName(a) != KeptContent::elementName(b) ||
        !KeptContent::haveSameMarks(a, b) || !isSameKept(a, b)) {
        return false;
    }
    const TypeIndex& type = SchemaIndex::instance().typeOf(a);
    if (type.hasText() && !isSameText(a, b, *type.record()->text)) {
        return false;
    }
    // An identifier among the attributes tells most that differ apart, and geometry, which is most of a
    // feature, comes last.
    const auto attributes = type.members().begin() + static_cast<std::ptrdiff_t>(type.elementCount());
    const auto isSame = [&](const TypeIndex::FlatMember& member) { return isSameMember(a, b, member); };
    return std::all_of(attributes, type.members().end(), isSame) &&
           std::all_of(type.members().begin(), attributes, isSame);
}

} // namespace binding
} // namespace citygml

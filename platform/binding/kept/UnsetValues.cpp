#include "platform/binding/kept/UnsetValues.h"

#include "platform/binding/values/TextValues.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace citygml {
namespace binding {

namespace {

/// For texts that are compared, not written: names of different namespaces differ.
class WholeNames : public NameScope
{
public:
    std::string namespaceOf(std::string_view) const override { return std::string(); }
    std::string prefixOf(const std::string& uri) const override { return uri; }
};

std::string textOf(const xml_schema::type& object, const TextOps& ops)
{
    std::string text;
    ops.format(object, text, WholeNames());
    return text;
}

template <typename T>
std::pair<const TextOps*, std::string> textOfNew()
{
    const std::unique_ptr<T> value(newValue<T>());
    return {&textOps<T>, textOf(*value, textOps<T>)};
}

/// The text of a new object of a kind of values that its class leaves undefined; null for other kinds.
const std::string* textOfNew(const TextOps* kind)
{
    static const std::array<std::pair<const TextOps*, std::string>, 6> texts = {
        textOfNew<xml_schema::date>(),  textOfNew<xml_schema::date_time>(),
        textOfNew<xml_schema::time>(),  textOfNew<xml_schema::duration>(),
        textOfNew<xml_schema::gyear>(), textOfNew<xml_schema::gyear_month>()};
    const auto found =
        std::find_if(texts.begin(), texts.end(), [kind](const auto& text) { return text.first == kind; });
    return found != texts.end() ? &found->second : nullptr;
}

/// The text of the only value of a member.
std::string textOf(const xml_schema::type& owner, const TypeIndex::FlatMember& member)
{
    const MemberOps& ops = *member.declaration->ops;
    if (member.type != nullptr) {
        return textOf(ops.at(owner, 0), *member.type->record()->text);
    }
    std::string text;
    ops.format(owner, 0, text);
    return text;
}

/// Whether a number was written through a reference to it, which leaves its member empty.
bool isSetInPlace(const xml_schema::type& owner, const TypeIndex::FlatMember& member)
{
    return !isUnsetNumber(textOf(owner, member));
}

/// Whether a member of a new object is as it was.
bool isAsNew(const xml_schema::type& owner, const TypeIndex::FlatMember& member)
{
    const MemberOps& ops = *member.declaration->ops;
    if (ops.count(owner) == 0) {
        return member.type != nullptr || member.requiredBit == 0 || !isSetInPlace(owner, member);
    }
    if (member.declaration->defaultText != nullptr) {
        return textOf(owner, member) == member.declaration->defaultText;
    }
    return ops.single && member.type != nullptr && isLeftOut(ops.at(owner, 0));
}

} // namespace

std::unique_ptr<xml_schema::type> newObject(const TypeRecord& record)
{
    std::unique_ptr<xml_schema::type> object(record.create());
    if (const std::string* const text = textOfNew(record.text)) {
        record.text->parse(*object, *text, WholeNames());
    }
    return object;
}

bool isUnset(const xml_schema::type& object, const TypeIndex& type)
{
    const TypeRecord& record = *type.record();
    const std::unique_ptr<xml_schema::type> fresh = newObject(record);
    return textOf(object, *record.text) == textOf(*fresh, *record.text);
}

bool isUnsetNumber(std::string_view text)
{
    return text == "0" || text == "false";
}

bool isLeftOut(const xml_schema::type& object)
{
    if (!KeptContent::isMissing(object) || KeptContent::find(object) != nullptr) {
        return false;
    }
    const TypeIndex& type = SchemaIndex::instance().typeOf(object);
    return (!type.hasText() || isUnset(object, type)) &&
           std::all_of(type.members().begin(), type.members().end(),
                       [&](const TypeIndex::FlatMember& member) { return isAsNew(object, member); });
}

bool wasMissing(const xml_schema::type& owner, const TypeIndex::FlatMember& member)
{
    const MemberOps& ops = *member.declaration->ops;
    if (member.type != nullptr) {
        return ops.count(owner) != 0 && KeptContent::isMissing(ops.at(owner, 0));
    }
    const KeptContent* const kept = KeptContent::find(owner);
    return KeptContent::isMissing(owner) || (kept != nullptr && kept->lacks(member.index));
}

std::size_t writtenCountOfRequired(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                                   std::size_t count)
{
    if (member.type != nullptr) {
        return count != 0 && isLeftOut(member.declaration->ops->at(owner, 0)) ? 0 : count;
    }
    const bool isEmpty = count == 0;
    return isEmpty && wasMissing(owner, member) && isSetInPlace(owner, member) ? 1 : count;
}

bool isReplaced(const KeptContent::Node& node, const xml_schema::type& object, const TypeIndex& type)
{
    // An assignment to an object of a base class brings nodes of members that this does not have.
    return node.standsFor != 0 && node.standsFor <= type.elementCount() &&
           writtenCount(object, type.members()[node.standsFor - 1u]) != 0;
}

} // namespace binding
} // namespace citygml

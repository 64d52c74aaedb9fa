#include "citygml/MemberUnit.h"

#include "platform/binding/SchemaIndex.h"

#include <algorithm>

namespace citygml {

std::optional<Member> unitOf(const Member& measure)
{
    const std::string name = measure.name();
    const auto& members = binding::SchemaIndex::instance().typeOf(measure.object()).members();
    const auto found = std::find_if(members.rbegin(), members.rend(),
                                    [&name](const auto& member) { return member.declaration->name == name; });
    if (found == members.rend() || measure.isList() ||
        found->declaration->ops->count(measure.object()) <= measure.position()) {
        return std::nullopt;
    }
    // The object of the member is as changeable as the one that has the member.
    auto& value =
        const_cast<xml_schema::type&>(found->declaration->ops->at(measure.object(), measure.position()));
    return &value != &measure.object() ? Member::named(value, "uom") : std::nullopt;
}

} // namespace citygml

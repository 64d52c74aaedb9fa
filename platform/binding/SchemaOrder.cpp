#include "citygml/SchemaOrder.h"

#include "platform/binding/kept/ChildOrder.h"
#include "platform/binding/SchemaIndex.h"

namespace citygml {

std::size_t putInSchemaOrder(xml_schema::type& object)
{
    const binding::TypeIndex& type = binding::SchemaIndex::instance().typeOf(object);
    std::size_t moved = 0;
    if (!type.hasText() && binding::KeptContent::find(object) != nullptr) {
        moved += binding::putInSchemaOrder(binding::KeptContent::of(object), type) ? 1 : 0;
    }
    for (std::size_t i = 0; i < type.elementCount(); ++i) {
        const binding::TypeIndex::FlatMember& member = type.members()[i];
        const binding::MemberOps& ops = *member.declaration->ops;
        const std::size_t count = member.type != nullptr ? ops.count(object) : 0;
        for (std::size_t child = 0; child < count; ++child) {
            moved += putInSchemaOrder(const_cast<xml_schema::type&>(ops.at(object, child)));
        }
    }
    return moved;
}

} // namespace citygml

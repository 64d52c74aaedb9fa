#include "platform/binding/reader/RequiredMembers.h"

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/kept/UnsetValues.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <unordered_map>

namespace citygml {
namespace binding {

namespace {

// Deeper than what any type requires.
constexpr int mostLevels = 32;

/// The first type, in the order of the tables, of which an element can be an object of the member.
const TypeIndex* typeOfElements(const TypeIndex& owner, MemberIndex member)
{
    const SchemaIndex& index = SchemaIndex::instance();
    for (std::size_t i = 0; i < allElementsCount; ++i) {
        const ElementRecord& element = allElements[i];
        const MemberSlot* const slot = index.slotOf(owner, index.nameId(element.uri, element.name));
        if (slot != nullptr && slot->member == member && !slot->isAbstract) {
            return slot->type;
        }
    }
    return nullptr;
}

/// The first type, in the order of the tables, that can stand for another and has objects.
const TypeIndex* typeDerivedFrom(const TypeIndex& base)
{
    const SchemaIndex& index = SchemaIndex::instance();
    for (std::size_t i = 0; i < allTypesCount; ++i) {
        const TypeIndex& type = index.typeOf(*allTypes[i]);
        if (!allTypes[i]->isAbstract && type.isDerivedFrom(&base)) {
            return &type;
        }
    }
    return nullptr;
}

/// A type that can stand for the abstract one of a member.
const TypeIndex& standInFor(const TypeIndex& owner, const TypeIndex::FlatMember& member)
{
    // A document may lack the same member many times.
    static thread_local std::unordered_map<const TypeIndex::FlatMember*, const TypeIndex*> known;
    const TypeIndex*& type = known[&member];
    if (type == nullptr) {
        type = typeOfElements(owner, member.index);
    }
    if (type == nullptr) {
        type = typeDerivedFrom(*member.type);
    }
    if (type == nullptr) {
        throw std::logic_error(std::string("no object can be made for ") + member.declaration->name);
    }
    return *type;
}

/// The type of the object that a member gets.
const TypeIndex& typeToMake(const TypeIndex& owner, const TypeIndex::FlatMember& member)
{
    if (member.declaration->isAttribute) {
        return *member.type;
    }
    const MemberSlot* const own = SchemaIndex::instance().slotOf(owner, member.name);
    const bool hasOwnType = own != nullptr && own->member == member.index && !own->isAbstract;
    return hasOwnType ? *own->type : standInFor(owner, member);
}

void fill(xml_schema::type& owner, const TypeIndex& type, int level);

void makeObject(xml_schema::type& owner, const TypeIndex& ownerType, const TypeIndex::FlatMember& member,
                int level)
{
    const TypeIndex& type = typeToMake(ownerType, member);
    std::unique_ptr<xml_schema::type> object = newObject(*type.record());
    KeptContent::setMissing(*object);
    fill(*object, type, level + 1);
    member.declaration->ops->add(owner, object.release());
}

void keepMissingNumber(xml_schema::type& owner, MemberIndex member)
{
    const KeptContent* const kept = KeptContent::find(owner);
    const bool isKnown = KeptContent::isMissing(owner) || (kept != nullptr && kept->hasAbsentValue(member));
    if (!isKnown) {
        KeptContent::of(owner).addMissing(member);
    }
}

void fill(xml_schema::type& owner, const TypeIndex& type, int level)
{
    if (level > mostLevels) {
        throw std::logic_error(std::string(type.record()->name) + " requires itself");
    }
    for (const TypeIndex::FlatMember& member : type.members()) {
        if (member.requiredBit == 0 || member.declaration->ops->count(owner) != 0) {
            continue;
        }
        if (member.type != nullptr) {
            makeObject(owner, type, member, level);
        } else {
            keepMissingNumber(owner, member.index);
        }
    }
}

} // namespace

void fillRequired(xml_schema::type& owner, const TypeIndex& type)
{
    fill(owner, type, 0);
}

void releaseStandIns(xml_schema::type& owner, const TypeIndex& type)
{
    for (const TypeIndex::FlatMember& member : type.members()) {
        if (writtenCount(owner, member) != 0) {
            KeptContent::of(owner).releaseStandIns(member.index);
        }
    }
}

} // namespace binding
} // namespace citygml

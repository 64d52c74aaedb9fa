#include "platform/binding/SchemaIndex.h"

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/values/TextValues.h"

#include <algorithm>
#include <stdexcept>

namespace citygml {
namespace binding {

namespace {

std::string keyOf(std::string_view uri, std::string_view name)
{
    std::string key;
    key.reserve(uri.size() + name.size() + 1);
    key.append(name).append(1, ' ').append(uri);
    return key;
}

/// Whether values of the kind have several texts besides those of a number: `1` is `true`, `+00:00` is `Z`.
bool areSpelledVariously(const TextOps* text)
{
    using Boolean = xsd::cxx::tree::fundamental_base<bool, char, xml_schema::simple_type>;
    for (const TextOps* kind :
         {&textOps<Boolean>, &textOps<xml_schema::date>, &textOps<xml_schema::date_time>,
          &textOps<xml_schema::time>, &textOps<xml_schema::duration>, &textOps<xml_schema::gyear>,
          &textOps<xml_schema::gyear_month>}) {
        if (text == kind) {
            return true;
        }
    }
    return false;
}

/// \throws std::length_error where a type has more of a kind of members than there are bits.
template <typename Bits>
Bits bit(std::size_t number)
{
    if (number >= 8 * sizeof(Bits)) {
        throw std::length_error("too many members of a schema type");
    }
    return static_cast<Bits>(Bits(1) << number);
}

/// Stands in a table for a name that has no slot.
const MemberSlot noSlot;

} // namespace

bool TypeIndex::isDerivedFrom(const TypeIndex* other) const
{
    const TypeIndex* type = this;
    while (type != nullptr && type != other) {
        type = type->base;
    }
    // Everything is an xs:anyType.
    return type != nullptr || *other->record()->info == typeid(xml_schema::type);
}

const TypeIndex::FlatMember* TypeIndex::attribute(NameId name) const
{
    for (std::size_t i = elements; i < allMembers.size(); ++i) {
        if (allMembers[i].name == name) {
            return &allMembers[i];
        }
    }
    return nullptr;
}

const SchemaIndex& SchemaIndex::instance()
{
    static const SchemaIndex index;
    return index;
}

SchemaIndex::SchemaIndex() : names(1)
{
    for (std::size_t i = 0; i < allElementsCount; ++i) {
        const ElementRecord& element = allElements[i];
        elements[addName(element.uri, element.name)] = &element;
        elementsOfType[element.type].push_back(&element);
    }
    for (std::size_t i = 0; i < allTypesCount; ++i) {
        const TypeIndex* type = indexType(allTypes[i]);
        typeByName[keyOf(allTypes[i]->uri, allTypes[i]->name)] = type;
        if (std::find(uris.begin(), uris.end(), allTypes[i]->uri) == uris.end()) {
            uris.push_back(allTypes[i]->uri);
        }
    }
    // Members point to types that were indexed behind them.
    for (TypeIndex& type : types) {
        for (TypeIndex::FlatMember& member : type.allMembers) {
            const TypeRecord* const record = member.declaration->type;
            member.type = record != nullptr ? typeOfRecord.at(record) : nullptr;
        }
    }
}

NameId SchemaIndex::addName(const char* uri, const char* name)
{
    const auto inserted = nameIds.emplace(keyOf(uri, name), static_cast<NameId>(names.size()));
    if (inserted.second) {
        names.push_back({uri, name});
    }
    return inserted.first->second;
}

const TypeIndex* SchemaIndex::indexType(const TypeRecord* record)
{
    const auto known = typeOfRecord.find(record);
    if (known != typeOfRecord.end()) {
        return known->second;
    }

    const TypeIndex* base = record->base != nullptr ? indexType(record->base) : nullptr;
    types.emplace_back();
    TypeIndex& type = types.back();
    type.typeRecord = record;
    type.base = base;
    type.mixed = record->isMixed || (base != nullptr && base->mixed);
    type.spelledVariously = areSpelledVariously(record->text);
    joinMembers(type);
    numberMembers(type);
    typeOfRecord[record] = &type;
    return &type;
}

void SchemaIndex::joinMembers(TypeIndex& type)
{
    std::vector<TypeIndex::FlatMember> inherited, attributes;
    int groups = 0;
    if (type.base != nullptr) {
        inherited = type.base->allMembers;
        const auto middle = inherited.begin() + static_cast<std::ptrdiff_t>(type.base->elements);
        attributes.assign(middle, inherited.end());
        inherited.erase(middle, inherited.end());
        for (const TypeIndex::FlatMember& member : inherited) {
            groups = std::max(groups, member.group);
        }
    }
    type.allMembers = std::move(inherited);
    for (std::size_t i = 0; i < type.typeRecord->memberCount; ++i) {
        TypeIndex::FlatMember member;
        member.declaration = &type.typeRecord->members[i];
        member.name = addName(member.declaration->uri, member.declaration->name);
        member.group = member.declaration->group != 0 ? groups + member.declaration->group : 0;
        (member.declaration->isAttribute ? attributes : type.allMembers).push_back(member);
    }
    type.elements = type.allMembers.size();
    type.allMembers.insert(type.allMembers.end(), attributes.begin(), attributes.end());
}

void SchemaIndex::numberMembers(TypeIndex& type)
{
    std::size_t required = 0, defaults = 0;
    for (std::size_t i = 0; i < type.allMembers.size(); ++i) {
        TypeIndex::FlatMember& member = type.allMembers[i];
        const bool alternates = i != 0 && member.group != 0 && type.allMembers[i - 1].group == member.group;
        member.index = static_cast<MemberIndex>(i);
        member.groupBegin = alternates ? type.allMembers[i - 1].groupBegin : member.index;
        member.requiredBit = member.declaration->isRequired ? bit<std::uint64_t>(required++) : 0;
        member.defaultBit = member.declaration->defaultText != nullptr ? bit<std::uint16_t>(defaults++) : 0;
        type.required |= member.requiredBit;
    }
    if (defaults > KeptContent::mostDefaults || type.elements > KeptContent::mostElements) {
        throw std::length_error("too many members of a schema type");
    }
}

NameId SchemaIndex::nameId(std::string_view uri, std::string_view name) const
{
    const auto found = nameIds.find(keyOf(uri, name));
    return found != nameIds.end() ? found->second : 0;
}

const TypeIndex& SchemaIndex::typeOf(const xml_schema::type& object) const
{
    return typeOf(*recordOf(object));
}

const TypeIndex& SchemaIndex::typeOf(const TypeRecord& record) const
{
    return *typeOfRecord.at(&record);
}

const TypeIndex* SchemaIndex::findType(std::string_view uri, std::string_view name) const
{
    const auto found = typeByName.find(keyOf(uri, name));
    return found != typeByName.end() ? found->second : nullptr;
}

const MemberSlot* SchemaIndex::slotOf(const TypeIndex& type, NameId name) const
{
    const TypeIndex::SlotTable* const table = type.slots.load(std::memory_order_acquire);
    const MemberSlot* slot = table != nullptr ? (*table)[name].load(std::memory_order_acquire) : nullptr;
    if (slot == nullptr) {
        slot = addSlot(type, name);
    }
    return slot != &noSlot ? slot : nullptr;
}

/// Looks up what the type's table does not have yet.
const MemberSlot* SchemaIndex::addSlot(const TypeIndex& type, NameId name) const
{
    const std::lock_guard<std::mutex> lock(slotsMutex);
    TypeIndex::SlotTable* table = type.slots.load(std::memory_order_relaxed);
    if (table == nullptr) {
        table = &slotTables.emplace_back(names.size());
        type.slots.store(table, std::memory_order_release);
    }
    const std::optional<MemberSlot> found = name != 0 ? findSlot(type, name) : std::nullopt;
    const MemberSlot* const slot = found ? &foundSlots.emplace_back(*found) : &noSlot;
    (*table)[name].store(slot, std::memory_order_release);
    return slot;
}

std::optional<MemberSlot> SchemaIndex::findSlot(const TypeIndex& type, NameId name) const
{
    const auto element = elements.find(name);
    const ElementRecord* const global = element != elements.end() ? element->second : nullptr;
    // The element itself, then the heads of the substitution groups that it stands in.
    const ElementRecord* head = global;
    for (NameId candidate = name; candidate != 0;) {
        for (std::size_t i = 0; i < type.elements; ++i) {
            const TypeIndex::FlatMember& member = type.allMembers[i];
            if (member.name != candidate) {
                continue;
            }
            MemberSlot slot;
            slot.member = static_cast<MemberIndex>(i);
            slot.type = member.type;
            if (candidate != name) {
                slot.type = global->type != nullptr ? &typeOf(*global->type) : nullptr;
            }
            // Only a reference to the global element takes over that it is abstract.
            const bool isGlobal =
                global != nullptr && global->type == (slot.type != nullptr ? slot.type->record() : nullptr);
            slot.isAbstract =
                (isGlobal && global->isAbstract) || (slot.type != nullptr && slot.type->record()->isAbstract);
            return slot;
        }
        head = head != nullptr ? head->head : nullptr;
        candidate = head != nullptr ? nameId(head->uri, head->name) : 0;
    }
    return std::nullopt;
}

NameId SchemaIndex::elementName(const TypeIndex& parent, MemberIndex member, const TypeIndex& type,
                                bool& needsType) const
{
    const TypeIndex::FlatMember& flat = parent.members()[member];
    needsType = false;
    const MemberSlot* const own = slotOf(parent, flat.name);
    if (own != nullptr && own->type == &type && !own->isAbstract) {
        return flat.name;
    }
    const auto candidates = elementsOfType.find(type.record());
    if (candidates != elementsOfType.end()) {
        for (const ElementRecord* element : candidates->second) {
            const NameId name = nameId(element->uri, element->name);
            const MemberSlot* const slot = element->isAbstract ? nullptr : slotOf(parent, name);
            if (slot != nullptr && slot->member == member) {
                return name;
            }
        }
    }
    needsType = true;
    return flat.name;
}

} // namespace binding
} // namespace citygml

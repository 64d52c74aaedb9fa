#include "platform/binding/SchemaIndex.h"

#include "platform/binding/values/TextValues.h"

#include <algorithm>

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
        if (text == kind)
            return true;
    }
    return false;
}

} // namespace

bool TypeIndex::isDerivedFrom(const TypeIndex* other) const
{
    const TypeIndex* type = this;
    while (type != nullptr && type != other)
        type = type->m_base;
    // Everything is an xs:anyType.
    return type != nullptr || *other->record()->info == typeid(xml_schema::type);
}

const TypeIndex::FlatMember* TypeIndex::attribute(NameId name) const
{
    for (std::size_t i = m_elementCount; i < m_members.size(); ++i) {
        if (m_members[i].name == name)
            return &m_members[i];
    }
    return nullptr;
}

const SchemaIndex& SchemaIndex::instance()
{
    static const SchemaIndex index;
    return index;
}

SchemaIndex::SchemaIndex() : m_names(1)
{
    for (std::size_t i = 0; i < allElementsCount; ++i) {
        const ElementRecord& element = allElements[i];
        m_elements[addName(element.uri, element.name)] = &element;
        m_elementsOfType[element.type].push_back(&element);
    }
    for (std::size_t i = 0; i < allTypesCount; ++i) {
        const TypeIndex* type = indexType(allTypes[i]);
        m_typeByName[keyOf(allTypes[i]->uri, allTypes[i]->name)] = type;
        if (std::find(m_namespaces.begin(), m_namespaces.end(), allTypes[i]->uri) == m_namespaces.end())
            m_namespaces.push_back(allTypes[i]->uri);
    }
    // Members point to types that were indexed behind them.
    for (TypeIndex& type : m_types) {
        for (TypeIndex::FlatMember& member : type.m_members)
            member.type = member.member->type != nullptr ? m_typeOfRecord.at(member.member->type) : nullptr;
    }
}

NameId SchemaIndex::addName(const char* uri, const char* name)
{
    const auto inserted = m_nameIds.emplace(keyOf(uri, name), static_cast<NameId>(m_names.size()));
    if (inserted.second)
        m_names.push_back({uri, name});
    return inserted.first->second;
}

const TypeIndex* SchemaIndex::indexType(const TypeRecord* record)
{
    const auto known = m_typeOfRecord.find(record);
    if (known != m_typeOfRecord.end())
        return known->second;

    const TypeIndex* base = record->base != nullptr ? indexType(record->base) : nullptr;
    m_types.emplace_back();
    TypeIndex& type = m_types.back();
    type.m_record = record;
    type.m_base = base;
    type.m_mixed = record->isMixed || (base != nullptr && base->m_mixed);
    type.m_hasSpellings = areSpelledVariously(record->text);

    std::vector<TypeIndex::FlatMember> elements, attributes;
    int groups = 0;
    if (base != nullptr) {
        const auto middle = base->m_members.begin() + static_cast<std::ptrdiff_t>(base->m_elementCount);
        elements.assign(base->m_members.begin(), middle);
        attributes.assign(middle, base->m_members.end());
        for (const TypeIndex::FlatMember& member : elements)
            groups = std::max(groups, member.group);
    }
    for (std::size_t i = 0; i < record->memberCount; ++i) {
        const Member& member = record->members[i];
        auto& list = member.isAttribute ? attributes : elements;
        list.push_back({&member, addName(member.uri, member.name), nullptr,
                        member.group != 0 ? groups + member.group : 0, 0, -1, -1});
    }
    type.m_elementCount = elements.size();
    type.m_members = std::move(elements);
    type.m_members.insert(type.m_members.end(), attributes.begin(), attributes.end());
    int defaulted = 0;
    for (std::size_t i = 0; i < type.m_members.size(); ++i) {
        TypeIndex::FlatMember& member = type.m_members[i];
        const bool alternates = i != 0 && member.group != 0 && type.m_members[i - 1].group == member.group;
        member.place = alternates ? type.m_members[i - 1].place : static_cast<int>(i);
        member.required = member.member->isRequired ? type.m_requiredCount++ : -1;
        member.defaulted = member.member->defaultText != nullptr ? defaulted++ : -1;
    }
    m_typeOfRecord[record] = &type;
    return &type;
}

NameId SchemaIndex::nameId(std::string_view uri, std::string_view name) const
{
    const auto found = m_nameIds.find(keyOf(uri, name));
    return found != m_nameIds.end() ? found->second : 0;
}

const TypeIndex& SchemaIndex::typeOf(const xml_schema::type& object) const
{
    return typeOf(*recordOf(object));
}

const TypeIndex& SchemaIndex::typeOf(const TypeRecord& record) const
{
    return *m_typeOfRecord.at(&record);
}

const TypeIndex* SchemaIndex::findType(std::string_view uri, std::string_view name) const
{
    const auto found = m_typeByName.find(keyOf(uri, name));
    return found != m_typeByName.end() ? found->second : nullptr;
}

const Place& SchemaIndex::place(const TypeIndex& type, NameId name) const
{
    // Of all types, a document has few.
    if (type.m_places.empty())
        type.m_places.resize(m_names.size());
    std::uint16_t& number = type.m_places[name];
    if (number == 0) {
        type.m_found.push_back(name != 0 ? findPlace(type, name) : Place());
        number = static_cast<std::uint16_t>(type.m_found.size());
    }
    return type.m_found[number - 1];
}

Place SchemaIndex::findPlace(const TypeIndex& type, NameId name) const
{
    const auto element = m_elements.find(name);
    const ElementRecord* const global = element != m_elements.end() ? element->second : nullptr;
    // The element itself, then the heads of the substitution groups that it stands in.
    const ElementRecord* head = global;
    for (NameId candidate = name; candidate != 0;) {
        for (std::size_t i = 0; i < type.m_elementCount; ++i) {
            const TypeIndex::FlatMember& member = type.m_members[i];
            if (member.name != candidate)
                continue;
            Place place;
            place.member = static_cast<int>(i);
            place.type = member.type;
            if (candidate != name)
                place.type = global->type != nullptr ? &typeOf(*global->type) : nullptr;
            // Only a reference to the global element takes over that it is abstract.
            const bool isGlobal =
                global != nullptr && global->type == (place.type ? place.type->record() : nullptr);
            place.isAbstract =
                (isGlobal && global->isAbstract) || (place.type && place.type->record()->isAbstract);
            return place;
        }
        head = head != nullptr ? head->head : nullptr;
        candidate = head != nullptr ? nameId(head->uri, head->name) : 0;
    }
    return Place();
}

NameId SchemaIndex::elementName(const TypeIndex& parent, int member, const TypeIndex& type,
                                bool& needsType) const
{
    const TypeIndex::FlatMember& flat = parent.members()[static_cast<std::size_t>(member)];
    needsType = false;
    const Place& own = place(parent, flat.name);
    if (own.type == &type && !own.isAbstract)
        return flat.name;
    const auto elements = m_elementsOfType.find(type.record());
    if (elements != m_elementsOfType.end()) {
        for (const ElementRecord* element : elements->second) {
            const NameId name = nameId(element->uri, element->name);
            if (!element->isAbstract && place(parent, name).member == member)
                return name;
        }
    }
    needsType = true;
    return flat.name;
}

} // namespace binding
} // namespace citygml

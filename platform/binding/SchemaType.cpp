#include "citygml/CityGMLBaseVisitor.h"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/Tables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <typeindex>
#include <unordered_map>

namespace citygml {
namespace binding {

namespace {

const std::unordered_map<std::type_index, const TypeRecord*>& records()
{
    static auto* map = [] {
        auto* result = new std::unordered_map<std::type_index, const TypeRecord*>;
        result->reserve(2 * allTypesCount);
        for (std::size_t i = 0; i < allTypesCount; ++i) {
            result->emplace(*allTypes[i]->info, allTypes[i]);
        }
        return result;
    }();
    return *map;
}

std::size_t depthOf(const TypeRecord* record)
{
    std::size_t depth = 0;
    for (; record != nullptr; record = record->base) {
        ++depth;
    }
    return depth;
}

/// The deepest type whose objects `object` is one of. Only for classes derived outside the binding.
const TypeRecord* nearestBase(const xml_schema::type& object)
{
    const TypeRecord* nearest = nullptr;
    for (std::size_t i = 0; i < allTypesCount; ++i) {
        const TypeRecord* candidate = allTypes[i];
        if (candidate->isInstance(object) && (nearest == nullptr || depthOf(candidate) > depthOf(nearest))) {
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace

const TypeRecord* recordOf(const xml_schema::type& object)
{
    // Nearly all objects of a document are of a few hundred types, which a look at the record's address
    // finds.
    struct Slot
    {
        const std::type_info* info;
        const TypeRecord* record;
    };
    static thread_local std::array<Slot, 1024> slots{};
    const std::type_info& info = typeid(object);
    const auto address = reinterpret_cast<std::uintptr_t>(&info);
    Slot& slot = slots[(address >> 4 ^ address >> 14) % slots.size()];
    if (slot.info != &info) {
        const auto& map = records();
        const auto found = map.find(info);
        slot.record = found != map.end() ? found->second : nearestBase(object);
        slot.info = &info;
    }
    return slot.record;
}

} // namespace binding
} // namespace citygml

namespace xml_schema {

using citygml::binding::KeptContent;
using citygml::binding::recordOf;

const std::string& TypeLabel::str() const
{
    static auto* labels = new std::unordered_map<const citygml::binding::TypeRecord*, std::string>;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
    const auto* owner =
        reinterpret_cast<const type*>(reinterpret_cast<const char*>(this) - offsetof(type, typeLabel));
#pragma GCC diagnostic pop
    const citygml::binding::TypeRecord* record = recordOf(*owner);
    const auto found = labels->find(record);
    return found != labels->end() ? found->second : labels->emplace(record, record->label).first->second;
}

type::type() = default;

type::type(const type& other, ::xsd::cxx::tree::flags flags, type_base* container)
    : type_base(other, flags, container), m_elementName(other.m_elementName),
      m_spelledOut(other.m_spelledOut),
      m_kept(other.m_kept ? std::make_unique<KeptContent>(*other.m_kept) : nullptr)
{
}

type& type::operator=(const type& other)
{
    if (this != &other) {
        type_base::operator=(other);
        KeptContent::assign(*this, other);
    }
    return *this;
}

type::~type() = default;

type* type::_clone(::xsd::cxx::tree::flags flags, type_base* container) const
{
    return new type(*this, flags, container);
}

void type::_container(type_base* container)
{
    type_base::_container(container);
}

bool type::accept(citygml::CityGMLBaseVisitor* visitor)
{
    const citygml::binding::TypeRecord* record = recordOf(*this);
    return record->visit == nullptr || record->visit(*this, *visitor);
}

} // namespace xml_schema

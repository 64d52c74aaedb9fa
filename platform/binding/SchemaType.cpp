#include "citygml/CityGMLBaseVisitor.h"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/Tables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

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

namespace {

/// The labels of all types. Both ways to one lead to the same text.
struct Labels
{
    /// Behind an empty text that stands for none, in the order of the table of types.
    std::vector<std::string> texts;
    std::unordered_map<const citygml::binding::TypeRecord*, std::uint16_t> numbers;
};

const Labels& labels()
{
    // Never deleted: programs may ask for labels until they end.
    static const auto* const all = [] {
        using namespace citygml::binding;
        auto* const result = new Labels;
        result->texts.resize(1);
        for (std::size_t i = 0; i < allTypesCount; ++i) {
            result->numbers.emplace(allTypes[i], static_cast<std::uint16_t>(result->texts.size()));
            result->texts.emplace_back(allTypes[i]->label);
        }
        return result;
    }();
    return *all;
}

/// The object that holds a label which is no copy.
const type& ownerOf(const TypeLabel& label)
{
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
    return *reinterpret_cast<const type*>(reinterpret_cast<const char*>(&label) - offsetof(type, typeLabel));
#pragma GCC diagnostic pop
}

} // namespace

std::uint16_t TypeLabel::labelNumber() const
{
    return number != 0 ? number : labels().numbers.at(recordOf(ownerOf(*this)));
}

TypeLabel::TypeLabel(const TypeLabel& other) : number(other.labelNumber()) {}

TypeLabel& TypeLabel::operator=(const TypeLabel& other)
{
    number = other.labelNumber();
    return *this;
}

const std::string& TypeLabel::str() const
{
    return labels().texts[labelNumber()];
}

type::type() : typeLabel() {}

type::type(const type& other, ::xsd::cxx::tree::flags flags, type_base* container)
    : type_base(other, flags, container), spelledOut(other.spelledOut), elementName(other.elementName),
      kept(other.kept ? std::make_unique<KeptContent>(*other.kept) : nullptr)
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

namespace xsd::cxx::tree {

using Id = xml_schema::id;

template <>
Id& Id::operator=(const std::string& text)
{
    const std::string former = *this;
    unregister_id();
    std::string::operator=(text);
    try {
        register_id();
    } catch (...) {
        std::string::operator=(former);
        register_id();
        throw;
    }
    return *this;
}

template <>
Id& Id::operator=(const char* text)
{
    return *this = std::string(text);
}

template <>
Id& Id::operator=(char text)
{
    return *this = std::string(1, text);
}

template <>
Id& Id::operator=(const Id& other)
{
    return *this = static_cast<const std::string&>(other);
}

template <>
void Id::_container(container* owner)
{
    container* const former = _container();
    unregister_id();
    xml_schema::ncname::_container(owner);
    try {
        register_id();
    } catch (...) {
        xml_schema::ncname::_container(former);
        register_id();
        throw;
    }
}

template <>
void Id::unregister_id()
{
    container* const root = _root();
    // The entry belongs to the object that the identifier is of.
    if (root != nullptr && !empty() && root->_lookup_id(identity_) == _container()) {
        root->_unregister_id(identity_);
    }
}

} // namespace xsd::cxx::tree

#pragma once

#include "platform/binding/Tables.h"
#include "platform/binding/values/TextValues.h"

#include <type_traits>

namespace citygml {
namespace binding {

template <typename T>
xml_schema::type* create()
{
    return newValue<T>();
}

template <typename T>
bool isInstance(const xml_schema::type& object)
{
    return dynamic_cast<const T*>(&object) != nullptr;
}

template <typename T, auto operation>
bool visit(xml_schema::type& object, CityGMLBaseVisitor& visitor)
{
    return (visitor.*operation)(static_cast<T*>(&object));
}

/// Number of values in a member's container, and the value at an index in it.
template <typename T, bool fundamental>
std::size_t countOf(const xsd::cxx::tree::one<T, fundamental>& c)
{
    return c.present() ? 1 : 0;
}
template <typename T, bool fundamental>
std::size_t countOf(const xsd::cxx::tree::optional<T, fundamental>& c)
{
    return c.present() ? 1 : 0;
}
template <typename T, bool fundamental>
std::size_t countOf(const xsd::cxx::tree::sequence<T, fundamental>& c)
{
    return c.size();
}
template <typename C>
const auto& valueAt(const C& c, std::size_t)
{
    return c.get();
}
// A sequence of booleans gives copies, every other one references.
template <typename T, bool fundamental>
decltype(auto) valueAt(const xsd::cxx::tree::sequence<T, fundamental>& c, std::size_t index)
{
    return c[index];
}
template <typename C, typename V>
void addTo(C& c, V value)
{
    c.set(value);
}
template <typename T, bool fundamental, typename V>
void addTo(xsd::cxx::tree::sequence<T, fundamental>& c, V value)
{
    c.push_back(value);
}

// Makes a single member empty, or a sequence shorter.
template <typename C>
xml_schema::type* takeFrom(C& c, std::size_t)
{
    return c.detach().release();
}
template <typename T>
xml_schema::type* takeFrom(xsd::cxx::tree::one<T, true>& c, std::size_t)
{
    c = xsd::cxx::tree::one<T, true>(nullptr);
    return nullptr;
}
template <typename T>
xml_schema::type* takeFrom(xsd::cxx::tree::optional<T, true>& c, std::size_t)
{
    c.reset();
    return nullptr;
}
template <typename T>
xml_schema::type* takeFrom(xsd::cxx::tree::sequence<T, false>& c, std::size_t index)
{
    std::auto_ptr<T> taken;
    c.detach(c.begin() + static_cast<std::ptrdiff_t>(index), taken);
    return taken.release();
}
template <typename T>
xml_schema::type* takeFrom(xsd::cxx::tree::sequence<T, true>& c, std::size_t index)
{
    c.erase(c.begin() + static_cast<std::ptrdiff_t>(index));
    return nullptr;
}

/// The operations on the member that `field` points to.
template <auto field>
struct Access;

template <typename Owner, template <typename, bool> typename Container, typename T, bool fundamental,
          Container<T, fundamental> Owner::*field>
struct Access<field>
{
    static auto& of(xml_schema::type& owner) { return static_cast<Owner&>(owner).*field; }
    static const auto& of(const xml_schema::type& owner) { return static_cast<const Owner&>(owner).*field; }

    static void add(xml_schema::type& owner, xml_schema::type* child)
    {
        if constexpr (!fundamental) {
            addTo(of(owner), std::auto_ptr<T>(static_cast<T*>(child)));
        }
    }
    static void addText(xml_schema::type& owner, std::string_view text)
    {
        if constexpr (fundamental) {
            addTo(of(owner), parseNumber<T>(text));
        }
    }
    static std::size_t count(const xml_schema::type& owner) { return countOf(of(owner)); }
    static const xml_schema::type& at(const xml_schema::type& owner, std::size_t index)
    {
        if constexpr (!fundamental) {
            return valueAt(of(owner), index);
        } else {
            return owner;
        }
    }
    static void format(const xml_schema::type& owner, std::size_t index, std::string& text)
    {
        if constexpr (fundamental) {
            formatNumber(valueAt(of(owner), index), text);
        }
    }
    static xml_schema::type* take(xml_schema::type& owner, std::size_t index)
    {
        return takeFrom(of(owner), index);
    }
    static const void* address(const xml_schema::type& owner) { return &of(owner); }
    static constexpr MemberOps ops = {
        &add,     &addText,
        &count,   &at,
        &format,  &take,
        &address, !std::is_base_of_v<xsd::cxx::tree::sequence<T, fundamental>, Container<T, fundamental>>};
};

template <auto field>
inline constexpr const MemberOps& memberOps = Access<field>::ops;

} // namespace binding
} // namespace citygml

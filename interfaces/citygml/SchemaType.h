#pragma once

// Included by the generated xml-schema.hxx, behind its type definitions; include that header instead.

#include "BindingExport.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace citygml {
class CityGMLBaseVisitor;
namespace binding {
class KeptContent;
}
} // namespace citygml

namespace xml_schema {

class type;

/// Name of a schema object's kind, without the suffix "Type": `Building`, `WallSurface`, `CityModel`.
///
/// It reads like a `const std::string`; the text lives as long as the program. The label of an object is
/// looked up by the object's dynamic type each time, so that it takes no room of its own in the object. A
/// copy knows its text and is independent of the object.
class TOLVIK_BINDING_EXPORT TypeLabel
{
public:
    /// Takes the text alone, see above.
    /// @{
    TypeLabel(const TypeLabel& other);
    TypeLabel& operator=(const TypeLabel& other);
    /// @}

    /// The text, and what a `const std::string` answers to the operation of the same name.
    /// @{
    const std::string& str() const;
    operator const std::string&() const { return str(); }
    operator std::string_view() const { return str(); }

    bool empty() const { return str().empty(); }
    std::size_t size() const { return str().size(); }
    std::size_t length() const { return str().length(); }
    const char* c_str() const { return str().c_str(); }
    const char* data() const { return str().data(); }
    std::string::const_iterator begin() const { return str().begin(); }
    std::string::const_iterator end() const { return str().end(); }
    char operator[](std::size_t index) const { return str()[index]; }
    char front() const { return str().front(); }
    char back() const { return str().back(); }

    template <typename... Arguments>
    int compare(const Arguments&... arguments) const
    {
        return str().compare(arguments...);
    }
    template <typename... Arguments>
    std::size_t find(const Arguments&... arguments) const
    {
        return str().find(arguments...);
    }
    template <typename... Arguments>
    std::size_t rfind(const Arguments&... arguments) const
    {
        return str().rfind(arguments...);
    }
    std::string substr(std::size_t position = 0, std::size_t count = std::string::npos) const
    {
        return str().substr(position, count);
    }
    /// @}

    friend bool operator==(const TypeLabel& a, const TypeLabel& b) { return a.str() == b.str(); }
    friend bool operator==(const TypeLabel& a, std::string_view b) { return a.str() == b; }
    friend bool operator==(std::string_view a, const TypeLabel& b) { return a == b.str(); }
    friend bool operator!=(const TypeLabel& a, const TypeLabel& b) { return a.str() != b.str(); }
    friend bool operator!=(const TypeLabel& a, std::string_view b) { return a.str() != b; }
    friend bool operator!=(std::string_view a, const TypeLabel& b) { return a != b.str(); }
    friend bool operator<(const TypeLabel& a, const TypeLabel& b) { return a.str() < b.str(); }
    friend bool operator<(const TypeLabel& a, std::string_view b) { return a.str() < b; }
    friend bool operator<(std::string_view a, const TypeLabel& b) { return a < b.str(); }

    friend std::string operator+(const TypeLabel& a, const TypeLabel& b) { return a.str() + b.str(); }
    friend std::string operator+(const TypeLabel& a, std::string_view b) { return a.str() + std::string(b); }
    friend std::string operator+(std::string_view a, const TypeLabel& b) { return std::string(a) + b.str(); }
    friend std::string operator+(const TypeLabel& a, char b) { return a.str() + b; }
    friend std::string operator+(char a, const TypeLabel& b) { return a + b.str(); }

private:
    friend class type;
    TypeLabel() = default;
    std::uint16_t labelNumber() const;

    // Number of the label in a copy; 0 in an object.
    std::uint16_t number = 0;
};

/// Base of every schema class, above the run-time's own base.
///
/// Besides the run-time's services it names its kind, starts visitors, and carries what a document said about
/// the object that its class has no member for, so that saving can say it again. Copies carry it too.
class TOLVIK_BINDING_EXPORT type : public type_base
{
public:
    type();
    /// Ignores the text, as the run-time's base does; it serves default values of `xs:anyType`.
    template <typename C>
    type(const C* text) : type_base(text)
    {
    }

    /// Takes over what a document said about the other object.
    /// @{
    type(const type& other, ::xsd::cxx::tree::flags flags = 0, type_base* container = nullptr);
    type& operator=(const type& other);
    /// @}

    ~type() override;

    type* _clone(::xsd::cxx::tree::flags flags = 0, type_base* container = nullptr) const override;
    using type_base::_container;
    void _container(type_base* container) override;

    /// Calls the `visit_` operation of the object's most derived type, or of the nearest base that has one,
    /// with the object itself.
    /// \return what that operation returned; true for a type without any
    virtual bool accept(citygml::CityGMLBaseVisitor* visitor);

    const TypeLabel typeLabel; ///< name of the object's kind

private:
    friend class citygml::binding::KeptContent;
    // One bit for each attribute with a default or fixed value that the document spelled out; the bit behind
    // them marks an object that the document lacks although the schema requires it.
    std::uint16_t spelledOut = 0;
    // Number of the qualified name under which a document held the object; 0 for none.
    std::uint32_t elementName = 0;
    std::unique_ptr<citygml::binding::KeptContent> kept;
};

inline std::ostream& operator<<(std::ostream& stream, const TypeLabel& label)
{
    return stream << label.str();
}

} // namespace xml_schema

// The root of a document registers the identifiers below it. An identifier that is changed, moved or deleted
// takes out the entry that is its own. The run-time by itself takes out what stands under the same text,
// throws from the destructor where nothing does, and leaves the entry of a detached identifier behind.
//
// Operations that change the characters of an identifier as a std::string, such as append(), go past the
// register: assign the whole text instead.
/// \cond specialisations that Doxygen does not recognise
namespace xsd::cxx::tree {

/// \throws duplicate_id<char> where the text is in use; the identifier is as before then
template <>
TOLVIK_BINDING_EXPORT xml_schema::id& xml_schema::id::operator=(const std::string& text);
template <>
TOLVIK_BINDING_EXPORT xml_schema::id& xml_schema::id::operator=(const char* text);
template <>
TOLVIK_BINDING_EXPORT xml_schema::id& xml_schema::id::operator=(char text);
template <>
TOLVIK_BINDING_EXPORT xml_schema::id& xml_schema::id::operator=(const xml_schema::id& other);
template <>
TOLVIK_BINDING_EXPORT void xml_schema::id::_container(container* owner);
template <>
TOLVIK_BINDING_EXPORT void xml_schema::id::unregister_id();

} // namespace xsd::cxx::tree
/// \endcond

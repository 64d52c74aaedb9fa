#pragma once

// Included by the generated xml-schema.hxx, behind its type definitions; include that header instead.

#include "BindingExport.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>

namespace citygml {
class CityGMLBaseVisitor;
namespace binding {
class KeptContent;
}
} // namespace citygml

namespace xml_schema {

/// Name of a schema object's kind, without the suffix "Type": `Building`, `WallSurface`, `CityModel`.
///
/// It reads as a `const std::string&` that lives as long as the program. The label takes no room in the
/// object: it is looked up by the dynamic type of the object that holds it, and so cannot be copied away from
/// it.
class TOLVIK_BINDING_EXPORT TypeLabel
{
public:
    TypeLabel() = default;
    TypeLabel(const TypeLabel&) = delete;
    TypeLabel& operator=(const TypeLabel&) = delete;

    operator const std::string&() const { return str(); }
    const std::string& str() const;

    friend bool operator==(const TypeLabel& a, const std::string& b) { return a.str() == b; }
    friend bool operator!=(const TypeLabel& a, const std::string& b) { return a.str() != b; }
    friend bool operator==(const std::string& a, const TypeLabel& b) { return a == b.str(); }
    friend bool operator!=(const std::string& a, const TypeLabel& b) { return a != b.str(); }
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
    type(const type& other, ::xsd::cxx::tree::flags flags = 0, type_base* container = nullptr);
    type& operator=(const type& other);
    ~type() override;

    type* _clone(::xsd::cxx::tree::flags flags = 0, type_base* container = nullptr) const override;
    using type_base::_container;
    void _container(type_base* container) override;

    /// Calls the `visit_` operation of the object's most derived type, or of the nearest base that has one,
    /// with the object itself. A type without any answers true. \return what that operation returned.
    virtual bool accept(citygml::CityGMLBaseVisitor* visitor);

    [[no_unique_address]] TypeLabel typeLabel;

private:
    friend class citygml::binding::KeptContent;
    // Number of the qualified name under which a document held the object; 0 for none.
    std::uint32_t m_elementName = 0;
    // One bit for each attribute with a default or fixed value that the document spelled out.
    std::uint32_t m_spelledOut = 0;
    std::unique_ptr<citygml::binding::KeptContent> m_kept;
};

inline std::ostream& operator<<(std::ostream& stream, const TypeLabel& label)
{
    return stream << label.str();
}

} // namespace xml_schema

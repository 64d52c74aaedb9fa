#pragma once

#include "BindingExport.h"
#include "platform/binding/values/ValueError.h"
#include "xml-schema.hxx"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <typeinfo>

namespace citygml {

class CityGMLBaseVisitor;

/// What the reader and the writer know of the schema: constant tables, generated from the schema files.
namespace binding {

struct TypeRecord;

/// Meaning of the prefixes of qualified names at one place of a document.
class NameScope
{
public:
    virtual ~NameScope() = default;
    /// The namespace that a prefix is bound to; that of the empty prefix may be none.
    ///
    /// \throws ValueError for a prefix that is not bound.
    virtual std::string namespaceOf(std::string_view prefix) const = 0;
    /// A prefix that is bound to the namespace; empty for the default namespace, and where there is none.
    virtual std::string prefixOf(const std::string& uri) const = 0;
};

/// Reads and writes the text of an object with simple content.
struct TextOps
{
    /// Sets the object's value from text.
    ///
    /// \param scope what the prefixes in the text mean
    /// \throws ValueError for a text that is no value of the type.
    void (*parse)(xml_schema::type& object, std::string_view text, const NameScope& scope);
    /// Appends the object's value, not escaped.
    void (*format)(const xml_schema::type& object, std::string& text, const NameScope& scope);
};

/// Access to one member of one class. A member holds objects, or fundamental values, which go through text.
struct MemberOps
{
    /// Gives an object to the member: sets a single one, appends to a sequence. Takes ownership.
    void (*add)(xml_schema::type& owner, xml_schema::type* child);
    /// The same for a fundamental value.
    ///
    /// \throws ValueError for a text that is no value of the type.
    void (*addText)(xml_schema::type& owner, std::string_view text);
    /// Number of objects or values in the member.
    std::size_t (*count)(const xml_schema::type& owner);
    /// An object of the member; of a member of fundamental values the owner.
    const xml_schema::type& (*at)(const xml_schema::type& owner, std::size_t index);
    /// Appends a fundamental value; nothing for an object.
    void (*format)(const xml_schema::type& owner, std::size_t index, std::string& text);
    /// Takes an object or value out of the member.
    ///
    /// \return the object, which stands in no document then; null for a fundamental value.
    xml_schema::type* (*take)(xml_schema::type& owner, std::size_t index);
    /// The container that the member is, which is also where a single fundamental value stands.
    const void* (*address)(const xml_schema::type& owner);
    /// Whether `add` replaces what is there.
    bool single;
};

/// An element or attribute that a type declares.
struct Member
{
    const char* uri;
    const char* name;
    bool isAttribute;
    bool isRequired;
    /// Text of a default or fixed attribute, else null.
    const char* defaultText;
    /// Tells the repeated particles of the type apart, in which members may alternate; 0 outside of one.
    int group;
    /// Null for a fundamental type.
    const TypeRecord* type;
    const MemberOps* ops;
};

struct TypeRecord
{
    const char* uri;
    const char* name;
    const char* label;
    const TypeRecord* base;
    const std::type_info* info;
    /// A new object with no member set.
    xml_schema::type* (*create)();
    /// Whether an object is of the type or of a class derived from it.
    bool (*isInstance)(const xml_schema::type& object);
    /// Calls the operation of a visitor; null for a type without one.
    bool (*visit)(xml_schema::type& object, CityGMLBaseVisitor& visitor);
    /// Null for a type with elements.
    const TextOps* text;
    /// Members that the type declares itself.
    const Member* members;
    std::size_t memberCount;
    /// Values of an enumeration, else null.
    const char* const* literals;
    std::size_t literalCount;
    bool isAbstract;
    bool isMixed;
};

/// A global element.
struct ElementRecord
{
    const char* uri;
    const char* name;
    /// Null for a fundamental type.
    const TypeRecord* type;
    /// Head of the element's substitution group, or null.
    const ElementRecord* head;
    bool isAbstract;
};

extern TOLVIK_BINDING_EXPORT const TypeRecord* const allTypes[];
extern TOLVIK_BINDING_EXPORT const std::size_t allTypesCount;
extern TOLVIK_BINDING_EXPORT const ElementRecord allElements[];
extern TOLVIK_BINDING_EXPORT const std::size_t allElementsCount;

/// Record of an object's dynamic type, or of the nearest base that has one. Never null: the last is
/// `xs:anyType`.
TOLVIK_BINDING_EXPORT const TypeRecord* recordOf(const xml_schema::type& object);

} // namespace binding
} // namespace citygml

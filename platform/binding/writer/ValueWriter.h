#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Makes the texts of values: as the document spelled them, while they mean the same, and where the document
/// has no value, its text, until there is one.
///
/// Every operation appends to a text, which is not escaped.
class ValueWriter
{
public:
    /// \param scope gives the prefixes of names in values
    explicit ValueWriter(const NameScope& scope) : scope(scope) {}

    /// The text of an object.
    ///
    /// \param kept of the object; may be null
    void formatText(const xml_schema::type& object, const TypeIndex& type, const KeptContent* kept,
                    std::string& text) const;
    /// An attribute that is there.
    ///
    /// \param kept of the owner; may be null
    void formatAttribute(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                         const KeptContent* kept, std::string& text) const;
    /// A value in a member of fundamental type.
    ///
    /// \param kept of the value; may be null
    void formatValue(const xml_schema::type& owner, const TypeIndex::FlatMember& member, std::size_t index,
                     const KeptContent::Value* kept, std::string& text) const;

    /// A value in a member of fundamental type, or an attribute, that is absent.
    ///
    /// \param kept of the value
    void formatAbsent(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                      const KeptContent::Value& kept, std::string& text) const;

private:
    void formatObject(const xml_schema::type& object, const TypeIndex& type, std::string_view spelling,
                      std::string& text) const;

    const NameScope& scope;
};

} // namespace binding
} // namespace citygml

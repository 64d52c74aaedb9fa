#pragma once

#include "platform/binding/Tables.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace citygml {
namespace binding {

/// Number of a qualified name that the schema knows; 0 is any other.
using NameId = std::uint32_t;

struct QualifiedName
{
    std::string uri;
    std::string name;
};

class TypeIndex;

/// Where a child element goes: the member that takes it, and its type.
struct Place
{
    /// Number of the member in TypeIndex::members(), or -1 where the type has no place for the element.
    int member = -1;
    /// Null for a fundamental type.
    const TypeIndex* type = nullptr;
    /// Whether the element or its type is abstract, so that only `xsi:type` makes an object of it.
    bool isAbstract = false;
};

/// One type, with the members of its bases.
class TypeIndex
{
public:
    struct FlatMember
    {
        const Member* member;
        NameId name;
        const TypeIndex* type;
        /// Number that tells the repeated particles of all bases apart; 0 for none.
        int group;
        /// Number of the first member that it may alternate with, else its own.
        int place;
        /// Place among the required members, or -1.
        int required;
        /// Place among the attributes with a default or fixed value, or -1.
        int defaulted;
    };

    const TypeRecord* record() const { return m_record; }
    /// Elements first, each kind in the order of the schema, those of the bases in front.
    const std::vector<FlatMember>& members() const { return m_members; }
    std::size_t elementCount() const { return m_elementCount; }
    int requiredCount() const { return m_requiredCount; }
    bool hasText() const { return m_record->text != nullptr; }
    bool isMixed() const { return m_mixed; }
    /// Whether one value of the type's text can be spelled in several ways, other than a number.
    bool hasSpellings() const { return m_hasSpellings; }
    bool isDerivedFrom(const TypeIndex* other) const;

    /// Member of an attribute, or null.
    const FlatMember* attribute(NameId name) const;

private:
    friend class SchemaIndex;

    const TypeRecord* m_record = nullptr;
    const TypeIndex* m_base = nullptr;
    std::vector<FlatMember> m_members;
    std::size_t m_elementCount = 0;
    int m_requiredCount = 0;
    bool m_mixed = false;
    bool m_hasSpellings = false;
    // By name: 0 not looked up yet, else one more than a number in m_found.
    mutable std::vector<std::uint16_t> m_places;
    mutable std::deque<Place> m_found;
};

/// Look-ups over the schema tables, made once for the process.
class SchemaIndex
{
public:
    static const SchemaIndex& instance();

    NameId nameId(std::string_view uri, std::string_view name) const;
    const QualifiedName& name(NameId id) const { return m_names[id]; }

    /// Index of an object's dynamic type.
    const TypeIndex& typeOf(const xml_schema::type& object) const;
    const TypeIndex& typeOf(const TypeRecord& record) const;
    /// The type of that name, or null; for `xsi:type`.
    const TypeIndex* findType(std::string_view uri, std::string_view name) const;

    /// Where an element with that name goes in an object of the type.
    const Place& place(const TypeIndex& type, NameId name) const;

    /// Name under which an object stands in a member of its parent, when no document gave it one.
    /// \param needsType set where the name does not tell the object's type.
    NameId elementName(const TypeIndex& parent, int member, const TypeIndex& type, bool& needsType) const;

    /// The namespaces of the tables.
    const std::vector<std::string>& namespaces() const { return m_namespaces; }

private:
    SchemaIndex();

    NameId addName(const char* uri, const char* name);
    const TypeIndex* indexType(const TypeRecord* record);
    Place findPlace(const TypeIndex& type, NameId name) const;

    std::vector<QualifiedName> m_names;
    std::unordered_map<std::string, NameId> m_nameIds;
    std::unordered_map<NameId, const ElementRecord*> m_elements;
    std::unordered_map<const TypeRecord*, std::vector<const ElementRecord*>> m_elementsOfType;
    std::deque<TypeIndex> m_types;
    std::unordered_map<const TypeRecord*, const TypeIndex*> m_typeOfRecord;
    std::unordered_map<std::string, const TypeIndex*> m_typeByName;
    std::vector<std::string> m_namespaces;
};

} // namespace binding
} // namespace citygml

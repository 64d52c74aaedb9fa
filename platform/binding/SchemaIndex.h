#pragma once

#include "platform/binding/Tables.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace citygml {
namespace binding {

/// Identifier of a qualified name that the schema knows; 0 is any other name.
using NameId = std::uint32_t;
/// Index of a member among those of a type and its bases.
using MemberIndex = std::uint16_t;

struct QualifiedName
{
    std::string uri;
    std::string name;
};

class TypeIndex;

/// Where a child element goes: the member that takes it, and its type.
struct MemberSlot
{
    /// In TypeIndex::members().
    MemberIndex member = 0;
    /// Null for a fundamental type.
    const TypeIndex* type = nullptr;
    /// Whether the element or its type is abstract, so that only `xsi:type` makes an object of it.
    bool isAbstract = false;
};

/// One type, with the members of its bases.
class TypeIndex
{
public:
    /// A member that the type or a base declares.
    struct FlatMember
    {
        const Member* declaration = nullptr;
        /// Null for a fundamental type.
        const TypeIndex* type = nullptr;
        /// The member's bit among the required ones; 0 for one that may be absent.
        std::uint64_t requiredBit = 0;
        NameId name = 0;
        /// Tells the repeated particles of all bases apart; 0 outside of one.
        int group = 0;
        /// The member's bit among the attributes with a default or fixed value; 0 for any other.
        std::uint16_t defaultBit = 0;
        /// Among all members of the type.
        MemberIndex index = 0;
        /// Index of the first member of the repeated particle, with which the member may alternate; outside
        /// of one the member's own.
        MemberIndex groupBegin = 0;
    };

    const TypeRecord* record() const { return typeRecord; }
    /// Elements first, each kind in the order of the schema, those of the bases in front.
    const std::vector<FlatMember>& members() const { return allMembers; }
    std::size_t elementCount() const { return elements; }
    /// The bits of all required members.
    std::uint64_t requiredBits() const { return required; }
    bool hasText() const { return typeRecord->text != nullptr; }
    bool isMixed() const { return mixed; }
    /// Whether one value of the type's text can be spelled in several ways, other than a number.
    bool hasSpellings() const { return spelledVariously; }
    bool isDerivedFrom(const TypeIndex* other) const;

    /// Member of an attribute, or null.
    const FlatMember* attribute(NameId name) const;

private:
    friend class SchemaIndex;

    const TypeRecord* typeRecord = nullptr;
    const TypeIndex* base = nullptr;
    std::vector<FlatMember> allMembers;
    std::size_t elements = 0;
    std::uint64_t required = 0;
    bool mixed = false;
    bool spelledVariously = false;
    // Of all types a document has few, so that a type gets its table when a document first asks for a slot.
    // Several threads may ask: the table and its entries are only ever added.
    using SlotTable = std::vector<std::atomic<const MemberSlot*>>;
    mutable std::atomic<SlotTable*> slots{nullptr};
};

/// Look-ups over the schema tables, made once for the process. Any number of threads may look up.
class SchemaIndex
{
public:
    static const SchemaIndex& instance();

    /// \return 0 for a name that no element and no attribute of the schema has.
    NameId nameId(std::string_view uri, std::string_view name) const;
    const QualifiedName& name(NameId id) const { return names[id]; }

    /// Index of an object's dynamic type.
    const TypeIndex& typeOf(const xml_schema::type& object) const;
    const TypeIndex& typeOf(const TypeRecord& record) const;
    /// The type of that name, or null; for `xsi:type`.
    const TypeIndex* findType(std::string_view uri, std::string_view name) const;

    /// Where an element with that name goes in an object of the type.
    ///
    /// \return null where the type has no member for the element.
    const MemberSlot* slotOf(const TypeIndex& type, NameId name) const;

    /// Name under which an object stands in a member of its parent, when no document gave it one.
    ///
    /// \param[out] needsType set where the name does not tell the object's type
    NameId elementName(const TypeIndex& parent, MemberIndex member, const TypeIndex& type,
                       bool& needsType) const;

    /// The namespaces of the tables.
    const std::vector<std::string>& namespaces() const { return uris; }

private:
    SchemaIndex();

    NameId addName(const char* uri, const char* name);
    const TypeIndex* indexType(const TypeRecord* record);
    /// Gives a type the members of its bases and its own.
    void joinMembers(TypeIndex& type);
    /// Finds the groups of a type's members, and gives each required and each defaulted one its bit.
    static void numberMembers(TypeIndex& type);
    const MemberSlot* addSlot(const TypeIndex& type, NameId name) const;
    std::optional<MemberSlot> findSlot(const TypeIndex& type, NameId name) const;

    std::vector<QualifiedName> names;
    std::unordered_map<std::string, NameId> nameIds;
    std::unordered_map<NameId, const ElementRecord*> elements;
    std::unordered_map<const TypeRecord*, std::vector<const ElementRecord*>> elementsOfType;
    std::deque<TypeIndex> types;
    std::unordered_map<const TypeRecord*, const TypeIndex*> typeOfRecord;
    std::unordered_map<std::string, const TypeIndex*> typeByName;
    std::vector<std::string> uris;

    // What addSlot() has made.
    mutable std::mutex slotsMutex;
    mutable std::deque<TypeIndex::SlotTable> slotTables;
    mutable std::deque<MemberSlot> foundSlots;
};

} // namespace binding
} // namespace citygml

#pragma once

#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <string>
#include <unordered_map>

namespace citygml {
namespace binding {

class NamespaceDeclarations;

/// The names under which objects, values and attributes are written, each made up once.
class ElementNames
{
public:
    /// Name of an element, ready to be written.
    struct Tag
    {
        std::string name;
        /// The type that `xsi:type` must tell, since the name does not; null where that is not needed.
        const TypeIndex* typeToTell = nullptr;
    };

    ElementNames(const SchemaIndex& index, const NamespaceDeclarations& namespaces);

    /// The tag of an object in a member of its parent: as a document held it, where that still fits.
    ///
    /// \param type of the object
    const Tag& ofObject(const TypeIndex& parent, MemberIndex member, const xml_schema::type& object,
                        const TypeIndex& type);
    /// The tag of a value of fundamental type.
    const std::string& ofValue(const TypeIndex::FlatMember& member);
    const std::string& ofAttribute(const TypeIndex::FlatMember& member);

private:
    struct Key
    {
        const TypeIndex* parent;
        const TypeIndex* type;
        NameId kept;
        MemberIndex member;

        bool operator==(const Key& other) const
        {
            return parent == other.parent && type == other.type && kept == other.kept &&
                   member == other.member;
        }
    };
    struct Hash
    {
        std::size_t operator()(const Key& key) const;
    };

    Tag makeTag(const Key& key) const;

    const SchemaIndex& index;
    const NamespaceDeclarations& namespaces;
    std::unordered_map<Key, Tag, Hash> objects;
    std::unordered_map<NameId, std::string> values;
    std::unordered_map<NameId, std::string> attributes;
};

} // namespace binding
} // namespace citygml

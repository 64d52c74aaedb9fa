#include "platform/binding/writer/ElementNames.h"

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/writer/NamespaceDeclarations.h"
#include "platform/binding/xml/PrefixedName.h"

namespace citygml {
namespace binding {

ElementNames::ElementNames(const SchemaIndex& index, const NamespaceDeclarations& namespaces)
    : index(index), namespaces(namespaces)
{
}

std::size_t ElementNames::Hash::operator()(const Key& key) const
{
    std::size_t hash = reinterpret_cast<std::size_t>(key.parent);
    hash = hash * 31 + reinterpret_cast<std::size_t>(key.type);
    hash = hash * 31 + key.kept;
    return hash * 31 + key.member;
}

const ElementNames::Tag& ElementNames::ofObject(const TypeIndex& parent, MemberIndex member,
                                                const xml_schema::type& object, const TypeIndex& type)
{
    const Key key{&parent, &type, KeptContent::elementName(object), member};
    Tag& tag = objects[key];
    if (tag.name.empty()) {
        tag = makeTag(key);
    }
    return tag;
}

ElementNames::Tag ElementNames::makeTag(const Key& key) const
{
    bool needsType = false;
    NameId id = key.kept;
    const MemberSlot* const slot = id != 0 ? index.slotOf(*key.parent, id) : nullptr;
    const bool fits = slot != nullptr && slot->member == key.member && slot->type != nullptr &&
                      key.type->isDerivedFrom(slot->type);
    if (fits) {
        needsType = slot->type != key.type;
    } else {
        id = index.elementName(*key.parent, key.member, *key.type, needsType);
    }
    const QualifiedName& name = index.name(id);
    return {namespaces.elementName(name.uri, name.name), needsType ? key.type : nullptr};
}

const std::string& ElementNames::ofValue(const TypeIndex::FlatMember& member)
{
    std::string& tag = values[member.name];
    if (tag.empty()) {
        const QualifiedName& name = index.name(member.name);
        tag = namespaces.elementName(name.uri, name.name);
    }
    return tag;
}

const std::string& ElementNames::ofAttribute(const TypeIndex::FlatMember& member)
{
    std::string& attribute = attributes[member.name];
    if (attribute.empty()) {
        const QualifiedName& name = index.name(member.name);
        const bool isQualified = !name.uri.empty();
        attribute = isQualified ? prefixedName(namespaces.attributePrefixOf(name.uri), name.name) : name.name;
    }
    return attribute;
}

} // namespace binding
} // namespace citygml

#include "platform/binding/reader/IdentifierRenaming.h"

#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"

namespace citygml {
namespace binding {

namespace {

bool isOlderCore(std::string_view uri)
{
    return uri == std::string(cityGmlStem).append(olderCityGmlVersion);
}

} // namespace

IdentifierScan::IdentifierScan(NamespaceScopes& scopes)
    : scopes(scopes), names(SchemaIndex::instance(), scopes), links(SchemaIndex::instance())
{
}

void IdentifierScan::startElement(const char* name, const XmlAttributes& attributes)
{
    if (depth == 0 && isOlderCore(scopes.namespaceOf(PrefixedName(name).prefix))) {
        scopes.readOlderVersion();
    }
    ++depth;
    ++elementCount;
    if (depth == 2) {
        ++memberCount;
    }
    const NameId element = names.elementId(name);
    for (const XmlAttribute attribute : attributes) {
        if (attribute.isDeclaration()) {
            continue;
        }
        const NameId id = names.attributeId(attribute.name);
        if (links.isIdentifier(element, id)) {
            enter(collapsed(attribute.value));
        } else if (links.isReference(element, id)) {
            noteTarget(attribute.value);
        }
    }
    text.clear();
    isReference = links.isReference(element);
}

void IdentifierScan::enter(const std::string& identifier)
{
    if (!identifiers.emplace(identifier, memberCount).second) {
        twice.push_back({elementCount, memberCount, identifier});
    }
}

void IdentifierScan::noteTarget(std::string_view reference)
{
    if (std::optional<std::string> target = LocalLinks::targetOf(reference)) {
        targets.insert(std::move(*target));
    }
}

void IdentifierScan::endElement(const char*)
{
    if (isReference) {
        noteTarget(text);
        isReference = false;
    }
    --depth;
}

void IdentifierScan::characters(std::string_view characters)
{
    if (isReference) {
        text += characters;
    }
}

IdentifierRenaming IdentifierScan::take()
{
    IdentifierRenaming renaming;
    for (const Later& later : twice) {
        const std::string name = freeName(later.identifier);
        renaming.ofElements.emplace(later.element, name);
        if (identifiers.at(later.identifier) != later.member) {
            renaming.ofReferences.emplace(std::make_pair(later.member, later.identifier), name);
        }
    }
    return renaming;
}

/// A name that no element has and nothing refers to; it is taken from then on.
std::string IdentifierScan::freeName(const std::string& identifier)
{
    std::size_t& number = numbers[identifier];
    for (;;) {
        number = number == 0 ? 2 : number + 1;
        std::string name = identifier + '-' + std::to_string(number);
        if (targets.count(name) == 0 && identifiers.emplace(name, 0).second) {
            return name;
        }
    }
}

} // namespace binding
} // namespace citygml

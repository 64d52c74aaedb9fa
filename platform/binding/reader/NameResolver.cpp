#include "platform/binding/reader/NameResolver.h"

#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/xml/PrefixedName.h"

namespace citygml {
namespace binding {

NameResolver::NameResolver(const SchemaIndex& index, const NamespaceScopes& scopes)
    : index(index), scopes(scopes)
{
}

template <typename Resolve>
NameId NameResolver::find(Cache& cache, const char* name, Resolve resolve)
{
    std::uint32_t hash = 2166136261u;
    const char* end = name;
    for (; *end != 0; ++end) {
        hash = (hash ^ static_cast<unsigned char>(*end)) * 16777619u;
    }
    Entry& entry = cache[(hash ^ hash >> 15) % cache.size()];
    const std::string_view text(name, static_cast<std::size_t>(end - name));
    if (entry.revision != scopes.revision() || entry.name != text) {
        const PrefixedName parts(text);
        if (!parts.isWellFormed()) {
            throw ValueError{"'" + std::string(text) + "' is not a qualified name"};
        }
        entry.id = resolve(parts);
        entry.name = text;
        entry.revision = scopes.revision();
    }
    return entry.id;
}

NameId NameResolver::elementId(const char* name)
{
    return find(elements, name, [this](const PrefixedName& parts) {
        return index.nameId(scopes.namespaceOf(parts.prefix), parts.local);
    });
}

NameId NameResolver::attributeId(const char* name)
{
    return find(attributes, name, [this](const PrefixedName& parts) {
        const std::string uri = parts.prefix.empty() ? std::string() : scopes.namespaceOf(parts.prefix);
        return index.nameId(uri, parts.local);
    });
}

std::string NameResolver::textOf(NameId id) const
{
    const QualifiedName& name = index.name(id);
    return prefixedName(scopes.prefixOf(name.uri), name.name);
}

} // namespace binding
} // namespace citygml

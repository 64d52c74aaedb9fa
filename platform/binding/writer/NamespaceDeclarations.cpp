#include "platform/binding/writer/NamespaceDeclarations.h"

#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"

namespace citygml {
namespace binding {

namespace {

/// \return an empty string where there is none.
std::string valueOf(const std::map<std::string, std::string>& map, const std::string& key)
{
    const auto found = map.find(key);
    return found != map.end() ? found->second : std::string();
}

} // namespace

NamespaceDeclarations::NamespaceDeclarations()
    : uriByPrefix{{"xml", xmlUri}}, prefixByUri{{xmlUri, "xml"}}, attributePrefixByUri{{xmlUri, "xml"}}
{
}

void NamespaceDeclarations::keep(const std::string& prefix, const std::string& uri)
{
    if (uriByPrefix.emplace(prefix, uri).second) {
        add(prefix, uri);
    }
}

void NamespaceDeclarations::provide(const std::string& prefix, const std::string& uri)
{
    if (!uri.empty() && attributePrefixByUri.count(uri) == 0) {
        add(reserve(prefix, uri), uri);
    }
}

const std::string& NamespaceDeclarations::localPrefix(const std::string& wanted, const std::string& uri)
{
    std::string& prefix = localPrefixByUri[uri];
    if (prefix.empty()) {
        prefix = reserve(wanted, uri);
    }
    return prefix;
}

bool NamespaceDeclarations::rootMeans(std::string_view prefix, std::string_view uri) const
{
    for (const Declaration& declaration : root) {
        if (declaration.first == prefix) {
            return declaration.second == uri;
        }
    }
    return prefix.empty() ? uri.empty() : prefix == "xml" && uri == xmlUri;
}

bool NamespaceDeclarations::means(std::string_view prefix, std::string_view uri) const
{
    for (auto i = local.rbegin(); i != local.rend(); ++i) {
        if (i->first == prefix) {
            return i->second == uri;
        }
    }
    return rootMeans(prefix, uri);
}

std::string NamespaceDeclarations::prefixOf(const std::string& uri) const
{
    return valueOf(prefixByUri, uri);
}

std::string NamespaceDeclarations::attributePrefixOf(const std::string& uri) const
{
    return valueOf(attributePrefixByUri, uri);
}

std::string NamespaceDeclarations::namespaceOf(std::string_view prefix) const
{
    return valueOf(uriByPrefix, std::string(prefix));
}

std::string NamespaceDeclarations::elementName(const std::string& uri, const std::string& name) const
{
    return prefixedName(uri.empty() ? std::string() : prefixOf(uri), name);
}

/// Takes a prefix for a namespace: the wanted one, or one like it.
std::string NamespaceDeclarations::reserve(const std::string& wanted, const std::string& uri)
{
    const std::string stem = wanted.empty() ? "ns" : wanted;
    std::string prefix = stem;
    for (int i = 1; !uriByPrefix.emplace(prefix, uri).second; ++i) {
        prefix = stem + std::to_string(i);
    }
    return prefix;
}

void NamespaceDeclarations::add(const std::string& prefix, const std::string& uri)
{
    root.emplace_back(prefix, uri);
    prefixByUri.emplace(uri, prefix);
    if (!prefix.empty()) {
        attributePrefixByUri.emplace(uri, prefix);
    }
}

} // namespace binding
} // namespace citygml

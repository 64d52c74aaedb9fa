#include "platform/binding/reader/NamespaceScopes.h"

#include "platform/binding/SchemaIndex.h"
#include "platform/binding/xml/Namespaces.h"

#include <algorithm>

namespace citygml {
namespace binding {

namespace {

// Prefixes are looked up one by one, so that a document of many would take for ever.
constexpr std::size_t mostDeclarations = 1000;

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

} // namespace

NamespaceScopes::NamespaceScopes(const SchemaIndex& index) : index(index)
{
    const Uri uri = std::make_shared<const std::string>(xmlUri);
    inScope.push_back({"xml", uri, uri, 0});
}

void NamespaceScopes::declare(std::string_view prefix, std::string_view uri, std::size_t depth)
{
    if (prefix == "xmlns" || (prefix == "xml") != (uri == xmlUri) || (!prefix.empty() && uri.empty()) ||
        prefix.find(':') != std::string_view::npos) {
        throw ValueError{"the prefix '" + std::string(prefix) + "' cannot stand for the namespace '" +
                         std::string(uri) + '\''};
    }
    if (inScope.size() > mostDeclarations) {
        throw ValueError{"more than " + std::to_string(mostDeclarations) +
                         " namespace declarations are in scope"};
    }
    const Uri declaredUri = std::make_shared<const std::string>(uri);
    inScope.push_back({std::string(prefix), meaningOf(declaredUri), declaredUri, depth});
    ++changes;
}

void NamespaceScopes::leave(std::size_t depth)
{
    while (inScope.back().depth > depth) {
        inScope.pop_back();
        ++changes;
    }
    while (recorded.back().count > inScope.size()) {
        recorded.pop_back();
    }
}

void NamespaceScopes::readOlderVersion()
{
    isOlder = true;
    for (Declaration& declaration : inScope) {
        declaration.uri = meaningOf(declaration.declaredUri);
    }
    ++changes;
}

std::shared_ptr<const KeptContent::Scope> NamespaceScopes::around(std::size_t depth)
{
    std::size_t count = inScope.size();
    while (inScope[count - 1].depth >= depth && count > 1) {
        --count;
    }
    if (recorded.back().count < count) {
        auto scope = std::make_shared<KeptContent::Scope>();
        for (std::size_t i = recorded.back().count; i < count; ++i) {
            scope->declarations.emplace_back(inScope[i].prefix, inScope[i].declaredUri);
        }
        scope->outer = recorded.back().scope;
        recorded.push_back({count, std::move(scope)});
    }
    return recorded.back().scope;
}

const NamespaceScopes::Declaration* NamespaceScopes::find(std::string_view prefix) const
{
    for (auto i = inScope.rbegin(); i != inScope.rend(); ++i) {
        if (i->prefix == prefix) {
            return &*i;
        }
    }
    return nullptr;
}

const NamespaceScopes::Declaration& NamespaceScopes::require(std::string_view prefix) const
{
    const Declaration* const declaration = find(prefix);
    if (declaration == nullptr) {
        throw ValueError{"the prefix '" + std::string(prefix) + "' is not bound to a namespace"};
    }
    return *declaration;
}

std::string NamespaceScopes::namespaceOf(std::string_view prefix) const
{
    if (prefix.empty() && find(prefix) == nullptr) {
        return std::string();
    }
    return *require(prefix).uri;
}

std::string NamespaceScopes::prefixOf(const std::string& uri) const
{
    for (auto i = inScope.rbegin(); i != inScope.rend(); ++i) {
        if (*i->uri == uri && find(i->prefix) == &*i) {
            return i->prefix;
        }
    }
    return std::string();
}

NamespaceScopes::Uri NamespaceScopes::newer(const Uri& uri) const
{
    const std::string_view text = *uri;
    if (!startsWith(text, cityGmlStem) || !endsWith(text, olderCityGmlVersion)) {
        return uri;
    }
    const std::string result =
        std::string(text.substr(0, text.size() - olderCityGmlVersion.size())).append(cityGmlVersion);
    const auto& known = index.namespaces();
    const bool isKnown =
        std::find(known.begin(), known.end(), result) != known.end() || startsWith(text, cityGmlProfiles);
    return isKnown ? std::make_shared<const std::string>(result) : uri;
}

} // namespace binding
} // namespace citygml

#pragma once

#include "platform/binding/SchemaIndex.h"

#include <array>
#include <cstdint>
#include <string>

namespace citygml {
namespace binding {

class NamespaceScopes;
struct PrefixedName;

/// Finds the schema's identifiers of the names in a document, by the namespaces in scope.
///
/// A document has few names and uses them over and over, so those met last are remembered, and each is
/// resolved once for every change of the scopes.
class NameResolver
{
public:
    NameResolver(const SchemaIndex& index, const NamespaceScopes& scopes);

    /// \return 0 for a name that the schema does not know.
    /// \throws ValueError for a text that is no qualified name, and for a prefix that is not bound.
    NameId elementId(const char* name);
    /// The same for an attribute, which without a prefix is in no namespace.
    NameId attributeId(const char* name);

    /// The name of the schema with the prefix that it has here, for messages.
    std::string textOf(NameId id) const;

private:
    struct Entry
    {
        std::string name;
        NameId id = 0;
        std::uint32_t revision = 0;
    };
    using Cache = std::array<Entry, 1024>;

    template <typename Resolve>
    NameId find(Cache& cache, const char* name, Resolve resolve);

    const SchemaIndex& index;
    const NamespaceScopes& scopes;
    Cache elements;
    Cache attributes;
};

} // namespace binding
} // namespace citygml

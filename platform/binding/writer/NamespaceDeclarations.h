#pragma once

#include "platform/binding/Tables.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// The namespaces that a written document declares: those of the root, which hold for everything in it, and
/// those that single open elements add.
class NamespaceDeclarations : public NameScope
{
public:
    /// Prefix and namespace.
    using Declaration = std::pair<std::string, std::string>;

    NamespaceDeclarations();

    /// Declares a prefix on the root as the document did that was read.
    void keep(const std::string& prefix, const std::string& uri);
    /// Sees to it that elements and attributes can stand in the namespace, with the prefix if nobody has it.
    void provide(const std::string& prefix, const std::string& uri);
    /// Those of the root.
    const std::vector<Declaration>& ofRoot() const { return root; }

    /// Declares a prefix on the element whose start tag is being written.
    void declareLocally(const std::string& prefix, const std::string& uri)
    {
        local.emplace_back(prefix, uri);
    }
    /// Number of declarations besides the root's; to be given to endLocal() at the end of an element.
    std::size_t localCount() const { return local.size(); }
    void endLocal(std::size_t count) { local.resize(count); }
    /// A prefix that nothing else uses, for a namespace that only single elements declare.
    const std::string& localPrefix(const std::string& wanted, const std::string& uri);

    /// Whether the root gives the prefix that meaning; the empty prefix may mean no namespace.
    bool rootMeans(std::string_view prefix, std::string_view uri) const;
    /// Whether the prefix has that meaning in the open element.
    bool means(std::string_view prefix, std::string_view uri) const;

    /// Prefix of elements of the namespace; empty for the default namespace.
    std::string prefixOf(const std::string& uri) const override;
    /// Prefix of attributes of the namespace, for which there is no default; empty where none is declared.
    std::string attributePrefixOf(const std::string& uri) const;
    std::string namespaceOf(std::string_view prefix) const override;
    /// Name of an element or of a type as it is written.
    std::string elementName(const std::string& uri, const std::string& name) const;

private:
    std::string reserve(const std::string& wanted, const std::string& uri);
    void add(const std::string& prefix, const std::string& uri);

    std::vector<Declaration> root;
    std::vector<Declaration> local;
    std::map<std::string, std::string> uriByPrefix;
    std::map<std::string, std::string> prefixByUri;
    std::map<std::string, std::string> attributePrefixByUri;
    std::map<std::string, std::string> localPrefixByUri;
};

} // namespace binding
} // namespace citygml

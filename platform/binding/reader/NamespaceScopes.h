#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/Tables.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

class SchemaIndex;

/// The namespaces in scope at one place of a document.
///
/// It follows the parser: an element's declarations go in with the element's depth, and out when the element
/// ends. In a document of the older version of CityGML a prefix means the namespace of today's version, while
/// what the document itself declares is remembered beside it.
class NamespaceScopes : public NameScope
{
public:
    using Uri = std::shared_ptr<const std::string>;

    struct Declaration
    {
        std::string prefix;
        /// What the prefix means to the reader.
        Uri uri;
        /// What the document says that it means.
        Uri declaredUri;
        /// Depth of the element that declares it; 1 for the root.
        std::size_t depth;
    };

    explicit NamespaceScopes(const SchemaIndex& index);

    /// \throws ValueError for a declaration that XML forbids, and for one too many.
    void declare(std::string_view prefix, std::string_view uri, std::size_t depth);
    /// Ends the scopes of the elements below a depth.
    void leave(std::size_t depth);
    /// Reads the namespaces of the older version as those of today, the ones in scope included.
    void readOlderVersion();

    /// Changes with every change of the scopes.
    std::uint32_t revision() const { return changes; }
    /// Those in scope, the innermost last, and also what they hide.
    const std::vector<Declaration>& declarations() const { return inScope; }
    /// What the document declares around an element of that depth, to be kept with a copy of the element.
    std::shared_ptr<const KeptContent::Scope> around(std::size_t depth);

    /// \return null for a prefix that is not bound, and for the empty one where there is no default
    /// namespace.
    const Declaration* find(std::string_view prefix) const;
    /// \throws ValueError for a prefix that is not bound.
    const Declaration& require(std::string_view prefix) const;

    std::string namespaceOf(std::string_view prefix) const override;
    std::string prefixOf(const std::string& uri) const override;

    /// The namespace of today's version in place of one of the older version, else the same.
    Uri newer(const Uri& uri) const;

private:
    /// What was made to be kept of the first so many declarations.
    struct Recorded
    {
        std::size_t count;
        std::shared_ptr<const KeptContent::Scope> scope;
    };

    Uri meaningOf(const Uri& declaredUri) const { return isOlder ? newer(declaredUri) : declaredUri; }

    const SchemaIndex& index;
    std::vector<Declaration> inScope;
    std::vector<Recorded> recorded{{1, nullptr}};
    bool isOlder = false;
    std::uint32_t changes = 1;
};

} // namespace binding
} // namespace citygml

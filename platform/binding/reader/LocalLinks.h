#pragma once

#include "platform/binding/SchemaIndex.h"

#include <optional>
#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Tells by their names which attributes and texts of a document are identifiers, and which refer to one.
class LocalLinks
{
public:
    explicit LocalLinks(const SchemaIndex& index);

    /// Whether an attribute is its element's identifier.
    bool isIdentifier(NameId element, NameId attribute) const;
    /// Whether an attribute may refer to an identifier.
    bool isReference(NameId element, NameId attribute) const;
    /// Whether the text of an element may refer to an identifier.
    bool isReference(NameId element) const { return element == target; }

    /// The identifier that a reference within the document refers to.
    ///
    /// \return nothing for a reference to somewhere else, and for one that is more than a `#` and a name.
    static std::optional<std::string> targetOf(std::string_view reference);

private:
    const SchemaIndex& index;
    const NameId gmlId;
    const NameId plainId;
    const NameId href;
    const NameId target;
    const NameId targetUri;
    const NameId textureCoordinates;
    const NameId ring;
};

} // namespace binding
} // namespace citygml

#pragma once

#include "BindingExport.h"

#include <string>
#include <vector>

namespace gml {
class AbstractFeatureType;
}

namespace citygml {

/// An `xlink:href` of a document.
struct Reference
{
    /// Local name of the element that has it, such as `groupMember`; lives as long as the program.
    const std::string* member = nullptr;
    /// As the document says it; `#` and an identifier for something in the same document.
    std::string target;
};

/// The references of a feature and of the objects inside it, but not of the features below it, in the order
/// of the schema.
TOLVIK_BINDING_EXPORT std::vector<Reference> referencesOf(const gml::AbstractFeatureType& feature);

} // namespace citygml

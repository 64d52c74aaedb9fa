#pragma once

#include "xml-schema.hxx"

#include <vector>

namespace citygml {
namespace binding {

/// Registers identifiers that have their text, but were not registered when they got it.
///
/// \param root of the document that they stand in
/// \return false where one of them is in use; then none is registered
bool registerAll(const std::vector<xml_schema::id*>& identifiers, xml_schema::type& root);

} // namespace binding
} // namespace citygml

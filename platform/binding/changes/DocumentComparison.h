#pragma once

#include "platform/binding/changes/OutlineMerge.h"
#include "platform/binding/writer/DocumentWriter.h"

#include <optional>
#include <string>
#include <vector>

namespace citygml {
namespace binding {

/// Finds out how the bytes of a document have to change to say what an edited document says, and makes sure
/// that they do.
///
/// \param after what textForComparison() makes of the edited document
/// \return in order; nothing where that cannot be told
std::optional<std::vector<ByteEdit>> editsBetween(const std::string& bytes, const std::string& after,
                                                  const NamespaceMap& prefixes);

} // namespace binding
} // namespace citygml

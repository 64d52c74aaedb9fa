#pragma once

#include <string>

namespace citygml {
namespace binding {

/// A text for a message, with an ellipsis in place of what is too long.
///
/// \param longest in bytes; no character is cut
std::string shortened(const std::string& text, std::size_t longest);

} // namespace binding
} // namespace citygml

#pragma once

#include <cstddef>
#include <string_view>

namespace citygml {
namespace binding {

/// Where the next start tag begins, behind text, comments, instructions and CDATA sections. There is one.
std::size_t elementBegin(std::string_view bytes, std::size_t at);

/// The name in a start tag, prefix included.
///
/// \param begin of the tag
std::string_view tagNameAt(std::string_view bytes, std::size_t begin);

} // namespace binding
} // namespace citygml

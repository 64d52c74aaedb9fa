#pragma once

#include <string_view>

namespace citygml {
namespace binding {

/// Finds the characters of an encoding that the parser does not know itself; it knows UTF-8, UTF-16,
/// ISO-8859-1 and US-ASCII.
///
/// \param[out] map of 256 elements: the character of each byte, -1 for a byte that is none
/// \return false for an encoding that Qt does not know either, and for one of several bytes a character.
bool mapSingleByteEncoding(const char* name, int* map);

/// Whether a document is in UTF-8, or in US-ASCII, which is a part of that.
///
/// \param head the document, at least to the start tag of the root
bool isUtf8(std::string_view head);

} // namespace binding
} // namespace citygml

#pragma once

namespace citygml {
namespace binding {

/// Finds the characters of an encoding that the parser does not know itself; it knows UTF-8, UTF-16,
/// ISO-8859-1 and US-ASCII.
///
/// \param[out] map of 256 elements: the character of each byte, -1 for a byte that is none
/// \return false for an encoding that Qt does not know either, and for one of several bytes a character.
bool mapSingleByteEncoding(const char* name, int* map);

} // namespace binding
} // namespace citygml

#pragma once

#include "PlatformExport.h"

extern "C" {

/// Writes a new globally unique identifier in compressed text form: 22 characters and the end of the text.
/// The text is a valid XML NCName, so that it can stand as a gml:id.
/// \param buffer takes the text
/// \param size   characters that the buffer has room for; with fewer than 23 the text is empty, since a part
/// of an identifier is not unique
/// \return the buffer
TOLVIK_PLATFORM_EXPORT char* CreateCompressedGuidString(char* buffer, int size);
}

#pragma once

#include "fondo/String.h"
#include "PlatformExport.h"

#include <QString>

namespace tolvik {

/// The text of a Fondo::String for Qt.
TOLVIK_PLATFORM_EXPORT QString toQString(const Fondo::String& text);

} // namespace tolvik

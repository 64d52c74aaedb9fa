#pragma once

#include "fondo/String.h"

#include <QString>

namespace tolvik {

inline QString toQString(const Fondo::String& text)
{
    return QString::fromStdWString(text);
}

} // namespace tolvik

#include "framework/TextConversion.h"

namespace tolvik {

QString toQString(const Fondo::String& text)
{
    return QString::fromStdWString(text);
}

} // namespace tolvik

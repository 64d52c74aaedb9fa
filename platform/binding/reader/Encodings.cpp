#include "platform/binding/reader/Encodings.h"

#include <QTextCodec>

namespace citygml {
namespace binding {

bool mapSingleByteEncoding(const char* name, int* map)
{
    QTextCodec* const codec = QTextCodec::codecForName(name);
    if (codec == nullptr) {
        return false;
    }
    for (int i = 0; i < 256; ++i) {
        const char byte = static_cast<char>(i);
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QString text = codec->toUnicode(&byte, 1, &state);
        const bool isCharacter = text.size() == 1 && state.invalidChars == 0 && state.remainingChars == 0;
        map[i] = isCharacter ? text.at(0).unicode() : -1;
        // In an encoding of several bytes some bytes are no character of their own.
        if (state.remainingChars != 0) {
            return false;
        }
    }
    return true;
}

} // namespace binding
} // namespace citygml

#include "platform/binding/reader/Encodings.h"

#include <QByteArray>
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

bool isUtf8(std::string_view head)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (head.substr(0, mark.size()) == mark) {
        head.remove_prefix(mark.size());
    }
    // A text in UTF-16 begins with a mark, or has a null beside its first character.
    if (head.substr(0, 1) != "<" || head.substr(0, 2).find('\0') != std::string_view::npos) {
        return false;
    }
    const std::string_view declaration = head.substr(0, head.find("?>"));
    const std::size_t name = declaration.find("encoding");
    if (declaration.substr(0, 5) != "<?xml" || name == std::string_view::npos) {
        return true;
    }
    const std::size_t begin = declaration.find_first_of("\"'", name);
    if (begin == std::string_view::npos) {
        return false;
    }
    const std::size_t end = declaration.find(declaration[begin], begin + 1);
    const std::string_view value = declaration.substr(begin + 1, end - begin - 1);
    const QByteArray encoding = QByteArray(value.data(), static_cast<int>(value.size())).toUpper();
    return encoding == "UTF-8" || encoding == "US-ASCII";
}

} // namespace binding
} // namespace citygml

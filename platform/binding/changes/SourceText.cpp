#include "platform/binding/changes/SourceText.h"

#include "platform/binding/reader/Encodings.h"
#include "platform/binding/values/WhiteSpace.h"

#include <algorithm>

namespace citygml {
namespace binding {

namespace {

constexpr char32_t lastOfPlane = 0xFFFF;

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

std::string upper(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return result;
}

/// The encoding that a document in a superset of ASCII declares; empty where it declares none.
std::string declaredEncoding(std::string_view text)
{
    const std::string_view declaration = text.substr(0, text.find("?>"));
    const std::size_t name = declaration.find("encoding");
    const std::size_t begin = startsWith(declaration, "<?xml") && name != std::string_view::npos
                                  ? declaration.find_first_of("\"'", name)
                                  : std::string_view::npos;
    if (begin == std::string_view::npos) {
        return std::string();
    }
    return std::string(
        declaration.substr(begin + 1, declaration.find(declaration[begin], begin + 1) - begin - 1));
}

/// Takes the next character off well-formed UTF-8.
char32_t takeCharacter(std::string_view& utf8)
{
    const auto first = static_cast<unsigned char>(utf8.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t character = length == 1 ? first : first & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < std::min(length, utf8.size()); ++i) {
        character = character << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3Fu);
    }
    utf8.remove_prefix(std::min(length, utf8.size()));
    return character;
}

void appendUnit(char32_t unit, bool isLittle, std::string& target)
{
    const char low = static_cast<char>(unit & 0xFF);
    const char high = static_cast<char>(unit >> 8 & 0xFF);
    target += isLittle ? low : high;
    target += isLittle ? high : low;
}

} // namespace

SourceText::SourceText(std::string_view bytes) : text(bytes)
{
    detect();
}

void SourceText::detect()
{
    using namespace std::literals;
    if (startsWith(text, "\xFF\xFE"sv) || startsWith(text, "<\0"sv)) {
        encoding = Encoding::Utf16Little;
    } else if (startsWith(text, "\xFE\xFF"sv) || startsWith(text, "\0<"sv)) {
        encoding = Encoding::Utf16Big;
    } else {
        // What a document declares counts, even behind the byte order mark of UTF-8.
        constexpr std::string_view mark = "\xEF\xBB\xBF";
        setSingleByte(upper(declaredEncoding(startsWith(text, mark) ? text.substr(mark.size()) : text)));
    }
}

void SourceText::setSingleByte(const std::string& name)
{
    if (name.empty() || name == "UTF-8") {
        return;
    }
    encoding = Encoding::SingleByte;
    if (name != "US-ASCII" && name != "ISO-8859-1" &&
        mapSingleByteEncoding(name.c_str(), characters.data())) {
        return;
    }
    for (std::size_t i = 0; i < characters.size(); ++i) {
        characters[i] = i < 0x80 || name != "US-ASCII" ? static_cast<int>(i) : -1;
    }
}

char SourceText::at(std::size_t byte) const
{
    if (byte + unit() > text.size()) {
        return 0;
    }
    if (unit() == 1) {
        const char c = text[byte];
        return static_cast<unsigned char>(c) < 0x80 ? c : '\0';
    }
    const bool isLittle = encoding == Encoding::Utf16Little;
    const char high = text[byte + (isLittle ? 1 : 0)];
    const char low = text[byte + (isLittle ? 0 : 1)];
    return high == 0 && static_cast<unsigned char>(low) < 0x80 ? low : '\0';
}

bool SourceText::isSpaceAt(std::size_t byte) const
{
    return isSpace(at(byte));
}

std::string SourceText::ascii(std::size_t begin, std::size_t end) const
{
    std::string result;
    for (; begin < end; begin += unit()) {
        result += at(begin);
    }
    return result;
}

bool SourceText::append(std::string_view utf8, std::string& target) const
{
    if (encoding == Encoding::Utf8) {
        target += utf8;
        return true;
    }
    bool hasAll = true;
    while (!utf8.empty()) {
        const char32_t character = takeCharacter(utf8);
        if (!appendCharacter(character, target)) {
            hasAll = false;
            for (const char c : "&#" + std::to_string(static_cast<unsigned long>(character)) + ';') {
                appendCharacter(static_cast<char32_t>(c), target);
            }
        }
    }
    return hasAll;
}

bool SourceText::appendCharacter(char32_t character, std::string& target) const
{
    if (encoding == Encoding::SingleByte) {
        const auto found = std::find(characters.begin(), characters.end(), static_cast<int>(character));
        if (found == characters.end()) {
            return false;
        }
        target += static_cast<char>(found - characters.begin());
        return true;
    }
    const bool isLittle = encoding == Encoding::Utf16Little;
    if (character > lastOfPlane) {
        const char32_t rest = character - 0x10000;
        appendUnit(0xD800 + (rest >> 10), isLittle, target);
        appendUnit(0xDC00 + (rest & 0x3FF), isLittle, target);
    } else {
        appendUnit(character, isLittle, target);
    }
    return true;
}

} // namespace binding
} // namespace citygml

#include "platform/binding/xml/XmlText.h"

#include <array>
#include <cstdint>

namespace citygml {
namespace binding {

namespace {

enum Class : std::uint8_t { Plain, Markup, Invalid, Multibyte };

constexpr std::array<std::uint8_t, 256> classes(bool attribute)
{
    std::array<std::uint8_t, 256> table{};
    for (unsigned c = 0; c < 0x20; ++c) {
        table[c] = Invalid;
    }
    table['\t'] = table['\n'] = attribute ? Markup : Plain;
    table['\r'] = table['&'] = table['<'] = table['>'] = Markup;
    table['"'] = attribute ? Markup : Plain;
    for (unsigned c = 0x80; c < 0x100; ++c) {
        table[c] = Multibyte;
    }
    return table;
}

constexpr auto contentClasses = classes(false);
constexpr auto attributeClasses = classes(true);

const char* entityOf(char c)
{
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\t':
        return "&#9;";
    case '\n':
        return "&#10;";
    default:
        return "&#13;";
    }
}

/// Length of the character at the front, 0 where it is no UTF-8 or no character of XML.
std::size_t multibyteLength(std::string_view text)
{
    const auto byte = [&text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u;
    };
    const auto continues = [&byte](std::size_t i) { return (byte(i) & 0xC0u) == 0x80u; };
    const unsigned first = byte(0);
    if (first >= 0xC2 && first < 0xE0) {
        return continues(1) ? 2 : 0;
    }
    if (first >= 0xE0 && first < 0xF0) {
        const unsigned code = (first & 0x0Fu) << 12 | (byte(1) & 0x3Fu) << 6 | (byte(2) & 0x3Fu);
        const bool isSurrogate = code >= 0xD800 && code < 0xE000;
        return continues(1) && continues(2) && code >= 0x800 && !isSurrogate && code < 0xFFFE ? 3 : 0;
    }
    if (first >= 0xF0 && first < 0xF5) {
        const unsigned code =
            (first & 0x07u) << 18 | (byte(1) & 0x3Fu) << 12 | (byte(2) & 0x3Fu) << 6 | (byte(3) & 0x3Fu);
        return continues(1) && continues(2) && continues(3) && code >= 0x10000 && code < 0x110000 ? 4 : 0;
    }
    return 0;
}

bool append(std::string_view text, std::string& xml, const std::array<std::uint8_t, 256>& table)
{
    std::size_t done = 0;
    for (std::size_t i = 0; i < text.size();) {
        switch (table[static_cast<unsigned char>(text[i])]) {
        case Plain:
            ++i;
            break;
        case Markup:
            xml.append(text, done, i - done).append(entityOf(text[i]));
            done = ++i;
            break;
        case Multibyte: {
            const std::size_t length = multibyteLength(text.substr(i));
            if (length == 0) {
                return false;
            }
            i += length;
            break;
        }
        default:
            return false;
        }
    }
    xml.append(text, done, std::string_view::npos);
    return true;
}

} // namespace

bool appendEscaped(std::string_view text, std::string& xml)
{
    return append(text, xml, contentClasses);
}

bool appendEscapedAttribute(std::string_view text, std::string& xml)
{
    return append(text, xml, attributeClasses);
}

} // namespace binding
} // namespace citygml

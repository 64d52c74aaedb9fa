#include "fondo/String.h"

#include <cstddef>

namespace Fondo {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool isCodePoint(char32_t value)
{
    return value < 0xD800 || (value >= 0xE000 && value <= 0x10FFFF);
}

unsigned char byteAt(const std::string& text, std::size_t position)
{
    return static_cast<unsigned char>(text[position]);
}

/// What the first byte of a sequence says of it: its length, and the limits of its second byte, which keep
/// out overlong forms, surrogates and values that are too high.
struct Lead
{
    std::size_t length;
    unsigned char lowestSecond;
    unsigned char highestSecond;
};

Lead leadOf(unsigned char byte)
{
    if (byte < 0x80) {
        return {1, 0, 0};
    }
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {2, 0x80, 0xBF};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        return {3, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        return {4, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
    }
    return {0, 0, 0};
}

/// Reads one code point and moves behind it; of an ill-formed sequence behind the part that could begin one.
char32_t readCodePoint(const std::string& text, std::size_t& position)
{
    const unsigned char first = byteAt(text, position++);
    const Lead lead = leadOf(first);
    if (lead.length == 0) {
        return replacement;
    }
    if (lead.length == 1) {
        return first;
    }
    char32_t value = first & (0x7FU >> lead.length);
    for (std::size_t i = 1; i < lead.length; ++i) {
        const unsigned char lowest = i == 1 ? lead.lowestSecond : 0x80;
        const unsigned char highest = i == 1 ? lead.highestSecond : 0xBF;
        if (position == text.size() || byteAt(text, position) < lowest || byteAt(text, position) > highest) {
            return replacement;
        }
        value = (value << 6U) | (byteAt(text, position++) & 0x3FU);
    }
    return value;
}

void appendWide(std::wstring& text, char32_t value)
{
    if constexpr (sizeof(wchar_t) == 2) {
        if (value > 0xFFFF) {
            value -= 0x10000;
            text += static_cast<wchar_t>(0xD800 + (value >> 10U));
            text += static_cast<wchar_t>(0xDC00 + (value & 0x3FFU));
            return;
        }
    }
    text += static_cast<wchar_t>(value);
}

/// Reads one code point of a wide text, joining surrogates where wchar_t has 16 bits, and moves behind it.
char32_t readCodePoint(const std::wstring& text, std::size_t& position)
{
    const auto value = static_cast<char32_t>(text[position++]);
    if constexpr (sizeof(wchar_t) == 2) {
        if (value >= 0xD800 && value < 0xDC00 && position < text.size()) {
            const auto next = static_cast<char32_t>(text[position]);
            if (next >= 0xDC00 && next < 0xE000) {
                ++position;
                return 0x10000 + ((value - 0xD800) << 10U) + (next - 0xDC00);
            }
        }
    }
    return isCodePoint(value) ? value : replacement;
}

void appendUtf8(std::string& text, char32_t value)
{
    const auto tail = [value](unsigned shift) {
        return static_cast<char>(0x80U | ((value >> shift) & 0x3FU));
    };
    if (value < 0x80) {
        text += static_cast<char>(value);
    } else if (value < 0x800) {
        text += static_cast<char>(0xC0U | (value >> 6U));
        text += tail(0);
    } else if (value < 0x10000) {
        text += static_cast<char>(0xE0U | (value >> 12U));
        text += tail(6);
        text += tail(0);
    } else {
        text += static_cast<char>(0xF0U | (value >> 18U));
        text += tail(12);
        text += tail(6);
        text += tail(0);
    }
}

} // namespace

String::String(const std::string& text) : utf8(text) {}

String::String(const std::wstring& text)
{
    utf8.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        appendUtf8(utf8, readCodePoint(text, position));
    }
}

String::~String() = default;

String String::fromUTF8(const std::string& text)
{
    return String(text);
}

String::operator std::wstring() const
{
    std::wstring text;
    text.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();) {
        appendWide(text, readCodePoint(utf8, position));
    }
    return text;
}

} // namespace Fondo

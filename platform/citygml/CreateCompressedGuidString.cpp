#include "citygml/CreateCompressedGuidString.h"

#include <QUuid>

namespace {

constexpr int guidCharacters = 22;

// 64 characters that may stand anywhere in an NCName but at its beginning, and four that may begin one.
constexpr char digits[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_-";
constexpr char firstDigits[] = "ABCD";

} // namespace

char* CreateCompressedGuidString(char* buffer, int size)
{
    if (buffer == nullptr || size <= 0) {
        return buffer;
    }
    buffer[0] = '\0';
    if (size <= guidCharacters) {
        return buffer;
    }
    // 128 bits: two in the first character and six in each of the others, the lowest bits last.
    const QByteArray bytes = QUuid::createUuid().toRfc4122();
    unsigned bits = 0;
    int bitCount = 0;
    int next = bytes.size();
    for (int i = guidCharacters - 1; i > 0; --i) {
        if (bitCount < 6) {
            bits |= static_cast<unsigned>(static_cast<unsigned char>(bytes[--next])) << bitCount;
            bitCount += 8;
        }
        buffer[i] = digits[bits & 0x3FU];
        bits >>= 6U;
        bitCount -= 6;
    }
    buffer[0] = firstDigits[bits & 0x3U];
    buffer[guidCharacters] = '\0';
    return buffer;
}

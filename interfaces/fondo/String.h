#pragma once

#include "PlatformExport.h"

#include <string>

namespace Fondo {

/// A text of wide characters.
///
/// It keeps its text in UTF-8 and widens it on request: there is one such text for each node of a tree, and
/// almost all of them are ASCII. Bytes that are not UTF-8 are kept; each longest ill-formed run of them
/// widens to one U+FFFD.
class TOLVIK_PLATFORM_EXPORT String
{
public:
    String() = default;

    /// \param text in UTF-8, of which ASCII is a part
    String(const std::string& text);

    /// \param text code points (or UTF-16 where wchar_t has 16 bits); what is no code point becomes U+FFFD
    String(const std::wstring& text);

    String(const String&) = default;
    String(String&&) noexcept = default;
    String& operator=(const String&) = default;
    String& operator=(String&&) noexcept = default;
    virtual ~String();

    /// The same as the constructor from a narrow text, under a name that tells the encoding.
    static String fromUTF8(const std::string& text);

    /// The text widened.
    virtual operator std::wstring() const;

    /// The bytes as they are kept.
    const std::string& toUTF8() const { return utf8; }

    /// Whether the text has no character.
    bool empty() const { return utf8.empty(); }

    friend bool operator==(const String& a, const String& b) { return a.utf8 == b.utf8; }
    friend bool operator!=(const String& a, const String& b) { return a.utf8 != b.utf8; }

private:
    std::string utf8;
};

} // namespace Fondo

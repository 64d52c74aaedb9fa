#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// The bytes of a document in any encoding that the parser reads: where its markup and white space are, and
/// how new text is written among them.
class SourceText
{
public:
    /// \param bytes of a document that the parser has read; outlive the object
    explicit SourceText(std::string_view bytes);

    std::string_view bytes() const { return text; }
    /// Number of bytes of a character of ASCII.
    std::size_t unit() const
    {
        return encoding == Encoding::Utf16Little || encoding == Encoding::Utf16Big ? 2 : 1;
    }
    /// The character that begins at a byte; null for one that is not of ASCII.
    char at(std::size_t byte) const;
    bool isSpaceAt(std::size_t byte) const;
    /// The ASCII characters of a part.
    std::string ascii(std::size_t begin, std::size_t end) const;

    /// Appends markup or escaped text to bytes of the document. A character that the encoding does not have
    /// is written as a reference, which is right in text and in values of attributes.
    ///
    /// \return whether it has all of them
    bool append(std::string_view utf8, std::string& target) const;

private:
    enum class Encoding { Utf8, Utf16Little, Utf16Big, SingleByte };

    void detect();
    void setSingleByte(const std::string& name);
    bool appendCharacter(char32_t character, std::string& target) const;

    std::string_view text;
    Encoding encoding = Encoding::Utf8;
    // The characters of the bytes of an encoding of one byte a character.
    std::array<int, 256> characters{};
};

} // namespace binding
} // namespace citygml

#pragma once

#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Whether XML takes a character for white space.
inline bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Whether a text is empty or white space alone.
bool isBlank(std::string_view text);
/// The text without white space at its ends.
std::string_view trimmed(std::string_view text);
/// Takes the next word off the front of a list.
///
/// \param[in,out] list what is left of the list
/// \param[out] word the word; empty at the end
/// \return false at the end of the list.
bool nextWord(std::string_view& list, std::string_view& word);
/// The words of a text with one blank between them.
std::string collapsed(std::string_view text);

} // namespace binding
} // namespace citygml

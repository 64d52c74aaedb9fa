#include "platform/binding/values/WhiteSpace.h"

namespace citygml {
namespace binding {

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool nextWord(std::string_view& list, std::string_view& word)
{
    std::size_t begin = 0;
    while (begin < list.size() && isSpace(list[begin])) {
        ++begin;
    }
    std::size_t end = begin;
    while (end < list.size() && !isSpace(list[end])) {
        ++end;
    }
    word = list.substr(begin, end - begin);
    list.remove_prefix(end);
    return !word.empty();
}

std::string collapsed(std::string_view text)
{
    std::string result;
    std::string_view word;
    while (nextWord(text, word)) {
        if (!result.empty()) {
            result += ' ';
        }
        result += word;
    }
    return result;
}

} // namespace binding
} // namespace citygml

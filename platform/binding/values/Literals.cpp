#include "platform/binding/values/Literals.h"

#include <algorithm>

namespace citygml {
namespace binding {

namespace {

/// Of ASCII alone, in which all literals are.
char withOtherCase(char c)
{
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return isLetter ? static_cast<char>(c ^ 0x20) : c;
}

} // namespace

bool differInFirstCase(std::string_view a, std::string_view b)
{
    return !a.empty() && !b.empty() && a.front() != b.front() && a.front() == withOtherCase(b.front()) &&
           a.substr(1) == b.substr(1);
}

const char* findLiteral(const TypeRecord& enumeration, std::string_view text)
{
    const char* const* const begin = enumeration.literals;
    const char* const* const end = begin + enumeration.literalCount;
    const char* const* found = std::find(begin, end, text);
    if (found == end) {
        found = std::find_if(begin, end,
                             [text](const char* literal) { return differInFirstCase(literal, text); });
    }
    return found != end ? *found : nullptr;
}

} // namespace binding
} // namespace citygml

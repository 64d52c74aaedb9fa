#include "platform/binding/values/Numbers.h"

#include "platform/binding/values/ValueError.h"
#include "platform/binding/values/WhiteSpace.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

namespace citygml {
namespace binding {

namespace {

/// The text without its plus sign, which from_chars does not read. A plus sign before a minus sign stays, for
/// the text to be refused.
std::string_view withoutPlus(std::string_view text)
{
    const bool isSign = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return isSign ? text.substr(1) : text;
}

template <typename T>
T parseDecimal(std::string_view text, const char* kind)
{
    const std::string_view digits = withoutPlus(text);
    T value{};
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value);
    if (digits.empty() || result.ec != std::errc() || result.ptr != end) {
        rejectValue(text, kind);
    }
    return value;
}

template <typename T>
T parseReal(std::string_view text)
{
    if (text == "INF" || text == "+INF") {
        return std::numeric_limits<T>::infinity();
    }
    if (text == "-INF") {
        return -std::numeric_limits<T>::infinity();
    }
    if (text == "NaN") {
        return std::numeric_limits<T>::quiet_NaN();
    }

    const std::string_view digits = withoutPlus(text);
    // from_chars also reads names such as "inf", which are no numbers here.
    const std::size_t first = !digits.empty() && digits.front() == '-' ? 1 : 0;
    if (digits.size() <= first || !(digits[first] == '.' || (digits[first] >= '0' && digits[first] <= '9'))) {
        rejectValue(text, "a number");
    }
    T value{};
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value);
    if (result.ptr != end) {
        rejectValue(text, "a number");
    }
    if (result.ec == std::errc::result_out_of_range) {
        rejectValue(text, "a number within range");
    }
    return value;
}

template <typename T>
void formatReal(T value, std::string& text)
{
    if (std::isnan(value)) {
        text += "NaN";
        return;
    }
    if (std::isinf(value)) {
        text += value < 0 ? "-INF" : "INF";
        return;
    }
    // Written without an exponent in the range in which people write numbers so. Beyond it whole numbers
    // would be written with digits that do not tell them apart.
    constexpr T largest = std::is_same_v<T, float> ? T(1e7) : T(1e15);
    const T size = std::fabs(value);
    const bool plain = value == 0 || (size >= T(1e-6) && size < largest);
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof(buffer), value,
                                      plain ? std::chars_format::fixed : std::chars_format::scientific);
    text.append(buffer, result.ptr);
}

template <typename T>
void formatInteger(T value, std::string& text)
{
    char buffer[24];
    const auto result = std::to_chars(buffer, buffer + sizeof(buffer), value);
    text.append(buffer, result.ptr);
}

} // namespace

template <>
double parseNumber<double>(std::string_view text)
{
    return parseReal<double>(trimmed(text));
}
template <>
float parseNumber<float>(std::string_view text)
{
    return parseReal<float>(trimmed(text));
}
template <>
long long parseNumber<long long>(std::string_view text)
{
    return parseDecimal<long long>(trimmed(text), "a whole number");
}
template <>
unsigned long long parseNumber<unsigned long long>(std::string_view text)
{
    return parseDecimal<unsigned long long>(trimmed(text), "a whole number without sign");
}
template <>
int parseNumber<int>(std::string_view text)
{
    return parseDecimal<int>(trimmed(text), "a whole number of 32 bits");
}
template <>
bool parseNumber<bool>(std::string_view text)
{
    const std::string_view value = trimmed(text);
    if (value == "true" || value == "1") {
        return true;
    }
    if (value != "false" && value != "0") {
        rejectValue(text, "true or false");
    }
    return false;
}

void formatNumber(double value, std::string& text)
{
    formatReal(value, text);
}
void formatNumber(float value, std::string& text)
{
    formatReal(value, text);
}
void formatNumber(long long value, std::string& text)
{
    formatInteger(value, text);
}
void formatNumber(unsigned long long value, std::string& text)
{
    formatInteger(value, text);
}
void formatNumber(bool value, std::string& text)
{
    text += value ? "true" : "false";
}

void parseNumbers(std::string_view text, std::vector<double>& values)
{
    values.clear();
    const char* at = text.data();
    const char* const end = at + text.size();
    for (;;) {
        while (at != end && isSpace(*at)) {
            ++at;
        }
        if (at == end) {
            return;
        }
        double value = 0;
        const auto result = std::from_chars(at, end, value);
        const bool isPlain = result.ec == std::errc() && (result.ptr == end || isSpace(*result.ptr)) &&
                             (*at == '-' || *at == '.' || (*at >= '0' && *at <= '9')) && std::isfinite(value);
        if (isPlain) {
            values.push_back(value);
            at = result.ptr;
            continue;
        }
        const char* word = at;
        while (at != end && !isSpace(*at)) {
            ++at;
        }
        values.push_back(parseReal<double>(std::string_view(word, static_cast<std::size_t>(at - word))));
    }
}

void formatNumbers(const std::vector<double>& values, std::string& text)
{
    bool first = true;
    for (const double value : values) {
        if (!first) {
            text += ' ';
        }
        first = false;
        formatReal(value, text);
    }
}

} // namespace binding
} // namespace citygml

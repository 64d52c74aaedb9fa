#include "platform/binding/TextValues.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace citygml {
namespace binding {

namespace {

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

[[noreturn]] void reject(std::string_view text, const char* kind)
{
    constexpr std::size_t longest = 60;
    std::string shown(text.substr(0, longest));
    if (text.size() > longest)
        shown += "...";
    throw ValueError{"'" + shown + "' is not " + kind};
}

template <typename T>
T parseDecimal(std::string_view text, const char* kind)
{
    std::string_view digits = text;
    if (!digits.empty() && digits.front() == '+' && digits.size() > 1 && digits[1] != '-')
        digits.remove_prefix(1);
    T value{};
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value);
    if (digits.empty() || result.ec != std::errc() || result.ptr != end)
        reject(text, kind);
    return value;
}

template <typename T>
T parseReal(std::string_view text)
{
    if (text == "INF" || text == "+INF")
        return std::numeric_limits<T>::infinity();
    if (text == "-INF")
        return -std::numeric_limits<T>::infinity();
    if (text == "NaN")
        return std::numeric_limits<T>::quiet_NaN();

    std::string_view digits = text;
    if (!digits.empty() && digits.front() == '+')
        digits.remove_prefix(1);
    // from_chars also reads names such as "inf", which are no numbers here.
    const std::size_t first = !digits.empty() && digits.front() == '-' ? 1 : 0;
    if (digits.size() <= first || !(digits[first] == '.' || (digits[first] >= '0' && digits[first] <= '9')))
        reject(text, "a number");
    T value{};
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value);
    if (result.ptr != end)
        reject(text, "a number");
    if (result.ec == std::errc::result_out_of_range)
        reject(text, "a number within range");
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

/// Reads the fields of dates and times from the front of a text.
class FieldReader
{
public:
    FieldReader(std::string_view text, const char* kind) : m_text(text), m_rest(text), m_kind(kind) {}

    bool take(char c)
    {
        if (m_rest.empty() || m_rest.front() != c)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }
    void expect(char c)
    {
        if (!take(c))
            fail();
    }
    /// A whole number of at least `digits` digits, or exactly that many.
    int number(std::size_t digits, bool exact = true)
    {
        std::size_t length = 0;
        while (length < m_rest.size() && m_rest[length] >= '0' && m_rest[length] <= '9' &&
               (!exact || length < digits))
            ++length;
        if (length < digits)
            fail();
        int value = 0;
        const auto result = std::from_chars(m_rest.data(), m_rest.data() + length, value);
        if (result.ec != std::errc())
            fail();
        m_rest.remove_prefix(length);
        return value;
    }
    int year()
    {
        const bool negative = take('-');
        const int value = number(4, false);
        return negative ? -value : value;
    }
    unsigned short month() { return ranged(1, 12); }
    unsigned short day() { return ranged(1, 31); }
    unsigned short hours() { return ranged(0, 24); }
    unsigned short minutes() { return ranged(0, 59); }
    double seconds()
    {
        std::size_t length = 0;
        while (length < m_rest.size() &&
               (m_rest[length] == '.' || (m_rest[length] >= '0' && m_rest[length] <= '9')))
            ++length;
        if (length < 2 || (length > 2 && m_rest[2] != '.'))
            fail();
        const double value = parseReal<double>(m_rest.substr(0, length));
        if (value >= 61)
            fail();
        m_rest.remove_prefix(length);
        return value;
    }
    template <typename T>
    void zone(T& value)
    {
        value.zone_reset();
        if (take('Z')) {
            value.zone_hours(0);
            value.zone_minutes(0);
        } else if (!m_rest.empty()) {
            const int sign = take('-') ? -1 : 1;
            if (sign == 1)
                expect('+');
            const int hours = ranged(0, 14);
            expect(':');
            value.zone_hours(static_cast<short>(sign * hours));
            value.zone_minutes(static_cast<short>(sign * ranged(0, 59)));
        }
        end();
    }
    void end()
    {
        if (!m_rest.empty())
            fail();
    }
    bool atEnd() const { return m_rest.empty(); }
    std::string_view rest() const { return m_rest; }
    void skip(std::size_t length) { m_rest.remove_prefix(length); }
    [[noreturn]] void fail() const { reject(m_text, m_kind); }

private:
    unsigned short ranged(int least, int most)
    {
        const int value = number(2);
        if (value < least || value > most)
            fail();
        return static_cast<unsigned short>(value);
    }

    std::string_view m_text;
    std::string_view m_rest;
    const char* m_kind;
};

void appendPadded(int value, int width, std::string& text)
{
    char buffer[16];
    std::snprintf(buffer, sizeof(buffer), "%0*d", width, value);
    text += buffer;
}

void appendYear(int year, std::string& text)
{
    if (year < 0)
        text += '-';
    appendPadded(std::abs(year), 4, text);
}

template <typename T>
void appendDate(const T& value, std::string& text)
{
    appendYear(value.year(), text);
    text += '-';
    appendPadded(value.month(), 2, text);
    text += '-';
    appendPadded(value.day(), 2, text);
}

template <typename T>
void appendTime(const T& value, std::string& text)
{
    appendPadded(value.hours(), 2, text);
    text += ':';
    appendPadded(value.minutes(), 2, text);
    text += ':';
    if (value.seconds() < 10)
        text += '0';
    formatReal(value.seconds(), text);
}

template <typename T>
void appendZone(const T& value, std::string& text)
{
    if (!value.zone_present())
        return;
    const int minutes = value.zone_hours() * 60 + value.zone_minutes();
    if (minutes == 0) {
        text += 'Z';
        return;
    }
    text += minutes < 0 ? '-' : '+';
    appendPadded(std::abs(minutes) / 60, 2, text);
    text += ':';
    appendPadded(std::abs(minutes) % 60, 2, text);
}

// What a day has become that was edited to something that is none. It is read, for else a single such edit
// would make a file that does not load any more.
constexpr std::string_view noDay = "0000-00-00";

template <typename T>
bool isNoDay(const T& value)
{
    return value.year() == 0 && value.month() == 0 && value.day() == 0;
}

template <typename T>
void readDate(FieldReader& reader, T& value)
{
    if (reader.rest().substr(0, noDay.size()) == noDay) {
        value.year(0);
        value.month(0);
        value.day(0);
        reader.skip(noDay.size());
        return;
    }
    value.year(reader.year());
    reader.expect('-');
    value.month(reader.month());
    reader.expect('-');
    value.day(reader.day());
}

template <typename T>
void readTime(FieldReader& reader, T& value)
{
    value.hours(reader.hours());
    reader.expect(':');
    value.minutes(reader.minutes());
    reader.expect(':');
    value.seconds(reader.seconds());
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
    if (value == "true" || value == "1")
        return true;
    if (value != "false" && value != "0")
        reject(text, "true or false");
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
        while (at != end && isSpace(*at))
            ++at;
        if (at == end)
            return;
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
        while (at != end && !isSpace(*at))
            ++at;
        values.push_back(parseReal<double>(std::string_view(word, static_cast<std::size_t>(at - word))));
    }
}

void formatNumbers(const std::vector<double>& values, std::string& text)
{
    bool first = true;
    for (const double value : values) {
        if (!first)
            text += ' ';
        first = false;
        formatReal(value, text);
    }
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

bool nextWord(std::string_view& list, std::string_view& word)
{
    std::size_t begin = 0;
    while (begin < list.size() && isSpace(list[begin]))
        ++begin;
    std::size_t end = begin;
    while (end < list.size() && !isSpace(list[end]))
        ++end;
    word = list.substr(begin, end - begin);
    list.remove_prefix(end);
    return !word.empty();
}

std::string collapsed(std::string_view text)
{
    std::string result;
    std::string_view word;
    while (nextWord(text, word)) {
        if (!result.empty())
            result += ' ';
        result += word;
    }
    return result;
}

void parseValue(xml_schema::date& value, std::string_view text)
{
    FieldReader reader(text, "a date");
    readDate(reader, value);
    reader.zone(value);
}

void parseValue(xml_schema::date_time& value, std::string_view text)
{
    FieldReader reader(text, "a date and time");
    readDate(reader, value);
    reader.expect('T');
    readTime(reader, value);
    reader.zone(value);
}

void parseValue(xml_schema::time& value, std::string_view text)
{
    FieldReader reader(text, "a time");
    readTime(reader, value);
    reader.zone(value);
}

void parseValue(xml_schema::gyear& value, std::string_view text)
{
    FieldReader reader(text, "a year");
    value.year(reader.year());
    reader.zone(value);
}

void parseValue(xml_schema::gyear_month& value, std::string_view text)
{
    FieldReader reader(text, "a year and month");
    value.year(reader.year());
    reader.expect('-');
    value.month(reader.month());
    reader.zone(value);
}

void parseValue(xml_schema::duration& value, std::string_view text)
{
    FieldReader reader(text, "a duration");
    xml_schema::duration result(reader.take('-'), 0, 0, 0, 0, 0, 0.0);
    reader.expect('P');
    if (reader.atEnd())
        reader.fail();
    // Units come in this order, each at most once; those from place 3 on stand behind a T.
    static constexpr char units[] = {'Y', 'M', 'D', 'H', 'M', 'S'};
    bool inTime = false;
    int place = 0;
    while (!reader.atEnd()) {
        if (!inTime && reader.take('T')) {
            inTime = true;
            place = 3;
        }
        const std::string_view rest = reader.rest();
        std::size_t length = 0;
        while (length < rest.size() && (rest[length] == '.' || (rest[length] >= '0' && rest[length] <= '9')))
            ++length;
        const int end = inTime ? 6 : 3;
        while (place < end && length < rest.size() && units[place] != rest[length])
            ++place;
        if (length == 0 || length == rest.size() || place == end)
            reader.fail();
        const std::string_view digits = rest.substr(0, length);
        if (place == 5)
            result.seconds(parseReal<double>(digits));
        else {
            const unsigned amount = parseDecimal<unsigned>(digits, "a whole number in a duration");
            switch (place) {
            case 0:
                result.years(amount);
                break;
            case 1:
                result.months(amount);
                break;
            case 2:
                result.days(amount);
                break;
            case 3:
                result.hours(amount);
                break;
            default:
                result.minutes(amount);
                break;
            }
        }
        reader.skip(length + 1);
        ++place;
    }
    if (text.back() == 'T')
        reader.fail();
    value.negative(result.negative());
    value.years(result.years());
    value.months(result.months());
    value.days(result.days());
    value.hours(result.hours());
    value.minutes(result.minutes());
    value.seconds(result.seconds());
}

void formatValue(const xml_schema::date& value, std::string& text)
{
    appendDate(value, text);
    appendZone(value, text);
}

void formatValue(const xml_schema::date_time& value, std::string& text)
{
    appendDate(value, text);
    text += 'T';
    // Of a day that is none the time is none either.
    appendTime(isNoDay(value) ? xml_schema::date_time(0, 0, 0, 0, 0, 0.0) : value, text);
    appendZone(value, text);
}

void formatValue(const xml_schema::time& value, std::string& text)
{
    appendTime(value, text);
    appendZone(value, text);
}

void formatValue(const xml_schema::gyear& value, std::string& text)
{
    appendYear(value.year(), text);
    appendZone(value, text);
}

void formatValue(const xml_schema::gyear_month& value, std::string& text)
{
    appendYear(value.year(), text);
    text += '-';
    appendPadded(value.month(), 2, text);
    appendZone(value, text);
}

void formatValue(const xml_schema::duration& value, std::string& text)
{
    const std::size_t begin = text.size();
    const auto part = [&text](unsigned long long amount, char unit) {
        if (amount != 0) {
            formatInteger(amount, text);
            text += unit;
        }
    };
    if (value.negative())
        text += '-';
    text += 'P';
    const std::size_t empty = text.size();
    part(value.years(), 'Y');
    part(value.months(), 'M');
    part(value.days(), 'D');
    if (value.hours() != 0 || value.minutes() != 0 || value.seconds() != 0) {
        text += 'T';
        part(value.hours(), 'H');
        part(value.minutes(), 'M');
        if (value.seconds() != 0) {
            formatReal(value.seconds(), text);
            text += 'S';
        }
    }
    if (text.size() == empty)
        text.replace(begin, std::string::npos, "PT0S");
}

void parseName(xml_schema::qname& value, std::string_view text, const NameScope& scope)
{
    const std::size_t colon = text.find(':');
    const std::string_view prefix =
        colon == std::string_view::npos ? std::string_view() : text.substr(0, colon);
    const std::string local(colon == std::string_view::npos ? text : text.substr(colon + 1));
    if (local.empty())
        reject(text, "a qualified name");
    value = xml_schema::qname(xml_schema::uri(scope.namespaceOf(prefix)), xml_schema::ncname(local));
}

void formatName(const xml_schema::qname& value, std::string& text, const NameScope& scope)
{
    if (value.qualified()) {
        const std::string prefix = scope.prefixOf(value.namespace_());
        if (!prefix.empty())
            text += prefix + ':';
    }
    text += value.name();
}

} // namespace binding
} // namespace citygml

#include "platform/binding/values/TimeValues.h"

#include "platform/binding/values/Numbers.h"
#include "platform/binding/values/ValueError.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>

namespace citygml {
namespace binding {

namespace {

/// Reads the fields of dates and times from the front of a text.
class FieldReader
{
public:
    FieldReader(std::string_view text, const char* kind) : text(text), unread(text), kind(kind) {}

    bool take(char c)
    {
        if (unread.empty() || unread.front() != c) {
            return false;
        }
        unread.remove_prefix(1);
        return true;
    }
    void expect(char c)
    {
        if (!take(c)) {
            fail();
        }
    }
    /// A whole number of at least `digits` digits, or exactly that many.
    int number(std::size_t digits, bool exact = true)
    {
        std::size_t length = 0;
        while (length < unread.size() && unread[length] >= '0' && unread[length] <= '9' &&
               (!exact || length < digits)) {
            ++length;
        }
        if (length < digits) {
            fail();
        }
        int value = 0;
        const auto result = std::from_chars(unread.data(), unread.data() + length, value);
        if (result.ec != std::errc()) {
            fail();
        }
        unread.remove_prefix(length);
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
    /// Length of the digits and points that come next.
    std::size_t decimalLength() const
    {
        const std::size_t length = unread.find_first_not_of(".0123456789");
        return length != std::string_view::npos ? length : unread.size();
    }
    double seconds()
    {
        const std::size_t length = decimalLength();
        if (length < 2 || (length > 2 && unread[2] != '.')) {
            fail();
        }
        const double value = parseNumber<double>(unread.substr(0, length));
        if (value >= 61) {
            fail();
        }
        unread.remove_prefix(length);
        return value;
    }
    template <typename T>
    void zone(T& value)
    {
        value.zone_reset();
        if (take('Z')) {
            value.zone_hours(0);
            value.zone_minutes(0);
        } else if (!unread.empty()) {
            const int sign = take('-') ? -1 : 1;
            if (sign == 1) {
                expect('+');
            }
            const int hours = ranged(0, 14);
            expect(':');
            value.zone_hours(static_cast<short>(sign * hours));
            value.zone_minutes(static_cast<short>(sign * ranged(0, 59)));
        }
        end();
    }
    void end()
    {
        if (!unread.empty()) {
            fail();
        }
    }
    bool atEnd() const { return unread.empty(); }
    std::string_view rest() const { return unread; }
    void skip(std::size_t length) { unread.remove_prefix(length); }
    [[noreturn]] void fail() const { rejectValue(text, kind); }

private:
    unsigned short ranged(int least, int most)
    {
        const int value = number(2);
        if (value < least || value > most) {
            fail();
        }
        return static_cast<unsigned short>(value);
    }

    std::string_view text;
    std::string_view unread;
    const char* kind;
};

void appendPadded(int value, int width, std::string& text)
{
    char buffer[16];
    std::snprintf(buffer, sizeof(buffer), "%0*d", width, value);
    text += buffer;
}

void appendYear(int year, std::string& text)
{
    if (year < 0) {
        text += '-';
    }
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
    if (value.seconds() < 10) {
        text += '0';
    }
    formatNumber(value.seconds(), text);
}

template <typename T>
void appendZone(const T& value, std::string& text)
{
    if (!value.zone_present()) {
        return;
    }
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

/// \param unit number of the unit, from years to seconds
void setDurationPart(xml_schema::duration& value, int unit, std::string_view digits)
{
    constexpr int seconds = 5;
    if (unit == seconds) {
        value.seconds(parseNumber<double>(digits));
        return;
    }
    unsigned amount = 0;
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, amount);
    if (result.ec != std::errc() || result.ptr != end) {
        rejectValue(digits, "a whole number in a duration");
    }
    switch (unit) {
    case 0:
        value.years(amount);
        break;
    case 1:
        value.months(amount);
        break;
    case 2:
        value.days(amount);
        break;
    case 3:
        value.hours(amount);
        break;
    default:
        value.minutes(amount);
        break;
    }
}

} // namespace

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
    if (reader.atEnd()) {
        reader.fail();
    }
    // Units come in this order, each at most once; those from the fourth on stand behind a T.
    static constexpr char units[] = {'Y', 'M', 'D', 'H', 'M', 'S'};
    constexpr int firstOfTime = 3;
    constexpr int unitCount = 6;
    bool inTime = false;
    int unit = 0;
    while (!reader.atEnd()) {
        if (!inTime && reader.take('T')) {
            inTime = true;
            unit = firstOfTime;
        }
        const std::string_view rest = reader.rest();
        const std::size_t length = reader.decimalLength();
        const int end = inTime ? unitCount : firstOfTime;
        while (unit < end && length < rest.size() && units[unit] != rest[length]) {
            ++unit;
        }
        if (length == 0 || length == rest.size() || unit == end) {
            reader.fail();
        }
        setDurationPart(result, unit, rest.substr(0, length));
        reader.skip(length + 1);
        ++unit;
    }
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
            formatNumber(amount, text);
            text += unit;
        }
    };
    if (value.negative()) {
        text += '-';
    }
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
            formatNumber(value.seconds(), text);
            text += 'S';
        }
    }
    if (text.size() == empty) {
        text.replace(begin, std::string::npos, "PT0S");
    }
}

} // namespace binding
} // namespace citygml

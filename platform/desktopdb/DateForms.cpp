// platform/desktopdb/DateForms.cpp
#include "platform/desktopdb/DateForms.h"

#include "platform/desktopdb/AsciiText.h"

#include <chrono>
#include <cstdio>

namespace desktopdb {

namespace {
// Takes between `least` and `most` digits off the front of `text`.
bool takeNumber(std::string_view& text, size_t least, size_t most, int& out)
{
    size_t n = 0;
    out = 0;
    while (n < most && n < text.size() && isDigit(text[n]))
        out = out * 10 + (text[n++] - '0');
    text.remove_prefix(n);
    return n >= least;
}

bool takeChar(std::string_view& text, char c)
{
    if (!text.starts_with(c))
        return false;
    text.remove_prefix(1);
    return true;
}

bool takeDate(std::string_view& text, CalendarDate& date)
{
    if (!takeNumber(text, 4, 4, date.year) || text.empty())
        return false;
    const char separator = text.front();
    return (separator == '-' || separator == '/') && takeChar(text, separator)
        && takeNumber(text, 1, 2, date.month) && takeChar(text, separator)
        && takeNumber(text, 1, 2, date.day) && isDate(date);
}

// Digits behind the ninth are below a nanosecond.
unsigned takeFraction(std::string_view& text)
{
    unsigned value = 0;
    for (int place = 0; place < 9; ++place) {
        value *= 10;
        if (!text.empty() && isDigit(text.front())) {
            value += static_cast<unsigned>(text.front() - '0');
            text.remove_prefix(1);
        }
    }
    while (!text.empty() && isDigit(text.front()))
        text.remove_prefix(1);
    return value;
}
} // namespace

bool isDate(const CalendarDate& date)
{
    using namespace std::chrono;
    return date.year >= 1 && date.year <= 9999
        && year_month_day(year(date.year), month(static_cast<unsigned>(date.month)),
            day(static_cast<unsigned>(date.day)))
               .ok();
}

std::string isoText(const CalendarDate& date)
{
    char text[40];
    const int length =
        std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
    return {text, static_cast<size_t>(length)};
}

std::optional<CalendarDate> parseIsoDate(std::string_view text)
{
    CalendarDate date{};
    if (!takeDate(text, date) || !text.empty())
        return std::nullopt;
    return date;
}

std::optional<CalendarDate> parseDayMonthYear(std::string_view text)
{
    CalendarDate date{};
    if (text.size() != 8 || !takeNumber(text, 2, 2, date.day) || !takeNumber(text, 2, 2, date.month)
        || !takeNumber(text, 4, 4, date.year) || !isDate(date))
        return std::nullopt;
    return date;
}

std::optional<ClockTime> parseTime(std::string_view text)
{
    ClockTime time;
    if (!takeNumber(text, 1, 2, time.hour) || !takeChar(text, ':')
        || !takeNumber(text, 2, 2, time.minute))
        return std::nullopt;
    if (takeChar(text, ':') && !takeNumber(text, 2, 2, time.second))
        return std::nullopt;
    if (takeChar(text, '.'))
        time.nanoseconds = takeFraction(text);
    if (!text.empty() || time.hour > 23 || time.minute > 59 || time.second > 59)
        return std::nullopt;
    return time;
}

std::optional<DateTime> parseDateTime(std::string_view text)
{
    DateTime result{};
    if (!takeDate(text, result.date))
        return std::nullopt;
    if (text.empty())
        return result;
    if (!takeChar(text, ' ') && !takeChar(text, 'T'))
        return std::nullopt;
    const auto time = parseTime(text);
    if (!time)
        return std::nullopt;
    result.time = *time;
    result.hasTime = true;
    return result;
}

} // namespace desktopdb

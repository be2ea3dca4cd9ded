// platform/desktopdb/DateForms.h
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace desktopdb {

struct CalendarDate {
    int year;
    int month;
    int day;
};

struct ClockTime {
    int hour = 0;
    int minute = 0;
    int second = 0;
    unsigned nanoseconds = 0;
};

struct DateTime {
    CalendarDate date;
    ClockTime time;
    bool hasTime = false;
};

/// Whether the Gregorian calendar has the day; years 1 to 9999.
bool isDate(const CalendarDate& date);

/// "yyyy-mm-dd", the form in which dates are stored.
std::string isoText(const CalendarDate& date);

/// A year of four digits, month and day of one or two, separated by "-" or "/".
std::optional<CalendarDate> parseIsoDate(std::string_view text);

/// Exactly eight digits: day, month, year.
std::optional<CalendarDate> parseDayMonthYear(std::string_view text);

/// hh:mm[:ss[.fraction]]
std::optional<ClockTime> parseTime(std::string_view text);

/// A date, with or without a time behind a blank or "T".
std::optional<DateTime> parseDateTime(std::string_view text);

} // namespace desktopdb

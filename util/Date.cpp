// util/Date.cpp
#include "util/Date.h"

#include <chrono>
#include <ctime>

namespace {

// The Julian day that begins at noon of 1970-01-01, day 0 of the system clock.
constexpr long kJulianOfEpoch = 2440588;

std::chrono::year_month_day calendar(const Date& date)
{
    return std::chrono::sys_days(std::chrono::days(date.julian() - kJulianOfEpoch));
}

std::string padded(int number, std::size_t width)
{
    const std::string digits = std::to_string(number);
    return std::string(width - digits.size(), '0') + digits;
}

} // namespace

Date::Date(int day, int month, int year)
{
    // The calendar types keep small numbers only, so the ranges are checked before.
    if (day < 1 || day > 31 || month < 1 || month > 12 || year < 1 || year > 9999)
        return;
    const std::chrono::year_month_day date{std::chrono::year(year),
        std::chrono::month(static_cast<unsigned>(month)),
        std::chrono::day(static_cast<unsigned>(day))};
    if (date.ok())
        julian_ = std::chrono::sys_days(date).time_since_epoch().count() + kJulianOfEpoch;
}

Date Date::Today()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return Date(local.tm_mday, local.tm_mon + 1, local.tm_year + 1900);
}

int Date::day() const
{
    return isValid() ? static_cast<int>(static_cast<unsigned>(calendar(*this).day())) : 0;
}

int Date::month() const
{
    return isValid() ? static_cast<int>(static_cast<unsigned>(calendar(*this).month())) : 0;
}

int Date::year() const { return isValid() ? static_cast<int>(calendar(*this).year()) : 0; }

std::string Date::isoText() const
{
    return isValid() ? padded(year(), 4) + "-" + padded(month(), 2) + "-" + padded(day(), 2) : "";
}

std::string Date::compactText() const
{
    return isValid() ? padded(day(), 2) + padded(month(), 2) + padded(year(), 4) : "";
}

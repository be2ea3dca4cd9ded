// util/Date.h
#pragma once

#include <compare>
#include <string>

/// A calendar day, or no day: the invalid date stands for a missing one and comes before all
/// others. The Gregorian calendar applies to all years.
class Date {
public:
    /// The invalid date.
    constexpr Date() = default;
    /// Day [1-31], month [1-12], year [1-9999]; the invalid date when the calendar has no such
    /// day.
    Date(int day, int month, int year);
    /// Today by the local clock.
    static Date Today();

    bool isValid() const { return julian_ > 0; }
    /// Julian day number; 0 for the invalid date.
    long julian() const { return julian_; }
    /// Each 0 for the invalid date.
    int day() const;
    int month() const;
    int year() const;
    /// "yyyy-mm-dd"; empty for the invalid date.
    std::string isoText() const;
    /// "ddmmyyyy"; empty for the invalid date.
    std::string compactText() const;

    friend constexpr auto operator<=>(const Date&, const Date&) = default;

private:
    long julian_ = 0;
};

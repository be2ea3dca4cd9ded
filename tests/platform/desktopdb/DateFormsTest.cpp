// tests/platform/desktopdb/DateFormsTest.cpp
#include "platform/desktopdb/DateForms.h"

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

struct DateCase {
    const char* text;
    const char* iso;      ///< as yyyy-mm-dd; "" when refused
    const char* dayFirst; ///< as ddmmyyyy
    const char* moment;   ///< as a date with an optional time
};

void PrintTo(const DateCase& c, std::ostream* out) { *out << c.text; }

const DateCase kDates[] = {
    {"1998-03-05", "1998-03-05", "", "1998-03-05"},
    {"1998/3/5", "1998-03-05", "", "1998-03-05"},
    {"1998-3/5", "", "", ""},
    {"98-03-05", "", "", ""},
    {"2000-02-29", "2000-02-29", "", "2000-02-29"},
    {"1900-02-29", "", "", ""},
    {"1998-04-31", "", "", ""},
    {"0000-01-01", "", "", ""},
    {"9999-12-31", "9999-12-31", "", "9999-12-31"},
    {"1998-03-05x", "", "", ""},
    {"05031998", "", "1998-03-05", ""},
    {"29022000", "", "2000-02-29", ""},
    {"29021900", "", "", ""},
    {"5031998", "", "", ""},
    {"050319980", "", "", ""},
    {"1998-03-05 10:11:12", "", "", "1998-03-05 10:11:12.0"},
    {"1998-03-05T10:11", "", "", "1998-03-05 10:11:0.0"},
    {"1998-03-05 10:11:12.25", "", "", "1998-03-05 10:11:12.250000000"},
    {"1998-03-05 10:11:12.1234567891", "", "", "1998-03-05 10:11:12.123456789"},
    {"1998-03-05 24:00:00", "", "", ""},
    {"1998-03-05 10", "", "", ""},
    {"", "", "", ""},
};

std::string textOf(const std::optional<CalendarDate>& date) { return date ? isoText(*date) : ""; }

std::string textOf(const std::optional<DateTime>& moment)
{
    if (!moment)
        return "";
    const ClockTime& t = moment->time;
    return isoText(moment->date)
        + (moment->hasTime ? " " + std::to_string(t.hour) + ":" + std::to_string(t.minute) + ":"
                    + std::to_string(t.second) + "." + std::to_string(t.nanoseconds)
                           : "");
}

class DateForms : public testing::TestWithParam<DateCase> {};

TEST_P(DateForms, Read)
{
    EXPECT_EQ(textOf(parseIsoDate(GetParam().text)), GetParam().iso);
    EXPECT_EQ(textOf(parseDayMonthYear(GetParam().text)), GetParam().dayFirst);
    EXPECT_EQ(textOf(parseDateTime(GetParam().text)), GetParam().moment);
}

INSTANTIATE_TEST_SUITE_P(Texts, DateForms, testing::ValuesIn(kDates));

} // namespace

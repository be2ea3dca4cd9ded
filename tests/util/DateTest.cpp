// tests/util/DateTest.cpp
#include "util/Date.h"

#include <ctime>
#include <ostream>

#include <gtest/gtest.h>

namespace {

struct DateCase {
    const char* name;
    int day, month, year;
    long julian; // 0: no such day
    const char* iso;
    const char* compact;
};
void PrintTo(const DateCase& c, std::ostream* out) { *out << c.name; }

const DateCase kDates[] = {
    {"first day of the system clock", 1, 1, 1970, 2440588, "1970-01-01", "01011970"},
    {"the day before it", 31, 12, 1969, 2440587, "1969-12-31", "31121969"},
    {"new millennium", 1, 1, 2000, 2451545, "2000-01-01", "01012000"},
    {"leap day", 29, 2, 2024, 2460370, "2024-02-29", "29022024"},
    {"leap day every 400 years", 29, 2, 2000, 2451604, "2000-02-29", "29022000"},
    {"first year", 1, 1, 1, 1721426, "0001-01-01", "01010001"},
    {"last year", 31, 12, 9999, 5373484, "9999-12-31", "31129999"},
    {"no leap year", 29, 2, 2023, 0, "", ""},
    {"no leap year at the century", 29, 2, 1900, 0, "", ""},
    {"31st of a short month", 31, 4, 2024, 0, "", ""},
    {"day 0", 0, 1, 2024, 0, "", ""},
    {"day that a byte would wrap", 257, 1, 2024, 0, "", ""},
    {"month 0", 1, 0, 2024, 0, "", ""},
    {"month 13", 1, 13, 2024, 0, "", ""},
    {"month that a byte would wrap", 1, 257, 2024, 0, "", ""},
    {"year 0", 1, 1, 0, 0, "", ""},
    {"year 10000", 1, 1, 10000, 0, "", ""},
};

class DateOf : public testing::TestWithParam<DateCase> {};

TEST_P(DateOf, DayMonthYear)
{
    const DateCase& row = GetParam();
    const Date date(row.day, row.month, row.year);
    EXPECT_EQ(row.julian, date.julian());
    EXPECT_EQ(row.julian != 0, date.isValid());
    EXPECT_EQ(row.iso, date.isoText());
    EXPECT_EQ(row.compact, date.compactText());
    EXPECT_EQ(row.julian ? row.day : 0, date.day());
    EXPECT_EQ(row.julian ? row.month : 0, date.month());
    EXPECT_EQ(row.julian ? row.year : 0, date.year());
}
INSTANTIATE_TEST_SUITE_P(Rules, DateOf, testing::ValuesIn(kDates));

TEST(Date, TodayIsTheLocalDay)
{
    const auto clockText = [] {
        char text[11];
        const std::time_t now = std::time(nullptr);
        std::strftime(text, sizeof text, "%Y-%m-%d", std::localtime(&now));
        return std::string(text);
    };
    const std::string before = clockText();
    const std::string today = Date::Today().isoText();
    EXPECT_TRUE(today == before || today == clockText()) << today; // midnight may fall between
}

TEST(Date, OrdersByDayWithNoDateFirst)
{
    EXPECT_LT(Date(), Date(1, 1, 1));
    EXPECT_LT(Date(31, 1, 2023), Date(1, 2, 2023));
    EXPECT_EQ(Date(31, 2, 2023), Date());
}

} // namespace

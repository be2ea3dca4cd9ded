// tests/util/DateTest.cpp
#include "util/Date.h"

#include "tests/util/Rows.h"

#include <ctime>

namespace {

std::string told(int day, int month, int year)
{
    const Date date(day, month, year);
    return std::to_string(date.julian()) + " " + date.isoText() + " " + date.compactText();
}

TEST(Date, FollowsTheGregorianCalendar)
{
    const std::string noDay = "0  ";
    expectRows<std::string>({
        {"before the system clock", told(31, 12, 1969), "2440587 1969-12-31 31121969"},
        {"leap day every 400 years", told(29, 2, 2000), "2451604 2000-02-29 29022000"},
        {"first year", told(1, 1, 1), "1721426 0001-01-01 01010001"},
        {"last year", told(31, 12, 9999), "5373484 9999-12-31 31129999"},
        {"no leap year at the century", told(29, 2, 1900), noDay},
        {"day that a byte would wrap", told(257, 1, 2024), noDay},
        {"month that a byte would wrap", told(1, 257, 2024), noDay},
        {"year 0", told(1, 1, 0), noDay},
        {"year 10000", told(1, 1, 10000), noDay},
    });
    EXPECT_EQ(0, Date().day() + Date().month() + Date().year());
}

TEST(Date, OrdersByDayWithNoDateFirst)
{
    EXPECT_FALSE(Date().isValid());
    EXPECT_LT(Date(), Date(1, 1, 1));
    EXPECT_LT(Date(31, 1, 2023), Date(1, 2, 2023));
}

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

} // namespace

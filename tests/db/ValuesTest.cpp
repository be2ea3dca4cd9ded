// tests/db/ValuesTest.cpp
// What needs no database: literals in statements, and depths.
#include "db/Literals.h"
#include "db/Session.h"
#include "db/Units.h"
#include "tests/support/Restore.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::pair<std::string, std::string>>;

TEST(Literals, Quotes)
{
    const std::string longText(5000, 'x');
    for (const auto& [text, literal] :
        Texts{{"", "NULL"}, {"NULL", "'NULL'"}, {" ", "' '"}, {"'top's'", "'`top`s`'"},
            {"Bj\u00F8rn", "'Bj\u00F8rn'"}, {longText, "'" + longText + "'"}})
        EXPECT_EQ(literal, sqlQuote(text.c_str()));
    EXPECT_STREQ("NULL", sqlQuote(nullptr));
    EXPECT_STREQ("NULL", sqlQuoteChar('\0'));
    EXPECT_STREQ("'''", sqlQuoteChar('\'')) << "not examined";
}

TEST(Literals, Numbers)
{
    EXPECT_STREQ("-2147483648", sqlInt(std::numeric_limits<int>::min()));
    EXPECT_STREQ("9223372036854775807", sqlLong(std::numeric_limits<long>::max()));
    EXPECT_STREQ("-32768", sqlShort(std::numeric_limits<short>::min()));
    const std::pair<double, const char*> rows[] = {{100, "100"}, {-3.75, "-3.75"}, {0.001, "0.001"},
        {0.0, "0"}, {-0.0, "0"}, {0.1, "0.1"}, {1234.56F, "1234.56005859375"},
        {999999.5, "999999.5"}, {1234567.25, "1234567.250"}, // from one million on: zero decimals
        {10000000, "10000000.00"}, {1e-10, "0.0000000001"},
        {0x1p-44, "0.000000000000056843418860808015"}, // lower neighbour nearer than the upper
        {std::nan(""), "NULL"}, {-std::numeric_limits<double>::infinity(), "NULL"}};
    for (const auto& [value, literal] : rows)
        EXPECT_STREQ(literal, sqlNumber(value));
}

TEST(Literals, EveryNumberReadsBack)
{
    for (int exponent = -1074; exponent < 1024; ++exponent) {
        const double value = std::ldexp(exponent % 2 ? 1.0 : 1.2345678901234567, exponent);
        const std::string literal = sqlNumber(value);
        EXPECT_EQ(value, std::strtod(literal.c_str(), nullptr)) << literal;
        EXPECT_EQ(std::string::npos, literal.find('e')) << literal;
    }
}

TEST(Literals, Dates)
{
    const Restore restored(dbKind);
    const char* const iso = "#1998-03-05#";
    for (const auto& [kind, literal, none] : {std::tuple(2, "'05031998'", "NULL"), {0, iso, ""},
             {1, iso, ""}, {3, iso, ""}, {77, iso, ""}}) {
        dbKind = kind;
        EXPECT_STREQ(literal, sqlDate(Date(5, 3, 1998))) << kind;
        EXPECT_STREQ(none, sqlDate(Date())) << kind;
    }
}

TEST(Literals, ParsedDates)
{
    for (const auto& [text, date] : Texts{{"1998-3-5", "1998-03-05"},
             {"1998-03-05 10:20:30.5", "1998-03-05"}, {"  1998- 3- 5", "1998-03-05"},
             {"2000-02-29", "2000-02-29"}, {"1999-02-29", ""}, {"", ""}, {"1998-03-", ""},
             {"1998-03", ""}, {"1998/03/05", ""}, {"unknown", ""}, {"99999999999-03-05", ""}}) {
        Date day(1, 1, 1900);
        EXPECT_EQ(&day, parseDate(&day, text.c_str()));
        EXPECT_EQ(date, day.isoText()) << text;
    }
    Date day(1, 1, 1900);
    EXPECT_EQ("", parseDate(&day, nullptr)->isoText());
}

TEST(Literals, NarrowingFilters)
{
    for (auto [text, after] : Texts{
             {"%", ""}, {"% \t ", ""}, {"", "1"}, {" %", "1 %"}, {"%%", "1%%"}, {"AB% ", "1AB%"}}) {
        const std::string before = text;
        const bool narrows = isNarrowingFilter(text.data());
        EXPECT_EQ(after, narrows ? std::string("1") + text.c_str() : "") << before;
    }
}

TEST(Units, FeetAreConvertedAndNothingElse)
{
    EXPECT_FLOAT_EQ(304.8F, toMetres(1000, 'F'));
    EXPECT_FLOAT_EQ(3280.8398F, fromMetres(1000, 'F'));
    EXPECT_EQ(1000.5F, toMetres(1000.5F, 'f'));
    EXPECT_EQ(1000.5F, fromMetres(1000.5F, 'f'));
}

TEST(Units, ShownDepths)
{
    const struct {
        float value;
        char units;
        int decimals, stripZeros;
        const char* text;
    } rows[] = {{1234.56F, 'F', 1, 0, "  1234.6'"}, {12, 'x', 0, 0, "      12'"},
        {2.5F, 'M', 0, 0, "       3m"}, {-2.5F, 'M', 0, 0, "      -3m"}, // halves away from zero
        {0.25F, 'M', 1, 0, "     0.3m"}, {-0.25F, 'M', 1, 0, "    -0.3m"},
        {-0.25F, 'M', 0, 0, "       0m"}, {-0.01F, 'M', 1, 0, "     0.0m"}, // no sign at zero
        {1234.5F, 'M', 2, 0, " 1234.50m"}, {1234.5F, 'M', 2, 1, " 1234.5m"},
        {1234, 'M', 2, 1, " 1234m"}, {1200, 'M', 0, 1, "    1200m"},
        {1234567.5F, 'M', 2, 0, "1234567.50m"}};
    for (const auto& row : rows) {
        char out[32];
        formatDepth(out, row.value, row.units, row.decimals, row.stripZeros);
        EXPECT_STREQ(row.text, out);
    }
}

} // namespace

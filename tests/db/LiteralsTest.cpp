// tests/db/LiteralsTest.cpp
#include "db/Literals.h"
#include "db/Session.h"
#include "tests/support/Restore.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

TEST(Literals, Quotes)
{
    const struct {
        const char* rule;
        std::string text, literal;
    } rows[] = {
        {"plain", "Globigerina", "'Globigerina'"},
        {"empty is stored as NULL", "", "NULL"},
        {"the word NULL is a text", "NULL", "'NULL'"},
        {"quote inside", "top's", "'top`s'"},
        {"nothing but a quote", "'", "'`'"},
        {"quotes at both ends", "'ab'", "'`ab`'"},
        {"blank is a text", " ", "' '"},
        {"letters beyond ASCII", "Bj\u00F8rn", "'Bj\u00F8rn'"},
        {"any length", std::string(5000, 'x'), "'" + std::string(5000, 'x') + "'"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.literal, sqlQuote(row.text.c_str())) << row.rule;
    EXPECT_STREQ("NULL", sqlQuote(nullptr));
    EXPECT_STREQ("NULL", sqlQuoteChar('\0'));
    EXPECT_STREQ("'M'", sqlQuoteChar('M'));
    EXPECT_STREQ("'''", sqlQuoteChar('\'')) << "not examined";
}

TEST(Literals, Integers)
{
    EXPECT_STREQ("-2147483648", sqlInt(std::numeric_limits<int>::min()));
    EXPECT_STREQ("9223372036854775807", sqlLong(std::numeric_limits<long>::max()));
    EXPECT_STREQ("-32768", sqlShort(std::numeric_limits<short>::min()));
}

TEST(Literals, Numbers)
{
    const struct {
        const char* rule;
        double value;
        const char* literal;
    } rows[] = {
        {"one decimal", 12.5, "12.5"},
        {"integer", 100, "100"},
        {"below one", 0.125, "0.125"},
        {"zeros behind the point", 0.001, "0.001"},
        {"negative", -3.75, "-3.75"},
        {"one digit", 2.0, "2"},
        {"depth", 1500.25, "1500.25"},
        {"zero", 0.0, "0"},
        {"negated zero", -0.0, "0"},
        {"not exact in binary", 0.1, "0.1"},
        {"a float's value in full", 1234.56F, "1234.56005859375"},
        {"below one million", 999999.5, "999999.5"},
        {"from one million on: zero decimals", 1234567.25, "1234567.250"},
        {"eight digits", 10000000, "10000000.00"},
        {"no exponent when small", 1e-10, "0.0000000001"},
        {"lower neighbour nearer than the upper", 0x1p-44, "0.000000000000056843418860808015"},
        {"not a number", std::nan(""), "NULL"},
        {"infinite", -std::numeric_limits<double>::infinity(), "NULL"},
    };
    for (const auto& row : rows)
        EXPECT_STREQ(row.literal, sqlNumber(row.value)) << row.rule;
}

TEST(Literals, EveryNumberReadsBack)
{
    const auto check = [](double value) {
        const std::string literal = sqlNumber(value);
        EXPECT_EQ(value, std::strtod(literal.c_str(), nullptr)) << literal;
        EXPECT_EQ(std::string::npos, literal.find('e')) << literal;
    };
    for (int exponent = -1074; exponent < 1024; ++exponent)
        check(std::ldexp(1.0, exponent));
    std::uint64_t bits = 7;
    for (int i = 0; i < 2000; ++i) {
        bits = bits * 6364136223846793005U + 1442695040888963407U;
        if (const auto value = std::bit_cast<double>(bits); std::isfinite(value))
            check(value);
    }
}

TEST(Literals, TableNames)
{
    const Restore restored(ownerPrefix);
    const struct {
        const char *prefix, *table, *discTable;
    } rows[] = {{"", "WELLS", "MSMPDTL"}, {"GEO.", "GEO.WELLS", "GEO.MSMPDTL"},
        {"X", "XWELLS", "XMSMPDTL"}}; // brings its own separator or none
    for (const auto& row : rows) {
        ownerPrefix = row.prefix;
        EXPECT_STREQ(row.table, sqlTable("WELLS"));
        EXPECT_STREQ(row.discTable, sqlDiscTable('M', "SMPDTL"));
    }
}

TEST(Literals, Dates)
{
    const Restore restored(dbKind);
    const struct {
        int kind;
        Date date;
        const char* literal;
    } rows[] = {{2, Date(5, 3, 1998), "'05031998'"}, {0, Date(5, 3, 1998), "#1998-03-05#"},
        {1, Date(5, 3, 1998), "#1998-03-05#"}, {3, Date(5, 3, 1998), "#1998-03-05#"},
        {5, Date(31, 12, 2024), "#2024-12-31#"}, {77, Date(31, 12, 2024), "#2024-12-31#"},
        {2, Date(), "NULL"}, {0, Date(), ""}};
    for (const auto& row : rows) {
        dbKind = row.kind;
        EXPECT_STREQ(row.literal, sqlDate(row.date)) << row.kind;
    }
}

TEST(Literals, ParsedDates)
{
    const struct {
        const char *rule, *text, *date;
    } rows[] = {
        {"date", "1998-03-05", "1998-03-05"},
        {"no leading zeros", "1998-3-5", "1998-03-05"},
        {"time behind it", "1998-03-05 10:20:30.5", "1998-03-05"},
        {"blanks before a number", "  1998- 3- 5", "1998-03-05"},
        {"leap day", "2000-02-29", "2000-02-29"},
        {"no such day", "1999-02-29", ""},
        {"empty", "", ""},
        {"null", nullptr, ""},
        {"no day", "1998-03-", ""},
        {"two numbers", "1998-03", ""},
        {"other separator", "1998/03/05", ""},
        {"not a date", "unknown", ""},
        {"more than an integer holds", "99999999999-03-05", ""},
    };
    for (const auto& row : rows) {
        Date day(1, 1, 1900);
        EXPECT_EQ(&day, parseDate(&day, row.text));
        EXPECT_EQ(row.date, day.isoText()) << row.rule;
    }
}

TEST(Literals, ResultsOfDifferentHelpersStandTogether)
{
    const Restore prefix(ownerPrefix, FixedText<50>(""));
    const Restore kind(dbKind, 2);
    const char* const texts[] = {sqlQuote("a"), sqlQuoteChar('b'), sqlLong(1), sqlInt(2),
        sqlShort(3), sqlNumber(4.5), sqlTable("T"), sqlDiscTable('N', "T"),
        sqlDate(Date(1, 2, 2003))};
    std::string all;
    for (const char* text : texts)
        all += std::string(text) + " ";
    EXPECT_EQ("'a' 'b' 1 2 3 4.5 T NT '01022003' ", all);
}

TEST(Literals, NarrowingFilters)
{
    const struct {
        const char* text;
        int narrows;
        const char* after;
    } rows[] = {{"%", 0, "%"}, {"% \t ", 0, "%"}, {"", 1, ""}, {"   ", 1, ""}, {" %", 1, " %"},
        {"%%", 1, "%%"}, {"AB% ", 1, "AB%"}};
    for (const auto& row : rows) {
        std::string text = row.text;
        EXPECT_EQ(row.narrows, isNarrowingFilter(text.data())) << row.text;
        EXPECT_STREQ(row.after, text.c_str());
    }
}

} // namespace

// tests/db/LiteralsTest.cpp
#include "db/Literals.h"
#include "db/Session.h"
#include "tests/support/Restore.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace {

struct QuoteCase {
    const char* name;
    std::string text;
    std::string literal;
};
void PrintTo(const QuoteCase& c, std::ostream* out) { *out << c.name; }

const QuoteCase kQuotes[] = {
    {"plain", "Globigerina", "'Globigerina'"},
    {"empty is stored as NULL", "", "NULL"},
    {"the word NULL is a text", "NULL", "'NULL'"},
    {"quote inside", "top's", "'top`s'"},
    {"nothing but a quote", "'", "'`'"},
    {"quotes at both ends", "'ab'", "'`ab`'"},
    {"blank is a text", " ", "' '"},
    {"a bar stays", "a|b", "'a|b'"},
    {"letters beyond ASCII", "Bj\u00F8rn", "'Bj\u00F8rn'"},
    {"longer than any old buffer", std::string(5000, 'x'), "'" + std::string(5000, 'x') + "'"},
};

class Quote : public testing::TestWithParam<QuoteCase> {};
TEST_P(Quote, sqlQuote) { EXPECT_EQ(GetParam().literal, sqlQuote(GetParam().text.c_str())); }
INSTANTIATE_TEST_SUITE_P(Texts, Quote, testing::ValuesIn(kQuotes));

TEST(Literals, Characters)
{
    EXPECT_STREQ("NULL", sqlQuoteChar('\0'));
    EXPECT_STREQ("'M'", sqlQuoteChar('M'));
    EXPECT_STREQ("'''", sqlQuoteChar('\'')); // not examined
}

TEST(Literals, NullPointerReadsAsEmpty)
{
    EXPECT_STREQ("NULL", sqlQuote(nullptr));
    Date day(1, 2, 1990);
    EXPECT_FALSE(parseDate(&day, nullptr)->isValid());
}

TEST(Literals, Integers)
{
    EXPECT_STREQ("-2147483648", sqlInt(std::numeric_limits<int>::min()));
    EXPECT_STREQ("9223372036854775807", sqlLong(std::numeric_limits<long>::max()));
    EXPECT_STREQ("-32768", sqlShort(std::numeric_limits<short>::min()));
    EXPECT_STREQ("0", sqlLong(0));
}

struct NumberCase {
    const char* name;
    double value;
    const char* literal;
};
void PrintTo(const NumberCase& c, std::ostream* out) { *out << c.name; }

const NumberCase kNumbers[] = {
    {"one decimal", 12.5, "12.5"},
    {"integer", 100, "100"},
    {"below one", 0.125, "0.125"},
    {"zeros behind the point", 0.001, "0.001"},
    {"negative", -3.75, "-3.75"},
    {"2", 2.0, "2"},
    {"one half", 0.5, "0.5"},
    {"depth", 1500.25, "1500.25"},
    {"zero", 0.0, "0"},
    {"negated zero", -0.0, "0"},
    {"not exact in binary", 0.1, "0.1"},
    {"a float's value in full", 1234.56F, "1234.56005859375"},
    {"below one million", 999999.5, "999999.5"},
    {"from one million on: zero decimals", 1234567.25, "1234567.250"},
    {"one million", 1000000, "1000000.0"},
    {"eight digits", 10000000, "10000000.00"},
    {"no exponent when small", 1e-10, "0.0000000001"},
    {"power of two, whose lower neighbour is nearer", 0x1p-44, "0.000000000000056843418860808015"},
    {"not a number", std::nan(""), "NULL"},
    {"infinite", -std::numeric_limits<double>::infinity(), "NULL"},
};

class Number : public testing::TestWithParam<NumberCase> {};
TEST_P(Number, sqlNumber) { EXPECT_STREQ(GetParam().literal, sqlNumber(GetParam().value)); }
INSTANTIATE_TEST_SUITE_P(Values, Number, testing::ValuesIn(kNumbers));

TEST(Literals, EveryNumberReadsBack)
{
    std::uint64_t bits = 7;
    const auto check = [](double value) {
        const std::string literal = sqlNumber(value);
        EXPECT_EQ(value, std::strtod(literal.c_str(), nullptr)) << literal;
        EXPECT_EQ(std::string::npos, literal.find('e')) << literal;
    };
    for (int exponent = -1074; exponent < 1024; ++exponent)
        check(std::ldexp(1.0, exponent));
    for (int i = 0; i < 2000; ++i) {
        bits = bits * 6364136223846793005U + 1442695040888963407U;
        const auto value = std::bit_cast<double>(bits);
        if (std::isfinite(value))
            check(value);
    }
}

TEST(Literals, TableNames)
{
    const Restore prefix(ownerPrefix, FixedText<50>(""));
    EXPECT_STREQ("WELLS", sqlTable("WELLS"));
    EXPECT_STREQ("MSMPDTL", sqlDiscTable('M', "SMPDTL"));
    ownerPrefix = "GEO.";
    EXPECT_STREQ("GEO.WELLS", sqlTable("WELLS"));
    EXPECT_STREQ("GEO.MSMPDTL", sqlDiscTable('M', "SMPDTL"));
    ownerPrefix = "X"; // brings its own separator or none
    EXPECT_STREQ("XWELLS", sqlTable("WELLS"));
}

struct DateCase {
    int kind;
    Date date;
    const char* literal;
};
void PrintTo(const DateCase& c, std::ostream* out) { *out << "kind " << c.kind << c.literal; }

const DateCase kDates[] = {
    {0, Date(5, 3, 1998), "#1998-03-05#"},
    {1, Date(5, 3, 1998), "#1998-03-05#"},
    {2, Date(5, 3, 1998), "'05031998'"},
    {3, Date(5, 3, 1998), "#1998-03-05#"},
    {5, Date(31, 12, 2024), "#2024-12-31#"},
    {77, Date(31, 12, 2024), "#2024-12-31#"},
    {2, Date(), "NULL"},
    {0, Date(), ""},
};

class DateLiteral : public testing::TestWithParam<DateCase> {};
TEST_P(DateLiteral, sqlDate)
{
    const Restore kind(dbKind, GetParam().kind);
    EXPECT_STREQ(GetParam().literal, sqlDate(GetParam().date));
}
INSTANTIATE_TEST_SUITE_P(Kinds, DateLiteral, testing::ValuesIn(kDates));

struct ParseCase {
    const char* name;
    const char* text;
    Date date;
};
void PrintTo(const ParseCase& c, std::ostream* out) { *out << c.name; }

const ParseCase kParsed[] = {
    {"date", "1998-03-05", Date(5, 3, 1998)},
    {"no leading zeros", "1998-3-5", Date(5, 3, 1998)},
    {"time behind it", "1998-03-05 10:20:30.5", Date(5, 3, 1998)},
    {"blanks before a number", "  1998- 3- 5", Date(5, 3, 1998)},
    {"leap day", "2000-02-29", Date(29, 2, 2000)},
    {"no such day", "1999-02-29", Date()},
    {"empty", "", Date()},
    {"year only", "1998", Date()},
    {"no day", "1998-03-", Date()},
    {"other separator", "1998/03/05", Date()},
    {"not a date", "unknown", Date()},
    {"more than an integer holds", "99999999999-03-05", Date()},
};

class ParsedDate : public testing::TestWithParam<ParseCase> {};
TEST_P(ParsedDate, parseDate)
{
    Date day(1, 1, 1900);
    EXPECT_EQ(&day, parseDate(&day, GetParam().text));
    EXPECT_EQ(GetParam().date.isoText(), day.isoText());
}
INSTANTIATE_TEST_SUITE_P(Texts, ParsedDate, testing::ValuesIn(kParsed));

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

struct FilterCase {
    const char* name;
    const char* text;
    int narrows;
    const char* after;
};
void PrintTo(const FilterCase& c, std::ostream* out) { *out << c.name; }

const FilterCase kFilters[] = {
    {"everything", "%", 0, "%"},
    {"everything, blanks behind", "% \t ", 0, "%"},
    {"empty", "", 1, ""},
    {"blanks", "   ", 1, ""},
    {"blank before", " %", 1, " %"},
    {"two wildcards", "%%", 1, "%%"},
    {"pattern", "AB% ", 1, "AB%"},
};

class Filter : public testing::TestWithParam<FilterCase> {};
TEST_P(Filter, isNarrowingFilter)
{
    std::string text = GetParam().text;
    EXPECT_EQ(GetParam().narrows, isNarrowingFilter(text.data()));
    EXPECT_STREQ(GetParam().after, text.c_str());
}
INSTANTIATE_TEST_SUITE_P(Patterns, Filter, testing::ValuesIn(kFilters));

} // namespace

// tests/util/NumberTextTest.cpp
#include "util/TextUtil.h"

#include <limits>
#include <ostream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

struct FixedCase {
    const char* name;
    double x;
    int decimals;
    const char* text;
    const char* trimmed;
};
void PrintTo(const FixedCase& c, std::ostream* out) { *out << c.name; }

const FixedCase kFixed[] = {
    {"zeros behind the point", 2.5, 3, "2.500", "2.5"},
    {"point left over", 3.0, 2, "3.00", "3"},
    {"zeros of a whole number stay", 100, 0, "100", "100"},
    {"zeros before the point stay", 100, 1, "100.0", "100"},
    {"nothing to trim", 0.25, 2, "0.25", "0.25"},
    {"half goes to the even digit", 0.125, 2, "0.12", "0.12"},
    {"nearest double decides", 1.005, 2, "1.00", "1"},
    {"tiny negative keeps its sign", -0.0001, 2, "-0.00", "-0"},
    {"negative decimals are none", 1.5, -1, "2", "2"},
    {"longer than 20 characters", 1e22, 2, "10000000000000000000000.00", "10000000000000000000000"},
};

class FixedNumber : public testing::TestWithParam<FixedCase> {};

TEST_P(FixedNumber, IsPrinted)
{
    const FixedCase& row = GetParam();
    EXPECT_STREQ(row.text, fixedText(row.x, row.decimals));
    EXPECT_EQ(row.text, fixedString(row.x, row.decimals));
    char trimmed[64];
    fixedTextTrim(trimmed, row.x, row.decimals);
    EXPECT_STREQ(row.trimmed, trimmed);
}
INSTANTIATE_TEST_SUITE_P(Rules, FixedNumber, testing::ValuesIn(kFixed));

TEST(NumberText, LargestDoubleFits)
{
    const double most = std::numeric_limits<double>::max();
    EXPECT_EQ(310U + 9U, fixedString(-most, 8).size()); // sign, 309 digits, point, 8 decimals
    EXPECT_STREQ("-2147483648", intText(std::numeric_limits<int>::min()));
}

struct WholeCase {
    const char* name;
    const char* text;
    int n;
    long number;
};
void PrintTo(const WholeCase& c, std::ostream* out) { *out << c.name; }

const WholeCase kWhole[] = {
    {"slice ends inside the number", "12345", 3, 123},
    {"slice longer than the text", "12", 9, 12},
    {"empty slice", "12", 0, 0},
    {"negative length", "12", -1, 0},
    {"white space before", " \t\r\n12", 9, 12},
    {"no white space",
        "\x1F"
        "12",
        9, 0},
    {"minus", "-12", 9, -12},
    {"plus", "+12", 9, 12},
    {"two signs", "+-12", 9, 0},
    {"blank behind the sign", "- 12", 9, 0},
    {"letters behind", "12ab", 9, 12},
    {"letters before", "ab12", 9, 0},
    {"no octal, no hexadecimal", "010x", 9, 10},
    {"beyond 32 bits", "9999999999", 20, 9999999999},
    {"lowest", "-9223372036854775808", 20, std::numeric_limits<long>::min()},
    {"beyond the lowest", "-9223372036854775809", 20, std::numeric_limits<long>::min()},
    {"beyond the highest", "9223372036854775808", 20, std::numeric_limits<long>::max()},
    {"beyond any", "99999999999999999999", 20, std::numeric_limits<long>::max()},
};

class WholeNumber : public testing::TestWithParam<WholeCase> {};

TEST_P(WholeNumber, IsReadFromASlice)
{
    const WholeCase& row = GetParam();
    EXPECT_EQ(row.number, longOf(row.text, row.n));
    if (std::in_range<short>(row.number)) {
        EXPECT_EQ(row.number, intOf(row.text, row.n));
        EXPECT_EQ(row.number, shortOf(row.text, row.n));
    }
}
INSTANTIATE_TEST_SUITE_P(Rules, WholeNumber, testing::ValuesIn(kWhole));

TEST(NumberText, LongAtReadsTenBytes)
{
    EXPECT_EQ(9876543210, longAt("ab98765432101", 2));
    EXPECT_EQ(98, longAt("ab98", 2));
    EXPECT_EQ(0, longAt("ab98", 4));
    EXPECT_EQ(0, longAt("ab", 9));
}

struct FloatCase {
    const char* name;
    const char* text;
    int n;
    float number;
};
void PrintTo(const FloatCase& c, std::ostream* out) { *out << c.name; }

const FloatCase kFloats[] = {
    {"slice ends behind the point", "12.75", 4, 12.7F},
    {"empty", "", 4, 0},
    {"white space and minus", " \v-1.5", 9, -1.5F},
    {"plus", "+1.5", 9, 1.5F},
    {"two signs", "+-1.5", 9, 0},
    {"no digit before the point", ".5", 9, 0.5F},
    {"comma ends it", "1,5", 9, 1},
    {"exponent", "25e-1x", 9, 2.5F},
    {"exponent without digits", "25e", 9, 25},
    {"hexadecimal", "0x1Ap1", 9, 52},
    {"too large", "1e999", 9, std::numeric_limits<float>::infinity()},
    {"too small", "-1e-999", 9, 0},
};

class FloatNumber : public testing::TestWithParam<FloatCase> {};

TEST_P(FloatNumber, IsReadFromASlice)
{
    EXPECT_EQ(GetParam().number, floatOf(GetParam().text, GetParam().n));
}
INSTANTIATE_TEST_SUITE_P(Rules, FloatNumber, testing::ValuesIn(kFloats));

TEST(NumberText, Pow2)
{
    EXPECT_EQ(1, pow2(0));
    EXPECT_EQ(1024, pow2(10));
    EXPECT_EQ(1 << 30, pow2(30));
    EXPECT_EQ(0, pow2(-1));
    EXPECT_EQ(0, pow2(31));
}

TEST(NumberText, CutDecimals)
{
    EXPECT_STREQ("12.34", cutDecimals("12.3456", 2));
    EXPECT_STREQ("12.3456", cutDecimals("12.3456 m", 4));
    EXPECT_STREQ("12.3456", cutDecimals("12.3456", 5));
    EXPECT_STREQ("12.", cutDecimals("12.3456", 0));
    EXPECT_STREQ("12", cutDecimals("12.3456", -1));
    EXPECT_STREQ("1234", cutDecimals("1234", 2));
    EXPECT_STREQ("1.5e-7", cutDecimals("1.5e-7", 2)); // one digit only
}

TEST(NumberText, StripZeros)
{
    const auto stripped = [](std::string text, int dropPoint) {
        stripZeros(text.data(), dropPoint);
        return std::string(text.c_str());
    };
    EXPECT_EQ("1.", stripped("1.00", 0));
    EXPECT_EQ("1", stripped("1.00", 1));
    EXPECT_EQ("1.05", stripped("1.050", 1));
    EXPECT_EQ("100", stripped("100", 1));
}

} // namespace

// tests/util/FixedTextTest.cpp
#include "util/FixedText.h"

#include <ostream>

#include <gtest/gtest.h>

namespace {

struct PrefixCase {
    const char* name;
    std::string_view text;
    std::size_t limit;
    std::string_view prefix;
};
void PrintTo(const PrefixCase& c, std::ostream* out) { *out << c.name; }

const PrefixCase kPrefixes[] = {
    {"shorter", "ab", 3, "ab"},
    {"just fitting", "abc", 3, "abc"},
    {"one too long", "abcd", 3, "abc"},
    {"no room", "abc", 0, ""},
    {"two bytes whole", "a\u00E4b", 3, "a\u00E4"},
    {"two bytes cut", "a\u00E4b", 2, "a"},
    {"three bytes whole", "\u20ACx", 3, "\u20AC"},
    {"three bytes cut after two", "\u20ACx", 2, ""},
    {"four bytes whole", "\U0001F41Ax", 4, "\U0001F41A"},
    {"four bytes cut after three", "\U0001F41Ax", 3, ""},
    {"four bytes cut after one", "ab\U0001F41A", 3, "ab"},
    {"lone first byte", "a\xC3 b", 2, "a\xC3"},
    {"lone following bytes", "a\x80\x80\x80", 3, "a\x80\x80"},
    {"overlong two bytes", "\xC1\x81x", 1, "\xC1"},
    {"overlong three bytes", "\xE0\x9F\xBFx", 2, "\xE0\x9F"},
    {"shortest three bytes", "\xE0\xA0\x80x", 2, ""},
    {"surrogate", "\xED\xA0\x80x", 2, "\xED\xA0"},
    {"last before the surrogates", "\xED\x9F\xBFx", 2, ""},
    {"overlong four bytes", "\xF0\x8F\xBF\xBFx", 3, "\xF0\x8F\xBF"},
    {"last of all characters", "\xF4\x8F\xBF\xBFx", 3, ""},
    {"beyond the last character", "\xF4\x90\x80\x80x", 3, "\xF4\x90\x80"},
    {"broken third byte", "\xE2\x82xx", 2, "\xE2\x82"},
    {"character unfinished at the end", std::string_view("ab\u20AC", 4), 3, "ab\xE2"},
};

class Utf8Prefix : public testing::TestWithParam<PrefixCase> {};

TEST_P(Utf8Prefix, EndsAtACharacterBorder)
{
    EXPECT_EQ(GetParam().prefix, utf8Prefix(GetParam().text, GetParam().limit));
}
INSTANTIATE_TEST_SUITE_P(Rules, Utf8Prefix, testing::ValuesIn(kPrefixes));

TEST(FixedText, CutsAtCapacityAndCharacterBorder)
{
    FixedText<4> text("abcdef");
    EXPECT_EQ(text, "abcd");
    text = "abc\u00E4";
    EXPECT_EQ(text, "abc");
    text = std::string_view("x\0y", 3);
    EXPECT_EQ(text, "x");
    EXPECT_EQ('\0', text.c_str()[2]);
    text = static_cast<const char*>(nullptr);
    EXPECT_TRUE(text.empty());
}

TEST(FixedText, TakesAPartOfItself)
{
    FixedText<6> text("abcdef");
    text = text.c_str() + 2;
    EXPECT_EQ(text, "cdef");
    text = text.view().substr(1, 2);
    EXPECT_EQ(text, "de");
}

} // namespace

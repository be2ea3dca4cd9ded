// tests/platform/desktopdb/WideTextTest.cpp
#include "platform/desktopdb/WideText.h"

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

struct WideCase {
    const char* rule;
    std::string narrow;
    std::u16string wide;
    bool back = true; ///< whether the way back gives the same
};

void PrintTo(const WideCase& c, std::ostream* out) { *out << c.rule; }

const WideCase kTexts[] = {
    {"ASCII", "abc", u"abc"},
    {"two bytes",
        "Gr\xc3\xb6\xc3\x9f"
        "e",
        u"Gr\u00f6\u00dfe"},
    {"three bytes", "\xe2\x82\xac", u"\u20ac"},
    {"four bytes", "\xf0\x9f\x90\x9a!", u"\xd83d\xdc1a!"},
    {"a zero inside", std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
    {"a byte of Latin-1",
        "a\xe9"
        "b",
        u"a\ufffd"
        "b",
        false},
    {"cut in the middle", "\xe2\x82", u"\ufffd\ufffd", false},
    {"a slash in two bytes", "\xc0\xaf", u"\ufffd\ufffd", false},
    {"a surrogate in three bytes", "\xed\xa0\x80", u"\ufffd\ufffd\ufffd", false},
};

class WideText : public testing::TestWithParam<WideCase> {};

TEST_P(WideText, ThereAndBack)
{
    EXPECT_EQ(utf16Of(GetParam().narrow), GetParam().wide);
    if (GetParam().back) {
        EXPECT_EQ(utf8Of(GetParam().wide), GetParam().narrow);
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, WideText, testing::ValuesIn(kTexts));

TEST(WideText, LoneSurrogates)
{
    EXPECT_EQ(utf8Of(std::u16string{0xd83d}), "\xef\xbf\xbd");
    EXPECT_EQ(utf8Of(std::u16string{0xdc1a, u'a'}),
        "\xef\xbf\xbd"
        "a");
}

} // namespace

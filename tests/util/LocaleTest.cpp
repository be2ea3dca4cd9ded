// tests/util/LocaleTest.cpp
#include "util/TextUtil.h"

#include <clocale>
#include <string>

#include <gtest/gtest.h>

namespace {

/// A locale with a decimal comma while it lives, as a window toolkit sets the user's one.
class CommaLocale : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char* name : {"de_DE.ISO-8859-1", "de_DE.UTF-8", "de_DE"}) {
            if (std::setlocale(LC_ALL, name)) {
                ASSERT_STREQ(",", std::localeconv()->decimal_point);
                return;
            }
        }
        GTEST_SKIP() << "no locale with a decimal comma on this machine";
    }
    void TearDown() override { std::setlocale(LC_ALL, before_.c_str()); }

private:
    const std::string before_ = std::setlocale(LC_ALL, nullptr);
};

TEST_F(CommaLocale, NumbersKeepThePoint)
{
    EXPECT_STREQ("1234567.50", fixedText(1234567.5, 2));
    EXPECT_STREQ("1234567", intText(1234567));
    EXPECT_EQ(2.5F, floatOf("2.5", 3));
    EXPECT_EQ(2.0F, floatOf("2,5", 3));
    const char* line = "0.5\t";
    EXPECT_EQ(0.5F, readFloatField(&line));
}

TEST_F(CommaLocale, BytesKeepTheirClass)
{
    EXPECT_EQ("\xE4", upperCased("\xE4")); // a letter in Latin 1
    EXPECT_EQ("\xC4", lowerCased("\xC4"));
    EXPECT_EQ("\xC4 \xE4", titleCased("\xC4 \xE4"));
    EXPECT_EQ("a\x85", trimmedRight("a\x85 ")); // a control character in Latin 1
    EXPECT_GT(compareIgnoringCase("\xE4", "\xC4"), 0);
}

} // namespace

// tests/util/FixedTextTest.cpp
#include "util/FixedText.h"

#include "tests/util/Rows.h"

namespace {

/// The bytes of `code` in the form of `length` bytes, whether or not Unicode has it there.
std::array<char, 4> encoded(unsigned code, int length)
{
    std::array<char, 4> bytes{};
    for (int i = length - 1; i > 0; --i, code >>= 6)
        bytes[i] = static_cast<char>(0x80 | (code & 0x3F));
    bytes[0] = static_cast<char>((0xF00 >> length) | code);
    return bytes;
}

TEST(FixedText, KnowsEveryCharacterOfUnicodeInItsShortestForm)
{
    const unsigned first[] = {0, 0, 0x80, 0x800, 0x10000, 0x200000};
    for (int length = 2; length <= 4; ++length)
        for (unsigned code = 0; code < first[length + 1]; ++code) {
            const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
            const bool known = code >= first[length] && code <= 0x10FFFF && !surrogate;
            const auto bytes = encoded(code, length);
            ASSERT_EQ(known ? length : 1, utf8Length({bytes.data(), bytes.size()})) << code;
        }
}

TEST(FixedText, PrefixEndsAtACharacterBorder)
{
    expectRows<std::string_view>({
        {"one too long", utf8Prefix("abcd", 3), "abc"},
        {"no room", utf8Prefix("abc", 0), ""},
        {"four bytes whole", utf8Prefix("\U0001F41Ax", 4), "\U0001F41A"},
        {"four bytes cut after three", utf8Prefix("\U0001F41Ax", 3), ""},
        {"two bytes cut", utf8Prefix("a\u00E4b", 2), "a"},
        {"lone first byte", utf8Prefix("a\xC3 b", 2), "a\xC3"},
        {"lone following bytes", utf8Prefix("a\x80\x80\x80", 3), "a\x80\x80"},
        {"broken third byte", utf8Prefix("\xE2\x82\xC0x", 2), "\xE2\x82"},
        {"unfinished at the end", utf8Prefix({"ab\u20AC", 4}, 3), "ab\xE2"},
    });
}

TEST(FixedText, CutsAtCapacityAndCharacterBorder)
{
    FixedText<4> text("abcde");
    EXPECT_EQ(text, "abcd");
    text = "abcd";
    EXPECT_EQ(text, "abcd");
    text = "abc\u00E4";
    EXPECT_EQ(text, "abc");
    text = std::string_view("x\0y", 3);
    EXPECT_EQ(text, "x");
    EXPECT_EQ('\0', text.c_str()[2]);
    text = text.c_str() + 1;
    EXPECT_TRUE(text.empty());
    text = "bcd";
    text = text.c_str() + 1; // overlapping itself
    EXPECT_EQ(text, "cd");
    text = static_cast<const char*>(nullptr);
    EXPECT_TRUE(text.empty());
}

} // namespace

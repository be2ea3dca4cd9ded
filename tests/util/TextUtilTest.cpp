// tests/util/TextUtilTest.cpp
#include "util/TextUtil.h"

#include "tests/util/Rows.h"

#include <algorithm>
#include <clocale>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

/// The rules hold in whatever locale a window toolkit sets. The second one has a decimal comma and
/// letters above 127.
class TextUtil : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override
    {
        if (!std::setlocale(LC_ALL, GetParam()))
            GTEST_SKIP() << "no locale " << GetParam() << " on this machine";
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};
INSTANTIATE_TEST_SUITE_P(Locales, TextUtil, testing::Values("C", "de_DE.ISO-8859-1"));

/// `text` after an operation in place. The block has 4 bytes, or the text, and the terminator, not
/// one more, so that a sanitizer sees each byte written behind it.
template <typename Operation, typename... Arguments>
std::string changed(Operation operation, const std::string& text, Arguments... arguments)
{
    const auto block = std::make_unique<char[]>(std::max<std::size_t>(text.size(), 4) + 1);
    text.copy(block.get(), text.size());
    operation(block.get(), arguments...);
    return block.get();
}

std::string owned(const char* text) { return std::unique_ptr<const char[]>(text).get(); }

TEST_P(TextUtil, Trims)
{
    expectRows<std::string>({
        {"right: all blanks", changed(trimRight, "   "), ""},
        {"right: every white space", changed(trimRight, " a b\t\n\v\f\r "), " a b"},
        {"right: control characters", changed(trimRight, "a\x01\x7F"), "a"},
        {"right: bytes above 127 stay", changed(trimRight, "a\x85\xA0 "), "a\x85\xA0"},
        {"left: control characters", changed(trimLeft, "\x01\t !b "), "!b "},
        {"left: lone bytes", changed(trimLeft, "\xE4\x80 ab"), "ab"},
        {"left: a whole character stays", changed(trimLeft, " \u00E4b"), "\u00E4b"},
        {"cut: trimmed at the new end", changed(cutAt, "a  b", 3), "a"},
        {"cut: shorter text is trimmed", changed(cutAt, "ab ", 9), "ab"},
        {"cut: at a character border", changed(cutAt, "a\u00E4", 2), "a"},
        {"cut: nothing left", changed(cutAt, "abc", -1), ""},
        {"pad: appends", changed(padTo, "ab", 4), "ab  "},
        {"pad: at a character border", changed(padTo, "abc\u00E4", 4), "abc "},
        {"slice: trimmed", owned(textOf("ab  cd", 4)), "ab"},
        {"slice: character cut", owned(textOf("a\u00E4", 2)), "a"},
        {"slice: character whole", owned(textOf("a\u00E4\u00E4", 3)), "a\u00E4"},
        {"remove: neighbours and ends", changed(removeChar, "aabca", 'a'), "bc"},
        {"remove: no byte of a letter", changed(removeChar, "\u00E4\xC3", '\xC3'), "\u00E4"},
    });
    char text[] = "aba  ";
    EXPECT_EQ(3, trimRight(text));
    EXPECT_EQ(2, removeChar(text, 'a'));
}

TEST_P(TextUtil, ChangesCase)
{
    expectRows<std::string>({
        {"upper: ASCII only", upperCased("az{`\u00E4\xE4"), "AZ{`\u00E4\xE4"},
        {"lower: ASCII only", lowerCased("AZ[@\u00C4\xC4"), "az[@\u00C4\xC4"},
        {"upper: 1025 bytes", upperCased(std::string(1027, 'a')), std::string(1025, 'A') + "aa"},
        {"title: words and brackets", titleCased("sp. OF (s.l.)"), "Sp. Of (S.L.)"},
        {"title: no digit but 0 separates", titleCased("a10b12b9c"), "A10B12b9c"},
        {"title: edges of the separators", titleCased("a/b:c?d[e`f"), "A/B:C?D[E`F"},
        {"title: beside the separators", titleCased("a@b{c~d"), "A@b{c~d"},
        {"title: lone byte separates", titleCased("A\xE4Z \xC4 \xE4"), "A\xE4Z \xC4 \xE4"},
        {"title: a whole character is a letter", titleCased("A\u00E4B"), "A\u00E4b"},
        {"title: in place", changed(titleCase, "ab"), "Ab"},
    });
}

TEST_P(TextUtil, ComparesIgnoringCase)
{
    const char* ascending[] = {"", "AB", "abc", "[", "_", "\u00C4", "\u00E4", "\xC4", "\xE4"};
    for (std::size_t i = 1; i < std::size(ascending); ++i) {
        EXPECT_LT(compareIgnoringCase(ascending[i - 1], ascending[i]), 0) << ascending[i];
        EXPECT_GT(compareIgnoringCase(ascending[i], ascending[i - 1]), 0) << ascending[i];
    }
    EXPECT_EQ(0, compareIgnoringCase("aZ", "Az"));
    EXPECT_TRUE(containsIgnoringCase("Globigerina", "GERI"));
    EXPECT_TRUE(containsIgnoringCase("", ""));
    EXPECT_FALSE(containsIgnoringCase("abc", "abcd"));
}

TEST_P(TextUtil, PrintsNumbers)
{
    expectRows<std::string>({
        {"what rounds to 0 keeps its sign", fixedText(-0.0001, 2), "-0.00"},
        {"negative decimals are none", fixedString(1.5, -1), "2"},
        {"no groups of digits", fixedText(1234567.5, 2), "1234567.50"},
        {"zeros behind the point", changed(fixedTextTrim, "   ", 2.5, 2), "2.5"},
        {"and the point", changed(fixedTextTrim, "    ", 3.0, 2), "3"},
        {"but not those before it", changed(stripZeros, "100", 1), "100"},
        {"zeros alone", changed(stripZeros, "1.00", 0), "1."},
        {"cut inside", cutDecimals("12.3456", 2), "12.34"},
        {"fewer digits", cutDecimals("1.5e-7", 2), "1.5e-7"},
        {"cut at the point", cutDecimals("12.3456", -1), "12"},
        {"no point", cutDecimals("1234", 2), "1234"},
    });
    EXPECT_EQ(310U + 9U, fixedString(std::numeric_limits<double>::lowest(), 8).size());
    EXPECT_STREQ("-1234567", intText(-1234567));
}

TEST_P(TextUtil, ReadsWholeNumbers)
{
    expectRows<long>({
        {"slice ends inside the number", longOf("12345", 3), 123},
        {"slice longer than the text", shortOf("12", 9), 12},
        {"white space before", longOf(" \t\r\n12", 9), 12},
        {"no white space", longOf("\x1F+1", 9), 0},
        {"minus", longOf("-12", 9), -12},
        {"letters behind, no octal number", longOf("010x", 9), 10},
        {"lowest", longOf("-9223372036854775808", 20), std::numeric_limits<long>::min()},
        {"beyond the highest", longOf("9223372036854775808", 20), std::numeric_limits<long>::max()},
        {"beyond any", longOf("-99999999999999999999", 21), std::numeric_limits<long>::min()},
        {"ten bytes from an offset", longAt("ab98765432101", 2), 9876543210},
        {"offset behind the end", longAt("ab", 9), 0},
        {"power of two", pow2(30), 1 << 30},
        {"no power of two", pow2(-1) + pow2(31), 0},
    });
}

TEST_P(TextUtil, ReadsDecimalNumbers)
{
    expectRows<float>({
        {"slice ends behind the point", floatOf("12.75", 4), 12.7F},
        {"white space and minus", floatOf(" \v-1.5", 9), -1.5F},
        {"plus", floatOf("+.5", 9), 0.5F},
        {"two signs", floatOf("+-1.5", 9), 0},
        {"comma ends it", floatOf("1,5", 9), 1},
        {"exponent without digits", floatOf("25e", 9), 25},
        {"hexadecimal", floatOf("0x1Ap1", 9), 52},
        {"too large", floatOf("-1e999", 9), -std::numeric_limits<float>::infinity()},
        {"too small", floatOf("1e-999", 9), 0},
    });
}

TEST_P(TextUtil, ReadsTheFieldsOfALine)
{
    const std::string line = "9999999999\t3.5\tab \t\t\t-7\t 8 \t" + std::string(300, 'w');
    const char* cursor = line.c_str();
    EXPECT_EQ(9999999999, readLongField(&cursor));
    EXPECT_EQ(3.5F, readFloatField(&cursor));
    EXPECT_EQ("ab", owned(readTextField(&cursor)));
    EXPECT_EQ("", owned(readTextField(&cursor)));
    EXPECT_EQ(0.0F, readFloatField(&cursor));
    EXPECT_EQ(-7, readShortField(&cursor));
    EXPECT_EQ(8, readIntField(&cursor));
    EXPECT_EQ(std::string(300, 'w'), owned(readTextField(&cursor)));
    EXPECT_EQ(line.c_str() + line.size() + 1, cursor);
}

TEST_P(TextUtil, SortsThePartBetween)
{
    const char* texts[] = {"b", "\u00E4", "a", "B", "a"};
    const auto sorted = [&texts](int lo, int hi, int descending) {
        std::vector<int> index{0, 1, 2, 3, 4};
        sortIndex(texts, index.data(), lo, hi, descending);
        return index;
    };
    expectRows<std::vector<int>>({
        {"ascending", sorted(0, 4, 0), {3, 2, 4, 0, 1}},
        {"descending", sorted(0, 4, 1), {1, 0, 2, 4, 3}},
        {"a part", sorted(1, 3, 0), {0, 3, 2, 1, 4}},
        {"nothing", sorted(3, 0, 0), {0, 1, 2, 3, 4}},
    });
}

TEST_P(TextUtil, SplitsIntoParts)
{
    using Parts = std::vector<std::string>;
    char* parts[8];
    const auto split = [&parts](const std::string& text, const char* delimiters) {
        int count = -1;
        splitText(text.c_str(), parts, delimiters, &count);
        return Parts(parts, parts + count);
    };
    expectRows<Parts>({
        {"empty parts at the start and inside", split(",a,,c", ","), {"", "a", "", "c"}},
        {"empty part at the end", split("a,,", ","), {"a", ""}},
        {"any of the delimiters", split("a,b;c d", ";,"), {"a", "b", "c d"}},
        {"a part of its own", split(parts[2], " "), {"c", "d"}},
        {"nothing", split("", ","), {""}},
        {"a character of two bytes", split("a\u00E4b\u00F6", "\u00E4"), {"a", "b\u00F6"}},
        {"longest", split(std::string(499, 'x'), ","), {std::string(499, 'x')}},
        {"too long", split(std::string(500, 'x'), ","), {}},
    });
}

} // namespace

// tests/util/TextUtilTest.cpp
#include "util/TextUtil.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <numeric>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

/// `text` after an operation in place. The block has `room` bytes and the terminator, not one
/// more, so that a sanitizer sees each byte written behind it.
template <typename Operation>
std::string inPlace(const std::string& text, Operation operation, std::size_t room = 0)
{
    const auto block = std::make_unique<char[]>(std::max(text.size(), room) + 1);
    text.copy(block.get(), text.size());
    operation(block.get());
    return block.get();
}

struct ChangeCase {
    const char* name;
    void (*change)(char*);
    const char* text;
    const char* changed;
};
void PrintTo(const ChangeCase& c, std::ostream* out) { *out << c.name; }

void trimAtRight(char* text)
{
    const int size = trimRight(text);
    EXPECT_EQ(static_cast<int>(std::strlen(text)), size);
}

template <int N> void cut(char* text) { cutAt(text, N); }

const ChangeCase kChanges[] = {
    {"right: all blanks", trimAtRight, "   ", ""},
    {"right: every white space", trimAtRight, "a\t\n\v\f\r ", "a"},
    {"right: control characters", trimAtRight, "a\x01\x7F", "a"},
    {"right: inner and leading blanks stay", trimAtRight, " a b ", " a b"},
    {"right: bytes above 127 stay", trimAtRight, "a\x85\xA0 ", "a\x85\xA0"},
    {"left: blanks", trimLeft, "  ab", "ab"},
    {"left: control characters", trimLeft, "\x01\t ab ", "ab "},
    {"left: all blanks", trimLeft, "  ", ""},
    {"left: first kept character", trimLeft, " !", "!"},
    {"left: lone bytes", trimLeft, "\xE4\x80 ab", "ab"},
    {"left: a whole character stays", trimLeft, " \u00E4b", "\u00E4b"},
    {"upper: ASCII only", upperCase, "az{\u00E4`", "AZ{\u00E4`"},
    {"lower: ASCII only", lowerCase, "AZ[\u00C4@", "az[\u00C4@"},
    {"title: words", titleCase, "sp. nov.", "Sp. Nov."},
    {"title: brackets", titleCase, "GLOBIGERINA (S.L.)", "Globigerina (S.L.)"},
    {"title: the digit 0 separates", titleCase, "a10b", "A10B"},
    {"title: other digits don't", titleCase, "a12b9c", "A12b9c"},
    {"title: edges of the separators", titleCase, "a/b:c?d[e`f", "A/B:C?D[E`F"},
    {"title: beside the separators", titleCase, "a@b{c~d", "A@b{c~d"},
    {"title: lone byte separates", titleCase,
        "A\xE4"
        "B",
        "A\xE4"
        "B"},
    {"title: a whole character is a letter", titleCase, "A\u00E4B", "A\u00E4b"},
    {"cut: inside", cut<3>, "abcdef", "abc"},
    {"cut: blanks at the new end", cut<3>, "a  b", "a"},
    {"cut: shorter text is trimmed", cut<9>, "ab ", "ab"},
    {"cut: at a character border", cut<2>, "a\u00E4", "a"},
    {"cut: nothing left", cut<-1>, "abc", ""},
};

class TextChange : public testing::TestWithParam<ChangeCase> {};

TEST_P(TextChange, InPlace)
{
    EXPECT_EQ(GetParam().changed, inPlace(GetParam().text, GetParam().change));
}
INSTANTIATE_TEST_SUITE_P(Rules, TextChange, testing::ValuesIn(kChanges));

TEST(TextUtil, CaseStopsAfter1025Bytes)
{
    EXPECT_EQ(std::string(1025, 'A') + "aa", upperCased(std::string(1027, 'a')));
    EXPECT_EQ(std::string(1025, 'a') + "AA", lowerCased(std::string(1027, 'A')));
}

TEST(TextUtil, PadToGivesTheWidth)
{
    const auto padded = [](const char* text, int n) {
        const auto operation = [n](char* t) { padTo(t, n); };
        return inPlace(text, operation, static_cast<std::size_t>(std::max(n, 0)));
    };
    EXPECT_EQ("ab  ", padded("ab", 4));
    EXPECT_EQ("abcd", padded("abcd", 4));
    EXPECT_EQ("abcd", padded("abcdef", 4));
    EXPECT_EQ("abc ", padded("abc\u00E4", 4));
    EXPECT_EQ("", padded("ab", -1));
}

TEST(TextUtil, RemoveCharCountsWhatItRemoves)
{
    const auto removed = [](const char* text, char c, int count) {
        return inPlace(text, [=](char* t) { EXPECT_EQ(count, removeChar(t, c)); });
    };
    EXPECT_EQ("b", removed("aab", 'a', 2));
    EXPECT_EQ("bb", removed("abab", 'a', 2));
    EXPECT_EQ("b", removed("b", 'a', 0));
    EXPECT_EQ("\u00E4", removed("\u00E4\xC3", '\xC3', 1)); // its first byte belongs to the letter
}

TEST(TextUtil, CompareIgnoringCase)
{
    const char* ascending[] = {"", "[", "\u00E4", "\xFF"};
    for (std::size_t i = 1; i < std::size(ascending); ++i) {
        EXPECT_LT(compareIgnoringCase(ascending[i - 1], ascending[i]), 0) << ascending[i];
        EXPECT_GT(compareIgnoringCase(ascending[i], ascending[i - 1]), 0) << ascending[i];
    }
    EXPECT_EQ(0, compareIgnoringCase("aZ", "Az"));
    EXPECT_LT(compareIgnoringCase("AB", "abc"), 0);
    EXPECT_GT(compareIgnoringCase("_", "a"), 0); // above the upper-case letters
    EXPECT_NE(0, compareIgnoringCase("\u00E4", "\u00C4"));
}

TEST(TextUtil, ContainsIgnoringCase)
{
    EXPECT_TRUE(containsIgnoringCase("Globigerina", "GERI"));
    EXPECT_TRUE(containsIgnoringCase("", ""));
    EXPECT_FALSE(containsIgnoringCase("abc", "abcd"));
    EXPECT_FALSE(containsIgnoringCase("", "a"));
}

TEST(TextUtil, TextOfGivesANewTrimmedSlice)
{
    const auto sliced = [](const char* text, int n) {
        return std::string(std::unique_ptr<char[]>(textOf(text, n)).get());
    };
    EXPECT_EQ("ab", sliced("ab  cd", 4));
    EXPECT_EQ("ab", sliced("ab", 9));
    EXPECT_EQ("", sliced("ab", 0));
    EXPECT_EQ("a", sliced("a\u00E4", 2));
    EXPECT_EQ("a\u00E4", sliced("a\u00E4\u00E4", 3));
}

TEST(TextUtil, FieldsOfALine)
{
    const std::string wide(300, 'w');
    const std::string line = "12\t3.5\tabc \t\t\t-7\t 8 \t" + wide + "\t9999999999";
    const char* cursor = line.c_str();
    const auto text = [&cursor] {
        return std::string(std::unique_ptr<char[]>(readTextField(&cursor)).get());
    };
    EXPECT_EQ(12, readLongField(&cursor));
    EXPECT_EQ(3.5F, readFloatField(&cursor));
    EXPECT_EQ("abc", text());
    EXPECT_EQ("", text());
    EXPECT_EQ(0.0F, readFloatField(&cursor));
    EXPECT_EQ(-7, readShortField(&cursor));
    EXPECT_EQ(8, readIntField(&cursor));
    EXPECT_EQ(wide, text());
    EXPECT_EQ(9999999999, readLongField(&cursor));
    EXPECT_EQ(line.c_str() + line.size() + 1, cursor);
}

TEST(TextUtil, SortIndexOrdersThePartBetween)
{
    const char* texts[] = {"b", "\u00E4", "a", "B", "a"};
    const auto sorted = [&texts](int lo, int hi, int descending) {
        std::vector<int> index(std::size(texts));
        std::iota(index.begin(), index.end(), 0);
        sortIndex(texts, index.data(), lo, hi, descending);
        return index;
    };
    EXPECT_EQ((std::vector<int>{3, 2, 4, 0, 1}), sorted(0, 4, 0));
    EXPECT_EQ((std::vector<int>{1, 0, 2, 4, 3}), sorted(0, 4, 1));
    EXPECT_EQ((std::vector<int>{0, 3, 2, 1, 4}), sorted(1, 3, 0));
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 4}), sorted(3, 0, 0));
}

struct SplitCase {
    const char* name;
    std::string text;
    const char* delimiters;
    std::vector<std::string> parts;
};
void PrintTo(const SplitCase& c, std::ostream* out) { *out << c.name; }

const SplitCase kSplits[] = {
    {"empty part inside", "a,b,,c", ",", {"a", "b", "", "c"}},
    {"empty part at the end", "a,b,", ",", {"a", "b"}},
    {"two delimiters at the end", "a,,", ",", {"a", ""}},
    {"empty part at the start", ",a", ",", {"", "a"}},
    {"any of the delimiters", "a,b;c", ";,", {"a", "b", "c"}},
    {"no delimiter", "abc", ",", {"abc"}},
    {"nothing", "", ",", {""}},
    {"a character of two bytes", "a\u00E4b\u00F6", "\u00E4", {"a", "b\u00F6"}},
    {"longest", std::string(499, 'x'), ",", {std::string(499, 'x')}},
    {"too long", std::string(500, 'x'), ",", {}},
};

class SplitText : public testing::TestWithParam<SplitCase> {};

TEST_P(SplitText, GivesParts)
{
    char* parts[8];
    int count = -1;
    splitText(GetParam().text.c_str(), parts, GetParam().delimiters, &count);
    EXPECT_EQ(GetParam().parts, std::vector<std::string>(parts, parts + count));
}
INSTANTIATE_TEST_SUITE_P(Rules, SplitText, testing::ValuesIn(kSplits));

TEST(TextUtil, SplitTextSplitsAPartOfItsOwn)
{
    char* parts[4];
    int count = 0;
    splitText("ab,c d e", parts, ",", &count);
    splitText(parts[1], parts, " ", &count);
    EXPECT_EQ(
        (std::vector<std::string>{"c", "d", "e"}), std::vector<std::string>(parts, parts + count));
}

TEST(TextUtil, StaticTextsAreApart)
{
    const char* number = intText(1);
    const char* fixed = fixedText(2, 0);
    const char* cut = cutDecimals("3.0", -1);
    EXPECT_EQ("123", std::string(number) + fixed + cut);
}

} // namespace

// tests/platform/desktopdb/LexerTest.cpp
#include "platform/desktopdb/Lexer.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

// One letter a kind, so that a row shows a whole statement.
char letterOf(TokenKind kind)
{
    switch (kind) {
    case TokenKind::Word:
        return 'w';
    case TokenKind::Number:
        return 'n';
    case TokenKind::Text:
        return 't';
    case TokenKind::QuotedName:
        return 'q';
    case TokenKind::Date:
        return 'd';
    case TokenKind::Blob:
        return 'b';
    case TokenKind::Parameter:
        return '?';
    case TokenKind::Open:
        return '(';
    case TokenKind::Close:
        return ')';
    case TokenKind::Comma:
        return ',';
    case TokenKind::Dot:
        return '.';
    case TokenKind::Semicolon:
        return ';';
    case TokenKind::Brace:
        return '{';
    case TokenKind::Operator:
        return 'o';
    case TokenKind::Bad:
        return '!';
    case TokenKind::End:
        return '$';
    }
    return ' ';
}

std::string kindsOf(std::string_view sql)
{
    std::vector<Token> tokens;
    scan(sql, tokens);
    std::string kinds;
    for (const Token& token : tokens)
        kinds += letterOf(token.kind);
    return kinds;
}

std::string putTogether(std::string_view sql)
{
    std::vector<Token> tokens;
    scan(sql, tokens);
    std::string text;
    for (const Token& token : tokens)
        text.append(token.lead).append(token.text);
    return text;
}

struct ScanCase {
    const char* rule;
    const char* sql;
    const char* kinds;
};

void PrintTo(const ScanCase& c, std::ostream* out) { *out << c.rule; }

const ScanCase kScans[] = {
    {"nothing", "", "$"},
    {"blanks alone", " \t\n", "$"},
    {"a plain query", "SELECT a.b FROM c WHERE d>=1.5", "ww.wwwwwon$"},
    {"a doubled quote stays inside", "'it''s'", "t$"},
    {"two literals side by side", "'a' 'b'", "tt$"},
    {"a quote open to the end", "'abc -- x", "!$"},
    {"a quote open behind a doubled one", "'abc''", "!$"},
    {"the empty literal", "''", "t$"},
    {"a name in brackets", "[a 'b]", "q$"},
    {"brackets do not double", "[a]]", "q!$"},
    {"brackets left open", "[a", "!$"},
    {"a name in double quotes", "\"a\"\"b\"", "q$"},
    {"a comment ends with the line", "a -- 'x\nb", "ww$"},
    {"a comment at the end", "a -- 'x", "w$"},
    {"a comment between", "a/* ' */b", "ww$"},
    {"a comment left open", "a /* b", "w$"},
    {"a star behind the slash opens once", "/*/ a */b", "w$"},
    {"a minus is no comment", "a - -1", "woon$"},
    {"a date", "#1998-03-05#", "d$"},
    {"a date with its time", "#1998-03-05 10:11:12#", "d$"},
    {"a hash alone", "#abc#", "!w!$"},
    {"a hash left open", "#1998-03-05", "!nonon$"},
    {"a text that looks like a date", "'#1998-03-05#'", "t$"},
    {"numbers", "1 1. .5 1e5 1.5E-3 0x1f", "nnnnnn$"},
    {"a number with letters is one piece", "12ab", "n$"},
    {"a dot behind a name", "a.5", "wn$"},
    {"a blob", "x'00ff' X'' xx", "bbw$"},
    {"operators of two characters", "a||b<>c<=d!=e==f", "wowowowowow$"},
    {"a lone exclamation mark", "a!b", "w!w$"},
    {"named parameters are none of ours", ":a @b $c", "!w!w!w$"},
    {"letters of other alphabets", "Größe é", "ww$"},
    {"braces", "{d '2000-01-01'}", "{wt{$"},
    {"a backquote quotes a name", "`a b`", "q$"},
    {"a backquote inside a text", "'top`s'", "t$"},
};

class LexerScan : public testing::TestWithParam<ScanCase> {};

TEST_P(LexerScan, Kinds) { EXPECT_EQ(kindsOf(GetParam().sql), GetParam().kinds); }

TEST_P(LexerScan, PiecesGiveTheTextBack) { EXPECT_EQ(putTogether(GetParam().sql), GetParam().sql); }

INSTANTIATE_TEST_SUITE_P(Rules, LexerScan, testing::ValuesIn(kScans));

TEST(Lexer, TakesAnyBytes)
{
    std::mt19937 random(7);
    const std::string alphabet = "a'\"[]`#-/*.\n 0;?{}()x\\\xff";
    for (int round = 0; round < 20000; ++round) {
        std::string sql;
        for (auto i = random() % 12; i > 0; --i)
            sql += alphabet[random() % alphabet.size()];
        ASSERT_EQ(putTogether(sql), sql);
    }
}

TEST(Lexer, KnowsWordsInAnyCase)
{
    std::vector<Token> tokens;
    scan("select REFERENCES year Referencesx", tokens);
    EXPECT_EQ(tokens[0].word, Keyword::Select);
    EXPECT_EQ(tokens[1].word, Keyword::References);
    EXPECT_TRUE(tokens[1].reserved);
    EXPECT_FALSE(tokens[2].reserved);
    EXPECT_EQ(tokens[3].word, Keyword::None);
    EXPECT_FALSE(tokens[3].reserved);
}

} // namespace

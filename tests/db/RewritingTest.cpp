// tests/db/RewritingTest.cpp
#include "db/Session.h"
#include "tests/db/Kind.h"

#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

struct RewriteCase {
    const char* name;
    std::string statement;
    std::string onDesktop; // as the driver receives it; kind 2 leaves every statement as it is
};
void PrintTo(const RewriteCase& c, std::ostream* out) { *out << c.name; }

const RewriteCase kRewrites[] = {
    {"upper case function and wildcard", "SELECT a FROM t WHERE UPPER(name) LIKE 'AB%'",
        "SELECT a FROM t WHERE UCASE(name) LIKE 'AB*'"},
    {"every spelling of the functions",
        "SELECT UPPER(a), UPPER (a), upper(a), upper (a), LOWER(a), LOWER (a), lower(a), lower (a)",
        "SELECT UCASE(a), UCASE (a), UCASE(a), UCASE (a), LCASE(a), LCASE (a), LCASE(a), LCASE "
        "(a)"},
    {"mixed case is no function word", "SELECT Upper(a), Lower(a)", "SELECT Upper(a), Lower(a)"},
    {"two blanks before the parenthesis", "SELECT UPPER  (a)", "SELECT UPPER  (a)"},
    {"a column of that name", "SELECT upper, lower FROM t", "SELECT upper, lower FROM t"},
    {"the end of a longer word as well", "SELECT SUPPER(a)", "SELECT SUCASE(a)"},
    {"inside a literal as well", "SELECT 'EOCENE UPPER (LATE)'", "SELECT 'EOCENE UCASE (LATE)'"},
    {"no condition, no wildcard", "SELECT '50%'", "SELECT '50%'"},
    {"only behind the keyword", "SELECT '50%' FROM t where a LIKE '5%' OR a LIKE '%'",
        "SELECT '50%' FROM t where a LIKE '5*' OR a LIKE '*'"},
    {"keyword inside a word as well", "SELECT 'nowhere 50%'", "SELECT 'nowhere 50*'"},
    {"the lower case keyword first, wherever it stands",
        "SELECT a FROM t WHERE a='1%' AND b IN (SELECT b FROM t where c='2%')",
        "SELECT a FROM t WHERE a='1%' AND b IN (SELECT b FROM t where c='2*')"},
    {"mixed case is no keyword", "SELECT a FROM t Where a LIKE '5%'",
        "SELECT a FROM t Where a LIKE '5%'"},
    {"at the very end", "SELECT a FROM t WHERE UPPER(", "SELECT a FROM t WHERE UCASE("},
};

class Rewriting : public testing::TestWithParam<RewriteCase> {};
TEST_P(Rewriting, AsTheDriverReceivesIt)
{
    const TestDatabase database(TestDatabase::Empty);
    const StatementLog log;
    dbCloseCursor(dbExecute(GetParam().statement)); // most have no table to run on
    EXPECT_THAT(
        log.statements(), ElementsAre(isServer() ? GetParam().statement : GetParam().onDesktop));
}
INSTANTIATE_TEST_SUITE_P(Statements, Rewriting, testing::ValuesIn(kRewrites));

TEST(Rewriting, TheWordsStayThoseOfTheFirstStatement)
{
    const TestDatabase database(TestDatabase::Empty);
    dbCloseCursor(dbExecute("SELECT 1"));
    dbKind = isServer() ? 0 : 2; // the database puts it back
    const StatementLog log;
    char statement[] = "SELECT UPPER('a') WHERE 'a' LIKE '%'";
    dbCloseCursor(dbExecute(statement));
    EXPECT_STREQ("SELECT UPPER('a') WHERE 'a' LIKE '%'", statement) << "the caller's text stays";
    EXPECT_THAT(log.statements(),
        ElementsAre(byKind(
            "SELECT UPPER('a') WHERE 'a' LIKE '%'", "SELECT UCASE('a') WHERE 'a' LIKE '*'")));
}

struct BarCase {
    const char* name;
    std::string statement;
    std::vector<std::string> asParameters; // the statement and its parameters at the driver
};
void PrintTo(const BarCase& c, std::ostream* out) { *out << c.name; }

std::vector<std::string> manyBars(const std::string& introduction, std::size_t n)
{
    std::vector<std::string> received{introduction};
    for (std::size_t i = 0; i < n; ++i) {
        received.front() += i ? ",?" : "?";
        received.push_back("param:" + std::to_string(i) + "|");
    }
    return received;
}

std::string twelveBars()
{
    std::string statement = "SELECT ";
    for (int i = 0; i < 12; ++i)
        statement += (i ? ",'" : "'") + std::to_string(i) + "|'";
    return statement;
}

const BarCase kBars[] = {
    {"one", "SELECT 1,'x|y'", {"SELECT 1,?", "param:x|y"}},
    {"nothing but a bar", "SELECT '|'", {"SELECT ?", "param:|"}},
    {"several bars in one literal", "SELECT 'x|y|z'", {"SELECT ?", "param:x|y|z"}},
    {"two literals, one between them", "SELECT 'a|b','c','d|e'",
        {"SELECT ?,'c',?", "param:a|b", "param:d|e"}},
    {"more than ten", twelveBars(), manyBars("SELECT ", 12)},
    {"outside of literals it stays", "SELECT 'a' || 'b|c'", {"SELECT 'a' || ?", "param:b|c"}},
    {"only outside", "SELECT 'a' || 'b'", {"SELECT 'a' || 'b'"}},
    {"a doubled quote does not end a literal", "SELECT 'a''b|c'", {"SELECT ?", "param:a'b|c"}},
    {"an unfinished literal stays", "SELECT 'a|b", {"SELECT 'a|b"}},
    {"wildcards are exchanged before", "SELECT 'a|%' where 'a|%'='b'",
        {"SELECT ? where ?='b'", "param:a|%", "param:a|*"}},
    {"a long text", "SELECT '|" + std::string(3000, 'x') + "'",
        {"SELECT ?", "param:|" + std::string(3000, 'x')}},
};

class Bars : public testing::TestWithParam<BarCase> {};
TEST_P(Bars, BecomeParameters)
{
    const TestDatabase database(TestDatabase::Empty);
    const StatementLog log;
    dbCloseCursor(dbExecute(GetParam().statement));
    const std::vector<std::string> asWritten{GetParam().statement};
    EXPECT_EQ(isServer() ? asWritten : GetParam().asParameters, log.statements());
}
INSTANTIATE_TEST_SUITE_P(Statements, Bars, testing::ValuesIn(kBars));

TEST(Bars, ArriveInTheDatabase)
{
    TestDatabase database(TestDatabase::Empty);
    database.run("CREATE TABLE NO_SUCH_SCRATCH (a VARCHAR(40), b INTEGER, c VARCHAR(40))");
    const short cursor = dbExecute("INSERT INTO " + scratch() + " VALUES ('x|y',7,'\u00F8|''|')");
    EXPECT_NE(0, cursor) << dbErrorText();
    EXPECT_EQ(1, dbRowCount(cursor));
    dbCloseCursor(cursor);
    dbCommit();
    EXPECT_EQ("x|y|7|\u00F8|'|", database.rows("SELECT * FROM NO_SUCH_SCRATCH").at(0));
}

} // namespace

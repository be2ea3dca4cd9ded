// tests/db/RewritingTest.cpp
#include "db/Session.h"
#include "tests/db/Kind.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

// What arrives at the driver; most statements have no table to run on.
std::vector<std::string> received(const std::string& statement)
{
    const StatementLog log;
    dbCloseCursor(dbExecute(statement));
    return log.statements();
}

TEST(Rewriting, FunctionsAndWildcardsOfTheDesktopKinds)
{
    const TestDatabase database(TestDatabase::Empty);
    const std::pair<std::string, std::string> rows[] = {
        {"SELECT UPPER(a), UPPER (a), upper(a), upper (a), LOWER(a), LOWER (a), lower(a), lower (",
            "SELECT UCASE(a), UCASE (a), UCASE(a), UCASE (a), LCASE(a), LCASE (a), LCASE(a), LCASE "
            "("},
        // neither mixed case, nor two blanks, nor a column of that name
        {"SELECT Upper(a), Lower(a), UPPER  (a), upper, lower FROM t",
            "SELECT Upper(a), Lower(a), UPPER  (a), upper, lower FROM t"},
        // inside words and literals as well
        {"SELECT SUPPER(a), 'EOCENE UPPER (LATE)'", "SELECT SUCASE(a), 'EOCENE UCASE (LATE)'"},
        {"SELECT '50%' FROM t", "SELECT '50%' FROM t"},
        {"SELECT '50%' FROM t WHERE UPPER(a) LIKE '5%' OR a LIKE '%'",
            "SELECT '50%' FROM t WHERE UCASE(a) LIKE '5*' OR a LIKE '*'"},
        {"SELECT 'nowhere 50%'", "SELECT 'nowhere 50*'"}, // a keyword inside a word as well
        // the lower case keyword first, wherever it stands
        {"SELECT a FROM t WHERE a='1%' AND b IN (SELECT b FROM t where c='2%')",
            "SELECT a FROM t WHERE a='1%' AND b IN (SELECT b FROM t where c='2*')"},
        {"SELECT a FROM t Where a LIKE '5%'", "SELECT a FROM t Where a LIKE '5%'"}};
    for (const auto& [statement, onDesktop] : rows)
        EXPECT_THAT(received(statement), ElementsAre(isServer() ? statement : onDesktop));
    dbKind = isServer() ? 0 : 2; // the words stay those of the first statement
    EXPECT_THAT(received("SELECT UPPER('a') WHERE 'a' LIKE '%'"),
        ElementsAre(byKind(
            "SELECT UPPER('a') WHERE 'a' LIKE '%'", "SELECT UCASE('a') WHERE 'a' LIKE '*'")));
}

TEST(Rewriting, LiteralsWithBarsBecomeParameters)
{
    const TestDatabase database(TestDatabase::Empty);
    std::string twelve = "SELECT '0|'";
    std::vector<std::string> twelveParameters{"SELECT ?", "param:0|"};
    for (int i = 1; i < 12; ++i) {
        twelve += ",'" + std::to_string(i) + "|'";
        twelveParameters.front() += ",?";
        twelveParameters.push_back("param:" + std::to_string(i) + "|");
    }
    const std::string text(3000, 'x');
    const std::pair<std::string, std::vector<std::string>> rows[] = {
        {"SELECT 'a|b','c','|','x|y|z'",
            {"SELECT ?,'c',?,?", "param:a|b", "param:|", "param:x|y|z"}},
        {twelve, twelveParameters}, {"SELECT 'a' || 'b|c'", {"SELECT 'a' || ?", "param:b|c"}},
        {"SELECT 'a' || 'b'", {"SELECT 'a' || 'b'"}},
        {"SELECT 'a''b|c'", {"SELECT ?", "param:a'b|c"}}, // a doubled quote ends no literal
        {"SELECT 'a|b", {"SELECT 'a|b"}},
        {"SELECT 'a|%' where 'a|%'='b'", {"SELECT ? where ?='b'", "param:a|%", "param:a|*"}},
        {"SELECT '|" + text + "'", {"SELECT ?", "param:|" + text}}};
    for (const auto& [statement, asParameters] : rows)
        EXPECT_EQ(
            isServer() ? std::vector<std::string>{statement} : asParameters, received(statement));
}

TEST(Rewriting, LiteralsWithBarsArriveInTheDatabase)
{
    TestDatabase database(TestDatabase::Empty);
    database.run("CREATE TABLE NO_SUCH_SCRATCH (a VARCHAR(40), b INTEGER, c VARCHAR(40))");
    const short cursor = dbExecute("INSERT INTO " + scratch() + " VALUES ('x|y',7,'\u00F8|''|')");
    EXPECT_EQ(1, dbRowCount(cursor));
    dbCloseCursor(cursor);
    dbCommit();
    EXPECT_EQ("x|y|7|\u00F8|'|", database.rows("SELECT * FROM NO_SUCH_SCRATCH").at(0));
}

} // namespace

// tests/platform/desktopdb/StatementTest.cpp
// States of a statement, what calls leave, transactions, SQLSTATEs.
#include "tests/platform/desktopdb/Client.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class StatementTest : public testing::Test {
protected:
    StatementTest()
    {
        client_.run("CREATE TABLE t (a INTEGER PRIMARY KEY, b VARCHAR(20) NOT NULL)");
        client_.run("INSERT INTO t VALUES (1, 'one'), (2, 'two'), (3, 'three')");
    }
    SQLLEN rowCount(SQLHSTMT statement)
    {
        SQLLEN count = -7;
        EXPECT_EQ(SQLRowCount(statement, &count), SQL_SUCCESS);
        return count;
    }

    DatabaseFile file_;
    Client client_{file_};
};

struct RefusedCase {
    const char* rule;
    const char* sql;
    const char* state;
    const char* text;
};

TEST_F(StatementTest, WhatIsRefusedAndWhy)
{
    const RefusedCase cases[] = {
        {"no table", "SELECT * FROM nix", "42S02", "no such table: nix"},
        {"no column", "SELECT nix FROM t", "42S22", "no such column: nix"},
        {"no column in an insert", "INSERT INTO t (nix) VALUES (1)", "42S22", "nix"},
        {"no text from double quotes", "SELECT \"references\" FROM t", "42S22", "references"},
        {"nor from a reserved word", "SELECT references FROM t", "42S22", "references"},
        {"syntax", "SELEC 1", "42000", "syntax error"},
        {"a literal left open", "SELECT 'abc", "42000", "not closed"},
        {"a key twice", "INSERT INTO t VALUES (1, 'x')", "23000", "UNIQUE"},
        {"a NULL where none may be", "INSERT INTO t (a) VALUES (9)", "23000", "NOT NULL"},
        {"a table that is there", "CREATE TABLE t (a INTEGER)", "42S01", "already exists"},
        {"too many values", "INSERT INTO t VALUES (1)", "21S01", "values"},
        {"no index", "DROP INDEX nix", "42S12", "no such index"},
        {"two statements", "DELETE FROM t; DELETE FROM t", "42000", "more than one"},
    };
    for (const RefusedCase& c : cases) {
        EXPECT_FALSE(client_.run(c.sql)) << c.rule;
        EXPECT_EQ(client_.state(), c.state) << c.rule;
        EXPECT_THAT(client_.message(), HasSubstr(c.text)) << c.rule;
    }
    EXPECT_EQ(client_.value("SELECT count(*) FROM t"), "3");
}

TEST_F(StatementTest, RowCounts)
{
    const SQLHSTMT s = client_.statement();
    EXPECT_EQ(client_.execute(s, "UPDATE t SET b='x' WHERE a>1"), SQL_SUCCESS);
    EXPECT_EQ(rowCount(s), 2);
    EXPECT_EQ(client_.execute(s, "UPDATE t SET b='x' WHERE a>99"), SQL_SUCCESS);
    EXPECT_EQ(rowCount(s), 0);
    EXPECT_EQ(client_.execute(s, "CREATE TABLE u (a INTEGER)"), SQL_SUCCESS);
    EXPECT_EQ(rowCount(s), -1);
    EXPECT_EQ(client_.execute(s, "SELECT a FROM t"), SQL_SUCCESS);
    EXPECT_EQ(rowCount(s), -1);
}

TEST_F(StatementTest, FetchingBeyondTheEndStaysAtTheEnd)
{
    const SQLHSTMT s = client_.statement();
    client_.execute(s, "SELECT a FROM t WHERE a=1");
    EXPECT_EQ(SQLFetch(s), SQL_SUCCESS);
    EXPECT_EQ(SQLFetch(s), SQL_NO_DATA);
    EXPECT_EQ(SQLFetch(s), SQL_NO_DATA);
    long value = 0;
    EXPECT_EQ(SQLGetData(s, 1, SQL_C_SLONG, &value, 0, nullptr), SQL_ERROR);
}

TEST_F(StatementTest, ARunIsRefusedWhileRowsAreOpen)
{
    const SQLHSTMT s = client_.statement();
    client_.execute(s, "SELECT a FROM t");
    EXPECT_EQ(client_.execute(s, "SELECT b FROM t"), SQL_ERROR);
    EXPECT_EQ(client_.state(), "24000");
    EXPECT_EQ(SQLFreeStmt(s, SQL_CLOSE), SQL_SUCCESS);
    EXPECT_EQ(client_.execute(s, "SELECT b FROM t"), SQL_SUCCESS);
    EXPECT_THAT(client_.fetchAll(s), ElementsAre("one", "two", "three"));
    EXPECT_EQ(SQLCloseCursor(s), SQL_SUCCESS);
    EXPECT_EQ(SQLCloseCursor(s), SQL_ERROR);
}

TEST_F(StatementTest, APreparedOneRunsAgainAndAgain)
{
    const SQLHSTMT s = client_.statement();
    ASSERT_EQ(SQLPrepare(s, bytes("SELECT b FROM t WHERE a=?"), SQL_NTS), SQL_SUCCESS);
    SQLINTEGER key = 0;
    SQLBindParameter(s, 1, SQL_PARAM_INPUT, SQL_C_SLONG, SQL_INTEGER, 0, 0, &key, 0, nullptr);
    const char* const names[] = {"one", "two", "three"};
    for (key = 1; key <= 3; ++key) {
        ASSERT_EQ(SQLExecute(s), SQL_SUCCESS);
        EXPECT_THAT(client_.fetchAll(s), ElementsAre(names[key - 1]));
        SQLFreeStmt(s, SQL_CLOSE);
    }
}

TEST_F(StatementTest, PreparingAMissingTableFails)
{
    const SQLHSTMT s = client_.statement();
    EXPECT_EQ(SQLPrepare(s, bytes("SELECT * FROM nix WHERE 1=0"), SQL_NTS), SQL_ERROR);
    client_.look(s);
    EXPECT_EQ(client_.state(), "42S02");
    SQLSMALLINT columns = 0;
    EXPECT_NE(SQLNumResultCols(s, &columns), SQL_SUCCESS);
    EXPECT_EQ(columns, 0);
}

SQLSMALLINT preparedColumns(Client& client, const std::string& sql)
{
    const SQLHSTMT s = client.statement();
    SQLSMALLINT columns = 0;
    if (SQLPrepare(s, bytes(sql), SQL_NTS) == SQL_SUCCESS)
        SQLNumResultCols(s, &columns);
    client.drop(s);
    return columns;
}

// The compiled statement of an earlier look must not answer for the tables of today.
TEST_F(StatementTest, PreparingSeesTablesAsTheyAreNow)
{
    const std::string look = "SELECT * FROM t WHERE 1=0";
    EXPECT_EQ(preparedColumns(client_, look), 2);
    client_.run("ALTER TABLE t ADD COLUMN c DATE");
    EXPECT_EQ(preparedColumns(client_, look), 3);
    Client other(file_);
    other.run("ALTER TABLE t ADD COLUMN d DATE");
    EXPECT_EQ(preparedColumns(client_, look), 4);
    client_.autocommit(false);
    client_.run("ALTER TABLE t ADD COLUMN e DATE");
    client_.rows(look); // compiles it for the five columns
    client_.rollback();
    EXPECT_EQ(preparedColumns(client_, look), 4);
    other.run("DROP TABLE t");
    EXPECT_EQ(preparedColumns(client_, look), 0);
}

TEST_F(StatementTest, RowsStayReadableBehindTheEndOfATransaction)
{
    for (const SQLSMALLINT completion :
        std::initializer_list<SQLSMALLINT>{SQL_COMMIT, SQL_ROLLBACK}) {
        client_.autocommit(false);
        client_.run("UPDATE t SET b='changed' WHERE a=3");
        const SQLHSTMT s = client_.statement();
        client_.execute(s, "SELECT a FROM t ORDER BY a");
        EXPECT_EQ(SQLFetch(s), SQL_SUCCESS);
        EXPECT_EQ(SQLEndTran(SQL_HANDLE_DBC, client_.connection(), completion), SQL_SUCCESS);
        EXPECT_THAT(client_.fetchAll(s), ElementsAre("2", "3"));
        client_.drop(s);
    }
}

TEST_F(StatementTest, CommitAndRollback)
{
    client_.autocommit(false);
    Client other(file_);
    const std::string count = "SELECT count(*) FROM t";
    client_.run("INSERT INTO t VALUES (4, 'four')");
    EXPECT_EQ(other.value(count), "3");
    EXPECT_EQ(client_.rollback(), SQL_SUCCESS);
    EXPECT_EQ(client_.value(count), "3");
    client_.run("INSERT INTO t VALUES (4, 'four')");
    EXPECT_EQ(client_.commit(), SQL_SUCCESS);
    EXPECT_EQ(other.value(count), "4");
    client_.run("INSERT INTO t VALUES (5, 'five')");
    client_.autocommit(true); // commits, as ODBC says
    EXPECT_EQ(other.value(count), "5");
}

TEST_F(StatementTest, CommitOnTheEnvironment)
{
    client_.autocommit(false);
    client_.run("INSERT INTO t VALUES (4, 'four')");
    EXPECT_EQ(SQLEndTran(SQL_HANDLE_ENV, client_.environment(), SQL_COMMIT), SQL_SUCCESS);
    Client other(file_);
    EXPECT_EQ(other.value("SELECT count(*) FROM t"), "4");
}

TEST_F(StatementTest, AFailedStatementLeavesTheTransactionAlone)
{
    client_.autocommit(false);
    client_.run("INSERT INTO t VALUES (4, 'four')");
    EXPECT_FALSE(client_.run("INSERT INTO t VALUES (5, 'five'), (4, 'again')"));
    client_.commit();
    EXPECT_EQ(client_.value("SELECT count(*) FROM t"), "4");
}

TEST_F(StatementTest, ReadingHoldsNoLock)
{
    client_.autocommit(false);
    client_.rows("SELECT * FROM t");
    const SQLHSTMT s = client_.statement();
    client_.execute(s, "SELECT * FROM t");
    SQLFetch(s);
    Client other(file_, "Timeout=0");
    EXPECT_TRUE(other.run("INSERT INTO t VALUES (4, 'four')")) << other.message();
    EXPECT_EQ(client_.value("SELECT count(*) FROM t"), "3"); // the open rows keep their view
    client_.drop(s);
    EXPECT_EQ(client_.value("SELECT count(*) FROM t"), "4");
}

// A trigger's body holds statements of its own; all of it is one.
TEST_F(StatementTest, TablesTriggersAndViews)
{
    EXPECT_TRUE(client_.run("CREATE TABLE log (a INTEGER, what VARCHAR(20))"));
    EXPECT_TRUE(client_.run("CREATE TRIGGER GEO.keep AFTER INSERT ON GEO.t BEGIN "
                            "INSERT INTO log VALUES (NEW.a, 'in;out'); "
                            "UPDATE t SET b=UCASE(b) WHERE a=NEW.a; END;"))
        << client_.message();
    EXPECT_TRUE(client_.run("CREATE VIEW v AS SELECT a, b FROM GEO.t WHERE b LIKE 'F*'"));
    EXPECT_TRUE(client_.run("INSERT INTO t VALUES (4, 'four')"));
    EXPECT_THAT(client_.rows("SELECT * FROM v"), ElementsAre("4|FOUR"));
    EXPECT_THAT(client_.rows("SELECT * FROM log"), ElementsAre("4|in;out"));
}

TEST_F(StatementTest, ForeignKeysAreNotEnforced)
{
    EXPECT_TRUE(client_.run("CREATE TABLE child (a INTEGER REFERENCES t(a))"));
    EXPECT_TRUE(client_.run("INSERT INTO child VALUES (77)"));
}

TEST_F(StatementTest, BoundColumns)
{
    const SQLHSTMT s = client_.statement();
    SQLINTEGER a = 0;
    char b[4] = "";
    SQLLEN aLength = 0;
    SQLLEN bLength = 0;
    SQLBindCol(s, 1, SQL_C_SLONG, &a, 0, &aLength);
    SQLBindCol(s, 2, SQL_C_CHAR, b, sizeof b, &bLength);
    client_.execute(s, "SELECT a, b FROM t ORDER BY a");
    EXPECT_EQ(SQLFetchScroll(s, SQL_FETCH_NEXT, 0), SQL_SUCCESS);
    EXPECT_EQ(a, 1);
    EXPECT_STREQ(b, "one");
    SQLFetch(s);
    EXPECT_EQ(SQLFetch(s), SQL_SUCCESS_WITH_INFO); // "three" is too long
    EXPECT_STREQ(b, "thr");
    EXPECT_EQ(bLength, 5);
    EXPECT_EQ(SQLFetchScroll(s, SQL_FETCH_PRIOR, 0), SQL_ERROR);
    SQLFreeStmt(s, SQL_CLOSE);
    SQLFreeStmt(s, SQL_UNBIND);
    a = -1;
    client_.execute(s, "SELECT a FROM t");
    SQLFetch(s);
    EXPECT_EQ(a, -1);
}

TEST_F(StatementTest, BlocksOfRows)
{
    const SQLHSTMT s = client_.statement();
    SQLINTEGER a[2] = {};
    char b[2][10] = {};
    SQLLEN lengths[2] = {};
    SQLUSMALLINT status[2] = {};
    SQLULEN fetched = 0;
    SQLSetStmtAttr(s, SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(2), 0);
    SQLSetStmtAttr(s, SQL_ATTR_ROW_STATUS_PTR, status, 0);
    SQLSetStmtAttr(s, SQL_ATTR_ROWS_FETCHED_PTR, &fetched, 0);
    SQLBindCol(s, 1, SQL_C_SLONG, a, 0, nullptr);
    SQLBindCol(s, 2, SQL_C_CHAR, b, sizeof b[0], lengths);
    client_.execute(s, "SELECT a, b FROM t ORDER BY a DESC");
    EXPECT_EQ(SQLFetch(s), SQL_SUCCESS);
    EXPECT_EQ(fetched, 2u);
    EXPECT_EQ(a[1], 2);
    EXPECT_STREQ(b[1], "two");
    EXPECT_EQ(lengths[0], 5);
    EXPECT_EQ(lengths[1], 3);
    EXPECT_EQ(SQLFetch(s), SQL_SUCCESS);
    EXPECT_EQ(fetched, 1u);
    EXPECT_EQ(a[0], 1);
    EXPECT_EQ(status[1], SQL_ROW_NOROW);
    EXPECT_EQ(SQLFetch(s), SQL_NO_DATA);
}

TEST_F(StatementTest, MaxRowsLimits)
{
    const SQLHSTMT s = client_.statement();
    SQLSetStmtAttr(s, SQL_ATTR_MAX_ROWS, reinterpret_cast<SQLPOINTER>(2), 0);
    client_.execute(s, "SELECT a FROM t ORDER BY a");
    EXPECT_THAT(client_.fetchAll(s), ElementsAre("1", "2"));
}

TEST_F(StatementTest, MoreResultsAreNone)
{
    const SQLHSTMT s = client_.statement();
    client_.execute(s, "SELECT a FROM t");
    EXPECT_EQ(SQLMoreResults(s), SQL_NO_DATA);
    EXPECT_EQ(client_.execute(s, "SELECT b FROM t WHERE a=1"), SQL_SUCCESS);
}

TEST_F(StatementTest, NoScanLeavesBracesToTheEngine)
{
    const SQLHSTMT s = client_.statement();
    EXPECT_EQ(SQLSetStmtAttr(s, SQL_ATTR_NOSCAN, reinterpret_cast<SQLPOINTER>(SQL_NOSCAN_ON), 0),
        SQL_SUCCESS);
    EXPECT_EQ(client_.execute(s, "SELECT {d '1998-03-05'}"), SQL_ERROR);
    EXPECT_EQ(client_.value("SELECT {d '1998-03-05'}"), "1998-03-05");
}

TEST_F(StatementTest, RowsOfAnInsertThatReturns)
{
    EXPECT_THAT(
        client_.rows("INSERT INTO t VALUES (7, 'seven') RETURNING a, b"), ElementsAre("7|seven"));
    EXPECT_EQ(client_.value("SELECT count(*) FROM t"), "4");
}

} // namespace

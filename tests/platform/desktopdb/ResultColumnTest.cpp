// tests/platform/desktopdb/ResultColumnTest.cpp
// What SQLDescribeCol and SQLColAttribute say.
#include "tests/platform/desktopdb/Client.h"

#include <gtest/gtest.h>

namespace {

std::string described(SQLHSTMT s, SQLUSMALLINT number)
{
    SQLCHAR name[50] = "";
    SQLSMALLINT length = 0;
    SQLSMALLINT type = 0;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = -1;
    if (SQLDescribeCol(s, number, name, sizeof name, &length, &type, &size, &digits, &nullable)
        != SQL_SUCCESS)
        return "!";
    return std::string(reinterpret_cast<const char*>(name)) + " " + std::to_string(type) + " "
        + std::to_string(size) + " " + std::to_string(digits) + (nullable ? " null" : "");
}

class ResultColumns : public testing::TestWithParam<Client::Version> {
protected:
    ResultColumns()
    {
        client_.run("CREATE TABLE t (i INTEGER NOT NULL, c VARCHAR(20), n NUMERIC(8,2), d DATE, "
                    "x DOUBLE)");
        client_.run("INSERT INTO t VALUES (1, 'abc', 2.5, '1998-03-05', 0.5)");
    }
    std::string dateType() const { return GetParam() == Client::Odbc2 ? "9" : "91"; }
    DatabaseFile file_;
    Client client_{file_, "Create=1", GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Versions, ResultColumns, testing::Values(Client::Odbc2, Client::Odbc3));

TEST_P(ResultColumns, OfTheTableAndOfExpressions)
{
    const SQLHSTMT s = client_.statement();
    client_.execute(
        s, "SELECT i, c AS label, n, d, x, count(*), max(x), max(c), NULL, CAST(i AS TEXT) FROM t");
    const std::string expected[] = {"i 4 10 0", "label 12 20 0 null", "n 2 8 2 null",
        "d " + dateType() + " 10 0 null", "x 8 15 0 null", "count(*) 4 10 0 null",
        "max(x) 8 15 0 null", "max(c) 12 255 0 null", "NULL 12 255 0 null",
        "CAST(i AS TEXT) 12 255 0 null"};
    for (SQLUSMALLINT i = 1; i <= std::size(expected); ++i)
        EXPECT_EQ(described(s, i), expected[i - 1]);
    EXPECT_EQ(described(s, 11), "!");
    client_.look(s);
    EXPECT_EQ(client_.state(), GetParam() == Client::Odbc2 ? "S1002" : "07009");
}

TEST_P(ResultColumns, OfAPreparedStatement)
{
    const SQLHSTMT s = client_.statement();
    SQLPrepare(s, bytes("SELECT * FROM t WHERE 1=0"), SQL_NTS);
    SQLSMALLINT count = 0;
    EXPECT_EQ(SQLNumResultCols(s, &count), SQL_SUCCESS);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(described(s, 4), "d " + dateType() + " 10 0 null");
}

TEST_P(ResultColumns, ALongNameIsCutWithAWarning)
{
    const SQLHSTMT s = client_.statement();
    client_.execute(s, "SELECT 1 AS abcdefgh");
    SQLCHAR name[5] = "";
    SQLSMALLINT length = 0;
    EXPECT_EQ(SQLDescribeCol(s, 1, name, sizeof name, &length, nullptr, nullptr, nullptr, nullptr),
        SQL_SUCCESS_WITH_INFO);
    EXPECT_STREQ(reinterpret_cast<const char*>(name), "abcd");
    EXPECT_EQ(length, 8);
}

std::string textOf(SQLHSTMT s, SQLUSMALLINT column, SQLUSMALLINT field)
{
    char text[50] = "";
    SQLSMALLINT length = 0;
    return SQLColAttribute(s, column, field, text, sizeof text, &length, nullptr) == SQL_SUCCESS
        ? text
        : "!";
}

SQLLEN numberOf(SQLHSTMT s, SQLUSMALLINT column, SQLUSMALLINT field)
{
    SQLLEN number = -99;
    SQLColAttribute(s, column, field, nullptr, 0, nullptr, &number);
    return number;
}

TEST(ColumnAttributes, TextsAndNumbers)
{
    const DatabaseFile file;
    Client client(file);
    client.run("CREATE TABLE t (i INTEGER NOT NULL, c VARCHAR(20), d DATE)");
    const SQLHSTMT s = client.statement();
    client.execute(s, "SELECT i, c AS label, d, 1+1 FROM t");
    EXPECT_EQ(textOf(s, 2, SQL_DESC_LABEL), "label");
    EXPECT_EQ(textOf(s, 2, SQL_DESC_BASE_COLUMN_NAME), "c");
    EXPECT_EQ(textOf(s, 2, SQL_DESC_TABLE_NAME), "t");
    EXPECT_EQ(textOf(s, 4, SQL_DESC_TABLE_NAME), "");
    EXPECT_EQ(textOf(s, 2, SQL_DESC_TYPE_NAME), "VARCHAR");
    EXPECT_EQ(numberOf(s, 0, SQL_DESC_COUNT), 4);
    EXPECT_EQ(numberOf(s, 2, SQL_DESC_LENGTH), 20);
    EXPECT_EQ(numberOf(s, 2, SQL_DESC_DISPLAY_SIZE), 20);
    EXPECT_EQ(numberOf(s, 2, SQL_DESC_OCTET_LENGTH), 80);
    EXPECT_EQ(numberOf(s, 1, SQL_DESC_OCTET_LENGTH), 4);
    EXPECT_EQ(numberOf(s, 1, SQL_DESC_DISPLAY_SIZE), 11);
    EXPECT_EQ(numberOf(s, 1, SQL_DESC_NULLABLE), SQL_NO_NULLS);
    EXPECT_EQ(numberOf(s, 1, SQL_DESC_UNSIGNED), SQL_FALSE);
    EXPECT_EQ(numberOf(s, 3, SQL_DESC_CONCISE_TYPE), SQL_TYPE_DATE);
    EXPECT_EQ(numberOf(s, 3, SQL_DESC_TYPE), SQL_DATETIME);
    EXPECT_EQ(SQLColAttribute(s, 1, 4711, nullptr, 0, nullptr, nullptr), SQL_ERROR);
}

} // namespace

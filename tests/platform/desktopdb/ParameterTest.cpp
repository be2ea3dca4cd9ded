// tests/platform/desktopdb/ParameterTest.cpp
#include "tests/platform/desktopdb/Client.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

class ParameterTest : public testing::Test {
protected:
    ParameterTest()
    {
        client_.run("CREATE TABLE t (id INTEGER, a VARCHAR(200), d DATE, b BLOB)");
        statement_ = client_.statement();
    }
    SQLRETURN prepare(const std::string& sql)
    {
        return SQLPrepare(statement_, bytes(sql), SQL_NTS);
    }
    /// How SQLite sees parameter 1: its type and text.
    std::string seen(SQLSMALLINT cType, SQLSMALLINT sqlType, const void* value, SQLLEN length)
    {
        const SQLHSTMT q = client_.statement();
        SQLPrepare(q, bytes("SELECT typeof(x), x FROM (SELECT ? AS x)"), SQL_NTS);
        SQLBindParameter(
            q, 1, SQL_PARAM_INPUT, cType, sqlType, 0, 0, const_cast<void*>(value), 0, &length);
        const SQLRETURN result = SQLExecute(q);
        client_.look(q);
        const Rows rows = SQL_SUCCEEDED(result) ? client_.fetchAll(q) : Rows{"!" + client_.state()};
        client_.drop(q);
        return rows[0];
    }

    DatabaseFile file_;
    Client client_{file_};
    SQLHSTMT statement_ = SQL_NULL_HSTMT;
};

TEST_F(ParameterTest, EachCType)
{
    const SQLINTEGER four = -5;
    const SQLUINTEGER unsignedFour = 4000000000u;
    const SQLSMALLINT two = -7;
    const signed char one = -9;
    const SQLBIGINT eight = -5000000000;
    const unsigned char bit = 1;
    const double real = 2.5;
    const float single = 0.5F;
    const SQL_DATE_STRUCT date{1998, 3, 5};
    const SQL_TIME_STRUCT time{1, 2, 3};
    const SQL_TIMESTAMP_STRUCT moment{1998, 3, 5, 1, 2, 3, 250000000};
    const char16_t wide[] = u"a\u00f6";
    const struct {
        const char* rule;
        SQLSMALLINT cType;
        SQLSMALLINT sqlType;
        const void* value;
        SQLLEN length;
        const char* expected;
    } cases[] = {
        {"text to its zero", SQL_C_CHAR, SQL_VARCHAR, "abc", SQL_NTS, "text|abc"},
        {"text of a length", SQL_C_CHAR, SQL_VARCHAR, "abc", 2, "text|ab"},
        {"the empty text is no NULL", SQL_C_CHAR, SQL_VARCHAR, "", SQL_NTS, "text|"},
        {"NULL", SQL_C_CHAR, SQL_VARCHAR, nullptr, SQL_NULL_DATA, "null|NULL"},
        {"neither value nor NULL", SQL_C_CHAR, SQL_VARCHAR, nullptr, SQL_NTS, "!HY009"},
        {"a number as text", SQL_C_CHAR, SQL_INTEGER, "12", SQL_NTS, "integer|12"},
        {"a fraction as text", SQL_C_CHAR, SQL_DOUBLE, "1.5", SQL_NTS, "real|1.5"},
        {"no number as a number", SQL_C_CHAR, SQL_INTEGER, "1x", SQL_NTS, "text|1x"},
        {"digits as text stay text", SQL_C_CHAR, SQL_VARCHAR, "012", SQL_NTS, "text|012"},
        {"wide text", SQL_C_WCHAR, SQL_VARCHAR, wide, SQL_NTS, "text|a\xc3\xb6"},
        {"wide text of a length", SQL_C_WCHAR, SQL_WVARCHAR, wide, 2, "text|a"},
        {"long", SQL_C_SLONG, SQL_INTEGER, &four, 0, "integer|-5"},
        {"unsigned long", SQL_C_ULONG, SQL_INTEGER, &unsignedFour, 0, "integer|4000000000"},
        {"short", SQL_C_SSHORT, SQL_SMALLINT, &two, 0, "integer|-7"},
        {"tiny", SQL_C_STINYINT, SQL_TINYINT, &one, 0, "integer|-9"},
        {"big", SQL_C_SBIGINT, SQL_BIGINT, &eight, 0, "integer|-5000000000"},
        {"bit", SQL_C_BIT, SQL_BIT, &bit, 0, "integer|1"},
        {"double", SQL_C_DOUBLE, SQL_DOUBLE, &real, 0, "real|2.5"},
        {"float", SQL_C_FLOAT, SQL_REAL, &single, 0, "real|0.5"},
        {"default follows the SQL type", SQL_C_DEFAULT, SQL_DOUBLE, &real, 0, "real|2.5"},
        {"date", SQL_C_TYPE_DATE, SQL_TYPE_DATE, &date, 0, "text|1998-03-05"},
        {"time", SQL_C_TYPE_TIME, SQL_TYPE_TIME, &time, 0, "text|01:02:03"},
        {"timestamp", SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, &moment, 0,
            "text|1998-03-05 01:02:03.25"},
        {"a timestamp for a date", SQL_C_TYPE_TIMESTAMP, SQL_TYPE_DATE, &moment, 0,
            "text|1998-03-05"},
        {"bytes", SQL_C_BINARY, SQL_VARBINARY, "\1\2", 2, "blob|0102"},
        {"bytes of a text", SQL_C_BINARY, SQL_VARCHAR, "ab", 2, "text|ab"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(seen(c.cType, c.sqlType, c.value, c.length), c.expected) << c.rule;
}

TEST_F(ParameterTest, AllMustBeBound)
{
    prepare("INSERT INTO t (id, a) VALUES (?, ?)");
    SQLSMALLINT count = 0;
    EXPECT_EQ(SQLNumParams(statement_, &count), SQL_SUCCESS);
    EXPECT_EQ(count, 2);
    SQLINTEGER id = 1;
    SQLBindParameter(
        statement_, 1, SQL_PARAM_INPUT, SQL_C_SLONG, SQL_INTEGER, 0, 0, &id, 0, nullptr);
    EXPECT_EQ(SQLExecute(statement_), SQL_ERROR);
    client_.look(statement_);
    EXPECT_EQ(client_.state(), "07002");
}

/// Supplies the data that the statement waits for, each piece by itself.
SQLRETURN supply(SQLHSTMT s, const std::vector<std::string>& pieces)
{
    SQLPOINTER token = nullptr;
    SQLRETURN result = SQLParamData(s, &token);
    while (result == SQL_NEED_DATA) {
        for (const std::string& piece : pieces)
            EXPECT_EQ(SQLPutData(s, bytes(piece), static_cast<SQLLEN>(piece.size())), SQL_SUCCESS);
        result = SQLParamData(s, &token);
    }
    return result;
}

TEST_F(ParameterTest, DataInPieces)
{
    prepare("INSERT INTO t (id, a) VALUES (1, ?)");
    SQLLEN later = SQL_LEN_DATA_AT_EXEC(100);
    int token = 0;
    SQLBindParameter(
        statement_, 1, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, &token, 0, &later);
    EXPECT_EQ(SQLExecute(statement_), SQL_NEED_DATA);
    SQLPOINTER asked = nullptr;
    EXPECT_EQ(SQLParamData(statement_, &asked), SQL_NEED_DATA);
    EXPECT_EQ(asked, &token);
    for (const char* piece : {"abc", "", "def|", "'ghi"})
        SQLPutData(statement_, bytes(piece), SQL_NTS);
    EXPECT_EQ(SQLParamData(statement_, &asked), SQL_SUCCESS);
    EXPECT_THAT(client_.rows("SELECT a FROM t"), ElementsAre("abcdef|'ghi"));
}

// As an application of ODBC 1 does it, whose SQLSetParam has no buffer length.
TEST_F(ParameterTest, TwoTextsOverSetParam)
{
    prepare("INSERT INTO t (id, a, d) VALUES (1, ?, ?)");
    SQLLEN later = SQL_DATA_AT_EXEC;
    for (SQLUSMALLINT i = 1; i <= 2; ++i)
        ASSERT_EQ(
            SQLSetParam(statement_, i, SQL_C_CHAR, SQL_CHAR, 3, 0, nullptr, &later), SQL_SUCCESS);
    EXPECT_EQ(SQLExecute(statement_), SQL_NEED_DATA);
    SQLPOINTER token = nullptr;
    for (const char* text : {"x|y", "1998-03-05"}) {
        ASSERT_EQ(SQLParamData(statement_, &token), SQL_NEED_DATA);
        ASSERT_EQ(SQLPutData(statement_, bytes(text), SQL_NTS), SQL_SUCCESS);
    }
    EXPECT_EQ(SQLParamData(statement_, &token), SQL_SUCCESS);
    EXPECT_THAT(client_.rows("SELECT a, d FROM t"), ElementsAre("x|y|1998-03-05"));
}

TEST_F(ParameterTest, DataForADirectRun)
{
    SQLLEN later = SQL_DATA_AT_EXEC;
    SQLBindParameter(
        statement_, 1, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, nullptr, 0, &later);
    EXPECT_EQ(client_.execute(statement_, "INSERT INTO t (a) VALUES (?)"), SQL_NEED_DATA);
    EXPECT_EQ(supply(statement_, {"direct"}), SQL_SUCCESS);
    EXPECT_EQ(client_.value("SELECT a FROM t"), "direct");
}

TEST_F(ParameterTest, AnEmptyPieceIsTheEmptyTextAndNullIsNull)
{
    prepare("INSERT INTO t (a) VALUES (?)");
    SQLLEN later = SQL_DATA_AT_EXEC;
    SQLBindParameter(
        statement_, 1, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, nullptr, 0, &later);
    SQLPOINTER token = nullptr;
    SQLExecute(statement_);
    EXPECT_EQ(supply(statement_, {""}), SQL_SUCCESS);
    SQLExecute(statement_);
    SQLParamData(statement_, &token);
    EXPECT_EQ(SQLPutData(statement_, nullptr, SQL_NULL_DATA), SQL_SUCCESS);
    EXPECT_EQ(SQLParamData(statement_, &token), SQL_SUCCESS);
    EXPECT_THAT(client_.rows("SELECT a FROM t ORDER BY rowid"), ElementsAre("", "NULL"));
}

TEST_F(ParameterTest, CancelEndsTheWait)
{
    prepare("INSERT INTO t (a) VALUES (?)");
    SQLLEN later = SQL_DATA_AT_EXEC;
    SQLBindParameter(
        statement_, 1, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, nullptr, 0, &later);
    SQLPOINTER token = nullptr;
    SQLExecute(statement_);
    SQLParamData(statement_, &token);
    SQLPutData(statement_, bytes("lost"), SQL_NTS);
    EXPECT_EQ(SQLCancel(statement_), SQL_SUCCESS);
    EXPECT_EQ(client_.value("SELECT count(*) FROM t"), "0");
    EXPECT_EQ(SQLExecute(statement_), SQL_NEED_DATA);
    EXPECT_EQ(supply(statement_, {"kept"}), SQL_SUCCESS);
    EXPECT_EQ(client_.value("SELECT a FROM t"), "kept");
}

TEST_F(ParameterTest, CancelFromAnotherThread)
{
    const SQLHSTMT s = client_.statement();
    std::atomic<bool> ended{false};
    std::thread canceller([&] {
        while (!ended) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            SQLCancel(s);
        }
    });
    const SQLRETURN result = client_.execute(s,
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<1000000000) "
        "SELECT count(*) FROM n");
    ended = true;
    canceller.join();
    EXPECT_EQ(result, SQL_ERROR);
    EXPECT_EQ(client_.state(), "HY008");
}

// What a placeholder stands in decides what becomes of its text.
TEST_F(ParameterTest, PatternsAndDates)
{
    client_.run("INSERT INTO t (id, a) VALUES (1, 'a_b'), (2, 'axb'), (3, 'A%c\\')");
    const struct {
        const char* rule;
        const char* pattern;
        Rows expected;
    } cases[] = {
        {"a star", "a*", {"1", "2", "3"}},
        {"the engine's wildcard", "a_b", {"1", "2"}},
        {"is a letter beside a star", "a_*", {"1"}},
        {"so is the other", "a%*", {"3"}},
        {"the escape character is a letter", "%\\", {"3"}},
    };
    prepare("SELECT id FROM t WHERE a LIKE ? ORDER BY id");
    char pattern[20];
    SQLLEN length = SQL_NTS;
    SQLBindParameter(
        statement_, 1, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, pattern, 0, &length);
    for (const auto& c : cases) {
        std::strcpy(pattern, c.pattern);
        ASSERT_EQ(SQLExecute(statement_), SQL_SUCCESS);
        EXPECT_EQ(client_.fetchAll(statement_), c.expected) << c.rule;
        SQLFreeStmt(statement_, SQL_CLOSE);
    }
    client_.run("ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ");
    prepare("UPDATE t SET d=?, a=? WHERE id=1");
    for (SQLUSMALLINT i = 1; i <= 2; ++i)
        SQLBindParameter(
            statement_, i, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, pattern, 0, &length);
    std::strcpy(pattern, "05031998");
    EXPECT_EQ(SQLExecute(statement_), SQL_SUCCESS);
    EXPECT_THAT(client_.rows("SELECT d, a FROM t WHERE id=1"), ElementsAre("1998-03-05|05031998"));
    std::strcpy(pattern, "31021998");
    EXPECT_EQ(SQLExecute(statement_), SQL_ERROR);
    client_.look(statement_);
    EXPECT_EQ(client_.state(), "22007");
}

} // namespace

// tests/platform/desktopdb/ConversionTest.cpp
#include "tests/platform/desktopdb/Client.h"

#include <cstdint>
#include <cstring>

#include <gtest/gtest.h>

namespace {

/// What the first value of `expression` gives as `cType`: the value as text, behind "+" when it
/// came with information, or the state in brackets.
std::string converted(Client& client, const std::string& expression, SQLSMALLINT cType)
{
    const SQLHSTMT s = client.statement();
    client.execute(s, "SELECT " + expression + " FROM v");
    SQLFetch(s);
    alignas(8) unsigned char buffer[64];
    std::memset(buffer, 0xAA, sizeof buffer);
    SQLLEN length = -99;
    const SQLRETURN result = SQLGetData(s, 1, cType, buffer, sizeof buffer, &length);
    client.look(s);
    client.drop(s);
    if (!SQL_SUCCEEDED(result))
        return "[" + client.state() + "]";
    if (length == SQL_NULL_DATA)
        return "NULL";
    const auto number = [&]<class T>(T value) {
        std::memcpy(&value, buffer, sizeof value);
        EXPECT_EQ(length, static_cast<SQLLEN>(sizeof value));
        EXPECT_EQ(buffer[sizeof value], 0xAA) << "written beyond the value";
        return std::to_string(value);
    };
    const auto hex = [&] {
        std::string text;
        char digits[3];
        for (SQLLEN i = 0; i < length; ++i) {
            std::snprintf(digits, sizeof digits, "%02x", buffer[i]);
            text += digits;
        }
        return text;
    };
    const auto dated = [&] {
        SQL_DATE_STRUCT d;
        std::memcpy(&d, buffer, sizeof d);
        return std::to_string(d.year) + "-" + std::to_string(d.month) + "-" + std::to_string(d.day);
    };
    const auto timed = [](const SQL_TIME_STRUCT& t) {
        return std::to_string(t.hour) + ":" + std::to_string(t.minute) + ":"
            + std::to_string(t.second);
    };
    std::string text;
    switch (cType) {
    case SQL_C_CHAR:
        text = reinterpret_cast<const char*>(buffer);
        break;
    case SQL_C_BINARY:
    case SQL_C_WCHAR:
        text = hex();
        break;
    case SQL_C_LONG:
    case SQL_C_SLONG:
        text = number(std::int32_t{});
        break;
    case SQL_C_ULONG:
        text = number(std::uint32_t{});
        break;
    case SQL_C_SHORT:
    case SQL_C_SSHORT:
        text = number(std::int16_t{});
        break;
    case SQL_C_USHORT:
        text = number(std::uint16_t{});
        break;
    case SQL_C_TINYINT:
        text = number(static_cast<signed char>(0));
        break;
    case SQL_C_UTINYINT:
    case SQL_C_BIT:
        text = number(static_cast<unsigned char>(0));
        break;
    case SQL_C_SBIGINT:
        text = number(std::int64_t{});
        break;
    case SQL_C_UBIGINT:
        text = number(std::uint64_t{});
        break;
    case SQL_C_DOUBLE:
        text = number(0.0);
        break;
    case SQL_C_FLOAT:
        text = number(0.0F);
        break;
    case SQL_C_DATE:
    case SQL_C_TYPE_DATE:
        text = dated();
        break;
    case SQL_C_TYPE_TIME: {
        SQL_TIME_STRUCT t;
        std::memcpy(&t, buffer, sizeof t);
        text = timed(t);
        break;
    }
    case SQL_C_TIMESTAMP:
    case SQL_C_TYPE_TIMESTAMP: {
        SQL_TIMESTAMP_STRUCT t;
        std::memcpy(&t, buffer, sizeof t);
        text =
            dated() + " " + timed({t.hour, t.minute, t.second}) + "." + std::to_string(t.fraction);
        break;
    }
    default:
        text = "?";
    }
    return (result == SQL_SUCCESS_WITH_INFO ? "+" : "") + text;
}

struct ConversionCase {
    const char* value;
    SQLSMALLINT cType;
    const char* expected;
};

const ConversionCase kConversions[] = {
    {"42", SQL_C_CHAR, "42"},
    {"-42", SQL_C_LONG, "-42"},
    {"42", SQL_C_SLONG, "42"},
    {"42", SQL_C_SHORT, "42"},
    {"42", SQL_C_TINYINT, "42"},
    {"42", SQL_C_SBIGINT, "42"},
    {"42", SQL_C_DOUBLE, "42.000000"},
    {"42", SQL_C_FLOAT, "42.000000"},
    {"42", SQL_C_BIT, "[22003]"},
    {"1", SQL_C_BIT, "1"},
    {"0", SQL_C_BIT, "0"},
    {"0.5", SQL_C_BIT, "+0"},
    {"42", SQL_C_TYPE_DATE, "[22018]"},
    {"2147483647", SQL_C_SLONG, "2147483647"},
    {"2147483648", SQL_C_SLONG, "[22003]"},
    {"2147483648", SQL_C_ULONG, "2147483648"},
    {"-1", SQL_C_ULONG, "[22003]"},
    {"32768", SQL_C_SSHORT, "[22003]"},
    {"65535", SQL_C_USHORT, "65535"},
    {"128", SQL_C_TINYINT, "[22003]"},
    {"255", SQL_C_UTINYINT, "255"},
    {"9223372036854775807", SQL_C_SBIGINT, "9223372036854775807"},
    {"9223372036854775807", SQL_C_UBIGINT, "9223372036854775807"},
    {"-9223372036854775808", SQL_C_SBIGINT, "-9223372036854775808"},
    {"9223372036854775808.0", SQL_C_SBIGINT, "[22003]"},
    {"12.5", SQL_C_CHAR, "12.5"},
    {"100.0", SQL_C_CHAR, "100"},
    {"100000.0", SQL_C_CHAR, "100000"},
    {"0.1", SQL_C_CHAR, "0.1"},
    {"1e300", SQL_C_CHAR, "1e+300"},
    {"12.5", SQL_C_SLONG, "+12"},
    {"-12.5", SQL_C_SLONG, "+-12"},
    {"12.5", SQL_C_DOUBLE, "12.500000"},
    {"1e300", SQL_C_FLOAT, "[22003]"},
    {"1e300", SQL_C_SLONG, "[22003]"},
    {"'12.5'", SQL_C_DOUBLE, "12.500000"},
    {"' 12 '", SQL_C_SLONG, "12"},
    {"'+12'", SQL_C_SLONG, "12"},
    {"'12x'", SQL_C_SLONG, "[22018]"},
    {"''", SQL_C_SLONG, "[22018]"},
    {"'abc'", SQL_C_CHAR, "abc"},
    {"''", SQL_C_CHAR, ""},
    {"'abc'", SQL_C_BINARY, "616263"},
    {"'a' || char(246)", SQL_C_WCHAR, "6100f600"},
    {"42", SQL_C_WCHAR, "34003200"},
    {"x'00ff'", SQL_C_BINARY, "00ff"},
    {"x'00ff'", SQL_C_CHAR, "00FF"},
    {"x''", SQL_C_BINARY, ""},
    {"x'00ff'", SQL_C_SLONG, "[22018]"},
    {"'1998-03-05'", SQL_C_TYPE_DATE, "1998-3-5"},
    {"'1998-03-05'", SQL_C_DATE, "1998-3-5"},
    {"'1998-03-05'", SQL_C_TYPE_TIMESTAMP, "1998-3-5 0:0:0.0"},
    {"'1998-03-05 10:11:12.5'", SQL_C_TIMESTAMP, "1998-3-5 10:11:12.500000000"},
    {"'1998-03-05 10:11:12'", SQL_C_TYPE_DATE, "+1998-3-5"},
    {"'1998-03-05 00:00:00'", SQL_C_TYPE_DATE, "1998-3-5"},
    {"'10:11:12'", SQL_C_TYPE_TIME, "10:11:12"},
    {"'1998-02-30'", SQL_C_TYPE_DATE, "[22018]"},
    {"'1998-03-05'", SQL_C_CHAR, "1998-03-05"},
    {"NULL", SQL_C_CHAR, "NULL"},
    {"NULL", SQL_C_SLONG, "NULL"},
    {"NULL", SQL_C_TYPE_DATE, "NULL"},
    {"1", 12345, "[HY003]"},
};

class Conversions : public testing::Test {
protected:
    Conversions()
    {
        client_.run("CREATE TABLE v (i INTEGER, s SMALLINT, d DOUBLE, r REAL, n NUMERIC(8,2),"
                    " c VARCHAR(20), t DATE, b BLOB, bit BIT)");
        client_.run("INSERT INTO v VALUES (7, 8, 1.5, 2.5, 3.25, 'abc', '1998-03-05', x'0102', 1)");
    }
    DatabaseFile file_;
    Client client_{file_};
};

TEST_F(Conversions, EachValueAsEachType)
{
    for (const ConversionCase& c : kConversions)
        EXPECT_EQ(converted(client_, c.value, c.cType), c.expected)
            << c.value << " as C type " << c.cType;
}

TEST_F(Conversions, DefaultIsTheColumnsOwnType)
{
    const SQLHSTMT s = client_.statement();
    client_.execute(s, "SELECT i, s, d, r, n, c, t, b, bit FROM v");
    SQLFetch(s);
    // Sizes tell the C types apart; a text is as long as it is.
    const SQLLEN sizes[] = {4, 2, 8, 4, 4, 3, sizeof(SQL_DATE_STRUCT), 2, 1};
    for (SQLUSMALLINT i = 1; i <= std::size(sizes); ++i) {
        char buffer[64];
        SQLLEN length = 0;
        ASSERT_EQ(SQLGetData(s, i, SQL_C_DEFAULT, buffer, sizeof buffer, &length), SQL_SUCCESS);
        EXPECT_EQ(length, sizes[i - 1]) << "column " << i;
    }
}

TEST_F(Conversions, NullNeedsAnIndicator)
{
    const SQLHSTMT s = client_.statement();
    client_.execute(s, "SELECT NULL");
    SQLFetch(s);
    SQLINTEGER value = 0;
    EXPECT_EQ(SQLGetData(s, 1, SQL_C_SLONG, &value, 0, nullptr), SQL_ERROR);
    client_.look(s);
    EXPECT_EQ(client_.state(), "22002");
}

class Pieces : public testing::TestWithParam<Client::Version> {
protected:
    void fetch(const std::string& sql)
    {
        statement_ = client_.statement();
        client_.execute(statement_, sql);
        ASSERT_EQ(SQLFetch(statement_), SQL_SUCCESS);
    }
    SQLRETURN get(SQLUSMALLINT column, SQLLEN capacity, SQLSMALLINT cType = SQL_C_CHAR)
    {
        std::memset(buffer_, 'x', sizeof buffer_);
        length_ = -99;
        return SQLGetData(statement_, column, cType, buffer_, capacity, &length_);
    }
    DatabaseFile file_;
    Client client_{file_, "Create=1", GetParam()};
    SQLHSTMT statement_ = SQL_NULL_HSTMT;
    char buffer_[64];
    SQLLEN length_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Versions, Pieces, testing::Values(Client::Odbc2, Client::Odbc3));

TEST_P(Pieces, ALongTextComesInPiecesWithWhatIsLeft)
{
    fetch("SELECT 'abcdefghij', 5");
    EXPECT_EQ(get(1, 5), SQL_SUCCESS_WITH_INFO);
    EXPECT_STREQ(buffer_, "abcd");
    EXPECT_EQ(length_, 10);
    client_.look(statement_);
    EXPECT_EQ(client_.state(), "01004");
    EXPECT_EQ(get(1, 5), SQL_SUCCESS_WITH_INFO);
    EXPECT_STREQ(buffer_, "efgh");
    EXPECT_EQ(length_, 6);
    EXPECT_EQ(get(1, 5), SQL_SUCCESS);
    EXPECT_STREQ(buffer_, "ij");
    EXPECT_EQ(length_, 2);
    EXPECT_EQ(get(1, 5), SQL_NO_DATA);
    EXPECT_EQ(get(1, 20), SQL_SUCCESS);
    EXPECT_STREQ(buffer_, "abcdefghij");
}

TEST_P(Pieces, AnotherColumnBetweenStartsOver)
{
    fetch("SELECT 'abcdefghij', 5");
    get(1, 5);
    get(2, 5);
    EXPECT_EQ(get(1, 5), SQL_SUCCESS_WITH_INFO);
    EXPECT_STREQ(buffer_, "abcd");
}

TEST_P(Pieces, ATextThatJustFits)
{
    fetch("SELECT 'abcd'");
    EXPECT_EQ(get(1, 5), SQL_SUCCESS);
    EXPECT_STREQ(buffer_, "abcd");
}

TEST_P(Pieces, NoRoomAsksForTheLength)
{
    fetch("SELECT 'abcdefghij'");
    EXPECT_EQ(get(1, 0), SQL_SUCCESS_WITH_INFO);
    EXPECT_EQ(length_, 10);
    EXPECT_EQ(buffer_[0], 'x');
    EXPECT_EQ(get(1, 20), SQL_SUCCESS);
    EXPECT_STREQ(buffer_, "abcdefghij");
}

TEST_P(Pieces, BytesHaveNoZeroBehindThem)
{
    fetch("SELECT x'0102030405'");
    EXPECT_EQ(get(1, 3, SQL_C_BINARY), SQL_SUCCESS_WITH_INFO);
    EXPECT_EQ(std::string(buffer_, 4), std::string("\1\2\3x"));
    EXPECT_EQ(get(1, 3, SQL_C_BINARY), SQL_SUCCESS);
    EXPECT_EQ(std::string(buffer_, 3), std::string("\4\5x"));
    EXPECT_EQ(length_, 2);
}

TEST_P(Pieces, WideTextIsCutBetweenItsUnits)
{
    fetch("SELECT 'abc'");
    EXPECT_EQ(get(1, 5, SQL_C_WCHAR), SQL_SUCCESS_WITH_INFO);
    EXPECT_EQ(length_, 6);
    EXPECT_EQ(std::string(buffer_, 4), std::string("a\0\0\0", 4));
    EXPECT_EQ(get(1, 20, SQL_C_WCHAR), SQL_SUCCESS);
    EXPECT_EQ(std::string(buffer_, 6), std::string("b\0c\0\0\0", 6));
}

// Older applications read a short column again and expect it again; newer ones read until there is
// nothing more.
TEST_P(Pieces, AValueThatCameWholeReadAgain)
{
    fetch("SELECT 'abc', 5");
    EXPECT_EQ(get(1, 20), SQL_SUCCESS);
    EXPECT_EQ(get(1, 20), GetParam() == Client::Odbc2 ? SQL_SUCCESS : SQL_NO_DATA);
    EXPECT_EQ(get(1, 20), SQL_SUCCESS);
    EXPECT_STREQ(buffer_, "abc");
    EXPECT_EQ(get(2, 0, SQL_C_SLONG), SQL_SUCCESS);
    EXPECT_EQ(get(2, 0, SQL_C_SLONG), SQL_SUCCESS);
}

TEST_P(Pieces, TheNextRowStartsOver)
{
    fetch("SELECT 'abcdefghij' UNION ALL SELECT 'klmnopqrst'");
    get(1, 5);
    SQLFetch(statement_);
    EXPECT_EQ(get(1, 20), SQL_SUCCESS);
    EXPECT_STREQ(buffer_, "klmnopqrst");
}

} // namespace

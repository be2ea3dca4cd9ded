// tests/support/OdbcConnection.cpp
#include "tests/support/OdbcConnection.h"

#include "platform/desktopdb/TestControl.h"

#include <array>

#include <gtest/gtest.h>
#include <sqlext.h>

namespace {

bool succeeded(SQLRETURN result) { return SQL_SUCCEEDED(result) || result == SQL_NO_DATA; }

SQLCHAR* bytes(const std::string& text)
{
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.c_str()));
}

std::string message(SQLSMALLINT kind, SQLHANDLE handle)
{
    std::array<SQLCHAR, 1024> text{};
    SQLCHAR state[6];
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    SQLGetDiagRec(kind, handle, 1, state, &native, text.data(), text.size(), &length);
    return reinterpret_cast<const char*>(text.data());
}

} // namespace

OdbcConnection::OdbcConnection(const std::string& connectString)
{
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_);
    SQLSetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3),
        SQL_IS_UINTEGER);
    SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_);
    check(SQLDriverConnect(connection_, nullptr, bytes(connectString), SQL_NTS, nullptr, 0, nullptr,
              SQL_DRIVER_NOPROMPT),
        SQL_HANDLE_DBC, connection_, connectString);
    setAttribute(SQL_ATTR_DESKTOPDB_HIDDEN, SQLULEN{1});
}

OdbcConnection::~OdbcConnection()
{
    SQLDisconnect(connection_);
    SQLFreeHandle(SQL_HANDLE_DBC, connection_);
    SQLFreeHandle(SQL_HANDLE_ENV, environment_);
}

void OdbcConnection::check(
    SQLRETURN result, SQLSMALLINT kind, SQLHANDLE handle, const std::string& what) const
{
    if (!succeeded(result))
        ADD_FAILURE() << what << ": " << message(kind, handle);
}

std::vector<OdbcConnection::Row> OdbcConnection::run(const std::string& sql)
{
    std::vector<Row> rows;
    SQLHSTMT statement = SQL_NULL_HSTMT;
    SQLAllocHandle(SQL_HANDLE_STMT, connection_, &statement);
    const SQLRETURN result = SQLExecDirect(statement, bytes(sql), SQL_NTS);
    check(result, SQL_HANDLE_STMT, statement, sql);
    SQLSMALLINT columns = 0;
    if (SQL_SUCCEEDED(result))
        SQLNumResultCols(statement, &columns);
    for (SQLRETURN fetched = SQL_NO_DATA;
         columns > 0 && (fetched = SQLFetch(statement)) != SQL_NO_DATA;) {
        check(fetched, SQL_HANDLE_STMT, statement, sql);
        if (!SQL_SUCCEEDED(fetched))
            break;
        rows.push_back(currentRow(statement, columns));
    }
    SQLFreeHandle(SQL_HANDLE_STMT, statement);
    return rows;
}

std::vector<std::string> OdbcConnection::lines(const std::string& sql)
{
    std::vector<std::string> lines;
    for (const Row& row : run(sql)) {
        std::string line;
        for (const std::string& cell : row)
            line += (&cell == &row.front() ? "" : "|") + cell;
        lines.push_back(line);
    }
    return lines;
}

std::string OdbcConnection::prepare(const std::string& sql)
{
    SQLHSTMT statement = SQL_NULL_HSTMT;
    SQLAllocHandle(SQL_HANDLE_STMT, connection_, &statement);
    SQLRETURN result = SQLPrepare(statement, bytes(sql), SQL_NTS);
    SQLSMALLINT columns = 0;
    // A driver may put the work off until somebody asks for the columns.
    if (SQL_SUCCEEDED(result))
        result = SQLNumResultCols(statement, &columns);
    const std::string failure = succeeded(result) ? "" : message(SQL_HANDLE_STMT, statement);
    SQLFreeHandle(SQL_HANDLE_STMT, statement);
    return failure;
}

OdbcConnection::Row OdbcConnection::currentRow(SQLHSTMT statement, SQLSMALLINT columns) const
{
    Row row;
    std::vector<char> text(1U << 16);
    for (SQLUSMALLINT column = 1; column <= columns; ++column) {
        SQLLEN length = 0;
        SQLGetData(
            statement, column, SQL_C_CHAR, text.data(), static_cast<SQLLEN>(text.size()), &length);
        row.emplace_back(length == SQL_NULL_DATA ? "NULL" : text.data());
    }
    return row;
}

void OdbcConnection::setAttribute(SQLINTEGER attribute, const std::string& text)
{
    check(SQLSetConnectAttr(connection_, attribute, bytes(text), SQL_NTS), SQL_HANDLE_DBC,
        connection_, "attribute " + std::to_string(attribute));
}

void OdbcConnection::setAttribute(SQLINTEGER attribute, SQLULEN number)
{
    check(SQLSetConnectAttr(
              connection_, attribute, reinterpret_cast<SQLPOINTER>(number), SQL_IS_UINTEGER),
        SQL_HANDLE_DBC, connection_, "attribute " + std::to_string(attribute));
}

std::string OdbcConnection::attribute(SQLINTEGER attribute) const
{
    std::array<char, 256> text{};
    SQLINTEGER length = 0;
    check(SQLGetConnectAttr(connection_, attribute, text.data(), text.size(), &length),
        SQL_HANDLE_DBC, connection_, "attribute " + std::to_string(attribute));
    return text.data();
}

void OdbcConnection::begin() { setAttribute(SQL_ATTR_AUTOCOMMIT, SQLULEN{SQL_AUTOCOMMIT_OFF}); }

void OdbcConnection::commit()
{
    check(
        SQLEndTran(SQL_HANDLE_DBC, connection_, SQL_COMMIT), SQL_HANDLE_DBC, connection_, "commit");
    setAttribute(SQL_ATTR_AUTOCOMMIT, SQLULEN{SQL_AUTOCOMMIT_ON});
}

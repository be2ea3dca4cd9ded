// tests/platform/desktopdb/Client.cpp
#include "tests/platform/desktopdb/Client.h"

#include <gtest/gtest.h>

std::string DatabaseFile::connectString(const std::string& more) const
{
    return "Driver=" DESKTOPDB_FILE ";Database=" + path_ + ";" + more;
}

Client::Client(Version version)
{
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_);
    SQLSetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION,
        reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(version)), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_);
}

Client::Client(const DatabaseFile& file, const std::string& more, Version version)
    : Client(version)
{
    if (!SQL_SUCCEEDED(connect(file.connectString(more))))
        ADD_FAILURE() << "connect: " << message_;
}

Client::~Client()
{
    SQLDisconnect(connection_);
    SQLFreeHandle(SQL_HANDLE_DBC, connection_);
    SQLFreeHandle(SQL_HANDLE_ENV, environment_);
}

SQLRETURN Client::connect(const std::string& connectString)
{
    const SQLRETURN result = SQLDriverConnect(connection_, nullptr, bytes(connectString), SQL_NTS,
        nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    look();
    return result;
}

SQLRETURN Client::disconnect()
{
    const SQLRETURN result = SQLDisconnect(connection_);
    look();
    return result;
}

void Client::autocommit(bool on)
{
    EXPECT_EQ(
        setAttribute(SQL_ATTR_AUTOCOMMIT, SQLULEN{on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF}),
        SQL_SUCCESS);
}

SQLRETURN Client::end(SQLSMALLINT completion)
{
    const SQLRETURN result = SQLEndTran(SQL_HANDLE_DBC, connection_, completion);
    look();
    return result;
}

SQLHSTMT Client::statement()
{
    SQLHSTMT statement = SQL_NULL_HSTMT;
    EXPECT_EQ(SQLAllocHandle(SQL_HANDLE_STMT, connection_, &statement), SQL_SUCCESS);
    return statement;
}

SQLRETURN Client::drop(SQLHSTMT statement) { return SQLFreeHandle(SQL_HANDLE_STMT, statement); }

SQLRETURN Client::execute(SQLHSTMT statement, const std::string& sql)
{
    const SQLRETURN result = SQLExecDirect(statement, bytes(sql), SQL_NTS);
    look(statement);
    return result;
}

bool Client::run(const std::string& sql)
{
    const SQLHSTMT handle = statement();
    const SQLRETURN result = execute(handle, sql);
    drop(handle);
    return SQL_SUCCEEDED(result);
}

Rows Client::rows(const std::string& sql)
{
    const SQLHSTMT handle = statement();
    Rows rows{"!"};
    if (SQL_SUCCEEDED(execute(handle, sql)))
        rows = fetchAll(handle);
    else
        rows[0] += state_;
    drop(handle);
    return rows;
}

Rows Client::fetchAll(SQLHSTMT statement)
{
    Rows rows;
    SQLSMALLINT columns = 0;
    SQLNumResultCols(statement, &columns);
    std::vector<char> text(1U << 16);
    while (columns > 0 && SQL_SUCCEEDED(SQLFetch(statement))) {
        std::string row;
        for (SQLUSMALLINT i = 1; i <= columns; ++i) {
            SQLLEN length = 0;
            SQLGetData(
                statement, i, SQL_C_CHAR, text.data(), static_cast<SQLLEN>(text.size()), &length);
            row += i > 1 ? "|" : "";
            row += length == SQL_NULL_DATA ? "NULL" : text.data();
        }
        rows.push_back(row);
    }
    return rows;
}

std::string Client::value(const std::string& sql)
{
    const Rows all = rows(sql);
    return all.empty() ? "no row" : all[0].substr(0, all[0].find('|'));
}

void Client::look(SQLHSTMT statement)
{
    SQLCHAR state[6] = "";
    SQLCHAR text[1024] = "";
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    SQLGetDiagRec(statement ? SQL_HANDLE_STMT : SQL_HANDLE_DBC, statement ? statement : connection_,
        1, state, &native, text, sizeof text, &length);
    state_ = reinterpret_cast<const char*>(state);
    message_ = reinterpret_cast<const char*>(text);
}

SQLRETURN Client::setAttribute(SQLINTEGER attribute, const std::string& text)
{
    return SQLSetConnectAttr(connection_, attribute, bytes(text), SQL_NTS);
}

SQLRETURN Client::setAttribute(SQLINTEGER attribute, SQLULEN number)
{
    return SQLSetConnectAttr(
        connection_, attribute, reinterpret_cast<SQLPOINTER>(number), SQL_IS_UINTEGER);
}

std::string Client::textAttribute(SQLINTEGER attribute)
{
    char text[256] = "";
    SQLINTEGER length = 0;
    SQLGetConnectAttr(connection_, attribute, text, sizeof text, &length);
    return text;
}

long Client::numberAttribute(SQLINTEGER attribute)
{
    SQLUINTEGER number = 0;
    SQLGetConnectAttr(connection_, attribute, &number, sizeof number, nullptr);
    return static_cast<long>(number);
}

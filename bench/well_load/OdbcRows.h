// bench/well_load/OdbcRows.h
#pragma once

#include <sql.h>
#include <sqlext.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// Bare ODBC calls: a connection through the driver manager, without a session around it. What
/// fails ends the process.
class OdbcDatabase {
public:
    explicit OdbcDatabase(const std::string& connectString)
    {
        std::string text = connectString;
        SQLAllocEnv(&environment_);
        SQLAllocConnect(environment_, &connection_);
        check(SQLDriverConnect(connection_, nullptr, reinterpret_cast<SQLCHAR*>(text.data()),
            SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT));
        SQLSetConnectOption(connection_, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
    }
    ~OdbcDatabase()
    {
        SQLDisconnect(connection_);
        SQLFreeConnect(connection_);
        SQLFreeEnv(environment_);
    }
    OdbcDatabase(const OdbcDatabase&) = delete;
    OdbcDatabase& operator=(const OdbcDatabase&) = delete;

    SQLHDBC handle() const { return connection_; }
    static void check(SQLRETURN result)
    {
        if (SQL_SUCCEEDED(result))
            return;
        std::fprintf(stderr, "an ODBC call failed\n");
        std::exit(1);
    }

private:
    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
};

/// A statement and its rows, each column read by a call of its own; columns count from 1.
class OdbcRows {
public:
    OdbcRows(const OdbcDatabase& db, const std::string& sql)
    {
        std::string text = sql;
        OdbcDatabase::check(SQLAllocStmt(db.handle(), &statement_));
        OdbcDatabase::check(
            SQLExecDirect(statement_, reinterpret_cast<SQLCHAR*>(text.data()), SQL_NTS));
    }
    ~OdbcRows() { SQLFreeStmt(statement_, SQL_DROP); }
    OdbcRows(const OdbcRows&) = delete;
    OdbcRows& operator=(const OdbcRows&) = delete;

    bool next() { return SQL_SUCCEEDED(SQLFetch(statement_)); }
    long integer(short column) { return read<std::int32_t>(column, SQL_C_LONG); }
    double number(short column) { return read<double>(column, SQL_C_DOUBLE); }
    std::string_view text(short column)
    {
        SQLLEN length = 0;
        OdbcDatabase::check(SQLGetData(statement_, static_cast<SQLUSMALLINT>(column), SQL_C_CHAR,
            text_, sizeof text_, &length));
        return length == SQL_NULL_DATA ? std::string_view()
                                       : std::string_view(text_, static_cast<std::size_t>(length));
    }

private:
    template <class T> T read(short column, SQLSMALLINT type)
    {
        T value = 0;
        SQLLEN indicator = 0;
        OdbcDatabase::check(SQLGetData(
            statement_, static_cast<SQLUSMALLINT>(column), type, &value, sizeof value, &indicator));
        return indicator == SQL_NULL_DATA ? T{0} : value;
    }

    SQLHSTMT statement_ = SQL_NULL_HSTMT;
    char text_[1024];
};

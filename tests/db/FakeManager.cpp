// tests/db/FakeManager.cpp
#include "tests/db/FakeManager.h"

#include <cstring>

#include <sql.h>
#include <sqlext.h>

namespace {

FakeManager& theManager()
{
    static FakeManager manager;
    return manager;
}

// Any address does for a handle.
SQLRETURN give(SQLHANDLE* handle)
{
    static char place;
    *handle = &place;
    return SQL_SUCCESS;
}

std::string shown(const SQLCHAR* text)
{
    return text ? '"' + std::string(reinterpret_cast<const char*>(text)) + '"' : "null";
}

SQLRETURN note(const std::string& call)
{
    theManager().calls.push_back(call);
    return SQL_SUCCESS;
}

} // namespace

FakeManager& FakeManager::renewed() { return theManager() = {}; }

extern "C" {

SQLRETURN SQLAllocEnv(SQLHENV* handle) { return give(handle); }
SQLRETURN SQLAllocConnect(SQLHENV, SQLHDBC* handle) { return give(handle); }
SQLRETURN SQLAllocStmt(SQLHDBC, SQLHSTMT* handle) { return give(handle); }
SQLRETURN SQLFreeEnv(SQLHENV) { return SQL_SUCCESS; }
SQLRETURN SQLFreeConnect(SQLHDBC) { return SQL_SUCCESS; }
SQLRETURN SQLDisconnect(SQLHDBC) { return SQL_SUCCESS; }
SQLRETURN SQLFetch(SQLHSTMT) { return SQL_NO_DATA_FOUND; }

SQLRETURN SQLDriverConnect(SQLHDBC, SQLHWND window, SQLCHAR* text, SQLSMALLINT, SQLCHAR*,
    SQLSMALLINT, SQLSMALLINT*, SQLUSMALLINT completion)
{
    return note("SQLDriverConnect " + std::string(window ? "window " : "") + shown(text) + " "
        + std::to_string(completion));
}

SQLRETURN SQLSetConnectOption(SQLHDBC, SQLUSMALLINT option, SQLULEN value)
{
    return note("SQLSetConnectOption " + std::to_string(option) + "=" + std::to_string(value));
}

SQLRETURN SQLSetStmtOption(SQLHSTMT, SQLUSMALLINT option, SQLULEN value)
{
    return note("SQLSetStmtOption " + std::to_string(option) + "=" + std::to_string(value));
}

SQLRETURN SQLTransact(SQLHENV, SQLHDBC, SQLUSMALLINT how)
{
    return note("SQLTransact " + std::to_string(how));
}

SQLRETURN SQLGetInfo(SQLHDBC, SQLUSMALLINT info, SQLPOINTER out, SQLSMALLINT, SQLSMALLINT*)
{
    const FakeManager& manager = theManager();
    const std::string text = info == SQL_DRIVER_NAME ? manager.driverName
        : info == SQL_SEARCH_PATTERN_ESCAPE          ? manager.escape
                                                     : "";
    std::strcpy(static_cast<char*>(out), text.c_str());
    return SQL_SUCCESS;
}

SQLRETURN SQLFreeStmt(SQLHSTMT, SQLUSMALLINT how)
{
    return note("SQLFreeStmt " + std::to_string(how));
}

SQLRETURN SQLExecDirect(SQLHSTMT, SQLCHAR* text, SQLINTEGER)
{
    note("SQLExecDirect " + shown(text));
    return shown(text) == "\"fail\"" ? SQL_ERROR : SQL_SUCCESS;
}

SQLRETURN SQLError(
    SQLHENV, SQLHDBC, SQLHSTMT, SQLCHAR*, SQLINTEGER*, SQLCHAR* text, SQLSMALLINT, SQLSMALLINT*)
{
    std::strcpy(reinterpret_cast<char*>(text), "what failed");
    return note("SQLError");
}

SQLRETURN SQLPrepare(SQLHSTMT, SQLCHAR* text, SQLINTEGER)
{
    return note("SQLPrepare " + shown(text));
}

SQLRETURN SQLSetParam(SQLHSTMT, SQLUSMALLINT number, SQLSMALLINT cType, SQLSMALLINT sqlType,
    SQLULEN precision, SQLSMALLINT scale, SQLPOINTER value, SQLLEN* indicator)
{
    std::string call = "SQLSetParam " + std::to_string(number);
    for (const long n : {long{cType}, long{sqlType}, static_cast<long>(precision), long{scale},
             static_cast<long>(*indicator)})
        call += " " + std::to_string(n);
    return note(call + (value ? " value" : ""));
}

SQLRETURN SQLGetData(
    SQLHSTMT, SQLUSMALLINT column, SQLSMALLINT, SQLPOINTER out, SQLLEN, SQLLEN* indicator)
{
    std::memcpy(out, "spoilt", 4);
    *indicator = SQL_NULL_DATA;
    return column % 2 ? SQL_ERROR : SQL_SUCCESS;
}

SQLRETURN SQLExecute(SQLHSTMT) { return note("SQLExecute"); }

SQLRETURN SQLTables(SQLHSTMT, SQLCHAR* catalogue, SQLSMALLINT, SQLCHAR* owner, SQLSMALLINT,
    SQLCHAR* table, SQLSMALLINT, SQLCHAR* type, SQLSMALLINT)
{
    return note("SQLTables " + shown(catalogue) + " " + shown(owner) + " " + shown(table) + " "
        + shown(type));
}

SQLRETURN SQLColumns(SQLHSTMT, SQLCHAR* catalogue, SQLSMALLINT, SQLCHAR* owner, SQLSMALLINT,
    SQLCHAR* table, SQLSMALLINT, SQLCHAR* column, SQLSMALLINT)
{
    return note("SQLColumns " + shown(catalogue) + " " + shown(owner) + " " + shown(table) + " "
        + shown(column));
}

} // extern "C"

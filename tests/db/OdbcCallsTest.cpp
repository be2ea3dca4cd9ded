// tests/db/OdbcCallsTest.cpp
// What a driver manager gets to see: arguments that a driver which takes any would hide.
#include "db/SchemaInspection.h"
#include "db/Session.h"
#include "tests/support/Restore.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sql.h>
#include <sqlext.h>

namespace {

using testing::ElementsAre;

/// Stands in for the driver manager in this program: every call succeeds save the execution of the
/// text "fail", a query has no rows, and what the calls were given is kept.
struct FakeManager {
    std::vector<std::string> calls; // with what a driver sees of them, in order
    std::string driverName = "some.so";
    std::string escape = "\\"; // what the driver puts before a wildcard; empty: it has none
} manager;

std::string shown(long number) { return std::to_string(number); }
std::string shown(const SQLCHAR* text)
{
    return text ? '"' + std::string(reinterpret_cast<const char*>(text)) + '"' : "null";
}

template <typename... Args> SQLRETURN note(const std::string& call, Args... args)
{
    manager.calls.push_back((call + ... + (" " + shown(args))));
    return SQL_SUCCESS;
}

// Any address does for a handle.
SQLRETURN give(SQLHANDLE* handle)
{
    static char place;
    *handle = &place;
    return SQL_SUCCESS;
}

} // namespace

extern "C" {

SQLRETURN SQLAllocEnv(SQLHENV* handle) { return give(handle); }
SQLRETURN SQLAllocConnect(SQLHENV, SQLHDBC* handle) { return give(handle); }
SQLRETURN SQLAllocStmt(SQLHDBC, SQLHSTMT* handle) { return give(handle); }
SQLRETURN SQLFreeEnv(SQLHENV) { return SQL_SUCCESS; }
SQLRETURN SQLFreeConnect(SQLHDBC) { return SQL_SUCCESS; }
SQLRETURN SQLDisconnect(SQLHDBC) { return SQL_SUCCESS; }
SQLRETURN SQLFetch(SQLHSTMT) { return SQL_NO_DATA_FOUND; }
SQLRETURN SQLGetData(SQLHSTMT, SQLUSMALLINT, SQLSMALLINT, SQLPOINTER, SQLLEN, SQLLEN*)
{
    return SQL_ERROR;
}
SQLRETURN SQLExecute(SQLHSTMT) { return note("Execute"); }
SQLRETURN SQLFreeStmt(SQLHSTMT, SQLUSMALLINT how) { return note("FreeStmt", how); }
SQLRETURN SQLPrepare(SQLHSTMT, SQLCHAR* text, SQLINTEGER) { return note("Prepare", text); }
SQLRETURN SQLTransact(SQLHENV, SQLHDBC, SQLUSMALLINT how) { return note("Transact", how); }

SQLRETURN SQLSetConnectOption(SQLHDBC, SQLUSMALLINT option, SQLULEN value)
{
    return note("SetConnectOption", option, value);
}
SQLRETURN SQLSetStmtOption(SQLHSTMT, SQLUSMALLINT option, SQLULEN value)
{
    return note("SetStmtOption", option, value);
}
SQLRETURN SQLDriverConnect(SQLHDBC, SQLHWND window, SQLCHAR* text, SQLSMALLINT, SQLCHAR*,
    SQLSMALLINT, SQLSMALLINT*, SQLUSMALLINT completion)
{
    return note(window ? "DriverConnect window" : "DriverConnect", text, completion);
}
SQLRETURN SQLGetInfo(SQLHDBC, SQLUSMALLINT info, SQLPOINTER out, SQLSMALLINT, SQLSMALLINT*)
{
    const std::string text = info == SQL_DRIVER_NAME ? manager.driverName
        : info == SQL_SEARCH_PATTERN_ESCAPE          ? manager.escape
                                                     : "";
    std::strcpy(static_cast<char*>(out), text.c_str());
    return SQL_SUCCESS;
}
SQLRETURN SQLExecDirect(SQLHSTMT, SQLCHAR* text, SQLINTEGER)
{
    note("ExecDirect", text);
    return shown(text) == "\"fail\"" ? SQL_ERROR : SQL_SUCCESS;
}
SQLRETURN SQLError(
    SQLHENV, SQLHDBC, SQLHSTMT, SQLCHAR*, SQLINTEGER*, SQLCHAR* text, SQLSMALLINT, SQLSMALLINT*)
{
    std::strcpy(reinterpret_cast<char*>(text), "what failed");
    return note("Error");
}
SQLRETURN SQLSetParam(SQLHSTMT, SQLUSMALLINT number, SQLSMALLINT cType, SQLSMALLINT sqlType,
    SQLULEN precision, SQLSMALLINT scale, SQLPOINTER, SQLLEN* indicator)
{
    return note("SetParam", number, cType, sqlType, precision, scale, *indicator);
}
SQLRETURN SQLTables(SQLHSTMT, SQLCHAR* catalogue, SQLSMALLINT, SQLCHAR* owner, SQLSMALLINT,
    SQLCHAR* table, SQLSMALLINT, SQLCHAR* type, SQLSMALLINT)
{
    return note("Tables", catalogue, owner, table, type);
}
SQLRETURN SQLColumns(SQLHSTMT, SQLCHAR* catalogue, SQLSMALLINT, SQLCHAR* owner, SQLSMALLINT,
    SQLCHAR* table, SQLSMALLINT, SQLCHAR* column, SQLSMALLINT)
{
    return note("Columns", catalogue, owner, table, column);
}

} // extern "C"

namespace {

class OdbcCalls : public testing::Test {
protected:
    OdbcCalls()
    {
        manager = {};
        dbConnect("DSN=wells");
    }
    ~OdbcCalls() override { dbDisconnect(); }
};

TEST_F(OdbcCalls, ArgumentsOfTheSession)
{
    dbCloseCursor(dbExecute("INSERT INTO t VALUES ('a|b','|')"));
    dbExecute("fail");
    EXPECT_STREQ("what failed", dbErrorText());
    EXPECT_STREQ("A database error has occurred.", dbErrorText()) << "not asked a second time";
    dbExecute("SELECT 1"); // drops the failed one only now
    dbCloseCursor(1);
    dbCommit();
    dbRollback();
    EXPECT_THAT(manager.calls,
        ElementsAre("DriverConnect \"DSN=wells\" 1", "SetConnectOption 102 0",
            "Prepare \"INSERT INTO t VALUES (?,?)\"", "SetParam 1 1 1 3 0 -2",
            "SetParam 2 1 1 1 0 -2", "Execute", "FreeStmt 1", "SetStmtOption 2 1",
            "ExecDirect \"fail\"", "Error", "FreeStmt 1", "SetStmtOption 2 1",
            "ExecDirect \"SELECT 1\"", "FreeStmt 1", "Transact 0", "Transact 1"));
}

// The switch is one for the life of the process, so the process ends with the check.
TEST_F(OdbcCalls, TheDriverThatNeedsItsScanKeepsIt)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto scans = [](const char* driver) {
        manager.driverName = driver;
        dbConnect(nullptr);
        manager.calls.clear();
        dbCloseCursor(dbExecute("SELECT 1"));
        return manager.calls.front() != "SetStmtOption 2 1";
    };
    const auto check = [&] {
        const bool others = scans("MSORCL32.DLL") || scans("some.so");
        const bool itself = scans("msorcl32.dll");
        std::exit(!others && itself && scans("some.so") ? 7 : 8);
    };
    EXPECT_EXIT(check(), testing::ExitedWithCode(7), "");
}

TEST_F(OdbcCalls, NamesInTheCatalogue)
{
    const Restore kind(dbKind);
    const Restore prefix(ownerPrefix);
    const struct {
        const char* rule;
        int kind;
        const char *prefix, *escape;
        std::string owner, table, column; // as the catalogue gets them: of NEW_V, of a_b
    } rows[] = {
        {"no prefix", 0, "", "\\", "null", "NEW\\_V", "a\\_b"},
        {"owner with a wildcard", 0, "G_O.", "\\", "\"G\\_O\"", "NEW\\_V", "a\\_b"},
        {"the start of the names", 2, "GEO.T_", "\\", "\"GEO\"", "T\\_NEW\\_V", "a\\_b"},
        {"only the first point divides", 3, "A.B.", "\\", "\"A\"", "B.NEW\\_V", "a\\_b"},
        {"no point: all of it is the owner", 2, "GEO", "\\", "\"GEO\"", "NEW\\_V", "a\\_b"},
        {"kind 1 asks for no owner", 1, "GEO.T_", "\\", "null", "T\\_NEW\\_V", "a\\_b"},
        {"nor does kind 5", 5, "GEO.", "\\", "null", "NEW\\_V", "a\\_b"},
        {"another escape", 0, "", "!", "null", "NEW!_V", "a!_b"},
        {"no escape", 0, "GEO.", "", "\"GEO\"", "NEW_V", "a_b"},
    };
    for (const auto& row : rows) {
        dbKind = row.kind;
        ownerPrefix = row.prefix;
        manager.escape = row.escape;
        manager.calls.clear();
        viewExists("NEW_V");
        int count = -1;
        listColumns("NEW_V", nullptr, nullptr, nullptr, &count);
        listTables(nullptr, 5);
        char word[20];
        columnType("NEW_V", "a_b", word, &count);
        std::erase(manager.calls, "FreeStmt 1");
        const std::string named = " null " + row.owner + " \"" + row.table + "\" ";
        EXPECT_THAT(manager.calls,
            ElementsAre("Tables" + named + "\"'VIEW'\"", "Columns" + named + "null",
                "Tables null " + row.owner + " null \"TABLE\"",
                "Columns" + named + "\"" + row.column + "\""))
            << row.rule;
    }
}

} // namespace

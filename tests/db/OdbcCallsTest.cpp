// tests/db/OdbcCallsTest.cpp
// What a driver manager gets to see: arguments that a driver which takes any would hide.
#include "db/SchemaInspection.h"
#include "db/Session.h"
#include "tests/db/FakeManager.h"
#include "tests/support/Restore.h"

#include <cstdlib>
#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class OdbcCalls : public testing::Test {
protected:
    OdbcCalls() { dbConnect("DSN=wells"); }
    ~OdbcCalls() override { dbDisconnect(); }

    FakeManager& manager = FakeManager::renewed();
};

TEST_F(OdbcCalls, Connecting)
{
    EXPECT_THAT(manager.calls,
        ElementsAre("SQLDriverConnect \"DSN=wells\" 1", "SQLSetConnectOption 102=0"));
}

TEST_F(OdbcCalls, Statements)
{
    manager.calls.clear();
    dbCloseCursor(dbExecute("SELECT 1"));
    dbCloseCursor(dbExecute("INSERT INTO t VALUES ('a|b','|')"));
    dbCommit();
    dbRollback();
    EXPECT_THAT(manager.calls,
        ElementsAre("SQLSetStmtOption 2=1", "SQLExecDirect \"SELECT 1\"", "SQLFreeStmt 1",
            "SQLPrepare \"INSERT INTO t VALUES (?,?)\"", "SQLSetParam 1 1 1 3 0 -2",
            "SQLSetParam 2 1 1 1 0 -2", "SQLExecute", "SQLFreeStmt 1", "SQLTransact 0",
            "SQLTransact 1"));
}

TEST_F(OdbcCalls, AFailedStatementIsDroppedWhenItsNumberIsNeeded)
{
    EXPECT_EQ(0, dbExecute("fail"));
    manager.calls.clear();
    EXPECT_STREQ("what failed", dbErrorText());
    EXPECT_STREQ("A database error has occurred.", dbErrorText()) << "not asked a second time";
    EXPECT_THAT(manager.calls, ElementsAre("SQLError"));
    EXPECT_EQ(1, dbExecute("SELECT 1"));
    EXPECT_THAT(manager.calls,
        ElementsAre(
            "SQLError", "SQLFreeStmt 1", "SQLSetStmtOption 2=1", "SQLExecDirect \"SELECT 1\""));
}

TEST_F(OdbcCalls, WhatADriverLeavesInTheBufferOfNoValueIsNotRead)
{
    const short cursor = dbExecute("SELECT 1");
    for (const short column : std::initializer_list<short>{1, 2}) {
        EXPECT_EQ(0, dbGetLong(cursor, column));
        EXPECT_EQ(0.0, dbGetDouble(cursor, column));
        EXPECT_STREQ("", dbGetString(cursor, column));
        EXPECT_EQ('\0', dbGetChar(cursor, column));
    }
    dbCloseCursor(cursor);
}

// The switch is one for the life of the process, so the process ends with the check.
TEST_F(OdbcCalls, TheDriverThatNeedsItsScanKeepsIt)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto scans = [this](const char* driver) {
        manager.driverName = driver;
        dbConnect(nullptr);
        manager.calls.clear();
        dbCloseCursor(dbExecute("SELECT 1"));
        return manager.calls.front() != "SQLSetStmtOption 2=1";
    };
    const auto check = [&] {
        const bool others = scans("MSORCL32.DLL") || scans("some.so");
        const bool itself = scans("msorcl32.dll");
        std::exit(!others && itself && scans("some.so") ? 7 : 8);
    };
    EXPECT_EXIT(check(), testing::ExitedWithCode(7), "");
}

struct CatalogueCase {
    const char* name;
    int kind;
    const char* prefix;
    const char* escape;
    const char* owner;  // as the catalogue gets it
    const char* table;  // that of NEW_V
    const char* column; // that of a_b
};
void PrintTo(const CatalogueCase& c, std::ostream* out) { *out << c.name; }

const CatalogueCase kCatalogue[] = {
    {"no prefix", 0, "", "\\", "null", "NEW\\_V", "a\\_b"},
    {"owner", 0, "GEO.", "\\", "\"GEO\"", "NEW\\_V", "a\\_b"},
    {"owner and the start of the table names", 2, "GEO.T_", "\\", "\"GEO\"", "T\\_NEW\\_V",
        "a\\_b"},
    {"only the first point divides", 3, "A.B.", "\\", "\"A\"", "B.NEW\\_V", "a\\_b"},
    {"no point: all of it is the owner", 2, "GEO", "\\", "\"GEO\"", "NEW\\_V", "a\\_b"},
    {"owner with a wildcard", 2, "G_O.", "\\", "\"G\\_O\"", "NEW\\_V", "a\\_b"},
    {"kind 1 asks for no owner", 1, "GEO.T_", "\\", "null", "T\\_NEW\\_V", "a\\_b"},
    {"nor does kind 5", 5, "GEO.", "\\", "null", "NEW\\_V", "a\\_b"},
    {"another escape", 0, "", "!", "null", "NEW!_V", "a!_b"},
    {"no escape", 0, "GEO.", "", "\"GEO\"", "NEW_V", "a_b"},
};

class Catalogue : public OdbcCalls, public testing::WithParamInterface<CatalogueCase> {};
TEST_P(Catalogue, Arguments)
{
    const CatalogueCase& c = GetParam();
    const Restore kind(dbKind, c.kind);
    const Restore prefix(ownerPrefix, FixedText<50>(c.prefix));
    manager.escape = c.escape;
    manager.calls.clear();
    viewExists("NEW_V");
    int count = -1;
    listColumns("NEW_V", nullptr, nullptr, nullptr, &count);
    listTables(nullptr, 5);
    char word[20];
    columnType("NEW_V", "a_b", word, &count);
    const std::string owner = c.owner;
    const std::string table = '"' + std::string(c.table) + '"';
    std::erase(manager.calls, "SQLFreeStmt 1");
    EXPECT_THAT(manager.calls,
        ElementsAre("SQLTables null " + owner + " " + table + " \"'VIEW'\"",
            "SQLColumns null " + owner + " " + table + " null",
            "SQLTables null " + owner + " null \"TABLE\"",
            "SQLColumns null " + owner + " " + table + " \"" + c.column + "\""));
}
INSTANTIATE_TEST_SUITE_P(Prefixes, Catalogue, testing::ValuesIn(kCatalogue));

} // namespace

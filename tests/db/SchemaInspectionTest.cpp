// tests/db/SchemaInspectionTest.cpp
#include "db/SchemaInspection.h"

#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Restore.h"

#include <array>
#include <memory>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

std::string taken(char* text)
{
    const std::unique_ptr<char[]> owned(text);
    return owned.get();
}

std::string columns(const char* table)
{
    std::array<char*, 50> names{};
    std::array<char*, 50> types{};
    std::array<short, 50> precisions{};
    int count = -1;
    EXPECT_EQ(1, listColumns(table, names.data(), types.data(), precisions.data(), &count));
    std::string listed;
    for (int i = 0; i < count; ++i)
        listed +=
            taken(names[i]) + " " + taken(types[i]) + " " + std::to_string(precisions[i]) + ",";
    return listed;
}

std::string tables(int max)
{
    std::array<char*, 50> names{};
    std::string listed;
    for (int i = 0, n = listTables(names.data(), max); i < n; ++i)
        listed += taken(names[i]) + ",";
    return listed;
}

// "-" for a column that is not found, which leaves the outputs as they were.
std::string type(const char* table, const char* column)
{
    char word[20] = "untouched";
    int precision = -1;
    const int found = columnType(table, column, word, &precision);
    const std::string outputs = word + (" " + std::to_string(precision));
    return !found && outputs == "untouched -1" ? "-" : outputs;
}

constexpr const char* kColumns = "SORT_ORDER INTEGER 10,name VARCHAR 30,a_column_name_longe "
                                 "VARCHAR 10,d DATE 10,x DOUBLE 15,";

class SchemaInspection : public testing::Test {
protected:
    SchemaInspection()
    {
        database.run("CREATE TABLE NO_SUCH_T (SORT_ORDER INTEGER, name VARCHAR(30), "
                     "a_column_name_longer_than_19 VARCHAR(10), d DATE, x DOUBLE, "
                     "a_column_name_longer_too INTEGER)"); // listed once by its cut name
        database.run("CREATE VIEW NO_SUCH_V AS SELECT name FROM NO_SUCH_T");
        // Names that fit the others when "_" stands for any character.
        database.run("CREATE TABLE NOXSUCHXT (other INTEGER, SORTXORDER INTEGER)");
        database.run("CREATE VIEW NOXSUCHXW AS SELECT other FROM NOXSUCHXT");
    }
    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(SchemaInspection, ExistingOnesAreFoundWithoutACursorNumber)
{
    for (int i = 0; i < 9; ++i)
        dbExecute("SELECT 1");
    const StatementLog log;
    EXPECT_EQ(1, tableExists("NO_SUCH_T"));
    EXPECT_EQ(1, tableExists("NO_SUCH_V")) << "a view has columns too";
    EXPECT_EQ(0, tableExists("NO_SUCH_TABLE"));
    EXPECT_THAT(
        log.statements(), Contains("SELECT * FROM " + sql::table("NO_SUCH_T") + " WHERE 1=0"));
    for (const char* column : {"SORT_ORDER", "sort_order", "x", "a_column_name_longer_than_19"})
        EXPECT_EQ(1, columnExists("NO_SUCH_T", column)) << column;
    for (const char* none : {"SORT_ORDE", "SORTXORDER", ""})
        EXPECT_EQ(0, columnExists("NO_SUCH_T", none)) << none;
    EXPECT_EQ(0, columnExists("NO_SUCH_TABLE", "SORT_ORDER"));
    EXPECT_EQ(1, viewExists("NO_SUCH_V"));
    EXPECT_EQ(0, dbFetch(1));
    EXPECT_EQ(1, dbGetLong(1, 1)) << "open cursors go on";
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(SchemaInspection, ListedTables)
{
    EXPECT_EQ("NOXSUCHXT,NO_SUCH_T,", tables(50));
    EXPECT_EQ("NOXSUCHXT,", tables(1));
    EXPECT_EQ("", tables(0));
    const std::string name(48, 'Z');
    database.run("CREATE TABLE \"" + name + "\u00D8Z\" (a INTEGER)");
    EXPECT_THAT(tables(50), HasSubstr(name + ",")) << "cut between characters";
}

TEST_F(SchemaInspection, ColumnTypes)
{
    database.run("CREATE TABLE NO_SUCH_K (c CHAR(5), v VARCHAR(7), n NUMERIC(8,2), i INTEGER, "
                 "s SMALLINT, f FLOAT, r REAL, x DOUBLE, d DATE, t TIMESTAMP, h TIME)");
    for (const auto& [column, expected] :
        std::initializer_list<std::pair<const char*, const char*>>{{"c", "text 5"}, {"v", "text 7"},
            {"n", "number 8"}, {"i", "number 10"}, {"s", "number 5"}, {"f", "number 15"},
            {"r", "number 7"}, {"x", "number 15"}, {"d", "date 10"}, {"t", "date 19"},
            {"h", "unknown 8"}, {"none", "-"}, {"%", "-"}})
        EXPECT_EQ(expected, type("NO_SUCH_K", column)) << column;
}

TEST_F(SchemaInspection, AnUnderscoreIsNoWildcard)
{
    // Where the driver does not say how to escape one, its answers are compared instead.
    for (const char* failing : {"SQLNoCall", "SQLGetInfo"}) {
        const DriverFault fault(1, failing, DriverFault::Always);
        EXPECT_EQ(1, viewExists("no_such_v"));
        for (const char* none : {"NO_SUCH_T", "NO_SUCH_VIEW", "NO_SUCH_W", "NO%"})
            EXPECT_EQ(0, viewExists(none)) << none;
        EXPECT_EQ(kColumns, columns("NO_SUCH_T"));
        EXPECT_EQ("", columns("NO_SUCH_TABLE"));
        EXPECT_EQ("number 10", type("NO_SUCH_T", "sort_order"));
        EXPECT_EQ("-", type("NO_SUCH_TABLE", "name"));
        EXPECT_EQ("-", type("NOXSUCHXT", "SORT_ORDER"));
        EXPECT_EQ("-", type("NO_SUCH_X", "SORTXORDER"));
    }
    dbDisconnect();
    EXPECT_EQ(0, tableExists("NO_SUCH_T") + viewExists("NO_SUCH_V"));
    EXPECT_EQ("-", columns("NO_SUCH_T") + tables(50) + type("NO_SUCH_T", "name"));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

} // namespace

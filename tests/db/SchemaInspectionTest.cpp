// tests/db/SchemaInspectionTest.cpp
#include "db/SchemaInspection.h"

#include "db/Cursor.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Restore.h"

#include <algorithm>
#include <array>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

std::string taken(char* text)
{
    const std::unique_ptr<char[]> owned(text);
    return owned.get();
}

struct ListedColumn {
    std::string name;
    std::string type;
    short precision;
};

std::vector<ListedColumn> columnsOf(const char* table)
{
    std::array<char*, 50> names{};
    std::array<char*, 50> types{};
    std::array<short, 50> precisions{};
    int count = -1;
    EXPECT_EQ(1, listColumns(table, names.data(), types.data(), precisions.data(), &count));
    std::vector<ListedColumn> columns;
    for (int i = 0; i < count; ++i)
        columns.push_back({taken(names[i]), taken(types[i]), precisions[i]});
    return columns;
}

std::vector<std::string> columnNamesOf(const char* table)
{
    std::vector<std::string> names;
    for (const ListedColumn& column : columnsOf(table))
        names.push_back(column.name);
    return names;
}

std::vector<std::string> tables(int max)
{
    std::array<char*, 50> names{};
    std::vector<std::string> listed;
    for (int i = 0, n = listTables(names.data(), max); i < n; ++i)
        listed.push_back(taken(names[i]));
    return listed;
}

class SchemaInspection : public testing::Test {
protected:
    SchemaInspection()
    {
        database.run("CREATE TABLE NO_SUCH_T (SORT_ORDER INTEGER, name VARCHAR(30), "
                     "a_column_name_longer_than_19 VARCHAR(10), d DATE, x DOUBLE)");
        database.run("CREATE VIEW NO_SUCH_V AS SELECT name FROM NO_SUCH_T");
        // Names that fit the others when "_" stands for any character.
        database.run("CREATE TABLE NOXSUCHXT (other INTEGER, SORTXORDER INTEGER)");
        database.run("CREATE VIEW NOXSUCHXW AS SELECT other FROM NOXSUCHXT");
    }
    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(SchemaInspection, Tables)
{
    const StatementLog log;
    EXPECT_EQ(1, tableExists("NO_SUCH_T"));
    EXPECT_EQ(1, tableExists("NO_SUCH_V")) << "a view has columns too";
    EXPECT_EQ(0, tableExists("NO_SUCH_TABLE"));
    EXPECT_THAT(
        log.statements(), Contains("SELECT * FROM " + sql::table("NO_SUCH_T") + " WHERE 1=0"));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(SchemaInspection, Columns)
{
    EXPECT_EQ(1, columnExists("NO_SUCH_T", "SORT_ORDER"));
    EXPECT_EQ(1, columnExists("NO_SUCH_T", "sort_order"));
    EXPECT_EQ(1, columnExists("NO_SUCH_T", "x")) << "the last one";
    EXPECT_EQ(1, columnExists("NO_SUCH_T", "a_column_name_longer_than_19"));
    EXPECT_EQ(0, columnExists("NO_SUCH_T", "SORT_ORDE"));
    EXPECT_EQ(0, columnExists("NO_SUCH_T", ""));
    EXPECT_EQ(0, columnExists("NO_SUCH_TABLE", "SORT_ORDER"));
    EXPECT_EQ(0, columnExists("NOXSUCHXT", "SORT_ORDER"));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(SchemaInspection, Views)
{
    EXPECT_EQ(1, viewExists("NO_SUCH_V"));
    EXPECT_EQ(0, viewExists("NO_SUCH_T")) << "a table is none";
    EXPECT_EQ(0, viewExists("NO_SUCH_VIEW"));
    EXPECT_EQ(0, viewExists("NO_SUCH_W")) << "an underscore is no wildcard";
    EXPECT_EQ(0, viewExists("NO%"));
}

TEST_F(SchemaInspection, ListedColumns)
{
    EXPECT_THAT(columnNamesOf("NO_SUCH_T"),
        ElementsAre("SORT_ORDER", "name", "a_column_name_longe", "d", "x"));
    EXPECT_THAT(columnNamesOf("NO_SUCH_V"), ElementsAre("name"));
    EXPECT_THAT(columnNamesOf("NO_SUCH_TABLE"), IsEmpty());
    const ListedColumn name = columnsOf("NO_SUCH_T").at(1);
    EXPECT_EQ("VARCHAR", name.type);
    EXPECT_EQ(30, name.precision);
}

TEST_F(SchemaInspection, ColumnsOfOneCutNameAreListedOnce)
{
    database.run("CREATE TABLE NO_SUCH_U (abcdefghijklmnopqrs_1 INTEGER, b INTEGER, "
                 "abcdefghijklmnopqrs_2 INTEGER)");
    EXPECT_THAT(columnNamesOf("NO_SUCH_U"), ElementsAre("abcdefghijklmnopqrs", "b"));
}

TEST_F(SchemaInspection, ListedTables)
{
    EXPECT_THAT(tables(50), ElementsAre("NOXSUCHXT", "NO_SUCH_T"));
    EXPECT_THAT(tables(1), ElementsAre("NOXSUCHXT"));
    EXPECT_THAT(tables(0), IsEmpty());
    const std::string name(48, 'Z');
    database.run("CREATE TABLE \"" + name + "\u00D8Z\" (a INTEGER)");
    EXPECT_THAT(tables(50), Contains(name)) << "cut between characters";
}

TEST_F(SchemaInspection, ColumnTypes)
{
    database.run("CREATE TABLE NO_SUCH_K (c CHAR(5), v VARCHAR(7), n NUMERIC(8,2), i INTEGER, "
                 "s SMALLINT, f FLOAT, r REAL, x DOUBLE, d DATE, t TIMESTAMP, h TIME)");
    const struct {
        const char *column, *word;
        int precision;
    } types[] = {{"c", "text", 5}, {"v", "text", 7}, {"n", "number", 8}, {"i", "number", 10},
        {"s", "number", 5}, {"f", "number", 15}, {"r", "number", 7}, {"x", "number", 15},
        {"d", "date", 10}, {"t", "date", 19}, {"h", "unknown", 8}};
    for (const auto& type : types) {
        char word[20] = "";
        int precision = -1;
        EXPECT_EQ(1, columnType("NO_SUCH_K", type.column, word, &precision)) << type.column;
        EXPECT_STREQ(type.word, word) << type.column;
        EXPECT_EQ(type.precision, precision) << type.column;
    }
}

TEST_F(SchemaInspection, TypesOfWhatIsNotThere)
{
    char word[20] = "untouched";
    int precision = -1;
    EXPECT_EQ(0, columnType("NO_SUCH_TABLE", "name", word, &precision));
    EXPECT_EQ(0, columnType("NO_SUCH_T", "none", word, &precision));
    EXPECT_EQ(0, columnType("NOXSUCHXT", "SORT_ORDER", word, &precision)) << "no wildcard";
    EXPECT_EQ(0, columnType("NO_SUCH_T", "%", word, &precision));
    EXPECT_STREQ("untouched", word);
    EXPECT_EQ(-1, precision);
}

TEST_F(SchemaInspection, WithoutAConnectionNothingIsThere)
{
    dbDisconnect();
    char word[20] = "";
    int precision = 0;
    EXPECT_EQ(0, tableExists("NO_SUCH_T"));
    EXPECT_EQ(0, columnExists("NO_SUCH_T", "name"));
    EXPECT_EQ(0, viewExists("NO_SUCH_V"));
    EXPECT_THAT(columnsOf("NO_SUCH_T"), IsEmpty());
    EXPECT_THAT(tables(50), IsEmpty());
    EXPECT_EQ(0, columnType("NO_SUCH_T", "name", word, &precision));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(SchemaInspection, NeedsNoCursorNumber)
{
    for (int i = 0; i < 9; ++i)
        dbExecute("SELECT 1");
    EXPECT_EQ(1, tableExists("NO_SUCH_T"));
    EXPECT_EQ(1, viewExists("NO_SUCH_V"));
    EXPECT_EQ(0, dbFetch(1));
    EXPECT_EQ(1, dbGetLong(1, 1)) << "open cursors go on";
}

// Where the driver does not say how wildcards are escaped, its answers are compared instead.
TEST_F(SchemaInspection, WithoutAnEscape)
{
    const DriverFault fault(1, "SQLGetInfo", DriverFault::Always);
    EXPECT_EQ(1, viewExists("no_such_v"));
    EXPECT_EQ(0, viewExists("NO_SUCH_W"));
    EXPECT_THAT(columnNamesOf("NO_SUCH_T"),
        ElementsAre("SORT_ORDER", "name", "a_column_name_longe", "d", "x"));
    char word[20] = "";
    int precision = -1;
    EXPECT_EQ(1, columnType("NO_SUCH_T", "sort_order", word, &precision));
    EXPECT_STREQ("number", word);
    EXPECT_EQ(0, columnType("NOXSUCHXT", "SORT_ORDER", word, &precision));
    EXPECT_EQ(0, columnType("NO_SUCH_X", "SORTXORDER", word, &precision));
    EXPECT_TRUE(fault.fired());
}

TEST_F(SchemaInspection, ThePrefixBelongsToTheNames)
{
    const Restore prefix(ownerPrefix, FixedText<50>("GEO.NO_"));
    EXPECT_EQ(1, viewExists("SUCH_V"));
    EXPECT_EQ(0, viewExists("NO_SUCH_V"));
    EXPECT_THAT(columnNamesOf("SUCH_V"), ElementsAre("name"));
    EXPECT_EQ(1, tableExists("SUCH_T"));
    EXPECT_EQ(1, columnExists("SUCH_T", "name"));
}

} // namespace

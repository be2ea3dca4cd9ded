// tests/platform/desktopdb/CatalogueTest.cpp
#include "tests/platform/desktopdb/Client.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

SQLCHAR* argument(const char* text) { return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text)); }

class CatalogueTest : public testing::Test {
protected:
    CatalogueTest()
    {
        client_.run("CREATE TABLE WELLS (well_id INTEGER PRIMARY KEY, name VARCHAR(40) NOT NULL "
                    "DEFAULT 'x', spud DATE, depth NUMERIC(8,2), notes TEXT)");
        client_.run("CREATE TABLE T_1 (b SMALLINT, a CHAR(3), PRIMARY KEY (a, b))");
        client_.run("CREATE TABLE TX1 (a INTEGER)");
        client_.run("CREATE VIEW ALL_WELLS AS SELECT * FROM WELLS");
        client_.run("CREATE UNIQUE INDEX wells_u ON WELLS (name, spud)");
        client_.run("CREATE INDEX wells_d ON WELLS (depth)");
    }
    Rows rowsOf(SQLHSTMT s, SQLRETURN result)
    {
        const Rows rows = SQL_SUCCEEDED(result) ? client_.fetchAll(s) : Rows{"!"};
        client_.drop(s);
        return rows;
    }
    Rows tables(const char* owner, const char* name, const char* types)
    {
        const SQLHSTMT s = client_.statement();
        return rowsOf(s,
            SQLTables(s, nullptr, 0, argument(owner), SQL_NTS, argument(name), SQL_NTS,
                argument(types), SQL_NTS));
    }
    /// Of each row the fields at `positions`.
    Rows columns(Client& client, const char* owner, const char* table, const char* column,
        const std::vector<SQLUSMALLINT>& positions)
    {
        const SQLHSTMT s = client.statement();
        EXPECT_EQ(SQLColumns(s, nullptr, 0, argument(owner), SQL_NTS, argument(table), SQL_NTS,
                      argument(column), SQL_NTS),
            SQL_SUCCESS);
        Rows rows;
        while (SQLFetch(s) == SQL_SUCCESS) {
            std::string row;
            for (const SQLUSMALLINT position : positions) {
                char text[100] = "";
                SQLLEN length = 0;
                SQLGetData(s, position, SQL_C_CHAR, text, sizeof text, &length);
                row += (row.empty() ? "" : "|") + std::string(length < 0 ? "NULL" : text);
            }
            rows.push_back(row);
        }
        client.drop(s);
        return rows;
    }
    DatabaseFile file_;
    Client client_{file_};
};

TEST_F(CatalogueTest, Tables)
{
    EXPECT_THAT(tables(nullptr, nullptr, "TABLE"),
        ElementsAre(
            "NULL|NULL|TX1|TABLE|NULL", "NULL|NULL|T_1|TABLE|NULL", "NULL|NULL|WELLS|TABLE|NULL"));
    EXPECT_THAT(tables("GEO", "ALL_WELLS", "'VIEW'"), ElementsAre("NULL|GEO|ALL_WELLS|VIEW|NULL"));
    EXPECT_THAT(tables(nullptr, "all_wells", "'TABLE' , VIEW"), testing::SizeIs(1));
    EXPECT_THAT(tables(nullptr, "WELLS", "'VIEW'"), IsEmpty());
    EXPECT_THAT(tables(nullptr, nullptr, "SYSTEM TABLE"), IsEmpty());
    EXPECT_THAT(tables(nullptr, "%", nullptr), testing::SizeIs(4));
}

struct PatternCase {
    const char* pattern;
    std::size_t matches; // of TX1, T_1, WELLS, ALL_WELLS
};

TEST_F(CatalogueTest, NamePatterns)
{
    const PatternCase cases[] = {{"T_1", 2}, {"T\\_1", 1}, {"t%", 2}, {"%WELLS", 2}, {"%L%L%", 2},
        {"_____", 1}, {"WELL", 0}, {"WELLS%", 1}, {"%%", 4}, {"", 0}, {"\\", 0}};
    for (const PatternCase& c : cases)
        EXPECT_EQ(tables(nullptr, c.pattern, nullptr).size(), c.matches) << c.pattern;
}

TEST_F(CatalogueTest, ListsOfKinds)
{
    EXPECT_THAT(
        tables("", "", "%"), ElementsAre("NULL|NULL|NULL|TABLE|NULL", "NULL|NULL|NULL|VIEW|NULL"));
    EXPECT_THAT(tables("%", "", ""), IsEmpty());
}

TEST_F(CatalogueTest, Columns)
{
    const std::vector<SQLUSMALLINT> all{2, 3, 4, 5, 6, 7, 9, 11, 13, 17};
    EXPECT_THAT(columns(client_, "GEO", "WELLS", nullptr, all),
        ElementsAre("GEO|WELLS|well_id|4|INTEGER|10|0|1|NULL|1",
            "GEO|WELLS|name|12|VARCHAR|40|NULL|0|'x'|2", "GEO|WELLS|spud|91|DATE|10|NULL|1|NULL|3",
            "GEO|WELLS|depth|2|NUMERIC|8|2|1|NULL|4",
            "GEO|WELLS|notes|-1|TEXT|65535|NULL|1|NULL|5"));
    EXPECT_THAT(columns(client_, nullptr, "wells", "SPUD", {4}), ElementsAre("spud"));
    EXPECT_THAT(columns(client_, nullptr, "NIX", nullptr, {4}), IsEmpty());
    EXPECT_THAT(
        columns(client_, nullptr, "ALL_WELLS", "spud", {3, 5}), ElementsAre("ALL_WELLS|91"));
}

TEST_F(CatalogueTest, DatesForAnOlderApplication)
{
    Client old(file_, "", Client::Odbc2);
    EXPECT_THAT(columns(old, nullptr, "WELLS", "spud", {5, 6, 7}), ElementsAre("9|DATE|10"));
}

TEST_F(CatalogueTest, NumbersReadAsShorts)
{
    const SQLHSTMT s = client_.statement();
    SQLColumns(s, nullptr, 0, nullptr, 0, argument("WELLS"), SQL_NTS, argument("name"), SQL_NTS);
    SQLFetch(s);
    SQLSMALLINT type = 0;
    SQLSMALLINT size = 0;
    EXPECT_EQ(SQLGetData(s, 5, SQL_C_SHORT, &type, 0, nullptr), SQL_SUCCESS);
    EXPECT_EQ(SQLGetData(s, 7, SQL_C_SHORT, &size, 0, nullptr), SQL_SUCCESS);
    EXPECT_EQ(type, SQL_VARCHAR);
    EXPECT_EQ(size, 40);
}

TEST_F(CatalogueTest, PrimaryKeysInTheirOrder)
{
    const SQLHSTMT s = client_.statement();
    EXPECT_THAT(
        rowsOf(
            s, SQLPrimaryKeys(s, nullptr, 0, argument("GEO"), SQL_NTS, argument("T_1"), SQL_NTS)),
        ElementsAre("NULL|GEO|T_1|a|1|NULL", "NULL|GEO|T_1|b|2|NULL"));
}

TEST_F(CatalogueTest, StatisticsListTheIndexes)
{
    SQLHSTMT s = client_.statement();
    EXPECT_THAT(rowsOf(s,
                    SQLStatistics(s, nullptr, 0, nullptr, 0, argument("WELLS"), SQL_NTS,
                        SQL_INDEX_ALL, SQL_QUICK)),
        ElementsAre("NULL|NULL|WELLS|0|NULL|wells_u|3|1|name|A|NULL|NULL|NULL",
            "NULL|NULL|WELLS|0|NULL|wells_u|3|2|spud|A|NULL|NULL|NULL",
            "NULL|NULL|WELLS|1|NULL|wells_d|3|1|depth|A|NULL|NULL|NULL"));
    s = client_.statement();
    EXPECT_THAT(rowsOf(s,
                    SQLStatistics(s, nullptr, 0, nullptr, 0, argument("WELLS"), SQL_NTS,
                        SQL_INDEX_UNIQUE, SQL_QUICK)),
        testing::SizeIs(2));
}

TEST_F(CatalogueTest, Types)
{
    SQLHSTMT s = client_.statement();
    const Rows one = rowsOf(s, SQLGetTypeInfo(s, SQL_TYPE_DATE));
    ASSERT_THAT(one, testing::SizeIs(1));
    EXPECT_THAT(one[0], testing::StartsWith("DATE|91|10|'|'|"));
    s = client_.statement();
    EXPECT_THAT(rowsOf(s, SQLGetTypeInfo(s, SQL_ALL_TYPES)), testing::SizeIs(18));
}

} // namespace

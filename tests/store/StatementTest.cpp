// tests/store/StatementTest.cpp
#include "store/Statement.h"
#include "store/Create.h"
#include "store/IdAllocator.h"
#include "store/Transaction.h"
#include "tests/support/TestDatabase.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Session.h"

#include <ostream>

#include <gtest/gtest.h>

namespace {

struct ValueCase {
    const char* name;
    ColumnType type;
    Value value;
    const char* stored; // as the second connection sees it
};
void PrintTo(const ValueCase& c, std::ostream* out) { *out << c.name; }

const std::string kLong(3000, 'x');

const ValueCase kValues[] = {
    {"text", ColumnType::Text, "Ørnefjell \"1\" | 50%", "Ørnefjell \"1\" | 50%"},
    {"text longer than a piece", ColumnType::Text, kLong, kLong.c_str()},
    {"text that looks like a date", ColumnType::Text, "#1998-03-05#", "#1998-03-05#"},
    {"largest integer", ColumnType::Integer, 2147483647L, "2147483647"},
    {"negative integer", ColumnType::Integer, -5L, "-5"},
    {"fraction", ColumnType::Number, 0.1 + 0.2, nullptr},
    {"tiny fraction", ColumnType::Float, 1e-300, nullptr},
    {"date", ColumnType::Date, Date(5, 3, 1998), "1998-03-05"},
    {"no value", ColumnType::Text, Value(), "NULL"},
    {"no date", ColumnType::Date, dateValue(Date()), "NULL"},
    {"no number", ColumnType::Number, Value(), "NULL"},
};

const char* columnOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Text:
        return "a";
    case ColumnType::Integer:
        return "b";
    case ColumnType::Number:
    case ColumnType::Float:
        return "c";
    case ColumnType::Date:
        break;
    }
    return "d";
}

class Binding : public testing::TestWithParam<ValueCase> {
protected:
    Binding()
        : db(TestDatabase::Empty)
    {
        db.run(
            "CREATE TABLE NO_SUCH_VALUES (n INTEGER, a VARCHAR(40), b INTEGER, c DOUBLE, d DATE)");
    }
    TestDatabase db;
};

TEST_P(Binding, ComesBack)
{
    const auto& [name, type, value, stored] = GetParam();
    const std::string table = sql::table("NO_SUCH_VALUES");
    const std::string column = columnOf(type);
    {
        Transaction transaction;
        Statement insert("INSERT INTO " + table + " (n," + column + ") VALUES (?,?)");
        for (const long n : {1L, 2L}) {
            insert.bind(1, n);
            insert.bind(2, value);
            ASSERT_TRUE(insert.execute()) << insert.error();
            EXPECT_EQ(1, insert.changedRows());
        }
        ASSERT_TRUE(transaction.commit()) << transaction.error();
    }
    Statement select("SELECT n, " + column + " FROM " + table + " WHERE n>? ORDER BY n");
    select.bind(1, 1L);
    ASSERT_TRUE(select.execute()) << select.error();
    ASSERT_EQ(Statement::Row::Fetched, select.fetch());
    Value n, back;
    EXPECT_TRUE(select.read(1, ColumnType::Integer, &n));
    EXPECT_TRUE(select.read(2, type, &back)) << select.error();
    EXPECT_EQ(Value(2L), n);
    EXPECT_TRUE(value == back);
    EXPECT_EQ(Statement::Row::End, select.fetch());
    if (stored) {
        EXPECT_EQ(stored, db.value("SELECT " + column + " FROM NO_SUCH_VALUES"));
    }
}
INSTANTIATE_TEST_SUITE_P(Values, Binding, testing::ValuesIn(kValues));

TEST(Executing, EndsTheRowsBefore)
{
    TestDatabase db;
    db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (1, 'A'), (2, 'A'), (3, 'B')");
    Statement select("SELECT well_id FROM " + sql::table("WELL_IDENT") + " WHERE well_code=?");
    Value id;
    for (const auto& [code, expected] : {std::pair("A", 1L), std::pair("B", 3L)}) {
        select.bind(1, Value(code));
        ASSERT_TRUE(select.execute()) << select.error();
        ASSERT_EQ(Statement::Row::Fetched, select.fetch());
        EXPECT_TRUE(select.read(1, ColumnType::Integer, &id));
        EXPECT_TRUE(id == Value(expected));
    }
}

// What is bound and what is written as a literal must be one thing to the database.
TEST(BoundDate, IsFoundByItsLiteral)
{
    TestDatabase db;
    Statement insert("INSERT INTO " + sql::table("WELLS") + " (well_code,spud_date) VALUES (?,?)");
    insert.bind(1, textValue("O'Hara  "));
    insert.bind(2, Date(5, 3, 1998));
    ASSERT_TRUE(insert.execute()) << insert.error();
    Cursor rows("SELECT spud_date FROM " + sql::table("WELLS") + " WHERE well_code="
        + sql::quote("O'Hara") + " AND spud_date=" + sql::date(Date(5, 3, 1998)));
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(Date(5, 3, 1998), sql::parsedDate(rows.text(1).c_str()));
}

TEST(StoredText, KeepsApostrophesAsBackquotes)
{
    EXPECT_EQ("d`Or `x`", storedText("d'Or 'x' \t"));
    EXPECT_EQ("d'Or 'x'", shownText(storedText("d'Or 'x'")));
    EXPECT_TRUE(textValue("  ") == Value());
}

TEST(FailedStatement, TellsWhatTheDatabaseSaid)
{
    TestDatabase db;
    Statement missing("SELECT x FROM NO_SUCH_TABLE");
    EXPECT_FALSE(missing.execute());
    EXPECT_NE(std::string::npos, missing.error().find("NO_SUCH_TABLE")) << missing.error();
    EXPECT_EQ(Statement::Row::Failed, missing.fetch());

    Statement insert("INSERT INTO " + sql::table("WELLS") + " (well_code) VALUES (?)");
    insert.bind(1, Value("A"));
    EXPECT_TRUE(insert.execute());
    EXPECT_FALSE(insert.execute()) << "the code is there already";
    EXPECT_FALSE(insert.error().empty());
    insert.bind(1, Value("B"));
    EXPECT_TRUE(insert.execute()) << "a failure ends nothing";

    dbDisconnect();
    Statement apart("SELECT 1");
    EXPECT_FALSE(apart.execute());
    EXPECT_EQ("There is no connection to a database.", apart.error());
}

class Ending : public testing::Test {
protected:
    bool insertWell()
    {
        Statement insert("INSERT INTO " + sql::table("WELLS") + " (well_code) VALUES (?)");
        insert.bind(1, Value("A"));
        return insert.execute();
    }
    std::string wells() { return db.value("SELECT count(*) FROM WELLS"); }
    TestDatabase db;
};

TEST_F(Ending, WithoutCommitKeepsNothing)
{
    {
        const Transaction transaction;
        ASSERT_TRUE(insertWell());
    }
    dbCommit();
    EXPECT_EQ("0", wells());
}

TEST_F(Ending, WithFailedCommitKeepsNothingAndSaysWhy)
{
    Transaction transaction;
    ASSERT_TRUE(insertWell());
    {
        const DriverFault fault(1, "SQLEndTran", DriverFault::Once, "HY000", "the disk is full");
        EXPECT_FALSE(transaction.commit());
    }
    EXPECT_NE(std::string::npos, transaction.error().find("the disk is full"));
    dbCommit();
    EXPECT_EQ("0", wells());
}

TEST_F(Ending, WithCommitKeepsTheRows)
{
    Transaction transaction;
    ASSERT_TRUE(insertWell());
    EXPECT_TRUE(transaction.commit());
    dbRollback();
    EXPECT_EQ("1", wells());
}

TEST(Identifiers, CountUpFromTheLargest)
{
    TestDatabase db;
    IdAllocator first("well_id", "WELL_IDENT");
    EXPECT_EQ(1, first.next()) << "an empty table has none";
    db.run("INSERT INTO WELL_IDENT (well_id) VALUES (41), (7)");
    IdAllocator ids("well_id", "WELL_IDENT");
    EXPECT_EQ(42, ids.next());
    EXPECT_EQ(43, ids.next()) << "the database is asked once";
    db.run("INSERT INTO WELL_IDENT (well_id) VALUES (2147483647)");
    IdAllocator full("well_id", "WELL_IDENT");
    EXPECT_EQ(std::nullopt, full.next());
    EXPECT_EQ("No identifier is left in WELL_IDENT.", full.error());
    IdAllocator wrong("well_id", "NO_SUCH_TABLE");
    EXPECT_EQ(std::nullopt, wrong.next());
    EXPECT_FALSE(wrong.error().empty());
}

TEST(NewDatabase, HasAllTablesOrNone)
{
    TestDatabase db(TestDatabase::Empty);
    for (const int call : {3, 30}) {
        const DriverFault fault(call, "SQLExecute");
        EXPECT_NE("", createDatabase());
        EXPECT_EQ("0", db.value("SELECT count(*) FROM sqlite_master"));
    }
    EXPECT_EQ("", createDatabase());
    EXPECT_EQ("2", db.value("SELECT max(version) FROM SCHEMA_INFO"));
    EXPECT_EQ("The database has tables already.", createDatabase());
}

} // namespace

// tests/db/SessionTest.cpp
#include "db/Session.h"

#include "db/Connection.h"
#include "db/Cursor.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kDefaultText = "A database error has occurred.";
constexpr const char* kTwoRows = "SELECT 1 UNION SELECT 2";

class Session : public testing::Test {
protected:
    Session() { database.run("CREATE TABLE NO_SUCH_SCRATCH (a INTEGER)"); }
    static bool insertRow() { return runStatement("INSERT INTO " + scratch() + " VALUES (1)"); }
    std::string rows() { return database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH"); }

    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(Session, ConnectsWithTheStoredTextOfAnyLength)
{
    const std::string file = ";Database=" + database.file();
    std::string text = database.connectString();
    text.erase(text.find(file), file.size());
    text += ";Note=" + std::string(1000, 'x') + file; // what counts stands last
    EXPECT_EQ(1, dbConnect(text.c_str()));
    EXPECT_EQ(1, dbConnect(nullptr)) << "kept from the last connection";
    dbSetConnectString("Driver=/nowhere;");
    EXPECT_TRUE(insertRow()) << "storing connects nothing";
    EXPECT_EQ(0, dbConnect(nullptr));
    dbSetConnectString(text.c_str());
    EXPECT_EQ(1, dbConnect(nullptr));
    dbSetConnectString(nullptr);
    EXPECT_EQ(0, dbConnect(nullptr)) << "null is the empty text";
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Session, KeepsTheReasonOfAFailedConnect)
{
    dbExecute("SELECT 1");
    EXPECT_EQ(0, dbConnect("Driver=/nowhere;"));
    EXPECT_THAT(dbConnectError(), HasSubstr("/nowhere"));
    EXPECT_EQ(nullptr, dbConnectionHandle());
    EXPECT_EQ(nullptr, dbEnvironmentHandle());
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_EQ(1, dbConnect(database.connectString().c_str()));
    EXPECT_EQ("", dbConnectError());
    const DriverFault fault(1, "SQLGetInfo"); // asks the driver's name
    EXPECT_EQ(0, dbConnect(nullptr));
    EXPECT_THAT(dbConnectError(), HasSubstr("injected fault"));
}

TEST_F(Session, TheEndOfAConnectionTakesBackAndForgets)
{
    for (short (*const end)() :
        {+[] { return dbConnect(nullptr); }, &dbDisconnect, &dbDisconnect}) {
        insertRow();
        dbExecute("SELECT 1");
        dbExecute("SELECT NO_SUCH_COLUMN");
        EXPECT_EQ(1, end());
        EXPECT_STREQ(kDefaultText, dbErrorText());
        EXPECT_EQ(-1, dbFetch(1));
        dbCommit();
        dbRollback();
        EXPECT_EQ("0", rows());
        database.run("DELETE FROM NO_SUCH_SCRATCH"); // no lock is left
    }
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Session, ARollbackDoesNotLookAtCursors)
{
    insertRow();
    const short cursor = dbExecute(kTwoRows);
    dbRollback();
    dbCloseCursor(cursor);
    dbCommit();
    EXPECT_EQ("0", rows());
}

TEST_F(Session, RefusesToCommitOncePerOpenCursor)
{
    insertRow();
    EXPECT_EQ(1, dbExecute(kTwoRows));
    EXPECT_EQ(2, dbExecute(kTwoRows));
    dbCommit();
    EXPECT_EQ(0, dbFetch(1)) << "its statement may still be read";
    EXPECT_EQ(1, dbExecute("SELECT 7")) << "until the number is handed out again";
    EXPECT_EQ(0, dbFetch(1));
    EXPECT_EQ(7, dbGetLong(1, 1));
    EXPECT_EQ(3, dbExecute("SELECT 1")) << "only the lowest number was freed";
    for (const char* permanent : {"0", "0", "0", "1"}) {
        dbCommit();
        EXPECT_EQ(permanent, rows());
    }
    const char* const refused = "Attempt to commit while cursor open";
    EXPECT_THAT(messages.texts(), ElementsAre(refused, refused, refused, refused));
}

TEST_F(Session, NineCursorsAtOnce)
{
    for (short expected = 1; expected <= 9; ++expected)
        EXPECT_EQ(expected, dbExecute("SELECT 1"));
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_STREQ(kDefaultText, dbErrorText());
    for (short n = 1; n <= 9; ++n)
        EXPECT_EQ(0, dbFetch(n));
    dbCloseCursor(4);
    dbCloseCursor(2);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(0, dbExecute("SELECT NO_SUCH_COLUMN"));
    EXPECT_EQ(2, dbExecute("SELECT 1")) << "the lowest free number, failed statements keep none";
    EXPECT_EQ(4, dbExecute("SELECT 1"));
    EXPECT_THAT(messages.texts(), IsEmpty()) << "callers report";
}

TEST_F(Session, NumbersThatNameNoStatement)
{
    EXPECT_EQ(1, dbExecute(kTwoRows));
    for (const int result : {0, 0, -1, -1})
        EXPECT_EQ(result, dbFetch(1));
    EXPECT_EQ(0, dbCloseCursor(1));
    for (const short cursor : std::initializer_list<short>{1, 0, 9, 10, -1}) {
        EXPECT_EQ(-1, dbFetch(cursor));
        EXPECT_EQ(-1, dbRowCount(cursor));
        EXPECT_EQ(0, dbGetLong(cursor, 1));
        EXPECT_EQ(0.0, dbGetDouble(cursor, 1));
        EXPECT_STREQ("", dbGetString(cursor, 1));
        EXPECT_EQ('\0', dbGetChar(cursor, 1));
        EXPECT_THAT(messages.texts(), IsEmpty());
        EXPECT_EQ(cursor ? -1 : 0, dbCloseCursor(cursor));
        EXPECT_EQ(cursor ? 1U : 0U, messages.texts().size());
        messages.clear();
    }
}

TEST_F(Session, ErrorTextOfTheStatementThatFailedLast)
{
    EXPECT_EQ(0, dbExecute("SELECT NO_SUCH_COLUMN"));
    const short cursor = dbExecute("SELECT 1"); // takes the failed one's number
    EXPECT_STREQ(kDefaultText, dbErrorText()) << "the failed statement is gone";
    EXPECT_EQ(0, dbExecute("SELECT NO_SUCH_OTHER"));
    EXPECT_EQ(0, dbFetch(cursor));
    EXPECT_THAT(dbErrorText(), HasSubstr("NO_SUCH_OTHER")) << "whatever ran in between";
    EXPECT_STREQ(kDefaultText, dbErrorText()) << "read once";
}

TEST_F(Session, ErrorTextIsCutBetweenCharacters)
{
    const auto shown = [](const std::string& text) -> std::string {
        const DriverFault fault(1, "SQLExecDirect", DriverFault::Once, "HY000", text);
        dbExecute("SELECT 1");
        return dbErrorText();
    };
    // The driver manager puts its own words before the text; they are found by a short one.
    const std::string before = shown("x").substr(0, shown("x").rfind('x'));
    const std::string most(253 - before.size(), 'a');
    for (const auto& [behind, kept] : {std::pair("aa", "aa"), std::pair("aaa", "aa"),
             std::pair("\u00F8b", "\u00F8"), std::pair("a\u00F8b", "a")})
        EXPECT_EQ(before + most + kept, shown(most + behind));
}

TEST_F(Session, TextColumns)
{
    const auto xs = [](std::size_t n) { return std::string(n, 'x'); };
    const struct {
        const char* rule;
        std::string stored, read;
        bool cut = false; // what `Cursor` reads whole
    } rows[] = {
        {"blanks before stay", "  abc   ", "  abc"},
        {"white space and control characters behind", "abc\t\r\n\x01 ", "abc"},
        {"nothing but blanks", "   ", ""},
        {"the most", xs(1023), xs(1023)},
        {"one more", xs(1024), xs(1023), true},
        {"a character that ends on the limit", xs(1021) + "\u00F8", xs(1021) + "\u00F8"},
        {"the same and more", xs(1021) + "\u00F8y", xs(1021) + "\u00F8", true},
        {"a character across the limit", xs(1022) + "\u00F8", xs(1022), true},
        {"one of four bytes across it", xs(1020) + "\U0001F41A", xs(1020), true},
        {"blanks before the cut", xs(1000) + std::string(100, ' ') + "y", xs(1000), true},
        {"many times the limit", xs(5000), xs(1023), true},
    };
    for (const auto& row : rows) {
        Cursor values("SELECT '" + row.stored + "','" + row.stored + "'");
        ASSERT_TRUE(values.next());
        EXPECT_EQ(row.read, dbGetString(values.number(), 1)) << row.rule;
        EXPECT_EQ(row.cut ? row.stored : row.read, values.text(2)) << row.rule;
    }
}

TEST_F(Session, ColumnsByEachReader)
{
    const struct {
        std::string expression;
        long integer;
        double number;
        const char* text;
        char letter;
    } rows[] = {{"NULL", 0, 0.0, "", '\0'}, {"''", 0, 0.0, "", '\0'}, {"-7", -7, -7.0, "-7", '-'},
        {"2147483647", 2147483647, 2147483647.0, "2147483647", '2'}, {"2.75", 2, 2.75, "2.75", '2'},
        {"' x'", 0, 0.0, " x", ' '}};
    for (const auto& row : rows) {
        const std::string& e = row.expression; // once for each reader: a column is read once
        Cursor cursor("SELECT " + e + "," + e + "," + e + "," + e);
        ASSERT_TRUE(cursor.next());
        EXPECT_EQ(row.integer, dbGetLong(cursor.number(), 1)) << e;
        EXPECT_EQ(row.number, dbGetDouble(cursor.number(), 2)) << e;
        const char* text = dbGetString(cursor.number(), 3);
        EXPECT_EQ(row.letter, dbGetChar(cursor.number(), 4)) << e;
        EXPECT_STREQ(row.text, text) << "another reader has a buffer of its own";
        EXPECT_EQ("", cursor.text(5)) << "one that is not there";
    }
}

// One value by each reader, and by one that earlier rows were not read with.
std::string byEachReader(const Cursor& row, bool otherwise)
{
    const std::string integer = std::to_string(row.integer(1));
    const std::string number = std::to_string(row.number(2));
    const std::string text = row.text(3) + std::string(1, row.letter(4));
    return integer + " " + number + " " + text + (otherwise ? row.text(5) + row.text(1) : "");
}

TEST_F(Session, ALongResultReadsAsItsSingleRows)
{
    const std::vector<std::string> values{"1", "NULL", "''", "-7", "2147483648", "2.75", "'x'",
        "'7  '", "x'4142'", "'" + std::string(255, 'y') + "'", "'" + std::string(256, 'y') + "'",
        "'" + std::string(5000, 'y') + "'", "1e300"};
    const std::size_t start = 30; // far enough for the columns to be bound
    const std::string query = "SELECT n,n,v,v,v FROM NO_SUCH_VALUES";
    database.run("CREATE TABLE NO_SUCH_VALUES (id INTEGER PRIMARY KEY, n, v)");
    std::vector<std::string> rows(start, "1, 1"); // then each value as a number and as a text
    for (const std::string& value : values)
        rows.insert(rows.end(), {value + ", 1", "1, " + value});
    std::vector<std::string> expected;
    for (std::size_t id = 0; id < rows.size(); ++id) {
        database.run(
            "INSERT INTO NO_SUCH_VALUES VALUES (" + std::to_string(id) + ", " + rows[id] + ")");
        Cursor single(query + " WHERE id = " + std::to_string(id));
        ASSERT_TRUE(single.next());
        expected.push_back(byEachReader(single, id >= start));
    }
    for (const auto& [call, times] : {std::pair("none", 1), std::pair("SQLGetInfo", 1),
             std::pair("SQLBindCol", 1), std::pair("SQLBindCol", 3), std::pair("SQLFetch", 36)}) {
        const DriverFault fault(times, call);
        Cursor all(query + " ORDER BY id");
        std::vector<std::string> read;
        while (all.next())
            read.push_back(byEachReader(all, read.size() >= start));
        if (std::string(call) == "SQLFetch")
            read.insert(read.end(), expected.begin() + 35, expected.end());
        EXPECT_THAT(read, ElementsAreArray(expected)) << call << times;
        EXPECT_EQ(call != std::string("none"), fault.fired()) << call << times;
    }
}

} // namespace

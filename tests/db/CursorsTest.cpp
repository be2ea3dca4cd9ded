// tests/db/CursorsTest.cpp
#include "db/Cursor.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kDefaultText = "A database error has occurred.";
const std::string kMissing = "SELECT a FROM " + testSettings().prefix + "NO_SUCH_TABLE";

class Cursors : public testing::Test {
protected:
    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(Cursors, NineAtOnce)
{
    for (short expected = 1; expected <= 9; ++expected)
        EXPECT_EQ(expected, dbExecute("SELECT 1"));
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_STREQ(kDefaultText, dbErrorText());
    for (short n = 1; n <= 9; ++n) {
        EXPECT_EQ(0, dbFetch(n));
        EXPECT_EQ(1, dbGetLong(n, 1));
    }
    dbCloseCursor(4);
    dbCloseCursor(2);
    EXPECT_EQ(2, dbExecute("SELECT 1")) << "the lowest free number";
    EXPECT_EQ(4, dbExecute("SELECT 1"));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Cursors, FetchEndsBehindTheLastRow)
{
    const short cursor = dbExecute("SELECT 1 UNION SELECT 2");
    EXPECT_EQ(0, dbFetch(cursor));
    EXPECT_EQ(0, dbFetch(cursor));
    EXPECT_EQ(-1, dbFetch(cursor));
    EXPECT_EQ(-1, dbFetch(cursor));
    EXPECT_EQ(0, dbCloseCursor(cursor));
    EXPECT_EQ(-1, dbFetch(cursor)) << "a closed number";
    EXPECT_THAT(messages.texts(), IsEmpty());
    EXPECT_EQ(-1, dbCloseCursor(cursor));
    EXPECT_THAT(messages.texts(), ElementsAre(kDefaultText));
}

TEST_F(Cursors, NumbersThatNameNoStatement)
{
    for (const short cursor : std::initializer_list<short>{0, 1, 9, 10, -1}) {
        EXPECT_EQ(-1, dbFetch(cursor));
        EXPECT_EQ(-1, dbRowCount(cursor));
        EXPECT_EQ(0, dbGetLong(cursor, 1));
        EXPECT_EQ(0.0, dbGetDouble(cursor, 1));
        EXPECT_STREQ("", dbGetString(cursor, 1));
        EXPECT_EQ('\0', dbGetChar(cursor, 1));
    }
    EXPECT_EQ(0, dbCloseCursor(0));
    EXPECT_THAT(messages.texts(), IsEmpty());
    for (const short cursor : std::initializer_list<short>{1, 10, -1})
        EXPECT_EQ(-1, dbCloseCursor(cursor));
    EXPECT_THAT(messages.texts(), ElementsAre(kDefaultText, kDefaultText, kDefaultText));
}

TEST_F(Cursors, AFailedStatementFreesItsNumber)
{
    EXPECT_EQ(1, dbExecute("SELECT 1"));
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(0, dbExecute(kMissing));
    EXPECT_EQ(2, dbExecute("SELECT 1"));
    EXPECT_THAT(messages.texts(), IsEmpty()) << "callers report";
}

TEST_F(Cursors, StatementsOfAnyLength)
{
    const std::string text(200'000, 'x');
    Cursor rows("SELECT '" + text + "', 7");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(text, rows.text(1));
    EXPECT_EQ(7, rows.integer(2));
}

TEST_F(Cursors, RowCount)
{
    database.run("CREATE TABLE NO_SUCH_SCRATCH (a INTEGER)");
    database.run("INSERT INTO NO_SUCH_SCRATCH VALUES (1)");
    database.run("INSERT INTO NO_SUCH_SCRATCH VALUES (2)");
    const auto changed = [](const std::string& condition) {
        return Cursor("UPDATE " + scratch() + " SET a=a+1 WHERE " + condition).rowCount();
    };
    EXPECT_EQ(2, changed("a>0"));
    EXPECT_EQ(0, changed("a>9"));
}

TEST_F(Cursors, RaiiCursorClosesItself)
{
    {
        Cursor rows("SELECT 1");
        EXPECT_TRUE(static_cast<bool>(rows));
        EXPECT_EQ(1, rows.number());
        EXPECT_EQ(0, rows.close());
        EXPECT_EQ(0, rows.number());
        EXPECT_FALSE(rows.next());
        Cursor again("SELECT 2");
        EXPECT_EQ(1, again.number()) << "free after close";
        Cursor failed(kMissing);
        EXPECT_FALSE(static_cast<bool>(failed));
        EXPECT_FALSE(failed.next());
    }
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "free after the scope";
    EXPECT_FALSE(runStatement(kMissing));
    EXPECT_TRUE(runStatement("SELECT 1"));
    EXPECT_EQ(2, dbExecute("SELECT 1"));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Cursors, ErrorTextIsReadOnce)
{
    EXPECT_STREQ(kDefaultText, dbErrorText()) << "nothing failed yet";
    EXPECT_EQ(0, dbExecute(kMissing));
    EXPECT_THAT(dbErrorText(), HasSubstr("NO_SUCH_TABLE"));
    EXPECT_STREQ(kDefaultText, dbErrorText());
}

TEST_F(Cursors, ErrorTextOfTheStatementThatFailedLast)
{
    EXPECT_EQ(0, dbExecute(kMissing));
    const short cursor = dbExecute("SELECT 1"); // takes the failed one's number
    EXPECT_STREQ(kDefaultText, dbErrorText()) << "the failed statement is gone";
    EXPECT_EQ(0, dbExecute("SELECT NO_SUCH_COLUMN"));
    EXPECT_EQ(0, dbFetch(cursor));
    EXPECT_THAT(dbErrorText(), HasSubstr("NO_SUCH_COLUMN")) << "whatever ran in between";
}

TEST_F(Cursors, ErrorTextAfterTheSession)
{
    EXPECT_EQ(0, dbExecute(kMissing));
    dbDisconnect();
    EXPECT_STREQ(kDefaultText, dbErrorText());
}

TEST_F(Cursors, ErrorTextIsCutBetweenCharacters)
{
    // The driver manager puts its own words before the text; they are found by a short one.
    const auto shown = [](const std::string& text) -> std::string {
        const DriverFault fault(1, "SQLExecDirect", DriverFault::Once, "HY000", text);
        dbExecute("SELECT 1");
        return dbErrorText();
    };
    const std::string before = shown("x").substr(0, shown("x").rfind('x'));
    const std::size_t room = 255 - before.size();
    EXPECT_EQ(before + std::string(room, 'a'), shown(std::string(room, 'a')));
    EXPECT_EQ(before + std::string(room, 'a'), shown(std::string(room + 1, 'a')));
    EXPECT_EQ(before + std::string(room - 1, 'a'), shown(std::string(room - 1, 'a') + "\u00F8b"));
    EXPECT_EQ(before + std::string(room - 2, 'a') + "\u00F8",
        shown(std::string(room - 2, 'a') + "\u00F8" + "b"));
}

} // namespace

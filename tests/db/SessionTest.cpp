// tests/db/SessionTest.cpp
#include "db/Session.h"
#include "db/Connection.h"
#include "db/Cursor.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Connections and the transactions on them.
class Session : public testing::Test {
protected:
    Session() { database.run("CREATE TABLE NO_SUCH_SCRATCH (a INTEGER)"); }
    static bool insertRow() { return runStatement("INSERT INTO " + scratch() + " VALUES (1)"); }
    std::string rows() { return database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH"); }

    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(Session, ConnectsWithTheStoredText)
{
    dbDisconnect();
    EXPECT_EQ(1, dbConnect(nullptr)) << "kept from the last connection";
    dbSetConnectString("Driver=/nowhere;");
    EXPECT_TRUE(insertRow()) << "storing connects nothing";
    EXPECT_EQ(0, dbConnect(nullptr));
    dbSetConnectString(database.connectString().c_str());
    EXPECT_EQ(1, dbConnect(nullptr));
    dbSetConnectString(nullptr);
    EXPECT_EQ(0, dbConnect(nullptr)) << "null is the empty text";
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Session, KeepsAConnectTextOfAnyLengthWhole)
{
    const std::string file = ";Database=" + database.file();
    std::string text = database.connectString();
    text.erase(text.find(file), file.size());
    text += ";Note=" + std::string(1000, 'x') + file; // what counts stands last
    dbSetConnectString(nullptr);
    EXPECT_EQ(1, dbConnect(text.c_str()));
    EXPECT_EQ(1, dbConnect(nullptr));
    EXPECT_TRUE(insertRow());
}

TEST_F(Session, KeepsTheReasonOfAFailedConnect)
{
    dbExecute("SELECT 1");
    EXPECT_EQ(0, dbConnect("Driver=/nowhere;"));
    EXPECT_THAT(dbConnectError(), HasSubstr("/nowhere"));
    EXPECT_EQ(nullptr, dbConnectionHandle());
    EXPECT_EQ(nullptr, dbEnvironmentHandle());
    EXPECT_EQ(-1, dbFetch(1));
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_EQ(1, dbConnect(database.connectString().c_str()));
    EXPECT_EQ("", dbConnectError());
    const DriverFault fault(1, "SQLGetInfo"); // asks the driver's name
    EXPECT_EQ(0, dbConnect(nullptr));
    EXPECT_THAT(dbConnectError(), HasSubstr("injected fault"));
}

TEST_F(Session, ConnectingAgainReleasesTheOldConnection)
{
    insertRow();
    dbExecute("SELECT 1");
    const short cursor = dbExecute("SELECT 1");
    EXPECT_EQ(0, dbExecute("SELECT NO_SUCH_COLUMN"));
    EXPECT_EQ(1, dbConnect(nullptr));
    EXPECT_STREQ("A database error has occurred.", dbErrorText()) << "failures are forgotten";
    EXPECT_EQ(-1, dbFetch(cursor)) << "statements too";
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "and all numbers free";
    dbCloseCursor(1);
    EXPECT_EQ("0", rows()) << "rolled back";
    EXPECT_TRUE(insertRow()) << "no lock of the old one is left";
    dbCommit();
    EXPECT_EQ("1", rows());
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Session, DisconnectingTakesBackAndTwiceIsHarmless)
{
    insertRow();
    dbExecute("SELECT 1");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(1, dbDisconnect());
        EXPECT_EQ(0, dbExecute("SELECT 1"));
        EXPECT_EQ(-1, dbFetch(1));
        dbCommit();
        dbRollback();
    }
    EXPECT_EQ("0", rows());
    database.run("INSERT INTO NO_SUCH_SCRATCH VALUES (2)"); // no lock is left
    EXPECT_EQ(1, dbConnect(database.connectString().c_str()));
    EXPECT_TRUE(insertRow());
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Session, NothingIsPermanentBeforeTheCommit)
{
    insertRow();
    EXPECT_EQ("0", rows());
    dbCommit();
    EXPECT_EQ("1", rows());
    insertRow();
    const short cursor = dbExecute("SELECT 1 UNION SELECT 2");
    dbRollback(); // does not look at cursors
    dbCloseCursor(cursor);
    dbCommit();
    EXPECT_EQ("1", rows());
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Session, RefusesToCommitOncePerOpenCursor)
{
    insertRow();
    EXPECT_EQ(1, dbExecute("SELECT 1 UNION SELECT 2"));
    EXPECT_EQ(2, dbExecute("SELECT 1"));
    for (const char* permanent : {"0", "0", "1"}) {
        dbCommit();
        EXPECT_EQ(permanent, rows());
    }
    EXPECT_THAT(messages.texts(),
        ElementsAre("Attempt to commit while cursor open", "Attempt to commit while cursor open"));
}

TEST_F(Session, ARefusedCommitFreesTheLowestNumberOnly)
{
    EXPECT_EQ(1, dbExecute("SELECT 1 UNION SELECT 2"));
    EXPECT_EQ(2, dbExecute("SELECT 1"));
    dbCommit();
    EXPECT_EQ(0, dbFetch(1)) << "its statement may still be read";
    EXPECT_EQ(1, dbExecute("SELECT 7")) << "until the number is handed out again";
    EXPECT_EQ(0, dbFetch(1));
    EXPECT_EQ(7, dbGetLong(1, 1));
    EXPECT_EQ(3, dbExecute("SELECT 1"));
}

} // namespace

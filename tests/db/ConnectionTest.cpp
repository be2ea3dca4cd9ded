// tests/db/ConnectionTest.cpp
#include "db/Connection.h"

#include "db/Cursor.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class Connecting : public testing::Test {
protected:
    Connecting() { database.run("CREATE TABLE NO_SUCH_SCRATCH (a INTEGER)"); }
    static bool insertRow() { return runStatement("INSERT INTO " + scratch() + " VALUES (1)"); }
    std::string rows() { return database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH"); }

    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(Connecting, WithTheStoredText)
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

TEST_F(Connecting, ATextOfAnyLengthIsKeptWhole)
{
    const std::string file = ";Database=" + database.file();
    std::string text = database.connectString();
    text.erase(text.find(file), file.size());
    text += ";Note=" + std::string(1000, 'x') + file; // what counts stands last
    dbSetConnectString(nullptr);
    EXPECT_EQ(1, dbConnect(text.c_str()));
    EXPECT_EQ(1, dbConnect(nullptr));
    EXPECT_TRUE(insertRow());
    dbCommit();
    EXPECT_EQ("1", rows());
}

TEST_F(Connecting, AFailureKeepsItsReason)
{
    EXPECT_EQ("", dbConnectError());
    EXPECT_EQ(0, dbConnect("Driver=/nowhere;"));
    EXPECT_THAT(dbConnectError(), HasSubstr("/nowhere"));
    EXPECT_EQ(nullptr, dbConnectionHandle());
    EXPECT_EQ(nullptr, dbEnvironmentHandle());
    EXPECT_EQ(1, dbConnect(database.connectString().c_str()));
    EXPECT_EQ("", dbConnectError());
    const DriverFault fault(1, "SQLGetInfo"); // asks the driver's name
    EXPECT_EQ(0, dbConnect(nullptr));
    EXPECT_THAT(dbConnectError(), HasSubstr("injected fault"));
}

TEST_F(Connecting, AgainReleasesTheOldConnection)
{
    insertRow();
    dbExecute("SELECT 1");
    const short cursor = dbExecute("SELECT 1");
    EXPECT_EQ(1, dbConnect(nullptr));
    EXPECT_EQ(-1, dbFetch(cursor)) << "statements are forgotten";
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "and all numbers free";
    dbCloseCursor(1);
    EXPECT_EQ("0", rows()) << "rolled back";
    EXPECT_TRUE(insertRow()) << "no lock of the old one is left";
    dbCommit();
    EXPECT_EQ("1", rows());
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Connecting, AFailedReconnectionLeavesNothing)
{
    dbExecute("SELECT 1");
    EXPECT_EQ(0, dbConnect("Driver=/nowhere;"));
    EXPECT_EQ(-1, dbFetch(1));
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_EQ(1, dbDisconnect());
}

TEST_F(Connecting, DisconnectingTwiceIsHarmless)
{
    dbExecute("SELECT 1");
    EXPECT_EQ(1, dbDisconnect());
    EXPECT_EQ(1, dbDisconnect());
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_EQ(-1, dbFetch(1));
    EXPECT_EQ(1, dbConnect(database.connectString().c_str()));
    EXPECT_TRUE(insertRow());
}

TEST_F(Connecting, ForgetsTheLastFailure)
{
    EXPECT_EQ(0, dbExecute("SELECT NO_SUCH_COLUMN"));
    dbConnect(nullptr);
    EXPECT_STREQ("A database error has occurred.", dbErrorText());
}

} // namespace

// tests/db/TransactionsTest.cpp
#include "db/Cursor.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kRefused = "Attempt to commit while cursor open";

class Transactions : public testing::Test {
protected:
    Transactions() { database.run("CREATE TABLE NO_SUCH_SCRATCH (a INTEGER)"); }
    static void insertRow()
    {
        ASSERT_TRUE(runStatement("INSERT INTO " + scratch() + " VALUES (1)"));
    }
    std::string rows() { return database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH"); }

    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(Transactions, NothingIsPermanentBeforeTheCommit)
{
    insertRow();
    EXPECT_EQ("0", rows());
    dbCommit();
    EXPECT_EQ("1", rows());
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Transactions, RollbackTakesBack)
{
    insertRow();
    dbRollback();
    dbCommit();
    EXPECT_EQ("0", rows());
}

TEST_F(Transactions, RollbackDoesNotLookAtCursors)
{
    insertRow();
    const short cursor = dbExecute("SELECT 1 UNION SELECT 2");
    dbRollback();
    EXPECT_THAT(messages.texts(), IsEmpty());
    dbCloseCursor(cursor);
    dbCommit();
    EXPECT_EQ("0", rows());
}

TEST_F(Transactions, DisconnectTakesBack)
{
    insertRow();
    EXPECT_EQ(1, dbDisconnect());
    EXPECT_EQ("0", rows());
    database.run("INSERT INTO NO_SUCH_SCRATCH VALUES (2)"); // no lock is left
    EXPECT_EQ("1", rows());
}

TEST_F(Transactions, CommitIsRefusedOncePerOpenCursor)
{
    insertRow();
    EXPECT_EQ(1, dbExecute("SELECT 1 UNION SELECT 2"));
    EXPECT_EQ(2, dbExecute("SELECT 1"));
    dbCommit();
    EXPECT_THAT(messages.texts(), ElementsAre(kRefused));
    EXPECT_EQ("0", rows());
    dbCommit();
    EXPECT_THAT(messages.texts(), ElementsAre(kRefused, kRefused));
    EXPECT_EQ("0", rows());
    dbCommit();
    EXPECT_THAT(messages.texts(), ElementsAre(kRefused, kRefused));
    EXPECT_EQ("1", rows());
}

TEST_F(Transactions, ARefusedCommitFreesTheLowestNumberOnly)
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

TEST_F(Transactions, WithoutAConnectionNothingHappens)
{
    dbDisconnect();
    dbCommit();
    dbRollback();
    EXPECT_THAT(messages.texts(), IsEmpty());
}

} // namespace

// tests/db/ErrorReporterTest.cpp
#include "db/ErrorReporter.h"

#include "db/Connection.h"
#include "db/Cursor.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;

constexpr const char* kLost = "ORA-03113: end-of-file on communication channel";
constexpr const char* kPrompt = "Press OK to attempt to reconnect and continue...";
constexpr const char* kDateFormat = "ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ";

bool setsDateFormat() { return testSettings().kind == 2 || testSettings().kind == 3; }

class ErrorReporter : public testing::Test {
protected:
    ErrorReporter() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    // Says on the way out whether the session was closed and how often the application was told
    // to quit, and leaves the application object to the exit handlers.
    void end(void (*report)())
    {
        static const MessageLog* log = &messages;
        new zApp(nullptr, nullptr, "", 0);
        messages.echo();
        std::atexit([] {
            std::cerr << (dbConnectionHandle() ? "connected" : "disconnected") << ", quit "
                      << log->quits() << std::endl;
        });
        report();
    }
    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(ErrorReporter, ShowsOneBoxAndReturns)
{
    const SQLHDBC before = dbConnectionHandle();
    for (const char* text : {"Sample type unknown", "ora-03113", "ORA-3113", "ORA-0311"}) {
        messages.clear();
        reportError(text);
        ASSERT_THAT(messages.texts(), ElementsAre(text));
        EXPECT_EQ("Zonaris Error", messages.boxes()[0].caption);
        EXPECT_EQ(0x10, messages.boxes()[0].style);
    }
    EXPECT_EQ(before, dbConnectionHandle());
}

TEST_F(ErrorReporter, RestoresALostConnection)
{
    for (const Fatal fatal : {Fatal::No, Fatal::Yes}) {
        dbExecute("SELECT 1");
        {
            const DriverFault fault(1, "SQLExecDirect", DriverFault::Once, "08S01", kLost);
            EXPECT_EQ(0, dbExecute("SELECT 1"));
        }
        messages.clear();
        const StatementLog log;
        reportDbFailure("SELECT 1", fatal);
        ASSERT_THAT(messages.texts(), ElementsAre("SELECT 1", HasSubstr("ORA-03113"), kPrompt));
        EXPECT_EQ("Zonaris Error", messages.boxes()[2].caption);
        EXPECT_EQ(0, fatalError);
        EXPECT_EQ(
            std::vector<std::string>(setsDateFormat() ? 1 : 0, kDateFormat), log.statements());
        EXPECT_EQ(1, dbExecute("SELECT 1")) << "all cursors are forgotten";
    }
}

TEST_F(ErrorReporter, LeavesNothingToAnOpenCursor)
{
    constexpr const char* kRows = "SELECT 1 UNION SELECT 2";
    messages.clear();
    {
        Cursor outer(kRows);
        ASSERT_TRUE(outer.next());
        reportError(kLost);
        Cursor other(kRows); // has the number that the lost one had
        ASSERT_EQ(outer.number(), other.number());
        EXPECT_TRUE(other.next());
        EXPECT_FALSE(outer.next()) << "a row of another statement";
        EXPECT_EQ(0, outer.integer(1));
        EXPECT_TRUE(outer.isLost());
        EXPECT_EQ(0, outer.close());
        EXPECT_TRUE(other.next()) << "closed by another's end";
    }
    EXPECT_EQ(2u, messages.texts().size()) << "the loss and the prompt";
}

void loseTheServer()
{
    dbSetConnectString("Driver=/nowhere;");
    fatalError = 1;
    reportError(kLost);
}

TEST_F(ErrorReporter, EndsTheProcessWithStatusOne)
{
    const auto text = [] {
        fatalError = 1;
        reportError("no way on");
    };
    const auto statement = [] {
        dbExecute("SELECT NO_SUCH_COLUMN");
        reportDbFailure("the statement", Fatal::Yes);
    };
    const auto refusedDateFormat = [] {
        const DriverFault fault(1, "SQLExecDirect");
        reportError(kLost);
    };
    const std::string last = "disconnected, quit 1\n$";
    EXPECT_EXIT(end(text), ExitedWithCode(1), "^box: no way on\n" + last);
    EXPECT_EXIT(
        end(statement), ExitedWithCode(1), "^box: the statement\nbox: .*NO_SUCH_COLUMN.*\n" + last);
    const std::string lost = "^box: ORA-03113.*\nbox: Press OK.*\n" + last;
    if (setsDateFormat()) {
        EXPECT_EXIT(end(loseTheServer), ExitedWithCode(1), lost);
        EXPECT_EXIT(end(refusedDateFormat), ExitedWithCode(1), lost);
    } else { // found out by the next statement
        loseTheServer();
        EXPECT_THAT(messages.texts(), ElementsAre(kLost, kPrompt));
        EXPECT_EQ(0, fatalError);
        EXPECT_EQ(0, dbExecute("SELECT 1"));
    }
    fatalError = 1;
    EXPECT_EXIT(reportError("before the application object"), ExitedWithCode(1), "");
    fatalError = 0;
}

} // namespace

// tests/db/ErrorReporterTest.cpp
#include "db/ErrorReporter.h"

#include "db/Connection.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <cstdlib>
#include <iostream>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kLost = "ORA-03113: end-of-file on communication channel";
constexpr const char* kPrompt = "Press OK to attempt to reconnect and continue...";
constexpr const char* kDateFormat = "ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ";

bool setsDateFormat() { return testSettings().kind == 2 || testSettings().kind == 3; }

class ErrorReporter : public testing::Test {
protected:
    ErrorReporter() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    TestDatabase database{TestDatabase::Empty};
    MessageLog messages;
};

TEST_F(ErrorReporter, ShowsOneBoxAndReturns)
{
    reportError("Sample type unknown");
    ASSERT_EQ(1U, messages.boxes().size());
    EXPECT_EQ("Sample type unknown", messages.boxes()[0].text);
    EXPECT_EQ("Zonaris Error", messages.boxes()[0].caption);
    EXPECT_EQ(0x10, messages.boxes()[0].style);
    EXPECT_EQ(0, fatalError);
    EXPECT_NE(nullptr, dbConnectionHandle());
}

TEST_F(ErrorReporter, TheMarkerInOtherLettersIsNone)
{
    const SQLHDBC before = dbConnectionHandle();
    for (const char* text : {"ora-03113", "ORA-3113", "ORA-0311"})
        reportError(text);
    EXPECT_THAT(messages.texts(), ElementsAre("ora-03113", "ORA-3113", "ORA-0311"));
    EXPECT_EQ(before, dbConnectionHandle());
}

TEST_F(ErrorReporter, ALostConnectionIsRestored)
{
    dbExecute("SELECT 1");
    dbExecute("SELECT 1");
    for (const int fatal : {0, 1}) {
        messages.clear();
        const StatementLog log;
        fatalError = fatal;
        reportError(kLost);
        EXPECT_THAT(messages.texts(), ElementsAre(kLost, kPrompt));
        EXPECT_EQ("Zonaris Error", messages.boxes()[1].caption);
        EXPECT_EQ(0x10, messages.boxes()[1].style);
        EXPECT_EQ(0, fatalError);
        if (setsDateFormat())
            EXPECT_THAT(log.statements(), ElementsAre(kDateFormat));
        else
            EXPECT_THAT(log.statements(), IsEmpty());
        EXPECT_EQ(1, dbExecute("SELECT 1")) << "all cursors are forgotten";
    }
}

// As when the connection is lost under a statement.
void loseAStatement()
{
    const DriverFault fault(1, "SQLExecDirect", DriverFault::Once, "08S01", kLost);
    EXPECT_EQ(0, dbExecute("SELECT 1"));
}

TEST_F(ErrorReporter, AStatementThatLostItsConnection)
{
    for (const Fatal fatal : {Fatal::No, Fatal::Yes}) {
        messages.clear();
        loseAStatement();
        reportDbFailure("SELECT 1", fatal);
        EXPECT_THAT(messages.texts(), ElementsAre("SELECT 1", HasSubstr("ORA-03113"), kPrompt));
        EXPECT_EQ(0, fatalError);
        EXPECT_EQ(1, dbExecute("SELECT 1"));
    }
}

TEST_F(ErrorReporter, AStatementThatFailed)
{
    EXPECT_EQ(0, dbExecute("SELECT a FROM " + sql::table("NO_SUCH_TABLE")));
    reportDbFailure("the statement", Fatal::No);
    EXPECT_EQ(0, dbExecute("SELECT NO_SUCH_COLUMN"));
    reportDbFailureAs("Error in: the statement", Fatal::No);
    EXPECT_THAT(messages.texts(),
        ElementsAre("the statement", HasSubstr("NO_SUCH_TABLE"), "Error in: the statement",
            HasSubstr("NO_SUCH_COLUMN")));
    EXPECT_EQ(0, fatalError);
}

void loseTheServer()
{
    dbSetConnectString("Driver=/nowhere;");
    fatalError = 1;
    reportError(kLost);
}

TEST_F(ErrorReporter, WithoutADateFormatToSetALostServerEndsNothing)
{
    if (setsDateFormat())
        GTEST_SKIP() << "this kind ends, see below";
    loseTheServer();
    EXPECT_THAT(messages.texts(), ElementsAre(kLost, kPrompt));
    EXPECT_EQ(0, fatalError);
    EXPECT_EQ(0, dbExecute("SELECT 1"));
    EXPECT_STREQ("A database error has occurred.", dbErrorText());
}

struct End {
    const char* name;
    bool inThisKind;
    void (*report)();
    std::string boxes; // as a pattern
};
void PrintTo(const End& e, std::ostream* out) { *out << e.name; }

const End kEnds[] = {
    {"fatal text", true,
        [] {
            fatalError = 1;
            reportError("no way on");
        },
        "box: no way on\n"},
    {"fatal statement", true,
        [] {
            dbExecute("SELECT NO_SUCH_COLUMN");
            reportDbFailure("the statement", Fatal::Yes);
        },
        "box: the statement\nbox: .*NO_SUCH_COLUMN.*\n"},
    {"server that stays away", setsDateFormat(), loseTheServer,
        "box: ORA-03113.*\nbox: Press OK.*\n"},
    {"refused date format", setsDateFormat(),
        [] {
            const DriverFault fault(1, "SQLExecDirect");
            reportError(kLost);
        },
        "box: ORA-03113.*\nbox: Press OK.*\n"},
};

class EndOfProcess : public ErrorReporter, public testing::WithParamInterface<End> {
protected:
    // Says on the way out whether the session was closed and how often the application was told
    // to quit, and leaves the application object to the exit handlers.
    void end()
    {
        static const MessageLog* log = &messages;
        new zApp(nullptr, nullptr, "", 0);
        messages.echo();
        std::atexit([] {
            std::cerr << (dbConnectionHandle() ? "connected" : "disconnected") << ", quit "
                      << log->quits() << std::endl;
        });
        GetParam().report();
    }
};

TEST_P(EndOfProcess, WithStatusOne)
{
    if (!GetParam().inThisKind)
        GTEST_SKIP() << "this kind sets no date format";
    EXPECT_EXIT(end(), ExitedWithCode(1), "^" + GetParam().boxes + "disconnected, quit 1\n$");
}
INSTANTIATE_TEST_SUITE_P(Reports, EndOfProcess, testing::ValuesIn(kEnds));

TEST_F(ErrorReporter, WithoutAnApplicationObjectTheProcessEndsAsWell)
{
    fatalError = 1;
    EXPECT_EXIT(reportError("too early"), ExitedWithCode(1), "");
}

} // namespace

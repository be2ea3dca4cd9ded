// tests/db/FaultSweepTest.cpp
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/SchemaInspection.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Every driver call of an operation fails in turn: the first, the second, until none is left. The
// tables say what each failure leaves behind: the driver function that failed and the operation's
// result, then as far as they are not the usual ones
//   [TEXT]      a box that was shown
//   injected    what `dbErrorText` tells, else the session's own text
//   next N      the number that the next statement gets, else 1; 0: none can be run
//   no commit   a change cannot be made permanent after that

struct Operation {
    const char* name;
    std::function<void(TestDatabase&)> prepare;
    std::function<long(TestDatabase&)> run;
    std::vector<std::string> outcomes; // one per driver call, in the order of the calls
};
void PrintTo(const Operation& o, std::ostream* out) { *out << o.name; }

std::string named(const std::string& text)
{
    if (text.find("injected fault") != std::string::npos)
        return "injected";
    return text == "A database error has occurred." ? "default" : text;
}

bool commitsAChange(TestDatabase& database)
{
    for (short n = 1; n <= 9; ++n)
        dbCloseCursor(n);
    runStatement("INSERT INTO " + scratch() + " VALUES ('y')");
    dbCommit();
    return database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH WHERE a='y'") == "1";
}

/// The outcome with the `n`-th call failing; none when there are fewer calls.
std::optional<std::string> outcomeOf(const Operation& operation, int n)
{
    TestDatabase database(TestDatabase::Empty);
    MessageLog messages;
    database.run("CREATE TABLE NO_SUCH_SCRATCH (a VARCHAR(40))");
    operation.prepare(database);
    std::string outcome;
    {
        const DriverFault fault(n);
        const long result = operation.run(database);
        if (!fault.fired())
            return std::nullopt;
        outcome = fault.call() + " " + std::to_string(result);
    }
    EXPECT_EQ(0, fatalError);
    for (const std::string& text : messages.texts())
        outcome += " [" + named(text) + "]";
    if (const std::string text = named(dbErrorText()); text != "default")
        outcome += " " + text;
    if (const short next = dbExecute("SELECT 1"); next != 1)
        outcome += " next " + std::to_string(next);
    return outcome + (commitsAChange(database) ? "" : " no commit");
}

// Operations and what comes before them.

void nothing(TestDatabase&) {}
void change(TestDatabase&) { runStatement("INSERT INTO " + scratch() + " VALUES ('x')"); }
void openRow(TestDatabase&) { dbFetch(dbExecute("SELECT 7,2.5,'x','y'")); }

long rowsThere(TestDatabase& database)
{
    dbCommit();
    return std::stol(database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH"));
}

long readColumns(TestDatabase&)
{
    const long integer = dbGetLong(1, 1), number = dbGetDouble(1, 2) == 2.5;
    return integer * 1000 + number * 100 + (*dbGetString(1, 3) == 'x') * 10
        + (dbGetChar(1, 4) == 'y');
}

const std::string kSelect =
    " [SELECT max(7) as conval FROM " + testSettings().prefix + "NO_SUCH_SCRATCH]";

std::vector<std::string> executeOutcomes(bool withBars)
{
    if (!withBars)
        return {"SQLAllocHandle 0", "SQLSetStmtAttr 0 injected", "SQLExecDirect 0 injected"};
    return {"SQLAllocHandle 0", "SQLPrepare 0 injected", "SQLBindParameter 0 injected",
        "SQLBindParameter 0 injected", "SQLExecute 0 injected", "SQLParamData 0 injected",
        "SQLPutData 0 injected", "SQLParamData 0 injected", "SQLPutData 0 injected",
        "SQLParamData 0 injected"};
}

const Operation kOperations[] = {
    {"connect", change, [](TestDatabase&) { return dbConnect(nullptr); },
        {"SQLEndTran 1", "SQLDisconnect 1", "SQLFreeHandle 1", "SQLFreeHandle 1",
            "SQLAllocHandle 0 next 0 no commit", "SQLAllocHandle 0 next 0 no commit",
            "SQLDriverConnect 0 next 0 no commit", "SQLSetConnectAttr 1", "SQLGetInfo 0"}},
    {"execute", [](TestDatabase&) { dbExecute("SELECT NO_SUCH_COLUMN"); },
        [](TestDatabase&) { return dbExecute("SELECT 1"); },
        {"SQLFreeHandle 1 next 2", "SQLAllocHandle 0 injected", "SQLSetStmtAttr 0 injected",
            "SQLExecDirect 0 injected"}},
    {"execute with bars", nothing, [](TestDatabase&) { return dbExecute("SELECT 'a|b','c|d'"); },
        executeOutcomes(!isServer())},
    {"fetch", [](TestDatabase&) { dbExecute("SELECT 1"); },
        [](TestDatabase&) { return dbFetch(1); }, {"SQLFetch -1 next 2"}},
    {"read", openRow, readColumns,
        {"SQLGetData 111 next 2", "SQLGetData 7011 next 2", "SQLGetData 7101 next 2",
            "SQLGetData 7110 next 2"}},
    {"close", openRow, [](TestDatabase&) { return dbCloseCursor(1); },
        {"SQLFreeHandle -1 [default] next 2"}},
    {"commit", change, rowsThere, {"SQLEndTran 0"}},
    {"rollback", change,
        [](TestDatabase& d) {
            dbRollback();
            return rowsThere(d);
        },
        {"SQLEndTran 1", "SQLEndTran 0"}},
    {"tableExists", nothing, [](TestDatabase&) { return tableExists("NO_SUCH_SCRATCH"); },
        {"SQLAllocHandle 0", "SQLPrepare 0", "SQLNumResultCols 0", "SQLFreeHandle 1"}},
    {"viewExists", [](TestDatabase& d) { d.run("CREATE VIEW NO_SUCH_VIEW AS SELECT 1"); },
        [](TestDatabase&) { return viewExists("NO_SUCH_VIEW"); },
        {"SQLGetInfo 1", "SQLAllocHandle 0", "SQLTables 0", "SQLFetch 0", "SQLFreeHandle 1"}},
    {"nextId", change, [](TestDatabase&) { return nextId("7", "NO_SUCH_SCRATCH"); },
        {"SQLAllocHandle 1" + kSelect + " [default]", "SQLSetStmtAttr 1" + kSelect + " [injected]",
            "SQLExecDirect 1" + kSelect + " [injected]", "SQLFetch 1", "SQLGetData 1",
            "SQLFreeHandle 8 [default] next 2"}}};

class EachDriverCallFailing : public testing::TestWithParam<Operation> {};
TEST_P(EachDriverCallFailing, LeavesWhatTheTableSays)
{
    std::vector<std::string> outcomes;
    for (int n = 1; const auto outcome = outcomeOf(GetParam(), n); ++n) {
        // The driver manager's own talk with the driver, as much of it as the driver takes part in.
        if (outcome->find("EnvAttr ") != std::string::npos)
            EXPECT_TRUE(outcome->ends_with("EnvAttr 1")) << *outcome;
        else
            outcomes.push_back(*outcome);
    }
    EXPECT_EQ(GetParam().outcomes, outcomes);
}
INSTANTIATE_TEST_SUITE_P(Session, EachDriverCallFailing, testing::ValuesIn(kOperations));

} // namespace

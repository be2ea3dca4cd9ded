// tests/db/FaultSweepTest.cpp
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/SchemaInspection.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Every driver call of an operation fails in turn: the first, the second, until none is left. The
// tables say what each failure leaves behind.

/// Texts as the tables name them: the injected one, the session's own, or themselves.
std::string named(const std::string& text)
{
    if (text.find("injected fault") != std::string::npos)
        return "injected";
    return text == "A database error has occurred." ? "default" : text;
}

struct Outcome {
    std::string call;                    // the driver function that failed
    long result;                         // of the operation
    std::vector<std::string> boxes = {}; // shown during the operation
    std::string errorText = "default";   // what `dbErrorText` tells then
    short nextCursor = 1; // the number that the next statement gets; 0: none can be run
    bool commits = true;  // whether a change can be made permanent after that

    friend bool operator==(const Outcome&, const Outcome&) = default;
};
std::ostream& operator<<(std::ostream& out, const Outcome& o)
{
    out << "\n{\"" << o.call << "\", " << o.result << ", {";
    for (const std::string& box : o.boxes)
        out << '"' << box << "\", ";
    return out << "}, \"" << o.errorText << "\", " << o.nextCursor << ", " << o.commits << "}";
}

struct Operation {
    const char* name;
    std::function<void(TestDatabase&)> prepare;
    std::function<long(TestDatabase&)> run;
    std::vector<Outcome> outcomes; // one per driver call, in the order of the calls
};
void PrintTo(const Operation& o, std::ostream* out) { *out << o.name; }

bool commitsAChange(TestDatabase& database)
{
    for (short n = 1; n <= 9; ++n)
        dbCloseCursor(n);
    runStatement("INSERT INTO " + scratch() + " VALUES ('y')");
    dbCommit();
    return database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH WHERE a='y'") == "1";
}

/// The outcome with the `n`-th call failing; none when there are fewer calls.
std::unique_ptr<Outcome> outcomeOf(const Operation& operation, int n)
{
    TestDatabase database(TestDatabase::Empty);
    MessageLog messages;
    database.run("CREATE TABLE NO_SUCH_SCRATCH (a VARCHAR(40))");
    operation.prepare(database);
    auto outcome = std::make_unique<Outcome>();
    {
        const DriverFault fault(n);
        outcome->result = operation.run(database);
        if (!fault.fired())
            return nullptr;
        outcome->call = fault.call();
    }
    EXPECT_EQ(0, fatalError);
    for (const std::string& text : messages.texts())
        outcome->boxes.push_back(named(text));
    outcome->errorText = named(dbErrorText());
    outcome->nextCursor = dbExecute("SELECT 1");
    outcome->commits = commitsAChange(database);
    return outcome;
}

// Operations and what comes before them.

void nothing(TestDatabase&) {}
void disconnect(TestDatabase&) { dbDisconnect(); }
void change(TestDatabase&) { runStatement("INSERT INTO " + scratch() + " VALUES ('x')"); }
void openQuery(TestDatabase&) { dbExecute("SELECT 1"); }
void openRow(TestDatabase&) { dbFetch(dbExecute("SELECT 7,2.5,'x','y'")); }
void openChange(TestDatabase&) { dbExecute("INSERT INTO " + scratch() + " VALUES ('x')"); }

long rowsThere(TestDatabase& database)
{
    return std::stol(database.value("SELECT COUNT(*) FROM NO_SUCH_SCRATCH"));
}

long executeBars(TestDatabase&) { return dbExecute("SELECT 'a|b','c|d'"); }

long readColumns(TestDatabase&)
{
    const long integer = dbGetLong(1, 1);
    const auto number = static_cast<long>(dbGetDouble(1, 2) * 10);
    const long text = *dbGetString(1, 3) == 'x';
    const long letter = dbGetChar(1, 4) == 'y';
    return integer * 10000 + number * 100 + text * 10 + letter;
}

long typeOfColumn(TestDatabase&)
{
    char word[20] = "";
    int precision = 0;
    const int found = columnType("NO_SUCH_SCRATCH", "a", word, &precision);
    return found * 1000 + (word == std::string("text") ? 100 : 0) + precision;
}

long columnCount(TestDatabase&)
{
    char* names[5] = {};
    char* types[5] = {};
    short precisions[5] = {};
    int count = -1;
    listColumns("NO_SUCH_SCRATCH", names, types, precisions, &count);
    for (int i = 0; i < count; ++i) {
        delete[] names[i];
        delete[] types[i];
    }
    return count;
}

long tableCount(TestDatabase&)
{
    char* names[5] = {};
    const int count = listTables(names, 5);
    for (int i = 0; i < count; ++i)
        delete[] names[i];
    return count;
}

const std::string kSelect =
    "SELECT max(7) as conval FROM " + testSettings().prefix + "NO_SUCH_SCRATCH";

const std::vector<Outcome> kDirect{{"SQLAllocHandle", 0}, {"SQLSetStmtAttr", 0, {}, "injected"},
    {"SQLExecDirect", 0, {}, "injected"}};
const std::vector<Outcome> kParameterised{{"SQLAllocHandle", 0}, {"SQLPrepare", 0, {}, "injected"},
    {"SQLBindParameter", 0, {}, "injected"}, {"SQLBindParameter", 0, {}, "injected"},
    {"SQLExecute", 0, {}, "injected"}, {"SQLParamData", 0, {}, "injected"},
    {"SQLPutData", 0, {}, "injected"}, {"SQLParamData", 0, {}, "injected"},
    {"SQLPutData", 0, {}, "injected"}, {"SQLParamData", 0, {}, "injected"}};

const Operation kOperations[] = {
    {"connect", disconnect, [](TestDatabase& d) { return dbConnect(d.connectString().c_str()); },
        {{"SQLAllocHandle", 0, {}, "default", 0, false},
            {"SQLAllocHandle", 0, {}, "default", 0, false},
            {"SQLDriverConnect", 0, {}, "default", 0, false}, {"SQLSetConnectAttr", 1},
            {"SQLGetInfo", 0}}},
    {"connect again", change, [](TestDatabase&) { return dbConnect(nullptr); },
        {{"SQLEndTran", 1}, {"SQLDisconnect", 1}, {"SQLFreeHandle", 1}, {"SQLFreeHandle", 1},
            {"SQLAllocHandle", 0, {}, "default", 0, false},
            {"SQLAllocHandle", 0, {}, "default", 0, false},
            {"SQLDriverConnect", 0, {}, "default", 0, false}, {"SQLSetConnectAttr", 1},
            {"SQLGetInfo", 0}}},
    {"disconnect", change, [](TestDatabase&) { return dbDisconnect(); },
        {{"SQLEndTran", 1, {}, "default", 0, false}, {"SQLDisconnect", 1, {}, "default", 0, false},
            {"SQLFreeHandle", 1, {}, "default", 0, false},
            {"SQLFreeHandle", 1, {}, "default", 0, false}}},
    {"execute", nothing, [](TestDatabase&) { return dbExecute("SELECT 1"); }, kDirect},
    {"execute with bars", nothing, executeBars, isServer() ? kDirect : kParameterised},
    {"execute over a failed statement", [](TestDatabase&) { dbExecute("SELECT NO_SUCH_COLUMN"); },
        [](TestDatabase&) { return dbExecute("SELECT 1"); },
        {{"SQLFreeHandle", 1, {}, "default", 2}, {"SQLAllocHandle", 0, {}, "injected"},
            {"SQLSetStmtAttr", 0, {}, "injected"}, {"SQLExecDirect", 0, {}, "injected"}}},
    {"fetch", openQuery, [](TestDatabase&) { return dbFetch(1); },
        {{"SQLFetch", -1, {}, "default", 2}}},
    {"read", openRow, readColumns,
        {{"SQLGetData", 2511, {}, "default", 2}, {"SQLGetData", 70011, {}, "default", 2},
            {"SQLGetData", 72501, {}, "default", 2}, {"SQLGetData", 72510, {}, "default", 2}}},
    {"row count", openChange, [](TestDatabase&) { return dbRowCount(1); },
        {{"SQLRowCount", -1, {}, "default", 2}}},
    {"close", openRow, [](TestDatabase&) { return dbCloseCursor(1); },
        {{"SQLFreeHandle", -1, {"default"}, "default", 2}}},
    {"commit", change,
        [](TestDatabase& d) {
            dbCommit();
            return rowsThere(d);
        },
        {{"SQLEndTran", 0}}},
    {"rollback", change,
        [](TestDatabase& d) {
            dbRollback();
            dbCommit();
            return rowsThere(d);
        },
        {{"SQLEndTran", 1}, {"SQLEndTran", 0}}},
    {"tableExists", nothing, [](TestDatabase&) { return tableExists("NO_SUCH_SCRATCH"); },
        {{"SQLAllocHandle", 0}, {"SQLPrepare", 0}, {"SQLNumResultCols", 0}, {"SQLFreeHandle", 1}}},
    {"columnExists", nothing, [](TestDatabase&) { return columnExists("NO_SUCH_SCRATCH", "a"); },
        {{"SQLAllocHandle", 0}, {"SQLPrepare", 0}, {"SQLNumResultCols", 0}, {"SQLDescribeCol", 0},
            {"SQLFreeHandle", 1}}},
    {"viewExists", [](TestDatabase& d) { d.run("CREATE VIEW NO_SUCH_VIEW AS SELECT 1"); },
        [](TestDatabase&) { return viewExists("NO_SUCH_VIEW"); },
        {{"SQLGetInfo", 1}, {"SQLAllocHandle", 0}, {"SQLTables", 0}, {"SQLFetch", 0},
            {"SQLFreeHandle", 1}}},
    {"columnType", nothing, typeOfColumn,
        {{"SQLGetInfo", 1140}, {"SQLAllocHandle", 0}, {"SQLColumns", 0}, {"SQLFetch", 0},
            {"SQLGetData", 1040}, {"SQLGetData", 1100}, {"SQLFreeHandle", 1140}}},
    {"listColumns", nothing, columnCount,
        {{"SQLGetInfo", 1}, {"SQLAllocHandle", 0}, {"SQLColumns", 0}, {"SQLFetch", 0},
            {"SQLGetData", 0}, {"SQLGetData", 1}, {"SQLGetData", 1}, {"SQLFetch", 1},
            {"SQLFreeHandle", 1}}},
    {"listTables", nothing, tableCount,
        {{"SQLAllocHandle", 0}, {"SQLTables", 0}, {"SQLFetch", 0}, {"SQLGetData", 0},
            {"SQLFetch", 1}, {"SQLFreeHandle", 1}}},
    {"nextId", change, [](TestDatabase&) { return nextId("7", "NO_SUCH_SCRATCH"); },
        {{"SQLAllocHandle", 1, {kSelect, "default"}}, {"SQLSetStmtAttr", 1, {kSelect, "injected"}},
            {"SQLExecDirect", 1, {kSelect, "injected"}}, {"SQLFetch", 1}, {"SQLGetData", 1},
            {"SQLFreeHandle", 8, {"default"}, "default", 2}}}};

class EachDriverCallFailing : public testing::TestWithParam<Operation> {};
TEST_P(EachDriverCallFailing, LeavesWhatTheTableSays)
{
    std::vector<Outcome> outcomes;
    for (int n = 1; auto outcome = outcomeOf(GetParam(), n); ++n) {
        // The driver manager's own talk with the driver, as much of it as the driver takes part in.
        if (outcome->call.ends_with("EnvAttr"))
            EXPECT_EQ((Outcome{outcome->call, 1}), *outcome);
        else
            outcomes.push_back(*outcome);
    }
    EXPECT_EQ(GetParam().outcomes, outcomes);
}
INSTANTIATE_TEST_SUITE_P(Session, EachDriverCallFailing, testing::ValuesIn(kOperations));

} // namespace

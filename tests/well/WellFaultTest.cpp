// tests/well/WellFaultTest.cpp
#include "db/Session.h"
#include "tests/support/Restore.h"
#include "tests/well/WellTest.h"
#include "well/WellMaster.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

// The driver calls that running a statement makes, each of which can keep it from running.
constexpr const char* kRun[] = {"SQLAllocHandle", "SQLSetStmtAttr", "SQLExecDirect"};
constexpr const char* kFetch = "SQLFetch";
constexpr const char* kFault = "injected fault";
constexpr const char* kLost = "ORA-03113 connection lost";

struct Seven : Well {
    Seven()
    {
        well_id = 7;
        well_code = "C-7";
    }
};

/// What is left when the n-th run of a statement, or fetch of a row, fails.
struct Outcome {
    int n;
    std::string result; ///< of a fatal one: when a lost connection was restored
    std::string report; ///< in the first box; empty: there is none
    bool fatal = false;
    bool databaseText = true; ///< in a second box
};

struct Operation {
    const char* name;
    std::string (*run)(WellData&);
    std::string done; ///< the result without a fault
    std::vector<Outcome> runs, fetches;
    /// In the order of reading, what sets each column that is read to NULL.
    std::vector<std::string> nulls = {};
};

std::vector<std::string> nullsOf(
    const std::string& tableName, const std::string& columns, const std::string& where)
{
    std::vector<std::string> statements;
    std::istringstream in(columns);
    for (std::string column; std::getline(in, column, ',');)
        statements.push_back("UPDATE " + tableName + " SET " + column
            + (column == "samp_id" ? "=0" : "=NULL") + " WHERE " + where);
    return statements;
}

std::vector<std::string> operator+(std::vector<std::string> a, const std::vector<std::string>& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const std::string kSampleColumns =
    "top_depth,base_depth,type,grid_x,grid_y,created,modified,creator,modifier,label";
const std::string kNone = "8|**No well code for ID=8|**Unnamed well ID=8||0|";
const std::string kSeven = "7|C-7|Well Seven|the seventh|1|";
const std::string kLone = "0|LONE|Lone well of 25 letters x||0|";
const std::string kNoSample = "0|0|0|CU|0|0||||||0|";
const std::string kOne = "1|30|31|SC|3|4|1998-03-05|1998-04-06|AB|CD|one|1|";
const std::string kTwo = "2|20|20|LOG|0|0||||||1|";
const std::string kNamed = "Well Seven|Oper|Land|Field|11|12|", kPlaced = "61.25|2.5|";
const std::string kDeep = "3000.5|1.5|-90.25|25.5|O|F|2|1998-03-05|1998-04-06|ED50|500.5|";
const std::string kUnnamed = "||||0|0|", kUnplaced = "0|0|", kFlat = "0|0|0|0|W|M|1||||0|";

const std::vector<Operation> kOperations = {
    {"identifier", [](WellData&) { return identityOf(Well(8L)); }, kNone,
        {{1, "0||||0|", "SELECT v.well_code"}, {2, kNone, "SELECT well_name"},
            {3, kNone, "SELECT lat_dec"}, {4, kNone, "SELECT td"}, {5, kNone, "SELECT ocs"}},
        {}},
    {"code", [](WellData&) { return identityOf(Well("LONE")); }, "0|LONE|||0|",
        {{1, "0|LONE|||0|", "SELECT v.well_id"}}, {{1, "0|LONE|||0|", ""}}},
    {"find by name",
        [](WellData&) {
            Well well;
            well.FindByName("Lone well of 25 letters x", 25);
            return identityOf(well);
        },
        kLone,
        {{1, kLone, ""}, {2, "0||Lone well of 25 letters x||0|", "SELECT well_code", false, false}},
        {{1, kLone, ""}, {2, "0||Lone well of 25 letters x||0|", ""}}},
    {"find by code",
        [](WellData&) {
            Well well;
            const long result = well.FindByCode("C-7", 3);
            return joined(result) + identityOf(well);
        },
        "7|" + kSeven,
        {{1, "1|0|C-7|||0|", "SELECT v.well_id"}, {2, "7|" + kSeven, "SELECT well_name"}},
        {{1, "0|0|C-7|C-7||0|", ""}}},
    {"names",
        [](WellData&) {
            char name[26], code[26];
            return joined(Well::GetWellNames(7, name, code), name, code);
        },
        "1|Well Seven|C-7|",
        {{1, "0|no name, id=7|no code, id=7|", "Error getting well dets: SELECT w.well_name"}},
        {{1, "0|no name, id=7|no code, id=7|", ""}}},
    {"header",
        [](WellData&) {
            Seven well;
            well.ReadHeader();
            return headerOf(well);
        },
        kNamed + kPlaced + kDeep + "OCS-1|Shire|",
        {{1, kUnnamed + kUnplaced + kFlat + "||", "SELECT well_name"},
            {2, kNamed + kUnplaced + kFlat + "||", "SELECT lat_dec"},
            {3, kNamed + kPlaced + kFlat + "||", "SELECT td"},
            {4, kNamed + kPlaced + kDeep + "||", "SELECT ocs"}},
        {{1, kUnnamed + kPlaced + kDeep + "OCS-1|Shire|", ""},
            {2, kNamed + kUnplaced + kDeep + "OCS-1|Shire|", ""},
            {3, kNamed + kPlaced + kFlat + "OCS-1|Shire|", ""},
            {4, kNamed + kPlaced + kDeep + "||", ""}},
        nullsOf("WELLS",
            "well_name,operator,country,field,grid_x,grid_y,lat_dec,long_dec,td,sl,sb,rte,type,"
            "units,datum,spud_date,comp_date,geoDatum,kicko,ocs,county",
            "well_code='C-7'")},
    {"header write", [](WellData&) { return joined(Seven().WriteHeader("C-7")); }, "1|",
        {{1, "1|", "SET well_name=", true}, {2, "1|", "SET lat_dec=", true},
            {3, "1|", "SET td=", true}, {4, "1|", "SET ocs=", true}},
        {}},
    {"master",
        [](WellData&) {
            const Restore<int> inUse(useWellsMaster, 1);
            const Restore<int> available(masterColumns[0].available, 1);
            return joined(Seven().RefreshFromMaster(1));
        },
        "0|", {{1, "0|", "SELECT WELL_NAME FROM", true}}, {{1, "0|", ""}}},
    {"sample", [](WellData&) { return textOf(Sample(7, 1)); }, kOne,
        {{1, kNoSample, "SELECT s.top_depth", true}}, {{1, kNoSample, ""}},
        nullsOf("SAMPLES", kSampleColumns, "samp_id=1")},
    {"label",
        [](WellData&) {
            Sample s(1, 1, 30, "CU", 0, 0, 30);
            s.label = "old";
            s.ReloadLabel();
            return s.label.str();
        },
        "one", {{1, "old", "SELECT s.label", true}}, {{1, "", ""}},
        nullsOf("SAMPLES", "label", "samp_id=1")},
    {"update",
        [](WellData&) {
            Sample s(7, 1, 50, "CU", 0, 0, 60);
            s.SetLabel("new");
            s.Update();
            return Sample(7, 1).label.str();
        },
        "new", {{1, "one", " SET depth="}}, {}},
    {"sample list",
        [](WellData&) {
            Seven well;
            well.LoadSamples(0);
            std::string text;
            for (const Sample* s : well.samples)
                text += textOf(*s);
            return text + joined(well.samplesLoaded);
        },
        kTwo + kOne + "1|", {{1, "0|", "Error selecting sample list", true}},
        {{1, "1|", ""}, {2, kOne + "1|", ""}, {3, kTwo + kOne + "1|", ""}},
        nullsOf("SAMPLES", "samp_id," + kSampleColumns, "samp_id=1")
            + nullsOf("SAMPLES", "samp_id," + kSampleColumns, "samp_id=2")},
};

/// A driver call that fails; `n` 0: none does.
struct Fault {
    int n = 0;
    std::string call = "any";
    std::string text = kFault;
};

struct Aftermath {
    std::string result;
    bool fired;
    std::vector<std::string> boxes;
    int freeCursors;
};

Aftermath runWith(const Operation& operation, const Fault& wanted, WellData& data)
{
    Aftermath after;
    {
        const DriverFault fault(
            wanted.n == 0 ? 1000 : wanted.n, wanted.call, DriverFault::Once, "HY000", wanted.text);
        after.result = operation.run(data);
        after.fired = fault.fired();
    }
    after.boxes = data.boxes.texts();
    for (after.freeCursors = 0; dbExecute("SELECT samp_id FROM " + table("SAMPLES")) != 0;)
        ++after.freeCursors;
    return after;
}

Aftermath runWith(const Operation& operation, const Fault& wanted)
{
    WellData data;
    return runWith(operation, wanted, data);
}

void expectOutcome(const Operation& operation, const Outcome& outcome, const Fault& fault)
{
    SCOPED_TRACE(std::string(operation.name) + ", " + fault.call + " " + std::to_string(fault.n));
    const Aftermath after = runWith(operation, fault);
    EXPECT_TRUE(after.fired);
    EXPECT_EQ(outcome.result, after.result);
    EXPECT_EQ(9, after.freeCursors);
    // A statement that has no handle has no text of its own.
    const std::string text = fault.call == kRun[0] ? "A database error" : fault.text;
    std::vector<testing::Matcher<std::string>> boxes;
    if (!outcome.report.empty())
        boxes.push_back(HasSubstr(outcome.report));
    if (!outcome.report.empty() && outcome.databaseText)
        boxes.push_back(HasSubstr(text));
    if (fault.text == kLost)
        boxes.push_back(HasSubstr("attempt to reconnect"));
    EXPECT_THAT(after.boxes, testing::ElementsAreArray(boxes));
}

TEST(WellFaults, LeaveWhatWasReadAndAreReported)
{
    for (const Operation& operation : kOperations) {
        EXPECT_EQ(operation.done, runWith(operation, {}).result) << operation.name;
        for (const Outcome& outcome : operation.fetches)
            expectOutcome(operation, outcome, {outcome.n, kFetch});
        for (const Outcome& outcome : operation.runs) {
            for (const char* call : kRun) {
                if (!outcome.fatal)
                    expectOutcome(operation, outcome, {outcome.n, call});
            }
        }
    }
}

TEST(WellFaults, InAColumnReadAsNull)
{
    for (const Operation& operation : kOperations) {
        if (operation.nulls.empty())
            continue;
        int n = 0;
        for (const std::string& null : operation.nulls) {
            std::string expected;
            {
                WellData data;
                data.db.run(null);
                expected = runWith(operation, {}, data).result;
            }
            EXPECT_EQ(expected, runWith(operation, {++n, "SQLGetData"}).result) << null;
        }
        // No call is left that none of these tests lets fail.
        const auto calls = 4 * operation.runs.size() + operation.fetches.size() + n;
        EXPECT_TRUE(runWith(operation, {static_cast<int>(calls)}).fired) << operation.name;
        EXPECT_FALSE(runWith(operation, {static_cast<int>(calls) + 1}).fired) << operation.name;
    }
}

TEST(WellFaults, InADropAreReportedAndCostTheCursor)
{
    for (const Operation& operation : kOperations) {
        for (int n = 1; n <= static_cast<int>(operation.runs.size()); ++n) {
            SCOPED_TRACE(std::string(operation.name) + " " + std::to_string(n));
            const Aftermath after = runWith(operation, {n, "SQLFreeHandle"});
            EXPECT_EQ(operation.done, after.result);
            EXPECT_EQ(8, after.freeCursors);
            EXPECT_EQ((Statements{"A database error has occurred."}), after.boxes);
        }
    }
}

TEST(WellFaults, OfALostConnectionLeaveNoCursorAndAreNotFatal)
{
    for (const Operation& operation : kOperations) {
        for (const Outcome& outcome : operation.runs) {
            if (!outcome.report.empty() && outcome.databaseText)
                expectOutcome(operation, outcome, {outcome.n, "SQLExecDirect", kLost});
        }
    }
}

using WellFault = WellTest;

TEST_F(WellFault, OfALostConnectionLetsTheRestOfTheHeaderBeWritten)
{
    {
        const DriverFault fault(2, "SQLExecDirect", DriverFault::Once, "HY000", kLost);
        Seven().WriteHeader("C-7");
    }
    dbCommit();
    EXPECT_EQ((Statements{"Well Seven|61.25|W|NULL"}),
        db.rows("SELECT well_name, lat_dec, type, ocs FROM WELLS WHERE well_code='C-7'"))
        << "the first was rolled back, the second failed";
}

TEST(WellFaults, EndTheProcessWhenFatal)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const Operation& operation : kOperations) {
        for (const Outcome& outcome : operation.runs) {
            for (const char* call : kRun) {
                if (!outcome.fatal)
                    continue;
                EXPECT_EXIT(
                    {
                        WellData data;
                        data.boxes.echo();
                        runWith(operation, {outcome.n, call}, data);
                    },
                    testing::ExitedWithCode(1), outcome.report);
            }
        }
    }
}

} // namespace

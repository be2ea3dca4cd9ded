// tests/well/WellFaultTest.cpp
#include "db/Session.h"
#include "dict/EVdictList.h"
#include "tests/support/Restore.h"
#include "tests/well/AnalysisData.h"
#include "well/WellMaster.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

// The driver calls that running a statement makes, each of which can keep it from running.
constexpr const char* kRun[] = {"SQLAllocHandle", "SQLSetStmtAttr", "SQLExecDirect"};
constexpr const char* kFault = "injected fault";
constexpr const char* kLost = "ORA-03113 connection lost";

struct Seven : Well {
    Seven()
    {
        well_id = 7;
        well_code = "C-7";
    }
    /// What is loaded of a discipline.
    std::string loaded(int disc) const
    {
        return occurrencesOf(*this) + joined(detailsLoaded[disc], occurrencesLoaded[disc]);
    }
};

/// What is left when the n-th run of a statement, or fetch of a row, fails.
struct Outcome {
    int n;
    std::string result; ///< of a fatal one: when a lost connection was restored
    std::string report; ///< in the first box; empty: there is none, or the database's text alone
    bool fatal = false;
    bool databaseText = true; ///< in a second box
};

struct Operation {
    const char* name;
    std::string (*run)();
    std::vector<Outcome> runs, fetches;
};

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
    {"identifier", [] { return identityOf(Well(8L)); },
        {{1, "0||||0|", "SELECT v.well_code"}, {2, kNone, "SELECT well_name"},
            {3, kNone, "SELECT lat_dec"}, {4, kNone, "SELECT td"}, {5, kNone, "SELECT ocs"}},
        {}},
    {"code", [] { return identityOf(Well("LONE")); }, {{1, "0|LONE|||0|", "SELECT v.well_id"}},
        {{1, "0|LONE|||0|", ""}}},
    {"find by name",
        [] {
            Well well;
            well.FindByName("Lone well of 25 letters x", 25);
            return identityOf(well);
        },
        {{1, kLone, ""}, {2, "0||Lone well of 25 letters x||0|", "SELECT well_code", false, false}},
        {{1, kLone, ""}, {2, "0||Lone well of 25 letters x||0|", ""}}},
    {"find by code",
        [] {
            Well well;
            const long result = well.FindByCode("C-7", 3);
            return joined(result) + identityOf(well);
        },
        {{1, "1|0|C-7|||0|", "SELECT v.well_id"}, {2, "7|" + kSeven, "SELECT well_name"}},
        {{1, "0|0|C-7|C-7||0|", ""}}},
    {"names",
        [] {
            char name[26], code[26];
            return joined(Well::GetWellNames(7, name, code), name, code);
        },
        {{1, "0|no name, id=7|no code, id=7|", "Error getting well dets: SELECT w.well_name"}},
        {{1, "0|no name, id=7|no code, id=7|", ""}}},
    {"header",
        [] {
            Seven well;
            well.ReadHeader();
            return headerOf(well);
        },
        {{1, kUnnamed + kUnplaced + kFlat + "||", "SELECT well_name"},
            {2, kNamed + kUnplaced + kFlat + "||", "SELECT lat_dec"},
            {3, kNamed + kPlaced + kFlat + "||", "SELECT td"},
            {4, kNamed + kPlaced + kDeep + "||", "SELECT ocs"}},
        {{1, kUnnamed + kPlaced + kDeep + "OCS-1|Shire|", ""},
            {2, kNamed + kUnplaced + kDeep + "OCS-1|Shire|", ""},
            {3, kNamed + kPlaced + kFlat + "OCS-1|Shire|", ""},
            {4, kNamed + kPlaced + kDeep + "||", ""}}},
    {"header write", [] { return joined(Seven().WriteHeader("C-7")); },
        {{1, "1|", "SET well_name=", true}, {2, "1|", "SET lat_dec=", true},
            {3, "1|", "SET td=", true}, {4, "1|", "SET ocs=", true}},
        {}},
    {"master",
        [] {
            const Restore<int> inUse(useWellsMaster, 1);
            const Restore<int> available(masterColumns[0].available, 1);
            return joined(Seven().RefreshFromMaster(1));
        },
        {{1, "0|", "SELECT WELL_NAME FROM", true}}, {{1, "0|", ""}}},
    {"sample", [] { return textOf(Sample(7, 1)); }, {{1, kNoSample, "SELECT s.top_depth", true}},
        {{1, kNoSample, ""}}},
    {"label",
        [] {
            Sample s(1, 1, 30, "CU", 0, 0, 30);
            s.label = "old";
            s.ReloadLabel();
            return s.label.str();
        },
        {{1, "old", "SELECT s.label", true}}, {{1, "", ""}}},
    {"update",
        [] {
            Sample s(7, 1, 50, "CU", 0, 0, 60);
            s.SetLabel("new");
            s.Update();
            return Sample(7, 1).label.str();
        },
        {{1, "one", " SET depth="}}, {}},
    {"sample list",
        [] {
            Seven well;
            well.LoadSamples(0);
            std::string text;
            for (const Sample* s : well.samples)
                text += textOf(*s);
            return text + joined(well.samplesLoaded);
        },
        {{1, "0|", "Error selecting sample list", true}},
        {{1, "1|", ""}, {2, kOne + "1|", ""}, {3, kTwo + kOne + "1|", ""}}},
    {"details",
        [] {
            Seven well;
            well.LoadSamples(0);
            well.LoadSampleDetails('N', "");
            return well.loaded(1);
        },
        {{2, "0|0|", "Error selecting sample details list", true}},
        {{4, "0|0|", ""}, {5, "1/XY:; 1|0|", ""}}},
    {"occurrences",
        [] {
            Seven well;
            well.LoadSamples(0);
            well.LoadSampleDetails('N', "");
            well.loadFss('N', "", 0);
            return well.loaded(1);
        },
        {{3, "1/XY:; 1|0|", "Error selecting fss list", true}},
        {{6, "1/XY:; 1|1|", ""}, {7, "1/XY*: 52=7; 1|1|", ""}}},
    {"details of a sample",
        [] {
            Sample s(7, 1);
            s.LoadDetails('N', "XY");
            return detailsOf(s) + joined(s.detailsLoaded[1]);
        },
        {{2, "0|", "", true}}, {{2, "1|", ""}, {3, "N,XY,,,,N,1 1|", ""}}},
    {"analysts",
        [] {
            std::vector<std::string> analysts{"old"};
            Sample(1, 1, 1, "CU", 0, 0, 1).ListAnalysts('N', analysts);
            return analysts.empty() ? "none" : analysts.front();
        },
        {{1, "old", "SELECT distinct(analyst)"}}, {{1, "none", ""}, {2, "XY", ""}}},
    {"comment",
        [] {
            std::string text = "old";
            return joined(Seven().LoadComment('M', 1, "ABC", text, 0), text);
        },
        {{1, "1||", "SELECT comments", true}}, {}},
    {"events",
        [] {
            Seven well;
            EVdictList dictionary;
            well.LoadEvents(1, dictionary, 1, 0);
            return joined(well.events.count(), well.events.groupingMode());
        },
        {{1, "0|0|", "SELECT ev_id, ev_type", true}}, {{1, "0|1|", ""}}},
    {"ages",
        [] {
            float top = 1, base = 1;
            Seven().AgeRangeDepths(10, 30, &top, &base);
            return joined(top, base);
        },
        {{1, "0|0|", "i.top_id"}, {2, "0|0|", "upp_zone=d.igd_id AND d.l_age<"},
            {3, "0|0|", "low_zone"}},
        {}},
};

struct Fault {
    int n;
    std::string call;
    std::string text = kFault;
};

void expectOutcome(const Operation& operation, const Outcome& outcome, const Fault& fault)
{
    SCOPED_TRACE(std::string(operation.name) + ", " + fault.call + " " + std::to_string(fault.n));
    const AnalysisData data;
    {
        const DriverFault driver(fault.n, fault.call, DriverFault::Once, "HY000", fault.text);
        EXPECT_EQ(outcome.result, operation.run());
        EXPECT_TRUE(driver.fired());
    }
    // A statement that has no handle has no text of its own.
    const std::string text = fault.call == kRun[0] ? "A database error" : fault.text;
    Statements parts;
    if (!outcome.report.empty())
        parts.push_back(outcome.report);
    if ((!outcome.report.empty() || outcome.fatal) && outcome.databaseText)
        parts.push_back(text);
    if (fault.text == kLost)
        parts.push_back("attempt to reconnect");
    const auto boxes = data.boxes.texts();
    ASSERT_EQ(parts.size(), boxes.size());
    for (std::size_t i = 0; i < parts.size(); ++i)
        EXPECT_THAT(boxes[i], HasSubstr(parts[i]));
    EXPECT_EQ(1, dbExecute("SELECT samp_id FROM " + table("SAMPLES"))) << "a cursor was left";
}

TEST(WellFaults, LeaveWhatWasReadAndAreReported)
{
    for (const Operation& operation : kOperations) {
        for (const Outcome& outcome : operation.fetches)
            expectOutcome(operation, outcome, {outcome.n, "SQLFetch"});
        for (const Outcome& outcome : operation.runs) {
            for (const char* call : kRun) {
                if (!outcome.fatal)
                    expectOutcome(operation, outcome, {outcome.n, call});
            }
            if (outcome.fatal) // restored, so it goes on
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
            const auto run = [&operation, &outcome] {
                AnalysisData data;
                data.boxes.echo();
                const DriverFault fault(outcome.n, "SQLExecDirect");
                operation.run();
            };
            if (!outcome.fatal)
                continue;
            EXPECT_EXIT(run(), testing::ExitedWithCode(1), outcome.report);
        }
    }
}

} // namespace

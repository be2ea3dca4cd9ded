// tests/interp/InterpFaultTest.cpp
#include "db/Session.h"
#include "interp/IGDLookups.h"
#include "tests/interp/InterpTest.h"

#include <gmock/gmock.h>

namespace {

constexpr const char* kLost = "ORA-03113 connection lost";

/// What is left when the n-th run of a statement fails.
struct Outcome {
    const char* name;
    std::string (*run)(InterpData& data);
    int n;
    std::string result; ///< of a fatal one: when a lost connection was restored
    std::string report; ///< in the first box; empty: there is none
    bool fatal = false;
};

std::string termsOf(const igd_sch& scheme)
{
    std::string text =
        joined(scheme.sch_id, scheme.name.view(), scheme.oldestAge, int(scheme.termsLoaded));
    for (const igdDict* term : scheme.nameOrder)
        text += joined(term->igd_id);
    return text;
}

std::string loadedTerms(InterpData&) { return termsOf(igd_sch(1L, 1)); }
std::string headerAlone(InterpData&) { return termsOf(igd_sch(1L, 0)); }
std::string namedScheme(InterpData&) { return termsOf(igd_sch("beta", 3, 0)); }
std::string schemeCount(InterpData&) { return joined(IGDSchemeList().count()); }

std::string removedScheme(InterpData& data)
{
    const int result = igd_sch(1L, 0).removeFromDB();
    dbRollback();
    return joined(result)
        + data.db.value("SELECT (SELECT count(*) FROM IGD_DICT) || '|' || count(*) FROM IGD_SCH");
}

std::string loadedZones(InterpData& data)
{
    const IGDList list(3, 7, 7, &data.well, 'M', 0, 0, nullptr);
    return joined(list.count(), list.title(), list.changed(), list.isComplete());
}

std::string zoneTerm(InterpData&)
{
    IGDZone zone(3, 1L, 2L, 'N', "Upper", 'N', "Lower");
    zone.upp_zone = 11, zone.low_zone = 12;
    std::string text = joined(zone.upperName(1));
    for (int i = 0; i < 2; ++i)
        text += joined(int(zone.getLowerColour().blue));
    char name[81] = "before";
    zone.upperNameFromDictionary(name);
    return text + name;
}

std::string questions(InterpData&)
{
    int hier = -1;
    const long igd_id = termNameAndRank(11, nullptr, &hier);
    deleteWellRows(12, 7);
    return joined(igd_id, hier);
}

const Outcome kOutcomes[] = {
    {"header", loadedTerms, 1, "-2||0|0|", "SELECT name, igd_type", true},
    {"keys of terms", loadedTerms, 2, "1|beta|0|0|", "SELECT igd_id FROM", true},
    {"one term", loadedTerms, 4, "1|beta|70|1|-2|12|14|10|13|", "SELECT sch_id, igd_type, hier"},
    {"age span", headerAlone, 2, "1|beta|0|0|", ""},
    {"scheme by name", namedScheme, 1, "-2|beta|0|0|", "SELECT sch_id FROM", true},
    {"list of schemes", schemeCount, 1, "0|", "SELECT sch_id FROM"},
    {"removal of terms", removedScheme, 3, "0|5|3",
        "Failed to remove dictionary terms in igd_sch::removeFromDB()"},
    {"removal of the scheme", removedScheme, 4, "0|0|3",
        "Failed to remove IGD scheme in igd_sch::removeFromDB()"},
    {"zones", loadedZones, 1, "0|Age|0|0|", "SELECT top_id, base_id"},
    {"abbreviation", zoneTerm, 1, "Upper|1|1|Upper", ""},
    {"colour, which is not asked for again", zoneTerm, 2, "U|255|255|Upper", ""},
    {"name in the dictionary", zoneTerm, 3, "U|1|1|", ""},
    {"question", questions, 1, "0|-1|", "SELECT name, hier"},
    {"deletion", questions, 2, "11|7|", "DELETE FROM " + table("ZRILITH") + " WHERE well_id =7"},
};

void expectOutcome(const Outcome& outcome, const std::string& call, const std::string& text)
{
    SCOPED_TRACE(std::string(outcome.name) + ", " + call);
    InterpData data;
    {
        const DriverFault fault(outcome.n, call, DriverFault::Once, "HY000", text);
        EXPECT_EQ(outcome.result, outcome.run(data));
        EXPECT_TRUE(fault.fired());
    }
    // A statement that has no handle has no text of its own.
    Statements expected{outcome.report, call == "SQLAllocHandle" ? "A database error" : text,
        "attempt to reconnect"};
    expected.resize(outcome.report.empty() ? 0
            : outcome.fatal                ? 3
            : outcome.report[0] == 'F'     ? 1
                                           : 2); // its own words stand alone
    const Statements boxes = data.boxes.texts();
    ASSERT_EQ(expected.size(), boxes.size());
    for (std::size_t i = 0; i < boxes.size(); ++i)
        EXPECT_THAT(boxes[i], testing::HasSubstr(expected[i]));
    EXPECT_EQ(1, dbExecute("SELECT samp_id FROM " + table("SAMPLES"))) << "a cursor was left";
}

TEST(InterpFaults, LeaveWhatWasReadAndAreReported)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const Outcome& outcome : kOutcomes) {
        const auto run = [&outcome] {
            InterpData data;
            data.boxes.echo();
            const DriverFault fault(outcome.n, "SQLExecDirect");
            outcome.run(data);
        };
        if (outcome.fatal) {
            expectOutcome(outcome, "SQLExecDirect", kLost); // restored, so it goes on
            EXPECT_EXIT(run(), testing::ExitedWithCode(1), outcome.report) << outcome.name;
            continue;
        }
        for (const char* call : {"SQLAllocHandle", "SQLSetStmtAttr", "SQLExecDirect"})
            expectOutcome(outcome, call, "injected fault");
    }
}

} // namespace

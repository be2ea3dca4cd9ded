// tests/interp/InterpFaultTest.cpp
#include "db/Session.h"
#include "interp/IGDLookups.h"
#include "interp/IGDSchemeList.h"
#include "tests/interp/InterpTest.h"

#include <gmock/gmock.h>

namespace {

constexpr const char* kLost = "ORA-03113 connection lost";

enum class Ends { No, Process };

/// What is left when the n-th run of a statement fails.
struct Outcome {
    const char* name;
    std::string (*run)(InterpData& data);
    int n;
    std::string result; ///< of a fatal one: when a lost connection was restored
    std::string report; ///< in the first box; empty: there is none
    Ends ends = Ends::No;
    bool databaseText = true; ///< in a second box
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

std::string schemeNames(InterpData&)
{
    std::string text;
    const IGDSchemeList schemes;
    for (const igd_sch* scheme : schemes)
        text += joined(scheme->sch_id, scheme->oldestAge);
    return text;
}

std::string removedScheme(InterpData& data)
{
    igd_sch scheme(3);
    scheme.sch_id = 1;
    const int result = scheme.removeFromDB();
    dbRollback();
    return joined(result, data.db.value("SELECT count(*) FROM IGD_DICT"),
        data.db.value("SELECT count(*) FROM IGD_SCH"));
}

std::string loadedZones(InterpData& data)
{
    const IGDList list(3, 7, 7, &data.well, 'M', 0, 0, nullptr);
    return joined(list.count(), list.title(), list.changed(), list.isComplete());
}

std::string zoneTerm(InterpData&)
{
    IGDZone zone(3, 1L, 2L, 'N', "Upper", 'N', "Lower");
    zone.upp_zone = 11;
    zone.low_zone = 12;
    const std::string upper = zone.upperName(1);
    const int blue = zone.getLowerColour().blue;
    char name[81] = "before";
    zone.upperNameFromDictionary(name);
    return joined(upper, blue, int(zone.getLowerColour().blue), name);
}

std::string questions(InterpData&)
{
    char name[81] = "as it was";
    int hier = -1;
    const long igd_id = termNameAndRank(11, name, &hier);
    deleteWellRows(12, 7);
    return joined(igd_id, name, hier);
}

const Outcome kOutcomes[] = {
    {"header", loadedTerms, 1, "-2||0|0|", "SELECT name, igd_type", Ends::Process},
    {"keys of terms", loadedTerms, 2, "1|beta|0|0|", "SELECT igd_id FROM", Ends::Process},
    {"one term", loadedTerms, 4, "1|beta|70|1|-2|12|14|10|13|", "SELECT sch_id, igd_type, hier"},
    {"age span", headerAlone, 2, "1|beta|0|0|", ""},
    {"scheme by name", namedScheme, 1, "-2|beta|0|0|", "SELECT sch_id FROM", Ends::Process},
    {"list of schemes", schemeNames, 1, "", "SELECT sch_id FROM"},
    {"removal of terms", removedScheme, 1, "0|5|3|",
        "Failed to remove dictionary terms in igd_sch::removeFromDB()", Ends::No, false},
    {"removal of the scheme", removedScheme, 2, "0|0|3|",
        "Failed to remove IGD scheme in igd_sch::removeFromDB()", Ends::No, false},
    {"zones", loadedZones, 1, "0|Age|0|0|", "SELECT top_id, base_id"},
    {"abbreviation", zoneTerm, 1, "Upper|1|1|Upper|", ""},
    {"colour, which is not asked for again", zoneTerm, 2, "U|255|255|Upper|", ""},
    {"name in the dictionary", zoneTerm, 3, "U|1|1||", ""},
    {"question", questions, 1, "0|as it was|-1|", "SELECT name, hier"},
    {"deletion", questions, 2, "11|Upper|7|", "DELETE FROM"},
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
    const auto boxes = data.boxes.texts();
    const std::size_t reports = outcome.report.empty() ? 0 : outcome.databaseText ? 2 : 1;
    ASSERT_EQ(reports + (text == kLost ? 1 : 0), boxes.size());
    if (reports > 0) {
        EXPECT_THAT(boxes[0], testing::HasSubstr(outcome.report));
    }
    // A statement that has no handle has no text of its own.
    if (reports > 1) {
        EXPECT_THAT(
            boxes[1], testing::HasSubstr(call == "SQLAllocHandle" ? "A database error" : text));
    }
    EXPECT_EQ(1, dbExecute("SELECT samp_id FROM " + table("SAMPLES"))) << "a cursor was left";
}

TEST(InterpFaults, LeaveWhatWasReadAndAreReported)
{
    for (const Outcome& outcome : kOutcomes) {
        if (outcome.ends == Ends::Process) { // restored, so it goes on
            expectOutcome(outcome, "SQLExecDirect", kLost);
            continue;
        }
        for (const char* call : {"SQLAllocHandle", "SQLSetStmtAttr", "SQLExecDirect"})
            expectOutcome(outcome, call, "injected fault");
    }
}

TEST(InterpFaults, EndTheProcessWhenTheyCost)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const Outcome& outcome : kOutcomes) {
        const auto run = [&outcome] {
            InterpData data;
            data.boxes.echo();
            const DriverFault fault(outcome.n, "SQLExecDirect");
            outcome.run(data);
        };
        if (outcome.ends == Ends::Process) {
            EXPECT_EXIT(run(), testing::ExitedWithCode(1), outcome.report) << outcome.name;
        }
    }
}

} // namespace

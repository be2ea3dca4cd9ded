// tests/interp/InterpFaultTest.cpp
#include "db/Session.h"
#include "interp/EnvSchemeList.h"
#include "interp/IGDLookups.h"
#include "interp/IntLithZone.h"
#include "interp/Intcom.h"
#include "interp/LithDictionary.h"
#include "interp/LithQualifier.h"
#include "interp/SQPick.h"
#include "tests/interp/InterpTest.h"

#include <gmock/gmock.h>

namespace {

constexpr const char* kLost = "ORA-03113 connection lost";

/// What is reported: a statement and what the database says, or the operation's own words.
enum class Boxes { Statement, Fatal, Words, WordsAndStatement };

/// What is left when the n-th run of a statement fails.
struct Outcome {
    const char* name;
    std::string (*run)(InterpData& data);
    int n;
    std::string result; ///< of a fatal one: when a lost connection was restored
    std::string report; ///< in the first box; empty: there is none
    Boxes boxes = Boxes::Statement;
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

template <int igd_type> std::string loaded(InterpData& data)
{
    const IGDList list(igd_type, 7, 7, &data.well, 'M', 0, 0, nullptr);
    const std::string first = list.isEmpty() ? "" : list.at(0)->label().substr(0, 6);
    return joined(list.count(), list.title(), list.changed(), list.isComplete()) + first;
}

std::string singleRecords(InterpData& data)
{
    const IntLithZone zone(100, 150, 1000);
    const LithQualifier qualifier(100, 120, 'A', 2, 1002, "", "");
    const int in = zone.insertRecord(7, 0), out = zone.deleteRecord(7, 0),
              beside = qualifier.insertRecord(7, 0), gone = qualifier.deleteRecord(7, 0);
    dbRollback();
    return joined(in, out, beside, gone)
        + data.db.value("SELECT (SELECT count(*) FROM ZRILITH) + count(*) FROM ZRQLITH");
}

std::string dictionary(InterpData&)
{
    LithDictionary terms;
    terms.lthsch_id = 9;
    terms.setScheme(1);
    return joined(terms.count(), terms.lthsch_id);
}

std::string picksAndComments(InterpData& data)
{
    SQPickList picks;
    IntcomList comments;
    std::string text = joined(loadPicks(picks, data.well, 0));
    text += joined(loadComments(comments, data.well, 0));
    for (const SQPick* pick : picks)
        text += joined(pick->surface.name);
    return text + joined(comments.count());
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
    // The fatal ones first: each runs all before it again in a process of its own.
    {"lithology dictionary", dictionary, 1, "0|0|", "SELECT descr, abr, cmp", Boxes::Fatal},
    {"header", loadedTerms, 1, "-2||0|0|", "SELECT name, igd_type", Boxes::Fatal},
    {"keys of terms", loadedTerms, 2, "1|beta|0|0|", "SELECT igd_id FROM", Boxes::Fatal},
    {"scheme by name", namedScheme, 1, "-2|beta|0|0|", "SELECT sch_id FROM", Boxes::Fatal},
    {"one term", loadedTerms, 4, "1|beta|70|1|-2|12|14|10|13|", "SELECT sch_id, igd_type, hier"},
    {"age span", headerAlone, 2, "1|beta|0|0|", ""},
    {"list of schemes", schemeCount, 1, "0|", "SELECT sch_id FROM"},
    {"removal of terms", removedScheme, 3, "0|5|3",
        "Failed to remove dictionary terms in igd_sch::removeFromDB()", Boxes::Words},
    {"removal of the scheme", removedScheme, 4, "0|0|3",
        "Failed to remove IGD scheme in igd_sch::removeFromDB()", Boxes::Words},
    {"zones", loaded<3>, 1, "0|Age|0|0|", "SELECT top_id, base_id"},
    {"interval lithology", loaded<12>, 1, "0|Interval Lithology|0|0|", "SELECT S.top_depth"},
    {"qualifiers", loaded<13>, 1, "0|Lithology Qualifier|0|0|", "SELECT top_depth, base_depth, "},
    {"the rock of one", loaded<13>, 3, "2|Lithology Qualifier|0|0|Pyrite",
        "SELECT descr, abr FROM"},
    {"environment schemes", loaded<5>, 1, "2|Environment|0|1|(ERROR", "SELECT envsch_id FROM"},
    {"environments", loaded<5>, 8, "0|Environment|0|0|", "SELECT top_id, base_id, up"},
    {"name of one", loaded<5>, 2, "2|Environment|0|1|(Shelf", "SELECT name FROM"},
    {"terms of one", loaded<5>, 3, "2|Environment|0|1|(Shelf", "SELECT term_no"},
    {"casings", loaded<11>, 2, "0|Casing|0|0|", "SELECT depth, diam FROM"},
    {"an interval in", singleRecords, 1, "0|1|1|1|6",
        "While saving lithology interval to database.", Boxes::Words},
    {"an interval out", singleRecords, 2, "1|0|1|1|8",
        "While deleting lithology interval from database.", Boxes::Words},
    {"a qualifier in", singleRecords, 3, "1|1|0|1|6",
        "Error while saving lithology interval to database.", Boxes::WordsAndStatement},
    {"a qualifier out", singleRecords, 4, "1|1|1|0|7",
        "Error while deleting lithology qualifier from database.", Boxes::WordsAndStatement},
    {"its scheme", dictionary, 2, "4|9|", "SELECT descr FROM"},
    {"picks", picksAndComments, 1, "0|1|3|", "SELECT samp_id, surface_id"},
    {"a surface", picksAndComments, 3, "1|1|MFS||MFS||3|", "SELECT age, name"},
    {"comments", picksAndComments, 6, "1|0|MFS|SB|MFS||0|", "SELECT top_depth, base_depth, com"},
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
    Statements expected{outcome.report, call == "SQLAllocHandle" ? "A database error" : text};
    if (outcome.boxes == Boxes::Fatal)
        expected.emplace_back("attempt to reconnect");
    if (outcome.boxes == Boxes::WordsAndStatement)
        expected.insert(expected.begin() + 1, table("ZRQLITH"));
    if (outcome.boxes == Boxes::Words)
        expected.pop_back();
    if (outcome.report.empty())
        expected.clear();
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
        if (outcome.boxes == Boxes::Fatal) {
            expectOutcome(outcome, "SQLExecDirect", kLost); // restored, so it goes on
            EXPECT_EXIT(run(), testing::ExitedWithCode(1), outcome.report) << outcome.name;
            continue;
        }
        for (const char* call : {"SQLAllocHandle", "SQLSetStmtAttr", "SQLExecDirect"})
            expectOutcome(outcome, call, "injected fault");
    }
}

TEST(InterpFaults, MakeAListIncompleteThatAFetchCutShort)
{
    InterpData data;
    const DriverFault fault(2, "SQLFetch");
    EXPECT_EQ("1|Interval Lithology|0|0|", loaded<12>(data).substr(0, 25));
    EXPECT_EQ(0u, data.boxes.texts().size());
}

TEST(InterpFaults, LeaveTheStoredLithologyWholeWhicheverCallFails)
{
    const Statements before{"100", "150", "210"}, after{"-150", "-100"};
    for (const std::string text : {"injected fault", kLost}) {
        std::string failed = "none";
        for (int n = 1; !failed.empty(); ++n) {
            InterpData data;
            IGDList list(12, 0, 0, &data.well, 'M', 0, 0, nullptr);
            list.setChanged(1);
            {
                const DriverFault fault(n, "any", DriverFault::Once, "HY000", text);
                list.save(0, 1);
                failed = fault.call();
            }
            dbRollback();
            const auto rows =
                data.db.rows("SELECT top_depth FROM ZRILITH WHERE well_id=7 ORDER BY 1");
            const bool done = rows == after || failed == "SQLEndTran"; // which nobody is told of
            EXPECT_TRUE(rows == after || (rows == before && !failed.empty())) << n;
            EXPECT_EQ(joined(done, !done), joined(data.boxes.texts().empty(), list.changed())) << n;
        }
    }
}

} // namespace

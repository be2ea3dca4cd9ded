// tests/taxonomy/TaxonomyFaultTest.cpp
#include "db/ErrorReporter.h"
#include "taxonomy/Categories.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TaxonGroups.h"
#include "taxonomy/TaxonList.h"
#include "tests/taxonomy/DictionaryTest.h"

#include <functional>
#include <memory>
#include <ostream>
#include <sstream>

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace {

template <typename... Values> std::string joined(const Values&... values)
{
    std::ostringstream text;
    ((text << values << '|'), ...);
    return text.str();
}

std::string textOf(const char* text) { return text ? text : "null"; }

std::string textOf(const Taxon* taxon)
{
    return taxon ? joined(taxon->spec_id(), taxon->gen_id, taxon->year, taxon->category(),
               taxon->genus(), taxon->species())
                 : "null";
}

std::string textOf(TaxonList* newList)
{
    const std::unique_ptr<TaxonList> list(newList);
    std::string text = list ? "" : "null";
    for (int i = 0; list && i < list->count(); ++i)
        text += textOf(list->next());
    return text;
}

Taxon withId(long spec_id)
{
    Taxon taxon;
    taxon.setSpecId(spec_id);
    return taxon;
}

std::string search()
{
    char any[] = "%", minor[] = "minor";
    const std::string synonyms = textOf(Taxon::searchTaxa(any, any, any, any, minor, 0, 0, 0));
    return synonyms + textOf(Taxon::searchTaxa(any, any, any, any, any, 0, 5, 6));
}

enum Severity { Reported, Fatal, EndsWithZero };

/// What is left when a statement does not run, and when each of its rows cannot be fetched.
struct Statement {
    std::string report; ///< the beginning of the first box; empty: the database's text is the first
    std::string failed;
    std::vector<std::string> unfetched;
    Severity severity = Reported;
};

struct Operation {
    const char* name;
    std::function<std::string(Dictionary&)> run;
    std::string done;
    std::vector<Statement> statements;
};
void PrintTo(const Operation& o, std::ostream* out) { *out << o.name; }

constexpr const char* kSpecies = "Error in statement: SELECT q1,species";
constexpr const char* kGenus = "Error in statement: SELECT cat_mnem, q1";

/// The two statements that load taxon 104 by its identifier, and what stands before and behind it.
std::vector<Statement> loading(std::vector<Statement> before, const std::string& behind = "")
{
    const std::string empty = "104|0|0||||" + behind, part = "104|14|0|||alba|" + behind;
    before.push_back({kSpecies, empty, {empty}});
    before.push_back({kGenus, part, {part}});
    return before;
}

const std::string kAlba = "104|14|0|NANNO|Alphina|alba|";
const std::string kBetina = "103|13|1999|FORAM|Betina|Gammana|";
const std::string kMinor = "99|10|1950|FORAM|Alphina|betana|";

const Operation kOperations[] = {
    {"loadById", [](Dictionary&) { return textOf(std::make_unique<Taxon>(104).get()); }, kAlba,
        loading({})},
    {"getAddGenus",
        [](Dictionary&) {
            Taxon taxon = taxonOf({{slot::category, "NANNO"}, {slot::genus, "alphina"}});
            const long id = taxon.getAddGenus(0, 1);
            return joined(id, taxon.genus());
        },
        "14|Alphina|",
        {{"Error in statement: SELECT cat_mnem, gen_id", "-99|alphina|", {"0|alphina|"}}}},
    {"getAddSpecies",
        [](Dictionary&) {
            Taxon taxon = taxonOf({{slot::species, "ALBA"}});
            taxon.gen_id = 14;
            const long id = taxon.getAddSpecies(0, 1);
            return joined(id, taxon.species());
        },
        "104|alba|", {{"Error in statement: SELECT spec_id", "-99|ALBA|", {"0|ALBA|"}}}},
    {"loadPreferred",
        [](Dictionary&) {
            Taxon taxon = withId(100);
            taxon.loadPreferred(5);
            return textOf(taxon.preferred());
        },
        kAlba, loading({{"SELECT pref FROM", "null", {"null"}}})},
    {"firstSynonym", [](Dictionary&) { return joined(withId(104).firstSynonym(5)); }, "100|",
        {{"SELECT spec_id FROM", "0|", {"0|"}}}},
    {"synonymsOf",
        [](Dictionary& d) {
            d.db.run("UPDATE SYNONYMY SET spec_id = 104, pref = 3 WHERE spec_id = 100");
            return textOf(Taxon::synonymsOf(5, 3));
        },
        kAlba, loading({{"SELECT spec_id FROM", "null", {"null", kAlba}}})},
    {"searchTaxa", [](Dictionary&) { return search(); }, kBetina,
        {{"Error in: SELECT s.spec_id", kBetina, {kBetina, kBetina}, Fatal},
            {"SELECT pref FROM", kBetina, {kMinor + kBetina}},
            {"Error in: SELECT s.spec_id", "", {"", kBetina}, Fatal},
            {"SELECT pref FROM", "", {kBetina}}, {kSpecies, "103|0|0||||", {"103|0|0||||"}},
            {kGenus, "103|13|1999|||Gammana|", {"103|13|1999|||Gammana|"}}}},
    {"sipmCode",
        [](Dictionary&) {
            Taxon taxon = withId(100);
            taxon.sipmCode(2);
            const long code = taxon.sipmCode(1);
            return joined(code, taxon.sipmCode(1));
        },
        "12345678|12345678|",
        {{"Error in: SELECT sipm_code", "12345678|12345678|", {"12345678|12345678|"}, Fatal},
            {"Error in: SELECT sipm_code", "0|0|", {"0|0|"}, Fatal}}},
    {"loadReferences",
        [](Dictionary&) { return textOf(std::make_unique<Taxon>(withId(100))->loadReferences()); },
        "a reference", {{"Error in: SELECT references", "null", {"null"}, Fatal}}},
    {"addWellTaxa",
        [](Dictionary& d) {
            d.db.run("INSERT INTO TAXONOCC (well_id, spec_id, disc_id) VALUES (7, 104, 'N')");
            auto list = std::make_unique<TaxonList>();
            list->addWellTaxa(7, 'N');
            list->reset();
            return textOf(list.release());
        },
        kAlba, loading({{"SELECT DISTINCT spec_id", "", {"", kAlba}}})},
    {"synonymySchemeName",
        [](Dictionary&) {
            TaxonList::synonymySchemeName(6);
            return textOf(TaxonList::synonymySchemeName(5));
        },
        "Scheme five",
        {{"SELECT name FROM", "Scheme five", {"Scheme five"}}, {"SELECT name FROM", "", {""}}}},
    {"Discs",
        [](Dictionary& d) {
            d.db.run("INSERT INTO DISCS VALUES ('N', 'Nanno', 'Nan', 'Nannical')");
            return Discs()[1].adj.str();
        },
        "Nannical", {{"SELECT disc_id, disc_name", "", {"", "Nannical"}, Fatal}}},
    {"categoryDisc", [](Dictionary&) { return std::string(1, categoryDisc("NANNO")); }, "N",
        {{"SELECT disc_id FROM", " ", {" "}, Fatal}}},
    {"groupSetList",
        [](Dictionary& d) {
            groupSetList(1);
            d.db.run("INSERT INTO groupset VALUES (3, 'a set')");
            const std::string loaded = textOf(groupSetList(1)[0]);
            return loaded + textOf(groupSetList(0)[0]);
        },
        "a seta set",
        {{"", "a seta set", {"a seta set"}}, {"", "nullnull", {"nullnull", "a seta set"}}}},
    {"groupSetName and groupSetId",
        [](Dictionary& d) {
            d.db.run("INSERT INTO groupset VALUES (3, 'a set')");
            char name[31] = "before";
            groupSetName(3, name);
            return joined(name, groupSetId("a set"));
        },
        "a set|3|", {{"", "|3|", {"|3|"}}, {"", "a set|0|", {"a set|0|"}}}},
    {"categoryList", [](Dictionary&) { return textOf(categoryList(1)[1]); }, "NANNO Nannofossils",
        {{"", "", {"null", "null", "NANNO Nannofossils"}, EndsWithZero}}},
    {"taxonGroupList",
        [](Dictionary& d) {
            d.db.run("INSERT INTO txgroup VALUES ('a group')");
            return textOf(taxonGroupList(1)[0]);
        },
        "a group", {{"", "", {"null", "a group"}, EndsWithZero}}},
};

struct Outcome {
    std::string result;
    Texts boxes;
    short nextCursor;
    bool fired;
};

// A lost connection is restored, so the operation goes on where another failure is fatal.
constexpr const char* kLost = "ORA-03113: lost";
constexpr const char* kBroken = "injected fault";

Outcome runWith(const Operation& operation, int n, const std::string& call, const char* text)
{
    Dictionary dictionary;
    Outcome outcome;
    {
        const DriverFault fault(n, call, DriverFault::Once, "HY000", text);
        outcome.result = operation.run(dictionary);
        outcome.fired = fault.fired();
    }
    outcome.boxes = dictionary.screen.texts();
    EXPECT_EQ(0, fatalError);
    outcome.nextCursor = dbExecute("SELECT 1");
    dbCloseCursor(outcome.nextCursor);
    return outcome;
}

void expectReport(const Statement& statement, Texts boxes, const char* databaseText)
{
    const std::size_t restored = statement.severity == Fatal; // asks before it reconnects
    ASSERT_THAT(boxes, SizeIs((statement.report.empty() ? 1U : 2U) + restored));
    EXPECT_THAT(boxes[0], StartsWith(statement.report));
    if (!statement.report.empty())
        boxes.erase(boxes.begin());
    EXPECT_THAT(boxes[0], HasSubstr(databaseText));
}

class Faults : public testing::TestWithParam<Operation> {
protected:
    Faults() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_P(Faults, AStatementThatDoesNotRun)
{
    int n = 0;
    for (const Statement& statement : GetParam().statements) {
        ++n;
        if (statement.severity == EndsWithZero)
            continue;
        const char* text = statement.severity == Fatal ? kLost : kBroken;
        for (const char* call : {"SQLSetStmtAttr", "SQLExecDirect"}) {
            SCOPED_TRACE(call + std::to_string(n));
            const Outcome outcome = runWith(GetParam(), n, call, text);
            EXPECT_EQ(statement.failed, outcome.result);
            EXPECT_EQ(1, outcome.nextCursor);
            expectReport(statement, outcome.boxes, text);
        }
    }
    EXPECT_FALSE(runWith(GetParam(), n + 1, "SQLExecDirect", kBroken).fired) << "all are listed";
}

TEST_P(Faults, ARowThatIsNotFetchedEndsTheRows)
{
    int n = 0;
    for (const Statement& statement : GetParam().statements) {
        for (const std::string& result : statement.unfetched) {
            const Outcome outcome = runWith(GetParam(), ++n, "SQLFetch", kBroken);
            EXPECT_TRUE(outcome.fired) << n;
            EXPECT_EQ(result, outcome.result) << n;
            EXPECT_THAT(outcome.boxes, IsEmpty()) << n;
            EXPECT_EQ(1, outcome.nextCursor) << n;
        }
    }
}

TEST_P(Faults, AStatementThatDoesNotCloseIsReportedByTheSession)
{
    int n = 0;
    for (Outcome outcome; (outcome = runWith(GetParam(), ++n, "SQLFreeHandle", kBroken)).fired;) {
        EXPECT_EQ(GetParam().done, outcome.result);
        EXPECT_THAT(outcome.boxes, SizeIs(1));
        EXPECT_EQ(2, outcome.nextCursor) << "its number is lost";
    }
    EXPECT_EQ(static_cast<int>(GetParam().statements.size()) + 1, n);
}

TEST_P(Faults, EndTheProcessWhereTheyAreFatal)
{
    const Statement& statement = GetParam().statements[0];
    if (statement.severity == Reported)
        return;
    Dictionary dictionary;
    dictionary.screen.echo();
    const DriverFault fault(1, "SQLExecDirect");
    const bool quiet = statement.severity == EndsWithZero;
    EXPECT_EXIT(GetParam().run(dictionary), testing::ExitedWithCode(quiet ? 0 : 1),
        quiet ? "^box: [^\n]*injected fault\n$"
              : "^box: " + statement.report + "[^\n]*\nbox: [^\n]*injected fault\n$");
}

INSTANTIATE_TEST_SUITE_P(Operations, Faults, testing::ValuesIn(kOperations));

} // namespace

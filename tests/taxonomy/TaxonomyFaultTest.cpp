// tests/taxonomy/TaxonomyFaultTest.cpp
#include "db/ErrorReporter.h"
#include "taxonomy/Categories.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TaxonGroups.h"
#include "taxonomy/TaxonList.h"
#include "tests/taxonomy/DictionaryTest.h"

#include <memory>
#include <sstream>

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;
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

std::string genusFound()
{
    Taxon taxon = taxonOf("c:NANNO|g:alphina");
    const long id = taxon.getAddGenus(0, 1);
    return joined(id, taxon.genus());
}

std::string speciesFound()
{
    Taxon taxon = taxonOf("s:ALBA");
    taxon.gen_id = 14;
    const long id = taxon.getAddSpecies(0, 1);
    return joined(id, taxon.species());
}

std::string preferred()
{
    Taxon taxon = withId(100);
    taxon.loadPreferred(5);
    return textOf(taxon.preferred());
}

std::string search()
{
    char any[] = "%", minor[] = "minor";
    const std::string synonyms = textOf(Taxon::searchTaxa(any, any, any, any, minor, 0, 0, 0));
    return synonyms + textOf(Taxon::searchTaxa(any, any, any, any, any, 0, 5, 6));
}

std::string wellTaxa()
{
    auto list = std::make_unique<TaxonList>();
    list->addWellTaxa(7, 'N');
    list->reset();
    return textOf(list.release());
}

std::string codes()
{
    Taxon taxon = withId(100);
    const long code = taxon.sipmCode(1);
    return joined(code, taxon.sipmCode(1));
}

std::string groupSet()
{
    char name[31] = "before";
    groupSetName(3, name);
    return joined(name, groupSetId("a set"));
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
    const char* setup; ///< run before it
    std::string (*run)();
    std::vector<Statement> statements;
};

constexpr const char* kSpecies = "Error in statement: SELECT q1,species";
constexpr const char* kGenus = "Error in statement: SELECT cat_mnem, q1";
const std::string kAlba = "104|14|0|NANNO|Alphina|alba|";
const std::string kBetina = "103|13|1999|FORAM|Betina|Gammana|";
const std::string kMinor = "99|10|1950|FORAM|Alphina|betana|";

/// A statement and the two behind it that load a taxon by its identifier.
std::vector<Statement> thenLoading(const Statement& first)
{
    const std::string empty = "104|0|0||||", part = "104|14|0|||alba|";
    return {first, {kSpecies, empty, {empty}}, {kGenus, part, {part}}};
}

const Operation kOperations[] = {
    {"genus", "", genusFound,
        {{"Error in statement: SELECT cat_mnem, gen_id", "-99|alphina|", {"0|alphina|"}}}},
    {"species", "", speciesFound,
        {{"Error in statement: SELECT spec_id", "-99|ALBA|", {"0|ALBA|"}}}},
    {"preferred", "", preferred, thenLoading({"SELECT pref FROM", "null", {"null"}})},
    {"first synonym", "", [] { return joined(withId(104).firstSynonym(5)); },
        {{"SELECT spec_id FROM", "0|", {"0|"}}}},
    {"synonyms", "UPDATE SYNONYMY SET spec_id = 104, pref = 3 WHERE spec_id = 100",
        [] { return textOf(Taxon::synonymsOf(5, 3)); },
        thenLoading({"SELECT spec_id FROM", "null", {"null", kAlba}})},
    {"search", "", search,
        {{"Error in: SELECT s.spec_id", kBetina, {kBetina, kBetina}, Fatal},
            {"SELECT pref FROM", kBetina, {kMinor + kBetina}},
            {"Error in: SELECT s.spec_id", "", {"", kBetina}, Fatal},
            {"SELECT pref FROM", "", {kBetina}}, {kSpecies, "103|0|0||||", {"103|0|0||||"}},
            {kGenus, "103|13|1999|||Gammana|", {"103|13|1999|||Gammana|"}}}},
    {"code", "", codes, {{"Error in: SELECT sipm_code", "0|0|", {"0|0|"}, Fatal}}},
    {"references", "", [] { return textOf(withId(100).loadReferences()); },
        {{"Error in: SELECT references", "null", {"null"}, Fatal}}},
    {"taxa of a well", "INSERT INTO TAXONOCC (well_id, spec_id, disc_id) VALUES (7, 104, 'N')",
        wellTaxa, thenLoading({"SELECT DISTINCT spec_id", "", {"", kAlba}})},
    {"scheme", "", [] { return textOf(TaxonList::synonymySchemeName(5)); },
        {{"SELECT name FROM", "", {""}}}},
    {"disciplines", "INSERT INTO DISCS VALUES ('N', 'Nanno', 'Nan', 'Nannical')",
        [] { return Discs()[1].adj.str(); },
        {{"SELECT disc_id, disc_name", "", {"", "Nannical"}, Fatal}}},
    {"discipline", "", [] { return std::string(1, categoryDisc("NANNO")); },
        {{"SELECT disc_id FROM", " ", {" "}, Fatal}}},
    {"group sets", "INSERT INTO groupset VALUES (3, 'a set')",
        [] { return textOf(groupSetList(1)[0]); }, {{"", "null", {"null", "a set"}}}},
    {"group set", "INSERT INTO groupset VALUES (3, 'a set')", groupSet,
        {{"", "|3|", {"|3|"}}, {"", "a set|0|", {"a set|0|"}}}},
    {"categories", "", [] { return textOf(categoryList(1)[1]); },
        {{"", "", {"null", "null", "NANNO Nannofossils"}, EndsWithZero}}},
    {"groups", "INSERT INTO txgroup VALUES ('a group')",
        [] { return textOf(taxonGroupList(1)[0]); }, {{"", "", {"null", "a group"}, EndsWithZero}}},
};

/// Runs an operation with its n-th such call failing: its result and the boxes.
std::pair<std::string, Texts> runWith(
    const Operation& operation, int n, const std::string& call, const char* text, bool fires = true)
{
    SCOPED_TRACE(operation.name + (" " + call) + std::to_string(n));
    Dictionary dictionary;
    if (*operation.setup)
        dictionary.db.run(operation.setup);
    std::string result;
    {
        const DriverFault fault(n, call, DriverFault::Once, "HY000", text);
        result = operation.run();
        EXPECT_EQ(fires, fault.fired());
    }
    const Texts boxes = dictionary.screen.texts();
    EXPECT_EQ(0, fatalError);
    const short nextCursor = dbExecute("SELECT 1");
    EXPECT_EQ(1, nextCursor) << "an open cursor was left";
    dbCloseCursor(nextCursor);
    return {result, boxes};
}

TEST(Faults, OfAStatementAreReportedAndLeaveWhatWasThere)
{
    for (const Operation& operation : kOperations) {
        int n = 0;
        for (const Statement& statement : operation.statements) {
            ++n;
            // A lost connection is restored, so the operation goes on where another is fatal.
            const bool fatal = statement.severity == Fatal;
            const char* text = fatal ? "ORA-03113: lost" : "injected fault";
            // A fatal one is asked about once more before the session reconnects.
            const std::size_t own = statement.report.empty() ? 0 : 1;
            const std::size_t expected = own + (fatal ? 2 : 1);
            for (const char* call : {"SQLSetStmtAttr", "SQLExecDirect"}) {
                if (statement.severity == EndsWithZero)
                    continue;
                const auto [result, boxes] = runWith(operation, n, call, text);
                EXPECT_EQ(statement.failed, result) << operation.name << n;
                ASSERT_EQ(expected, boxes.size()) << operation.name << n;
                EXPECT_THAT(boxes.front(), StartsWith(statement.report)) << operation.name << n;
                EXPECT_THAT(boxes[own], HasSubstr(text)) << operation.name << n;
            }
        }
        runWith(operation, n + 1, "SQLExecDirect", "all are listed", false);
    }
}

TEST(Faults, OfAFetchEndTheRowsWithoutAReport)
{
    for (const Operation& operation : kOperations) {
        int n = 0;
        for (const Statement& statement : operation.statements) {
            for (const std::string& expected : statement.unfetched) {
                const auto [result, boxes] = runWith(operation, ++n, "SQLFetch", "injected fault");
                EXPECT_EQ(expected, result) << operation.name << n;
                EXPECT_THAT(boxes, IsEmpty()) << operation.name << n;
            }
        }
    }
}

TEST(Faults, EndTheProcessWhereTheyAreFatal)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const Operation& operation : kOperations) {
        const Statement& statement = operation.statements[0];
        if (statement.severity == Reported)
            continue;
        const auto run = [&operation] {
            Dictionary dictionary;
            dictionary.screen.echo();
            const DriverFault fault(1, "SQLExecDirect");
            operation.run();
        };
        const bool quiet = statement.severity == EndsWithZero;
        EXPECT_EXIT(run(), testing::ExitedWithCode(quiet ? 0 : 1),
            quiet ? "^box: [^\n]*injected fault\n$"
                  : "^box: " + statement.report + "[^\n]*\nbox: [^\n]*injected fault\n$");
    }
}

} // namespace

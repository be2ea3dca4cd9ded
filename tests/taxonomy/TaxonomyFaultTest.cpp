// tests/taxonomy/TaxonomyFaultTest.cpp
#include "db/ErrorReporter.h"
#include "taxonomy/Categories.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TaxonGroups.h"
#include "taxonomy/TaxonList.h"
#include "tests/taxonomy/DictionaryTest.h"
#include "tests/taxonomy/PlainTaxonOrder.h"

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

std::string textOf(const Taxon& taxon)
{
    std::string text = joined(taxon.spec_id(), taxon.gen_id, taxon.year, taxon.alphaCode);
    for (const auto& [number, field] : slotsOf(taxon))
        text += joined(number, field);
    return text;
}

std::string textOf(const Taxon* taxon) { return taxon ? textOf(*taxon) : "null"; }

std::string textOf(TaxonList* newList)
{
    const std::unique_ptr<TaxonList> list(newList);
    if (!list)
        return "null";
    std::string text;
    for (const Taxon* taxon : *list)
        text += joined(taxon->spec_id(), taxon->genus());
    return text;
}

std::string textOf(const char* text) { return text ? text : "null"; }

std::string search()
{
    char any[] = "%", minor[] = "minor";
    const std::string synonyms = textOf(Taxon::searchTaxa(any, any, any, any, minor, 0, 0, 0));
    return synonyms + textOf(Taxon::searchTaxa(any, any, any, any, any, 0, 5, 6));
}

/// What is left when a statement does not run, and when the n-th row of it cannot be fetched.
struct Statement {
    std::string report; ///< the beginning of the first box; empty: the database's text is the first
    std::string failed;
    std::vector<std::string> unfetched;
    enum Severity { Reported, Fatal, EndsWithZero } severity = Reported;
};

struct Operation {
    const char* name;
    std::function<std::string(Dictionary&)> run;
    std::string done;
    std::vector<Statement> statements;
    std::vector<std::string> nulls; ///< in the order of reading, what empties each column
};
void PrintTo(const Operation& o, std::ostream* out) { *out << o.name; }

std::vector<std::string> nullsOf(const std::vector<std::string>& columns, const std::string& rest)
{
    std::vector<std::string> statements;
    for (const std::string& column : columns)
        statements.push_back("UPDATE " + rest.substr(0, rest.find(' ')) + " SET " + column + "=NULL"
            + rest.substr(rest.find(' ')));
    return statements;
}

std::vector<std::string> operator+(std::vector<std::string> a, const std::vector<std::string>& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const std::string kGenusPart = "0|FORAM|1|cf.|2|Betina|3|grp.|4|aff.|5|Etina|6|sl.|";
const std::string kSpeciesPart = "7|cf.|8|Gammana|9|?|10|var.|11|Major|12|sensu|13|Eta|";
const std::string kSpeciesText = "Error in statement: SELECT q1,species";
const std::string kGenusText = "Error in statement: SELECT cat_mnem, q1";

Taxon withId(long spec_id)
{
    Taxon taxon;
    taxon.setSpecId(spec_id);
    return taxon;
}

const Operation kOperations[] = {
    {"loadById", [](Dictionary&) { return textOf(Taxon(103)); },
        "103|13|1999|X|" + kGenusPart + kSpeciesPart,
        {{kSpeciesText, "103|0|0||", {"103|0|0||"}},
            {kGenusText, "103|13|1999|X|" + kSpeciesPart, {"103|13|1999|X|" + kSpeciesPart}}},
        nullsOf({"q1", "species", "q2", "q3", "sub_spec", "q4", "author", "year", "gen_id",
                    "alphaCode"},
            "SPECIES WHERE spec_id=103")
            + nullsOf({"cat_mnem", "q1", "genus", "q2", "q3", "sub_genus", "q4"},
                "GENUS WHERE gen_id=13")},
    {"getAddGenus",
        [](Dictionary&) {
            Taxon taxon = taxonOf({{slot::category, "NANNO"}, {slot::genus, "alphina"}});
            const long id = taxon.getAddGenus(1, 1);
            return joined(id) + textOf(taxon);
        },
        "14|0|14|0||0|NANNO|2|Alphina|",
        {{"Error in statement: SELECT cat_mnem, gen_id", "-99|0|0|0||0|NANNO|2|alphina|", {}}}, {}},
    {"getAddSpecies",
        [](Dictionary&) {
            Taxon taxon = taxonOf({{slot::species, "ALBA"}});
            taxon.gen_id = 14;
            const long id = taxon.getAddSpecies(0, 1);
            return joined(id) + textOf(taxon);
        },
        "104|104|14|0||8|alba|",
        {{"Error in statement: SELECT spec_id, species", "-99|0|14|0||8|ALBA|",
            {"0|0|14|0||8|ALBA|"}}},
        {}},
    {"loadPreferred",
        [](Dictionary&) {
            Taxon taxon = withId(100);
            taxon.loadPreferred(5);
            return textOf(taxon.preferred());
        },
        "104|14|0||0|NANNO|2|Alphina|8|alba|",
        {{"SELECT pref FROM", "null", {"null"}}, {kSpeciesText, "104|0|0||", {"104|0|0||"}},
            {kGenusText, "104|14|0||8|alba|", {"104|14|0||8|alba|"}}},
        {}},
    {"loadSecondPreferred",
        [](Dictionary&) {
            Taxon taxon = withId(100);
            taxon.loadSecondPreferred(5);
            return textOf(taxon.secondPreferred());
        },
        "104|14|0||0|NANNO|2|Alphina|8|alba|",
        {{"SELECT pref FROM", "null", {"null"}}, {kSpeciesText, "104|0|0||", {"104|0|0||"}},
            {kGenusText, "104|14|0||8|alba|", {"104|14|0||8|alba|"}}},
        {}},
    {"firstSynonym", [](Dictionary&) { return joined(withId(104).firstSynonym(5)); }, "100|",
        {{"SELECT spec_id FROM", "0|", {"0|"}}},
        nullsOf({"spec_id"}, "SYNONYMY WHERE spec_id=100")},
    {"synonymsOf", [](Dictionary&) { return textOf(Taxon::synonymsOf(5, 104)); }, "100|Alphina|",
        {{"SELECT spec_id FROM", "null", {"null", "100|Alphina|"}},
            {kSpeciesText, "100||", {"100||"}}, {kGenusText, "100||", {"100||"}}},
        {}},
    {"searchTaxa", [](Dictionary&) { return search(); }, "103|Betina|",
        {{"Error in: SELECT s.spec_id", "103|Betina|", {"103|Betina|", "103|Betina|"},
             Statement::Fatal},
            {"SELECT pref FROM", "103|Betina|", {"99|Alphina|103|Betina|"}},
            {"Error in: SELECT s.spec_id", "", {"", "103|Betina|"}, Statement::Fatal},
            {"SELECT pref FROM", "", {"103|Betina|"}}, {kSpeciesText, "103||", {"103||"}},
            {kGenusText, "103||", {"103||"}}},
        {}},
    {"sipmCode",
        [](Dictionary&) {
            Taxon taxon = withId(100);
            taxon.sipmCode(2);
            const long code = taxon.sipmCode(1);
            return joined(code, taxon.sipmCode(1));
        },
        "12345678|12345678|",
        {{"Error in: SELECT sipm_code", "12345678|12345678|", {"12345678|12345678|"},
             Statement::Fatal},
            {"Error in: SELECT sipm_code", "0|0|", {"0|0|"}, Statement::Fatal}},
        nullsOf({"sipm_code"}, "SIPMCODE WHERE ccode=2")
            + nullsOf({"sipm_code"}, "SIPMCODE WHERE spec_id=100")},
    {"sipmDictCode", [](Dictionary&) { return joined(Taxon::sipmDictCode("Second")); }, "2|",
        {{"SELECT ccode FROM", "0|", {"0|"}}}, {}},
    {"loadReferences",
        [](Dictionary&) {
            Taxon taxon = withId(100);
            return textOf(taxon.loadReferences());
        },
        "a reference", {{"Error in: SELECT references", "null", {"null"}, Statement::Fatal}},
        nullsOf({"\"references\""}, "TXREFS WHERE spec_id=100")},
    {"loadNotes",
        [](Dictionary&) {
            Taxon taxon = withId(100);
            return textOf(taxon.loadNotes());
        },
        "a note", {{"Error in: SELECT notes", "null", {"null"}, Statement::Fatal}},
        nullsOf({"notes"}, "TXNOTES WHERE spec_id=100")},
    {"addWellTaxa",
        [](Dictionary& d) {
            d.db.run("INSERT INTO TAXONOCC (well_id, spec_id, disc_id) VALUES (7, 104, 'N')");
            TaxonList list;
            list.addWellTaxa(7, 'N');
            std::string text;
            for (const Taxon* taxon : list)
                text += textOf(taxon);
            return text;
        },
        "104|14|0||0|NANNO|2|Alphina|8|alba|",
        {{"SELECT DISTINCT spec_id", "", {"", "104|14|0||0|NANNO|2|Alphina|8|alba|"}},
            {kSpeciesText, "104|0|0||", {"104|0|0||"}},
            {kGenusText, "104|14|0||8|alba|", {"104|14|0||8|alba|"}}},
        {}},
    {"synonymySchemeName",
        [](Dictionary&) {
            TaxonList::synonymySchemeName(6);
            return std::string(TaxonList::synonymySchemeName(5));
        },
        "Scheme five",
        {{"SELECT name FROM", "Scheme five", {"Scheme five"}}, {"SELECT name FROM", "", {""}}},
        nullsOf({"name"}, "SYNSCH WHERE sch_id=5")},
    {"Discs",
        [](Dictionary& d) {
            d.db.run("INSERT INTO DISCS VALUES ('N', 'Nanno', 'Nan', 'Nannical')");
            const Discs discs;
            return joined(discs[1].name, discs[1].abr, discs[1].adj, int(discs[1].letter));
        },
        "Nanno|Nan|Nannical|78|",
        {{"SELECT disc_id, disc_name", "|||0|", {"|||0|", "Nanno|Nan|Nannical|78|"},
            Statement::Fatal}},
        {}},
    {"categoryDisc", [](Dictionary&) { return joined(int(categoryDisc("NANNO"))); }, "78|",
        {{"SELECT disc_id FROM", "32|", {"32|"}, Statement::Fatal}},
        nullsOf({"disc_id"}, "CATEGORY WHERE cat_mnem='NANNO'")},
    {"groupSetList",
        [](Dictionary& d) {
            groupSetList(1);
            d.db.run("INSERT INTO groupset VALUES (3, 'a set')");
            const std::string loaded = textOf(groupSetList(1)[0]);
            return loaded + textOf(groupSetList(0)[0]);
        },
        "a seta set",
        {{"", "a seta set", {"a seta set"}}, {"", "nullnull", {"nullnull", "a seta set"}}}, {}},
    {"groupSetName",
        [](Dictionary& d) {
            d.db.run("INSERT INTO groupset VALUES (3, 'a set')");
            char name[31] = "before";
            groupSetName(3, name);
            return std::string(name);
        },
        "a set", {{"", "", {""}}}, {}},
    {"groupSetId",
        [](Dictionary& d) {
            d.db.run("INSERT INTO groupset VALUES (3, 'a set')");
            return joined(groupSetId("a set"));
        },
        "3|", {{"", "0|", {"0|"}}}, {}},
    {"categoryList",
        [](Dictionary& d) {
            d.db.run("DELETE FROM CATEGORY WHERE cat_mnem='FORAM'");
            return textOf(categoryList(1)[0]);
        },
        "NANNO Nannofossils", {{"", "", {"null", "NANNO Nannofossils"}, Statement::EndsWithZero}},
        nullsOf({"cat_mnem", "cat_name"}, "CATEGORY WHERE cat_mnem='NANNO'")},
    {"taxonGroupList",
        [](Dictionary& d) {
            d.db.run("INSERT INTO txgroup VALUES ('a group')");
            return textOf(taxonGroupList(1)[0]);
        },
        "a group", {{"", "", {"null", "a group"}, Statement::EndsWithZero}}, {}},
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

Outcome runWith(const Operation& operation, int n, const std::string& call, const char* text,
    const std::string& change = "SELECT 1")
{
    Dictionary dictionary;
    dictionary.db.run(change);
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

class Faults : public testing::TestWithParam<Operation> {
protected:
    Faults() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_P(Faults, AStatementThatDoesNotRun)
{
    const Operation& operation = GetParam();
    int n = 0;
    for (const Statement& statement : operation.statements) {
        ++n;
        const bool fatal = statement.severity == Statement::Fatal;
        if (statement.severity == Statement::EndsWithZero)
            continue;
        for (const char* call : {"SQLAllocHandle", "SQLSetStmtAttr", "SQLExecDirect"}) {
            const bool withoutText = call == std::string("SQLAllocHandle");
            if (fatal && withoutText)
                continue; // the default text restores no connection
            const Outcome outcome = runWith(operation, n, call, fatal ? kLost : kBroken);
            EXPECT_EQ(statement.failed, outcome.result) << call << n;
            EXPECT_EQ(1, outcome.nextCursor) << call << n;
            Texts boxes = outcome.boxes;
            ASSERT_THAT(boxes, SizeIs((statement.report.empty() ? 1U : 2U) + fatal)) << call << n;
            EXPECT_THAT(boxes[0], StartsWith(statement.report));
            if (!statement.report.empty())
                boxes.erase(boxes.begin());
            EXPECT_THAT(boxes[0],
                HasSubstr(withoutText ? "A database error"
                        : fatal       ? kLost
                                      : kBroken));
        }
    }
    EXPECT_FALSE(runWith(operation, n + 1, "SQLExecDirect", kBroken).fired) << "all are listed";
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

TEST_P(Faults, AColumnThatIsNotReadIsNull)
{
    int n = 0;
    for (Outcome outcome; (outcome = runWith(GetParam(), ++n, "SQLGetData", kBroken)).fired;) {
        EXPECT_THAT(outcome.boxes, IsEmpty()) << n;
        EXPECT_EQ(1, outcome.nextCursor) << n;
        const auto& nulls = GetParam().nulls;
        if (nulls.empty())
            continue;
        ASSERT_LE(n, static_cast<int>(nulls.size()));
        const std::string& change = nulls[static_cast<std::size_t>(n) - 1];
        EXPECT_EQ(runWith(GetParam(), 1000, "any", kBroken, change).result, outcome.result)
            << change;
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
    for (const Statement& statement : GetParam().statements) {
        if (statement.severity == Statement::Reported)
            continue;
        Dictionary dictionary;
        dictionary.screen.echo();
        const DriverFault fault(1, "SQLExecDirect", DriverFault::Once, "HY000", kBroken);
        const bool silent = statement.severity == Statement::EndsWithZero;
        EXPECT_EXIT(GetParam().run(dictionary), testing::ExitedWithCode(silent ? 0 : 1),
            silent ? "^box: [^\n]*injected fault\n$"
                   : "^box: " + statement.report + "[^\n]*\nbox: [^\n]*injected fault\n$");
        return; // the others are the same operation's
    }
}

INSTANTIATE_TEST_SUITE_P(Operations, Faults, testing::ValuesIn(kOperations));

} // namespace

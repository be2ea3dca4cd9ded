// tests/taxonomy/TaxonSearchTest.cpp
#include "taxonomy/TaxonList.h"
#include "tests/support/Restore.h"
#include "tests/taxonomy/DictionaryTest.h"
#include "tests/taxonomy/PlainTaxonOrder.h"

#include <array>
#include <memory>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using Ids = std::vector<long>;

namespace {

/// The patterns are in buffers of the caller's own, which the search writes to.
using Patterns = std::array<std::string, 5>;

std::unique_ptr<TaxonList> search(Patterns& p, int includeSynonyms, long from = 0, long to = 0)
{
    return std::unique_ptr<TaxonList>(Taxon::searchTaxa(p[0].data(), p[1].data(), p[2].data(),
        p[3].data(), p[4].data(), includeSynonyms, from, to));
}

using Search = DictionaryTest;

TEST_F(Search, Finds)
{
    const struct {
        const char* name;
        Patterns patterns;
        int includeSynonyms;
        long from, to;
        Ids ids;
    } kCases[] = {
        {"all but synonyms, in order of names", {"%", "%", "%", "%", "%"}, 0, 0, 0, {104, 103}},
        {"all", {"%", "%", "%", "%", "%"}, 1, 0, 0, {104, 100, 101, 99, 103}},
        {"an empty pattern matches nothing", {"%", "", "%", "%", "%"}, 1, 0, 0, {}},
        {"category in small letters", {"nan%", "%", "%", "%", "%"}, 1, 0, 0, {104}},
        {"genus", {"%", "BET%", "%", "%", "%"}, 1, 0, 0, {103}},
        {"subgenus", {"%", "%", "et%", "%", "%"}, 1, 0, 0, {103}},
        {"species", {"%", "%", "%", "%TAN%", "%"}, 1, 0, 0, {100, 101, 99}},
        {"subspecies", {"%", "%", "%", "%", "MINOR"}, 1, 0, 0, {99}},
        {"codes of any system", {"%", "%", "%", "%", "%"}, 1, 6, 70, {100}},
        {"one code by its lower bound", {"%", "%", "%", "%", "%"}, 1, 5, 0, {103}},
        {"one code by its upper bound", {"%", "%", "%", "%", "%"}, 1, 0, 5, {103}},
        {"twice, by two codes", {"%", "%", "%", "%", "%"}, 1, 70, 99999999, {100, 100}},
        {"code of a synonym", {"%", "%", "%", "%", "%"}, 0, 70, 0, {}},
    };
    for (auto c : kCases) {
        const std::unique_ptr<TaxonList> list = search(c.patterns, c.includeSynonyms, c.from, c.to);
        EXPECT_EQ(c.ids, plain::ids(*list)) << c.name;
        const Taxon* first = list->next();
        EXPECT_EQ(c.ids.empty() ? 0 : c.ids[0], first ? first->spec_id() : 0) << c.name;
    }
    const std::unique_ptr<TaxonList> unconditional(
        Taxon::searchTaxa(nullptr, nullptr, nullptr, nullptr, nullptr, 0, 0, 0));
    EXPECT_EQ((Ids{104, 103}), plain::ids(*unconditional));
    EXPECT_THAT(screen.texts(), IsEmpty());
}

TEST_F(Search, SentAsComposed)
{
    Patterns some = {"for%  ", "a%", "b%", "c%", "d%"}, all = {"%", "%", "%", "%", "%"};
    const StatementLog log;
    search(some, 1, 0, 7);
    EXPECT_STREQ("FOR%", some[0].c_str()) << "in the caller's buffer";
    search(all, 1);
    const std::string tables = testSettings().kind == 2
        ? table("SPECIES") + " s," + table("GENUS") + " g "
        : table("GENUS") + " g, " + table("SPECIES") + " s ";
    EXPECT_EQ(sent("SELECT s.spec_id FROM " + tables + "," + table("SIPMCODE") + " p "
                  + "WHERE g.gen_id = s.gen_id  AND  upper(g.cat_mnem) like 'FOR%'"
                    " AND  upper(g.genus) like upper('a%')"
                    " AND  upper(g.sub_genus) like upper('b%')"
                    " AND  upper(s.species) like upper('c%')"
                    " AND  upper(s.sub_spec) like upper('d%')"
                    " AND s.spec_id = p.spec_id AND p.sipm_code >=7 AND p.sipm_code <=7"),
        log.statements()[0]);
    EXPECT_EQ(
        "SELECT s.spec_id FROM " + tables + "WHERE g.gen_id = s.gen_id ", log.statements()[1]);
    db.run("DROP TABLE SYNONYMY");
    EXPECT_THAT(plain::ids(*search(all, 0)), IsEmpty());
    EXPECT_THAT(screen.texts(), ElementsAre(HasSubstr("SELECT pref FROM "), testing::_))
        << "a failed question ends the search";
}

using Codes = DictionaryTest;

TEST_F(Codes, AreKeptForTheLastSystem)
{
    Taxon taxon(100);
    const StatementLog log;
    for (const auto& [system, code] :
        {std::pair{0, 0}, {1, 12345678}, {1, 12345678}, {2, 70}, {3, 0}, {3, 0}})
        EXPECT_EQ(code, taxon.sipmCode(system)) << system;
    EXPECT_EQ(2, Taxon::sipmDictCode("Second"));
    const Restore other(altColumnNames, 1);
    EXPECT_EQ(2, Taxon::sipmDictCode("Second"));
    EXPECT_EQ(0, Taxon::sipmDictCode(nullptr));
    const std::string from = "SELECT sipm_code FROM " + table("sipmcode") + " WHERE spec_id=100";
    const std::string system = "SELECT ccode FROM " + table("SIPMDICT") + " WHERE ";
    EXPECT_THAT(log.statements(),
        ElementsAre(from + " AND ccode=1", from + " AND ccode=2", from + " AND ccode=3",
            system + "text='Second'", system + "txt='Second'", system + "txt=NULL"));
    const Restore on(showTaxonCodes, 1);
    EXPECT_STREQ("5678 Alphina betana", taxon.displayName(0, 0, 0, 1));
}

TEST_F(Codes, LongTextsAreReadUnlessThereIsOne)
{
    Taxon taxon(100), none(104), empty(101);
    const StatementLog log;
    EXPECT_STREQ("a reference", taxon.loadReferences());
    EXPECT_STREQ("a note", taxon.loadNotes());
    taxon.loadReferences();
    taxon.setNotes("own");
    EXPECT_STREQ("own", taxon.loadNotes());
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT references FROM " + table("TXREFS") + " WHERE spec_id=100",
            "SELECT notes FROM " + table("TXNOTES") + " WHERE spec_id=100"));
    taxon.setNotes("");
    EXPECT_STREQ("a note", taxon.loadNotes()) << "empty is not there yet";
    EXPECT_EQ(nullptr, none.loadReferences());
    EXPECT_STREQ("", empty.loadReferences());
    db.run("UPDATE TXREFS SET \"references\" = printf('%.239céé', 'x') WHERE spec_id = 101");
    EXPECT_EQ(std::string(239, 'x'), empty.loadReferences()) << "asked again, and cut";
}

using Synonymy = DictionaryTest;

long idOf(const Taxon* taxon) { return taxon ? taxon->spec_id() : 0; }

TEST_F(Synonymy, PreferredBySchemeAndOnceAndSharedByCopies)
{
    auto taxon = std::make_unique<Taxon>(99);
    taxon->loadPreferred(7);
    EXPECT_EQ(nullptr, taxon->preferred()) << "no such scheme";
    taxon->loadSecondPreferred(5);
    EXPECT_EQ(100, idOf(taxon->secondPreferred())) << "its own while none is preferred";
    taxon->clearSecondPreferred();
    taxon->loadPreferred(5);
    EXPECT_STREQ("betana", taxon->preferred()->species()) << "loaded by its identifier";
    taxon->loadSecondPreferred(5);
    EXPECT_EQ(104, idOf(taxon->secondPreferred()));
    const StatementLog log;
    taxon->loadPreferred(6);
    Taxon().loadPreferred(5);
    Taxon().loadSecondPreferred(5);
    EXPECT_EQ(0, Taxon().firstSynonym(5));
    EXPECT_THAT(log.statements(), IsEmpty());
    const Taxon copy(*taxon);
    EXPECT_EQ(nullptr, copy.secondPreferred());
    taxon.reset();
    EXPECT_EQ(100, idOf(copy.preferred()));
}

TEST_F(Synonymy, SentAsComposed)
{
    const StatementLog log;
    Taxon taxon;
    taxon.setSpecId(7);
    taxon.loadPreferred(0);
    taxon.loadPreferred(3);
    taxon.firstSynonym(0);
    taxon.firstSynonym(3);
    EXPECT_EQ(nullptr, Taxon::synonymsOf(3, 8));
    EXPECT_EQ(nullptr, Taxon::synonymsOf(3, 0));
    const std::string from = " FROM " + table("SYNONYMY") + " WHERE ";
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT pref" + from + "spec_id=7",
            "SELECT pref" + from + "spec_id=7 AND sch_id=3", "SELECT spec_id" + from + "pref=7",
            "SELECT spec_id" + from + "pref=7 AND sch_id=3",
            "SELECT spec_id" + from + "pref=8 AND sch_id=3"));
}

TEST_F(Synonymy, SynonymsInTheOrderOfTheRows)
{
    db.run("INSERT INTO SYNONYMY (spec_id, pref, sch_id) VALUES (98, 100, 5)");
    const std::unique_ptr<TaxonList> list(Taxon::synonymsOf(5, 100));
    Texts ids;
    for (const long id : plain::ids(*list))
        ids.push_back(std::to_string(id));
    EXPECT_EQ(db.rows("SELECT spec_id FROM SYNONYMY WHERE pref = 100 AND sch_id = 5"), ids);
    EXPECT_STREQ("Alphina", list->find(101)->genus());
    EXPECT_EQ(100, Taxon(104).firstSynonym(5));
    EXPECT_EQ(0, Taxon(104).firstSynonym(6));
}

TEST_F(Synonymy, AListLoadsItsPreferredTaxaOncePerScheme)
{
    TaxonList list;
    list.loadPreferred(5, 0);
    EXPECT_EQ(0, list.preferredScheme) << "nothing was loaded";
    list.push(new Taxon(99));
    const struct {
        const char* name;
        long sch_id;
        int force;
        long scheme, preferred;
        std::size_t statements;
    } kSteps[] = {
        {"first", 5, 0, 5, 100, 3},
        {"again", 5, 0, 5, 100, 0},
        {"another scheme", 6, 0, 6, 103, 3},
        {"any scheme", 0, 0, 6, 103, 0},
        {"forced", 0, 1, 1, 100, 3},
        {"scheme 1 is any", 1, 0, 1, 100, 0},
    };
    for (const auto& step : kSteps) {
        if (step.force) // which row of any scheme comes first is the database's affair
            db.run("DELETE FROM SYNONYMY WHERE spec_id = 99 AND sch_id = 6");
        const StatementLog log;
        list.loadPreferred(step.sch_id, step.force);
        EXPECT_THAT(log.statements(), SizeIs(step.statements)) << step.name;
        EXPECT_EQ(step.scheme, list.preferredScheme) << step.name;
        EXPECT_EQ(step.preferred, idOf(list.find(99)->preferred())) << step.name;
        EXPECT_EQ(0, list.secondPreferredScheme);
    }
    list.loadSecondPreferred(5, 0);
    EXPECT_EQ(5, list.secondPreferredScheme);
    EXPECT_EQ(1, list.preferredScheme);
    EXPECT_EQ(104, idOf(list.find(99)->secondPreferred()));
}

TEST_F(Synonymy, PreferredTaxaStandForTheirTaxaInNamesAndSorts)
{
    TaxonList list;
    for (const long id : {103, 99, 104}) // 99 stands for 103 under scheme 6
        list.push(new Taxon(id));
    list.loadPreferred(6, 0);
    list.find(99)->preferred()->setField(slot::genus, "Zeta");
    const struct {
        int mode, preferred;
        Ids ids;
    } kSorts[] = {
        {1, -1, {104, 99, 103}},
        {1, 0, {104, 103, 99}},
        {4, 0, {104, 103, 99}}, // the code of 103 counts for both
        {4, -1, {104, 99, 103}},
    };
    for (const auto& c : kSorts) {
        list.sortBy(c.mode, c.preferred);
        EXPECT_EQ(c.ids, plain::ids(list)) << c.mode << c.preferred;
    }
    EXPECT_THAT(list.nameOf(99, 0, 0, 0), HasSubstr("Zeta"));
    EXPECT_STREQ("Alphina betana minor", list.nameOf(99, -1, 0, 0));
    EXPECT_STREQ("Alphina alba", list.nameOf(104, 0, 0, 0)) << "has none";
}

TEST_F(Synonymy, TaxaOfAWell)
{
    db.run("INSERT INTO TAXONOCC (well_id, samp_id, spec_id, disc_id) VALUES (7, 1, 104, 'M'),"
           " (7, 2, 104, 'M'), (7, 1, 103, 'M'), (7, 1, 100, 'N'), (8, 1, 99, 'M')");
    TaxonList list;
    list.insertSorted(new Taxon(101), 0);
    list.addWellTaxa(7, 'M');
    const StatementLog log;
    list.addWellTaxa(7, 'M');
    EXPECT_EQ((Ids{104, 101, 103}), plain::ids(list)) << "each once";
    EXPECT_EQ(
        "SELECT DISTINCT spec_id FROM " + table("TAXONOCC") + " WHERE well_id =7 AND disc_id='M'",
        log.statements()[0]);
}

} // namespace

// tests/taxonomy/TaxonSynonymyTest.cpp
#include "taxonomy/TaxonList.h"
#include "tests/support/Restore.h"
#include "tests/taxonomy/DictionaryTest.h"
#include "tests/taxonomy/PlainTaxonOrder.h"

#include <memory>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using Ids = std::vector<long>;

namespace {

using Synonymy = DictionaryTest;

long idOf(const Taxon* taxon) { return taxon ? taxon->spec_id() : 0; }

TEST_F(Synonymy, PreferredBySchemeAndOnce)
{
    Taxon taxon(99);
    taxon.loadPreferred(7);
    EXPECT_EQ(nullptr, taxon.preferred()) << "no such scheme";
    taxon.loadPreferred(6);
    EXPECT_EQ(103, idOf(taxon.preferred()));
    EXPECT_STREQ("Gammana", taxon.preferred()->species()) << "loaded by its identifier";
    const StatementLog log;
    taxon.loadPreferred(5);
    Taxon().loadPreferred(5);
    Taxon().loadSecondPreferred(5);
    EXPECT_EQ(0, Taxon().firstSynonym(5));
    EXPECT_THAT(log.statements(), IsEmpty());
    EXPECT_EQ(103, idOf(taxon.preferred()));
}

TEST_F(Synonymy, SecondPreferredFollowsThePreferredOne)
{
    Taxon taxon(99);
    taxon.loadSecondPreferred(5);
    EXPECT_EQ(100, idOf(taxon.secondPreferred())) << "its own while none is preferred";
    taxon.clearSecondPreferred();
    taxon.loadPreferred(5);
    taxon.loadSecondPreferred(5);
    EXPECT_EQ(104, idOf(taxon.secondPreferred()));
}

TEST_F(Synonymy, CopiesShareThePreferredTaxon)
{
    auto taxon = std::make_unique<Taxon>(99);
    taxon->loadPreferred(5);
    taxon->loadSecondPreferred(5);
    const Taxon copy(*taxon);
    EXPECT_EQ(taxon->preferred(), copy.preferred());
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
    const std::vector<std::string> rows =
        db.rows("SELECT spec_id FROM SYNONYMY WHERE pref = 100 AND sch_id = 5");
    Texts ids;
    for (const long id : plain::ids(*list))
        ids.push_back(std::to_string(id));
    EXPECT_EQ(rows, ids);
    EXPECT_STREQ("Alphina", list->find(101)->genus());
    Taxon taxon;
    taxon.setSpecId(104);
    EXPECT_EQ(100, taxon.firstSynonym(5));
    EXPECT_EQ(0, taxon.firstSynonym(6));
}

TEST_F(Synonymy, AListLoadsItsPreferredTaxaOncePerScheme)
{
    TaxonList list;
    list.loadPreferred(5, 0);
    EXPECT_EQ(0, list.preferredScheme) << "nothing was loaded";
    list.push(new Taxon(99));
    struct Step {
        const char* name;
        long sch_id;
        int force;
        long scheme;
        long preferred;
        bool loads;
    };
    for (const Step& step : {Step{"first", 5, 0, 5, 100, true}, {"again", 5, 0, 5, 100, false},
             {"another scheme", 6, 0, 6, 103, true}, {"any scheme", 0, 0, 6, 103, false},
             {"forced", 0, 1, 1, 100, true}, {"scheme 1 is any", 1, 0, 1, 100, false}}) {
        if (step.loads
            && step.force) // which row of any scheme comes first is the database's affair
            db.run("DELETE FROM SYNONYMY WHERE spec_id = 99 AND sch_id = 6");
        const StatementLog log;
        list.loadPreferred(step.sch_id, step.force);
        EXPECT_THAT(log.statements(), SizeIs(step.loads ? 3 : 0)) << step.name;
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
    list.sortBy(1, -1);
    EXPECT_EQ((Ids{104, 99, 103}), plain::ids(list));
    list.find(99)->preferred()->setField(slot::genus, "Zeta");
    list.sortBy(1, 0);
    EXPECT_EQ((Ids{104, 103, 99}), plain::ids(list));
    EXPECT_THAT(list.nameOf(99, 0, 0, 0), HasSubstr("Zeta"));
    EXPECT_STREQ("Alphina betana minor", list.nameOf(99, -1, 0, 0));
    EXPECT_STREQ("Alphina alba", list.nameOf(104, 0, 0, 0)) << "has none";
    list.sortBy(4, 0); // the code of 103 counts for both
    EXPECT_EQ((Ids{104, 103, 99}), plain::ids(list));
    list.sortBy(4, -1);
    EXPECT_EQ((Ids{104, 99, 103}), plain::ids(list));
}

TEST_F(Synonymy, TaxaOfAWell)
{
    db.run("INSERT INTO TAXONOCC (well_id, samp_id, spec_id, disc_id) VALUES (7, 1, 104, 'M'),"
           " (7, 2, 104, 'M'), (7, 1, 103, 'M'), (7, 1, 100, 'N'), (8, 1, 99, 'M')");
    TaxonList list;
    list.insertSorted(new Taxon(101), 0);
    for (int times = 0; times < 2; ++times) {
        list.addWellTaxa(7, 'M');
        EXPECT_EQ((Ids{104, 101, 103}), plain::ids(list));
    }
    const StatementLog log;
    list.addWellTaxa(9, 'A');
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT DISTINCT spec_id FROM " + table("TAXONOCC")
            + " WHERE well_id =9 AND disc_id='A'"));
}

} // namespace

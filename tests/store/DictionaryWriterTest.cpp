// tests/store/DictionaryWriterTest.cpp
#include "store/CategoryWriter.h"
#include "store/SynonymyWriter.h"
#include "store/TaxonWriter.h"
#include "store/Transaction.h"
#include "taxonomy/Categories.h"
#include "tests/support/TestDatabase.h"
#include "tests/taxonomy/TaxonOf.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

Taxon named(const char* category, const char* genus, const char* species, const char* author = "")
{
    Taxon taxon = taxonOf(std::string("c:") + category + "|g:" + genus + "|s:" + species);
    taxon.setField(slot::author, author);
    return taxon;
}

std::vector<std::string> idsOf(const std::vector<DictionaryTaxon*>& entries)
{
    std::vector<std::string> ids;
    for (const DictionaryTaxon* entry : entries)
        ids.push_back(std::to_string(entry->taxon.spec_id()));
    return ids;
}

// A dictionary as its keepers wrote it, with everything in it that names can differ by.
class Names : public testing::Test {
protected:
    Names()
    {
        db.run("INSERT INTO GENUS (gen_id, cat_mnem, q1, genus, q2, q3, sub_genus, q4) VALUES"
               " (10, 'FORAM', NULL, 'Alphina', '', ' ', NULL, NULL),"
               " (11, 'FORAM', NULL, 'Alphina', '?', NULL, NULL, NULL),"
               " (14, 'NANNO', NULL, 'Alphina', NULL, NULL, NULL, NULL),"
               " (15, NULL, NULL, 'Etina', NULL, NULL, NULL, NULL)");
        db.run("INSERT INTO SPECIES (spec_id, gen_id, species, author, year) VALUES"
               " (7, 10, 'alba', 'Gamma', 1901), (8, 10, 'alba', 'd`Eta', NULL),"
               " (9, 10, 'alba', NULL, 0), (12, 11, 'alba', NULL, NULL), (20, 14, 'alba', NULL, 0),"
               " (21, 14, 'rubra', 'Mu', 0), (22, 15, NULL, NULL, 0), (23, 14, 'rubra', 'Nu', 0)");
    }
    Outcome put(const Taxon& taxon, const TaxonDetails& details, Writing writing = Writing::Write)
    {
        TaxonWriter writer(writing);
        Transaction transaction;
        EXPECT_TRUE(writer.load());
        DictionaryTaxon* entry = writer.find(taxon);
        if (!entry)
            entry = &writer.add(taxon);
        const Outcome outcome = writer.put(*entry, details);
        if (writing == Writing::Write) {
            EXPECT_EQ(Outcome::Same, writer.put(*entry, details)) << "the writer remembers";
        }
        EXPECT_TRUE(transaction.commit());
        id = entry->taxon.spec_id();
        return outcome;
    }
    TestDatabase db;
    long id = 0;
};

struct FindCase {
    const char* rule;
    Taxon name;
    long id; // 0: not there
};

const FindCase kFound[] = {
    {"no author is one, too", named("FORAM", "alphina", "ALBA"), 9},
    {"for none any other will do, the oldest first", named("NANNO", "alphina", "rubra"), 21},
    {"the author tells homonyms apart", named("FORAM", "Alphina", "alba", "D'eta"), 8},
    {"a comma makes no other author", named("FORAM", "Alphina", "alba", "Gamma,"), 7},
    {"an unknown author is the one without", named("FORAM", "Alphina", "alba", "Theta"), 9},
    {"another category is another name", named("NANNO", "Alphina", "alba"), 20},
    {"no category is a category", named("", "Alphina", "alba"), 0},
    {"a genus without species", named("", "Etina", ""), 22},
    {"a qualifier makes another name", taxonOf("c:FORAM|g:Alphina|g>:?|s:alba"), 12},
    {"a subspecies makes another name", taxonOf("c:FORAM|g:Alphina|s:alba|b:minor"), 0},
};

TEST_F(Names, AreFoundByTheirSlots)
{
    TaxonWriter writer(Writing::Write);
    ASSERT_TRUE(writer.load()) << writer.error();
    for (const FindCase& c : kFound) {
        const DictionaryTaxon* entry = writer.find(c.name);
        EXPECT_EQ(c.id, entry ? entry->taxon.spec_id() : 0) << c.rule;
    }
    EXPECT_THAT(
        idsOf(writer.named(named("X", "Alphina", "alba"))), ElementsAre("7", "8", "9", "20"));
    EXPECT_EQ("FORAM", writer.categoryOfGenus(named("", "ALPHINA", "x")));
    EXPECT_EQ("", writer.categoryOfGenus(named("", "Etina", "x")));
    EXPECT_EQ(std::nullopt, writer.categoryOfGenus(named("", "Zeta", "x")));
}

TEST_F(Names, ComeInOnceForTheCoreToFind)
{
    Taxon taxon = taxonOf("c:FORAM|<g:cf.|g:Ørnella|u:Deltina|s:d'orbignyi|s>:?|<b:var.");
    taxon.setField(slot::subspecies, "a|b");
    TaxonDetails details{"d'Orbigny", 1826, "AB:1", 77, {"it's a note"}};
    taxon.setField(slot::author, "d'Orbigny");
    EXPECT_EQ(Outcome::New, put(taxon, details, Writing::Check));
    EXPECT_EQ("8", db.value("SELECT count(*) FROM SPECIES"));
    EXPECT_EQ(Outcome::New, put(taxon, details));
    EXPECT_EQ(24, id);
    EXPECT_EQ(Outcome::Same, put(taxon, details));
    EXPECT_EQ("9", db.value("SELECT count(*) FROM SPECIES"));
    EXPECT_THAT(db.rows("SELECT * FROM GENUS WHERE gen_id > 15"),
        ElementsAre("16|FORAM|cf.|Ørnella|NULL|NULL|Deltina|NULL"));
    EXPECT_THAT(db.rows("SELECT * FROM SPECIES WHERE spec_id = 24"),
        ElementsAre("24|16|NULL|d`orbignyi|?|var.|a|b|NULL|d`Orbigny|1826|AB:1"));

    Taxon typed = taxon;
    typed.setField(slot::category, "");
    typed.setField(slot::author, "");
    EXPECT_EQ(24, typed.lookupIds());
    Taxon loaded(24);
    EXPECT_STREQ("cf. Ørnella (Deltina) d`orbignyi? var. a|b  d`Orbigny 1826",
        loaded.displayName(0, 0, 0, 0));
    EXPECT_STREQ("it`s a note", loaded.loadNotes());
    EXPECT_EQ(77, loaded.sipmCode(1));
}

TEST_F(Names, ShareTheirGenus)
{
    EXPECT_EQ(Outcome::New, put(named("FORAM", "alphina", "nova"), {}));
    EXPECT_EQ("10", db.value("SELECT gen_id FROM SPECIES WHERE species = 'nova'"));
    TaxonWriter checking(Writing::Check);
    ASSERT_TRUE(checking.load());
    EXPECT_STREQ("Alphina", checking.add(named("FORAM", "ALPHINA", "x")).taxon.genus());
    checking.add(named("FORAM", "Iotana", "x"));
    EXPECT_STREQ("Iotana", checking.add(named("FORAM", "iotana", "y")).taxon.genus());
    Transaction transaction;
    TaxonWriter writer(Writing::Write);
    ASSERT_TRUE(writer.load());
    for (const char* species : {"prima", "secunda"})
        EXPECT_EQ(Outcome::New, writer.put(writer.add(named("FORAM", "Zetana", species)), {}));
    EXPECT_TRUE(transaction.commit());
    EXPECT_EQ("5|2",
        db.rows("SELECT count(*), (SELECT count(*) FROM SPECIES WHERE gen_id = 16)"
                " FROM GENUS")
            .at(0));
}

struct DetailCase {
    const char* rule;
    TaxonDetails details;
    Outcome outcome;
    const char* row; // author, year, alphaCode, sipm_code, notes
};
const DetailCase kDetails[] = {
    {"what is not given stays", {}, Outcome::Same, "Gamma|1901|NULL|NULL|old note"},
    {"a year", {"Gamma", 1902, "", {}, {}}, Outcome::Changed, "Gamma|1902|NULL|NULL|old note"},
    {"an alphabetic code", {"", 0, "X'1", {}, {}}, Outcome::Changed,
        "Gamma|1902|X`1|NULL|old note"},
    {"a code", {"", 0, "", 5, {}}, Outcome::Changed, "Gamma|1902|X`1|5|old note"},
    {"another code", {"", 0, "", 6, {}}, Outcome::Changed, "Gamma|1902|X`1|6|old note"},
    {"a note that is part of another", {"", 0, "", 6, {"old"}}, Outcome::Changed,
        "Gamma|1902|X`1|6|old note; old"},
    {"notes that are there", {"", 0, "", {}, {"old", "old note"}}, Outcome::Same,
        "Gamma|1902|X`1|6|old note; old"},
    {"a note without room", {"", 0, "", {}, {std::string(240, 'x')}}, Outcome::Same,
        "Gamma|1902|X`1|6|old note; old"},
};

TEST_F(Names, TakeFurtherDetails)
{
    db.run("INSERT INTO TXNOTES VALUES (7, 'old note')");
    for (const auto& [rule, details, outcome, row] : kDetails) {
        const Taxon name = named("FORAM", "Alphina", "alba", "Gamma");
        EXPECT_EQ(outcome, put(name, details, Writing::Check)) << rule;
        EXPECT_EQ(outcome, put(name, details)) << rule;
        EXPECT_EQ(row,
            db.rows("SELECT author, year, alphaCode, sipm_code, notes FROM SPECIES s"
                    " LEFT JOIN SIPMCODE c ON c.spec_id = s.spec_id AND c.ccode = 1"
                    " LEFT JOIN TXNOTES n ON n.spec_id = s.spec_id WHERE s.spec_id = 7")
                .at(0))
            << rule;
    }
    EXPECT_EQ(
        Outcome::Changed, put(named("FORAM", "Alphina", "alba", "New"), {"New", 0, "", {}, {}}))
        << "the one without author gets it";
    EXPECT_EQ(9, id);
}

struct GroupCase {
    const char* group;
    const char* mnemonic;
};
const GroupCase kGroups[] = {
    {"nannofossils", "NANNO"}, // told by the name of the one that is there
    {"benthic_forams", "BFORA"},
    {"big forams", "BFOR2"}, // the mnemonic is another group's
    {"Benthic Forams", "BFORA"},
    {"rads", "RADS"},
    {"Diatoms", "DIA"}, // of that name, whatever its mnemonic
    {"ørn", "RN"},
    {"---", "X"},
};

TEST(Categories, AreMadeOfGroups)
{
    TestDatabase db;
    db.run("INSERT INTO CATEGORY VALUES ('NANNO', 'Calcareous nannofossils', 'N'),"
           " ('DIA', 'diatoms', 'M')");
    for (int again = 0; again < 2; ++again) {
        Transaction transaction;
        CategoryWriter writer(Writing::Write);
        ASSERT_TRUE(writer.load());
        for (const auto& [group, mnemonic] : kGroups) {
            Category* category = writer.forGroup(group, 'M');
            ASSERT_NE(nullptr, category) << group;
            EXPECT_EQ(mnemonic, category->mnemonic) << group;
            if (!category->isStored) {
                EXPECT_EQ(0, again) << group;
                EXPECT_EQ(Outcome::New, writer.put(*category, "", 0));
            }
        }
        EXPECT_TRUE(transaction.commit());
    }
    EXPECT_EQ("benthic forams|M",
        db.rows("SELECT cat_name, disc_id FROM CATEGORY WHERE cat_mnem = 'BFORA'").at(0));
    EXPECT_EQ('M', categoryDisc("BFOR2"));
}

TEST(Categories, RunOutOfMnemonics)
{
    TestDatabase db;
    CategoryWriter writer(Writing::Check);
    ASSERT_TRUE(writer.load());
    for (char letter = 'a'; letter <= 'i'; ++letter)
        EXPECT_NE(nullptr, writer.forGroup(std::string("palynomorph") + letter, 'P'));
    EXPECT_EQ(nullptr, writer.forGroup("palynomorphj", 'P'));
}

TEST(PreferredNames, BelongToSchemes)
{
    TestDatabase db;
    db.run("INSERT INTO SYNSCH VALUES (4, 'Ann`s'), (5, 'Bob')");
    Transaction transaction;
    SynonymyWriter writer(Writing::Write);
    EXPECT_EQ(Outcome::New, writer.put("Ann's", 1, 2));
    EXPECT_EQ(Outcome::Same, writer.put("Ann's", 1, 2));
    EXPECT_EQ(Outcome::Changed, writer.put("Ann`s ", 1, 3)) << "as the database has it";
    EXPECT_EQ(Outcome::New, writer.put("Bob", 1, 2));
    EXPECT_EQ(Outcome::New, writer.put("New", 1, 2));
    EXPECT_EQ(Outcome::New, writer.put("New", 2, 3));
    EXPECT_TRUE(transaction.commit());
    EXPECT_THAT(db.rows("SELECT * FROM SYNONYMY ORDER BY sch_id, spec_id"),
        ElementsAre("1|3|4", "1|2|5", "1|2|6", "2|3|6"));
    EXPECT_EQ("New", db.value("SELECT name FROM SYNSCH WHERE sch_id = 6"));
    SynonymyWriter checking(Writing::Check);
    EXPECT_EQ(Outcome::New, checking.put("Other", 1, 2));
    EXPECT_EQ("3", db.value("SELECT count(*) FROM SYNSCH"));
}

} // namespace

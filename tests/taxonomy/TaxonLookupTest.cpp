// tests/taxonomy/TaxonLookupTest.cpp
#include "taxonomy/Categories.h"
#include "tests/taxonomy/DictionaryTest.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kNoGenusAdded = "Attempt to add genus in getAddGenus";
constexpr const char* kNoSpeciesAdded = "Attmpt to add species in getAddSpecies";
const std::string kBetinaGenus = "<g:cf.|g:Betina|g>:grp.|<u:aff.|u:Etina|u>:sl.";
const std::string kGammana = "<s:cf.|s:Gammana|s>:?|<b:var.|b:Major|b>:sensu|a:Eta";

using Lookup = DictionaryTest;

TEST_F(Lookup, OfAGenusByNameAndDetails)
{
    const struct {
        const char* name;
        std::string slots;
        int add;
        long found;
        std::string after, report = "";
    } kCases[] = {
        {"case is ignored, a blank no value", "c:FORAM|g:ALPHINA", 0, 10, "c:FORAM|g:Alphina"},
        {"category is taken over", "g:alphina", 1, 10, "c:FORAM|g:Alphina"},
        {"category decides", "c:NANNO|g:Alphina", 0, 14, "c:NANNO|g:Alphina"},
        {"qualifier decides", "g:Alphina|g>:?", 0, 11, "c:FORAM|g:Alphina|g>:?"},
        {"subgenus decides", "g:alphina|u:DELTINA", 0, 9, "c:FORAM|g:Alphina|u:Deltina"},
        {"all details", "<g:cf.|g:betina|g>:grp.|<u:aff.|u:etina|u>:sl.", 0, 13,
            "c:FORAM|" + kBetinaGenus},
        {"a detail that only the row has", "g:Betina", 0, 0, "c:FORAM|g:Betina"},
        {"its category is one to refuse with", "g:Betina", 1, 0, "c:FORAM|g:Betina", kNoGenusAdded},
        {"unknown", "c:FORAM|g:Zeta", 1, 0, "c:FORAM|g:Zeta", kNoGenusAdded},
        {"unknown, not to be added", "c:FORAM|g:Zeta", 0, 0, "c:FORAM|g:Zeta"},
        {"unknown without category", "g:Zeta", 1, 0, "g:Zeta"},
        {"empty", "s:betana", 1, -2, "s:betana"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        screen.clear();
        Taxon taxon = taxonOf(c.slots);
        EXPECT_EQ(c.found, taxon.getAddGenus(c.add, 1));
        EXPECT_EQ(std::max(c.found, 0L), taxon.gen_id);
        EXPECT_EQ(c.after, slotsOf(taxon));
        EXPECT_EQ(c.report.empty() ? Texts{} : Texts{c.report}, screen.texts());
    }
    Taxon known;
    known.gen_id = 77;
    EXPECT_EQ(77, known.getAddGenus(1, 1));
}

TEST_F(Lookup, OfASpeciesByNameAndDetails)
{
    const struct {
        const char* name;
        std::string slots;
        long gen_id;
        int add;
        long found;
        std::string after, report = "";
    } kCases[] = {
        {"case is ignored, the rest is taken", "s:BETANA", 10, 1, 100, "s:betana|a:Gamma"},
        {"own author stays", "s:betana|a:Own", 10, 0, 100, "s:betana|a:Own"},
        {"qualifier is lowered", "s:betana|s>:SS.", 10, 0, 101, "s:betana|s>:ss."},
        {"subspecies", "s:betana|b:MINOR", 10, 0, 99, "s:betana|b:minor|a:Delta"},
        {"all details", "<s:CF.|s:gammana|s>:?|<b:Var.|b:major|b>:sensu", 13, 0, 103, kGammana},
        {"of another genus", "s:betana", 14, 1, 0, "s:betana", kNoSpeciesAdded},
        {"not to be added", "s:zeta", 10, 0, 0, "s:zeta"},
        {"a detail only the row has", "<s:cf.|s:gammana", 13, 0, 0, "<s:cf.|s:Gammana"},
        {"empty", "g:Alphina", 10, 1, -1, "g:Alphina"},
        {"no genus", "s:betana", 0, 1, -2, "s:betana"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        screen.clear();
        Taxon taxon = taxonOf(c.slots);
        taxon.gen_id = c.gen_id;
        EXPECT_EQ(c.found, taxon.getAddSpecies(c.add, 1));
        EXPECT_EQ(std::max(c.found, 0L), taxon.spec_id());
        EXPECT_EQ(c.after, slotsOf(taxon));
        EXPECT_EQ(c.report.empty() ? Texts{} : Texts{c.report}, screen.texts());
    }
}

TEST_F(Lookup, SentAsComposed)
{
    Taxon taxon = taxonOf("c:FORAM|<g:CF.|g:Bet'ina|g>:grp.|<u:aff.|u:Etina|u>:sl.|<s:CF.|s:gammana"
                          "|s>:?|<b:var.|b:Major|b>:sensu");
    const StatementLog log;
    taxon.getAddGenus(0, 0);
    taxon.gen_id = 13;
    taxon.getAddSpecies(0, 0);
    taxon.getAddSpecies(0, 0); // known now
    const Taxon byId(103);
    EXPECT_EQ("c:FORAM|" + kBetinaGenus + "|" + kGammana, slotsOf(byId));
    EXPECT_EQ("13 1999 X",
        std::to_string(byId.gen_id) + " " + std::to_string(byId.year) + " " + byId.alphaCode);
    EXPECT_THAT(log.statements(),
        ElementsAre(
            sent("SELECT cat_mnem, gen_id, genus, q1, q2, q3, sub_genus, q4 FROM " + table("GENUS")
                + " WHERE cat_mnem='FORAM' AND  upper(genus)="
                  "upper('Bet`ina') AND lower(q1)='CF.' AND lower(q2)='grp.'"
                  " AND lower(q3)='aff.' AND upper(sub_genus)=upper('Etina')"
                  " AND lower(q4)='sl.'"),
            sent("SELECT spec_id, species, q1, q2, q3, sub_spec, q4, author, year,alphaCode  FROM "
                + table("SPECIES")
                + " WHERE upper(species)=upper('gammana') AND gen_id=13"
                  " AND lower(q1)='cf.' AND lower(q2)='?' AND lower(q3)='var.'"
                  " AND upper(sub_spec)=upper('Major') AND lower(q4)='sensu'"),
            "SELECT q1,species,q2,q3,sub_spec,q4,author,year,gen_id,alphaCode  FROM "
                + table("species") + " WHERE spec_id=103",
            "SELECT cat_mnem, q1,genus,q2,q3,sub_genus,q4 FROM " + table("genus")
                + " WHERE gen_id=13"));
}

TEST_F(Lookup, WithoutFetchingTheSpellingStaysAndOnlyEmptyFieldsAreFilled)
{
    Taxon taxon = taxonOf("g:ALPHINA|u:DELTINA|s:BETANA|b:MINOR", 1800);
    EXPECT_EQ(9, taxon.getAddGenus(0, 0));
    taxon.gen_id = 10;
    EXPECT_EQ(99, taxon.getAddSpecies(0, 0));
    EXPECT_EQ("c:FORAM|g:ALPHINA|u:DELTINA|s:BETANA|b:MINOR|a:Delta", slotsOf(taxon));
    EXPECT_EQ(1800, taxon.year);
    EXPECT_EQ("CD:1", taxon.alphaCode);
    taxon.setSpecId(0);
    taxon.year = 0;
    taxon.setAlphaCode("own");
    taxon.getAddSpecies(0, 0);
    EXPECT_EQ(1950, taxon.year);
    EXPECT_EQ("own", taxon.alphaCode);
}

TEST_F(Lookup, IdsNeedBothNames)
{
    for (const auto& [slots, id] : {std::pair{"g:alphina|s:betana", 100L}, {"g:Zeta|s:betana", 0L},
             {"g:Alphina|s:zeta", 0L}, {"g:Alphina", 0L}})
        EXPECT_EQ(id, taxonOf(slots).lookupIds()) << slots;
    EXPECT_THAT(screen.texts(), IsEmpty());
}

TEST_F(Lookup, ByIdWithoutARow)
{
    EXPECT_STREQ("*** No taxon in database for id: 5 ***", Taxon(5L).displayName(0, 0, 0, 0));
    const StatementLog log;
    EXPECT_EQ("", slotsOf(Taxon(0)));
    EXPECT_THAT(log.statements(), IsEmpty());
    db.run("UPDATE SPECIES SET gen_id = 55, year = 65537 WHERE spec_id = 104");
    const Taxon orphan(104);
    EXPECT_EQ("s:alba", slotsOf(orphan));
    EXPECT_EQ(55, orphan.gen_id);
    EXPECT_EQ(1, orphan.year) << "of 16 bits";
}

using Readers = DictionaryTest;

TEST_F(Readers, TwoTextsAreTakenApart)
{
    const struct {
        const char *name, *genusText, *speciesText, *slots;
    } kCases[] = {
        {"plain", "ZETA", "ETANA", "g:Zeta|s:etana"},
        {"leading cf without point", "  cf Zeta", "", "<g:cf.|g:Zeta"},
        {"the blank behind a point stays", "cf. zeta", "", "<g:cf.|g: Zeta"},
        {"near miss of cf", "cfzeta", "", "g:Cfzeta"},
        {"aff", "AFF zeta", "aff.eta", "<g:aff.|g:Zeta|<s:aff.|s:eta"},
        {"var", "zeta", "var eta", "g:Zeta|<s:var.|s:eta"},
        {"either quote", "'zeta'", "\"eta\"", "<g:\"|g:Zeta|g>:\"|<s:\"|s:eta|s>:\""},
        {"question marks", "?zeta?", "eta?", "<g:?|g:Zeta|g>:?|s:eta|s>:?"},
        {"a mark alone stands in front", "?", "", "<g:?"},
        {"only the first one", "?cf zeta", "", "<g:?|g:Cf Zeta"},
        {"words behind keep their blank", "zeta grp", "eta SL", "g:Zeta|g>: grp.|s:eta|s>: sl."},
        {"words with a point", "zeta ss.", "eta grp.", "g:Zeta|g>: ss.|s:eta|s>: grp."},
        {"near miss of a word behind", "zetass", "etagrp.", "g:Zetass|s:etagrp."},
        {"thirty bytes are a name", "abcdefghij klmnopqrs tuvwxyzab", "",
            "g:Abcdefghij Klmnopqrs Tuvwxyzab"},
        {"more are split at the first blank", "abc defghijklmnopqrstuvwxyzabcdefghijkl",
            "abc defghijklmnopqrstuvwxyzabcd",
            "g:Abc|u: defghijklmnopqrstuvwxyzabcdef|s:abc|b: defghijklmnopqrstuvwxyzabcd"},
        {"counted without the marks", "?abc defghijklmnopqrstuvwxyzabc?", "",
            "<g:?|g:Abc Defghijklmnopqrstuvwxyzabc|g>:?"},
        {"too long without a blank", "abcdefghijklmnopqrstuvwxyzabcdefghijklmn", "eta", "s:eta"},
        {"working name", "zeta", "sp. 1 rri x", "g:Zeta|s:sp. 1 RRI X"},
        {"letters of two bytes", "øzeta", "bÉta", "g:øzeta|s:bÉta"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(c.slots, slotsOf(Taxon(c.genusText, c.speciesText, nullptr))) << c.name;
    EXPECT_THAT(screen.texts(), IsEmpty());
}

TEST_F(Readers, TwoAndFourTextsFindTheirTaxon)
{
    const Taxon two("ALPHINA", "betana", "FORAM ");
    EXPECT_EQ(10, two.gen_id);
    EXPECT_EQ(100, two.spec_id());
    EXPECT_STREQ("FORAM", two.category());
    EXPECT_STREQ("NAN", Taxon("Zeta", "eta", "NAN ").category());
    const Taxon four("", "alphina", "BETANA", "minor");
    EXPECT_EQ(99, four.spec_id());
    EXPECT_STREQ("betana", four.species());
    EXPECT_STREQ("cf. x", Taxon("", "cf. x", "", "").genus()) << "as it stands";
    const StatementLog log;
    Taxon("FORAM", "Zeta", "betana", nullptr); // no genus: the species is not asked for
    Taxon("FORAM", "Alphina", "zeta", nullptr);
    EXPECT_EQ(3U, log.statements().size());
    EXPECT_THAT(screen.texts(), ElementsAre(kNoGenusAdded, kNoGenusAdded, kNoSpeciesAdded));
}

#define TO_AUTHOR "FORAM\t\tAlphina\t\t\t\t\t\tbetana\t\t\t\t\tGamma\t"

TEST_F(Readers, ALineFillsTheSlotsInOrder)
{
    categoryList(1); // of this test's database
    constexpr const char* kToAuthor = "c:FORAM|g:Alphina|s:betana|a:Gamma";
    const struct {
        const char *name, *line, *given;
        int year;
        const char* slots;
    } kCases[] = {
        {"whole", TO_AUTHOR "1901", "FORAM", 1901, kToAuthor},
        {"no year", TO_AUTHOR, "FORAM", 0, kToAuthor},
        {"year too big", TO_AUTHOR "32768", "FORAM", 0, kToAuthor},
        {"year too small", TO_AUTHOR "-32769", "FORAM", 0, kToAuthor},
        {"smallest year", TO_AUTHOR "-32768 and more", "FORAM", -32768, kToAuthor},
        {"blanks cut", " NANNO\tCF.  \tALPHINA  \t\t", " NANN", 0, "<g:cf.|g:ALPHINA"},
        {"the last field is unchanged", "NANNO\tCF. ", "NANNO", 0, "c:NANNO|<g:CF. "},
        {"unknown category", "X\t\tAlphina", "X", 0, "g:Alphina"},
        {"beginning of a category", "NAN\t\tAlphina", "NAN", 0, "c:NAN|g:Alphina"},
        {"small letters are another category", "nanno", "nanno", 0, ""},
        {"empty", "", "", 0, ""},
    };
    for (const auto& c : kCases) {
        const Taxon taxon(c.line);
        EXPECT_EQ(c.slots, slotsOf(taxon)) << c.name;
        EXPECT_EQ(c.given, taxon.givenCategory) << c.name;
        EXPECT_EQ(c.year, taxon.year) << c.name;
    }
}

TEST_F(Readers, EverySlotHasItsNamedField)
{
    categoryList(1);
    const char* names[] = {"Category", "Pre-Genus qualifier", "Genus", "Post-Genus qualifier",
        "Pre-Subgenus qualifier", "Subgenus", "Post-Subgenus qualifier", "Pre-Species qualifier",
        "Species", "Post-Species qualifier", "Pre-Subspecies qualifier", "Subspecies",
        "Post-Subspecies qualifier", "Author"};
    for (int number = 0; number < slot::count; ++number) {
        const char* value = number == slot::category ? "FORAM" : "x";
        EXPECT_EQ(std::string(kSlotKeys[number]) + ":" + value,
            slotsOf(Taxon(names + number, &value, 1)));
    }
    const char* mixed[] = {"species", "SPECIES", "Pre-Subspecies Qualifier", "Year", "code",
        "Category", "Spezies", "Genus "};
    const char* values[] = {"alba", "betana ", "CF.", "1990", "-7", "X", "y", "z"};
    const Taxon taxon(mixed, values, 8);
    EXPECT_EQ("s:betana |<b:cf.", slotsOf(taxon));
    EXPECT_EQ(1990, taxon.year);
    EXPECT_EQ(-7, taxon.sipm_code);
    EXPECT_EQ("", taxon.givenCategory);
}

} // namespace

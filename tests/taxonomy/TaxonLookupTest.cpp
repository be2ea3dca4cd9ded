// tests/taxonomy/TaxonLookupTest.cpp
#include "tests/taxonomy/DictionaryTest.h"

#include <ostream>

#include <gmock/gmock.h>

using namespace slot;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct FindCase {
    const char* name;
    Slots slots;
    long gen_id; ///< given for species
    int add;
    long found;
    const char* report; ///< empty: none
    Slots after;
};
void PrintTo(const FindCase& c, std::ostream* out) { *out << c.name; }

constexpr const char* kNoGenusAdded = "Attempt to add genus in getAddGenus";
constexpr const char* kNoSpeciesAdded = "Attmpt to add species in getAddSpecies";

const FindCase kGenera[] = {
    {"case of the name is ignored, a blank is no value", {{category, "FORAM"}, {genus, "ALPHINA"}},
        0, 0, 10, "", {{category, "FORAM"}, {genus, "Alphina"}}},
    {"category is taken over", {{genus, "alphina"}}, 0, 1, 10, "",
        {{category, "FORAM"}, {genus, "Alphina"}}},
    {"category decides", {{category, "NANNO"}, {genus, "Alphina"}}, 0, 0, 14, "",
        {{category, "NANNO"}, {genus, "Alphina"}}},
    {"qualifier decides", {{genus, "Alphina"}, {postGenus, "?"}}, 0, 0, 11, "",
        {{category, "FORAM"}, {genus, "Alphina"}, {postGenus, "?"}}},
    {"subgenus decides and takes the row's spelling", {{genus, "alphina"}, {subgenus, "DELTINA"}},
        0, 0, 9, "", {{category, "FORAM"}, {genus, "Alphina"}, {subgenus, "Deltina"}}},
    {"all details",
        {{preGenus, "cf."}, {genus, "betina"}, {postGenus, "grp."}, {preSubgenus, "aff."},
            {subgenus, "etina"}, {postSubgenus, "sl."}},
        0, 0, 13, "",
        {{category, "FORAM"}, {preGenus, "cf."}, {genus, "Betina"}, {postGenus, "grp."},
            {preSubgenus, "aff."}, {subgenus, "Etina"}, {postSubgenus, "sl."}}},
    {"a detail that only the row has", {{genus, "Betina"}}, 0, 0, 0, "",
        {{category, "FORAM"}, {genus, "Betina"}}},
    {"the same leaves a category to refuse with", {{genus, "Betina"}}, 0, 1, 0, kNoGenusAdded,
        {{category, "FORAM"}, {genus, "Betina"}}},
    {"unknown", {{category, "FORAM"}, {genus, "Zeta"}}, 0, 1, 0, kNoGenusAdded,
        {{category, "FORAM"}, {genus, "Zeta"}}},
    {"unknown, not to be added", {{category, "FORAM"}, {genus, "Zeta"}}, 0, 0, 0, "",
        {{category, "FORAM"}, {genus, "Zeta"}}},
    {"unknown without category", {{genus, "Zeta"}}, 0, 1, 0, "", {{genus, "Zeta"}}},
    {"empty", {{species, "betana"}}, 0, 1, -2, "", {{species, "betana"}}},
    {"known", {}, 77, 1, 77, "", {}},
};

class FindGenus : public DictionaryTest, public testing::WithParamInterface<FindCase> {};
TEST_P(FindGenus, ByNameAndDetails)
{
    Taxon taxon = taxonOf(GetParam().slots);
    taxon.gen_id = GetParam().gen_id;
    EXPECT_EQ(GetParam().found, taxon.getAddGenus(GetParam().add, 1));
    EXPECT_EQ(std::max(GetParam().found, 0L), taxon.gen_id);
    EXPECT_EQ(GetParam().after, slotsOf(taxon));
    EXPECT_EQ(*GetParam().report ? Texts{GetParam().report} : Texts{}, screen.texts());
}
INSTANTIATE_TEST_SUITE_P(Rules, FindGenus, testing::ValuesIn(kGenera));

const FindCase kSpecies[] = {
    {"case is ignored, the rest is taken", {{species, "BETANA"}}, 10, 1, 100, "",
        {{species, "betana"}, {author, "Gamma"}}},
    {"own author stays", {{species, "betana"}, {author, "Own"}}, 10, 0, 100, "",
        {{species, "betana"}, {author, "Own"}}},
    {"qualifier is lowered and decides", {{species, "betana"}, {postSpecies, "SS."}}, 10, 0, 101,
        "", {{species, "betana"}, {postSpecies, "ss."}}},
    {"subspecies decides", {{species, "betana"}, {subspecies, "MINOR"}}, 10, 0, 99, "",
        {{species, "betana"}, {subspecies, "minor"}, {author, "Delta"}}},
    {"all details",
        {{preSpecies, "CF."}, {species, "gammana"}, {postSpecies, "?"}, {preSubspecies, "Var."},
            {subspecies, "major"}, {postSubspecies, "sensu"}},
        13, 0, 103, "",
        {{preSpecies, "cf."}, {species, "Gammana"}, {postSpecies, "?"}, {preSubspecies, "var."},
            {subspecies, "Major"}, {postSubspecies, "sensu"}, {author, "Eta"}}},
    {"of another genus", {{species, "betana"}}, 14, 1, 0, kNoSpeciesAdded, {{species, "betana"}}},
    {"not to be added", {{species, "zeta"}}, 10, 0, 0, "", {{species, "zeta"}}},
    {"a detail that only the row has", {{species, "gammana"}, {preSpecies, "cf."}}, 13, 1, 0,
        kNoSpeciesAdded, {{preSpecies, "cf."}, {species, "Gammana"}}},
    {"empty", {{genus, "Alphina"}}, 10, 1, -1, "", {{genus, "Alphina"}}},
    {"no genus", {{species, "betana"}}, 0, 1, -2, "", {{species, "betana"}}},
};

class FindSpecies : public DictionaryTest, public testing::WithParamInterface<FindCase> {};
TEST_P(FindSpecies, ByNameAndDetails)
{
    Taxon taxon = taxonOf(GetParam().slots);
    taxon.gen_id = GetParam().gen_id;
    EXPECT_EQ(GetParam().found, taxon.getAddSpecies(GetParam().add, 1));
    EXPECT_EQ(std::max(GetParam().found, 0L), taxon.spec_id());
    EXPECT_EQ(GetParam().after, slotsOf(taxon));
    EXPECT_EQ(*GetParam().report ? Texts{GetParam().report} : Texts{}, screen.texts());
}
INSTANTIATE_TEST_SUITE_P(Rules, FindSpecies, testing::ValuesIn(kSpecies));

using Lookup = DictionaryTest;

TEST_F(Lookup, SentAsComposed)
{
    Taxon taxon = taxonOf({{category, "FORAM"}, {preGenus, "CF."}, {genus, "Bet'ina"},
        {postGenus, "grp."}, {preSubgenus, "aff."}, {subgenus, "Etina"}, {postSubgenus, "sl."},
        {preSpecies, "CF."}, {species, "gammana"}, {postSpecies, "?"}, {preSubspecies, "var."},
        {subspecies, "Major"}, {postSubspecies, "sensu"}});
    const StatementLog log;
    taxon.getAddGenus(0, 0);
    taxon.gen_id = 13;
    taxon.getAddSpecies(0, 0);
    taxon.getAddSpecies(0, 0); // known now
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
                  " AND upper(sub_spec)=upper('Major') AND lower(q4)='sensu'")));
}

TEST_F(Lookup, WithoutFetchingTheSpellingStays)
{
    Taxon taxon = taxonOf(
        {{genus, "ALPHINA"}, {subgenus, "DELTINA"}, {species, "BETANA"}, {subspecies, "MINOR"}});
    EXPECT_EQ(9, taxon.getAddGenus(0, 0));
    taxon.gen_id = 10;
    EXPECT_EQ(99, taxon.getAddSpecies(0, 0));
    EXPECT_EQ((Slots{{category, "FORAM"}, {genus, "ALPHINA"}, {subgenus, "DELTINA"},
                  {species, "BETANA"}, {subspecies, "MINOR"}, {author, "Delta"}}),
        slotsOf(taxon));
}

TEST_F(Lookup, SpeciesFillsYearAndAlphabeticCodeOnlyWhereEmpty)
{
    Taxon taxon = taxonOf({{species, "betana"}}, 1800);
    taxon.gen_id = 10;
    taxon.getAddSpecies(0, 0);
    EXPECT_EQ(1800, taxon.year);
    EXPECT_EQ("AB:12", taxon.alphaCode);
    taxon.setSpecId(0);
    taxon.year = 0;
    taxon.setAlphaCode("own");
    taxon.getAddSpecies(0, 0);
    EXPECT_EQ(1901, taxon.year);
    EXPECT_EQ("own", taxon.alphaCode);
}

TEST_F(Lookup, IdsNeedBoth)
{
    EXPECT_EQ(100, taxonOf({{genus, "alphina"}, {species, "betana"}}).lookupIds());
    EXPECT_EQ(0, taxonOf({{genus, "Zeta"}, {species, "betana"}}).lookupIds());
    EXPECT_EQ(0, taxonOf({{genus, "Alphina"}, {species, "zeta"}}).lookupIds());
    EXPECT_EQ(0, taxonOf({{genus, "Alphina"}}).lookupIds());
    EXPECT_THAT(screen.texts(), IsEmpty());
}

TEST_F(Lookup, ById)
{
    const StatementLog log;
    const Taxon taxon(103);
    EXPECT_EQ(
        (Slots{{category, "FORAM"}, {preGenus, "cf."}, {genus, "Betina"}, {postGenus, "grp."},
            {preSubgenus, "aff."}, {subgenus, "Etina"}, {postSubgenus, "sl."}, {preSpecies, "cf."},
            {species, "Gammana"}, {postSpecies, "?"}, {preSubspecies, "var."},
            {subspecies, "Major"}, {postSubspecies, "sensu"}, {author, "Eta"}}),
        slotsOf(taxon));
    EXPECT_EQ(13, taxon.gen_id);
    EXPECT_EQ(1999, taxon.year);
    EXPECT_EQ("X", taxon.alphaCode);
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT q1,species,q2,q3,sub_spec,q4,author,year,gen_id,alphaCode  FROM "
                + table("species") + " WHERE spec_id=103",
            "SELECT cat_mnem, q1,genus,q2,q3,sub_genus,q4 FROM " + table("genus")
                + " WHERE gen_id=13"));
}

TEST_F(Lookup, ByIdWithoutARow)
{
    Taxon taxon(5L);
    EXPECT_STREQ("*** No taxon in database for id: 5 ***", taxon.displayName(0, 0, 0, 0));
    const StatementLog log;
    EXPECT_THAT(slotsOf(Taxon(0)), IsEmpty());
    EXPECT_THAT(log.statements(), IsEmpty());
    db.run("UPDATE SPECIES SET gen_id = 55, year = 65537 WHERE spec_id = 104");
    const Taxon orphan(104);
    EXPECT_EQ((Slots{{species, "alba"}}), slotsOf(orphan));
    EXPECT_EQ(55, orphan.gen_id);
    EXPECT_EQ(1, orphan.year) << "of 16 bits";
}

} // namespace

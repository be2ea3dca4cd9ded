// tests/taxonomy/TaxonReaderTest.cpp
#include "taxonomy/Categories.h"
#include "tests/taxonomy/DictionaryTest.h"

#include <ostream>

#include <gmock/gmock.h>

using namespace slot;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct TextCase {
    const char* name;
    const char* genusText;
    const char* speciesText;
    Slots slots;
};
void PrintTo(const TextCase& c, std::ostream* out) { *out << c.name; }

const TextCase kTexts[] = {
    {"plain", "ZETA", "ETANA", {{genus, "Zeta"}, {species, "etana"}}},
    {"leading cf without point", "  cf Zeta", "", {{preGenus, "cf."}, {genus, "Zeta"}}},
    {"the blank behind a point stays", "cf. zeta", "", {{preGenus, "cf."}, {genus, " Zeta"}}},
    {"near miss of cf", "cfzeta", "", {{genus, "Cfzeta"}}},
    {"aff", "AFF zeta", "aff.eta",
        {{preGenus, "aff."}, {genus, "Zeta"}, {preSpecies, "aff."}, {species, "eta"}}},
    {"var", "zeta", "var eta", {{genus, "Zeta"}, {preSpecies, "var."}, {species, "eta"}}},
    {"either quote", "'zeta'", "\"eta\"",
        {{preGenus, "\""}, {genus, "Zeta"}, {postGenus, "\""}, {preSpecies, "\""}, {species, "eta"},
            {postSpecies, "\""}}},
    {"question marks", "?zeta?", "eta?",
        {{preGenus, "?"}, {genus, "Zeta"}, {postGenus, "?"}, {species, "eta"}, {postSpecies, "?"}}},
    {"a mark alone stands in front", "?", "", {{preGenus, "?"}}},
    {"only the first one", "?cf zeta", "", {{preGenus, "?"}, {genus, "Cf Zeta"}}},
    {"words behind keep their blank", "zeta grp", "eta SL",
        {{genus, "Zeta"}, {postGenus, " grp."}, {species, "eta"}, {postSpecies, " sl."}}},
    {"words behind with a point", "zeta ss.", "eta grp.",
        {{genus, "Zeta"}, {postGenus, " ss."}, {species, "eta"}, {postSpecies, " grp."}}},
    {"near miss of a word behind", "zetass", "etagrp.", {{genus, "Zetass"}, {species, "etagrp."}}},
    {"thirty bytes are a name", "abcdefghij klmnopqrs tuvwxyzab", "",
        {{genus, "Abcdefghij Klmnopqrs Tuvwxyzab"}}},
    {"more are split at the first blank", "abc defghijklmnopqrstuvwxyzabcdefghijkl",
        "abc defghijklmnopqrstuvwxyzabcd",
        {{genus, "Abc"}, {subgenus, " defghijklmnopqrstuvwxyzabcdef"}, {species, "abc"},
            {subspecies, " defghijklmnopqrstuvwxyzabcd"}}},
    {"counted without the marks", "?abc defghijklmnopqrstuvwxyzabc?", "",
        {{preGenus, "?"}, {genus, "Abc Defghijklmnopqrstuvwxyzabc"}, {postGenus, "?"}}},
    {"too long without a blank", "abcdefghijklmnopqrstuvwxyzabcdefghijklmn", "eta",
        {{species, "eta"}}},
    {"working name", "zeta", "sp. 1 rri x", {{genus, "Zeta"}, {species, "sp. 1 RRI X"}}},
    {"letters of two bytes", "øzeta", "bÉta", {{genus, "øzeta"}, {species, "bÉta"}}},
};

class TwoTexts : public DictionaryTest, public testing::WithParamInterface<TextCase> {};
TEST_P(TwoTexts, AreTakenApart)
{
    const Taxon taxon(GetParam().genusText, GetParam().speciesText, nullptr);
    EXPECT_EQ(GetParam().slots, slotsOf(taxon));
    EXPECT_THAT(screen.texts(), IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(Rules, TwoTexts, testing::ValuesIn(kTexts));

using Readers = DictionaryTest;

TEST_F(Readers, TwoTextsFindTheirTaxon)
{
    const Taxon taxon("ALPHINA", "betana", "FORAM ");
    EXPECT_EQ(10, taxon.gen_id);
    EXPECT_EQ(100, taxon.spec_id());
    EXPECT_STREQ("FORAM", taxon.category());
    EXPECT_STREQ("NAN", Taxon("Zeta", "eta", "NAN ").category());
    EXPECT_THAT(screen.texts(), ElementsAre("Attempt to add genus in getAddGenus"));
}

TEST_F(Readers, FourTextsAreTakenAsTheyStandAndLookedUp)
{
    const Taxon taxon("", "alphina", "BETANA", "minor");
    EXPECT_EQ(99, taxon.spec_id());
    EXPECT_STREQ("betana", taxon.species());
    EXPECT_STREQ("cf. x", Taxon("", "cf. x", "", "").genus());
    EXPECT_THAT(screen.texts(), IsEmpty());
    const StatementLog log;
    Taxon("FORAM", "Zeta", "betana", nullptr); // no genus: the species is not asked for
    Taxon("FORAM", "Alphina", "zeta", nullptr);
    EXPECT_EQ(3U, log.statements().size());
    EXPECT_THAT(screen.texts(),
        ElementsAre(
            "Attempt to add genus in getAddGenus", "Attmpt to add species in getAddSpecies"));
}

struct LineCase {
    const char* name;
    const char* line;
    const char* given;
    int year;
    Slots slots;
};
void PrintTo(const LineCase& c, std::ostream* out) { *out << c.name; }

#define TO_AUTHOR "FORAM\t\tAlphina\t\t\t\t\t\tbetana\t\t\t\t\tGamma\t"
const Slots kToAuthor = {
    {category, "FORAM"}, {genus, "Alphina"}, {species, "betana"}, {author, "Gamma"}};

const LineCase kLines[] = {
    {"whole", TO_AUTHOR "1901", "FORAM", 1901, kToAuthor},
    {"no year", TO_AUTHOR, "FORAM", 0, kToAuthor},
    {"year too big", TO_AUTHOR "32768", "FORAM", 0, kToAuthor},
    {"year too small", TO_AUTHOR "-32769", "FORAM", 0, kToAuthor},
    {"smallest year", TO_AUTHOR "-32768 and more", "FORAM", -32768, kToAuthor},
    {"cased as it stands, blanks cut", " NANNO\tCF.  \tALPHINA  \t\t", " NANN", 0,
        {{preGenus, "cf."}, {genus, "ALPHINA"}}},
    {"the last field is unchanged", "NANNO\tCF. ", "NANNO", 0,
        {{category, "NANNO"}, {preGenus, "CF. "}}},
    {"unknown category", "X\t\tAlphina", "X", 0, {{genus, "Alphina"}}},
    {"beginning of a category", "NAN\t\tAlphina", "NAN", 0,
        {{category, "NAN"}, {genus, "Alphina"}}},
    {"small letters are another category", "nanno", "nanno", 0, {}},
    {"empty", "", "", 0, {}},
};

class Line : public DictionaryTest, public testing::WithParamInterface<LineCase> {};
TEST_P(Line, FillsSlotsInOrder)
{
    categoryList(1); // of this test's database
    const Taxon taxon(GetParam().line);
    EXPECT_EQ(GetParam().slots, slotsOf(taxon));
    EXPECT_EQ(GetParam().given, taxon.givenCategory);
    EXPECT_EQ(GetParam().year, taxon.year);
    EXPECT_THAT(screen.texts(), IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(Rules, Line, testing::ValuesIn(kLines));

TEST_F(Readers, NamedFields)
{
    categoryList(1);
    const char* names[] = {"species", "SPECIES", "Pre-Subspecies Qualifier", "Year", "code",
        "Category", "Spezies", "Genus "};
    const char* values[] = {"alba", "betana ", "CF.", "1990", "-7", "X", "y", "z"};
    const Taxon taxon(names, values, 8);
    EXPECT_EQ((Slots{{species, "betana "}, {preSubspecies, "cf."}}), slotsOf(taxon));
    EXPECT_EQ(1990, taxon.year);
    EXPECT_EQ(-7, taxon.sipm_code);
    EXPECT_EQ("", taxon.givenCategory);
    EXPECT_STREQ("alba", Taxon(names, values, 1).species());
}

TEST_F(Readers, EverySlotHasItsNamedField)
{
    categoryList(1);
    const char* names[] = {"Category", "Pre-Genus qualifier", "Genus", "Post-Genus qualifier",
        "Pre-Subgenus qualifier", "Subgenus", "Post-Subgenus qualifier", "Pre-Species qualifier",
        "Species", "Post-Species qualifier", "Pre-Subspecies qualifier", "Subspecies",
        "Post-Subspecies qualifier", "Author"};
    for (int number = 1; number < slot::count; ++number) {
        const char* value = "x";
        EXPECT_EQ((Slots{{number, "x"}}), slotsOf(Taxon(names + number, &value, 1)));
    }
    const char* value = "FORAM";
    EXPECT_EQ((Slots{{category, "FORAM"}}), slotsOf(Taxon(names, &value, 1)));
}

} // namespace

// tests/taxonomy/TaxonValueTest.cpp
#include "taxonomy/SpeciesCase.h"
#include "tests/support/MessageLog.h"
#include "tests/taxonomy/TaxonOf.h"

#include <ostream>

#include <gtest/gtest.h>

using namespace slot;

namespace {

struct SentenceCase {
    const char* name;
    const char* sentence;
    Slots slots;
};
void PrintTo(const SentenceCase& c, std::ostream* out) { *out << c.name; }

const SentenceCase kSentences[] = {
    {"two words", "Alphina betana", {{genus, "Alphina"}, {species, "betana"}}},
    {"runs of blanks", "  Alphina   betana  ", {{genus, "Alphina"}, {species, "betana"}}},
    {"genus alone", "Alphina", {{genus, "Alphina"}, {species, "."}}},
    {"no words", "  ", {{species, "."}}},
    {"qualified genus", "? Alphina", {{preGenus, "?"}, {genus, "Alphina"}, {species, "."}}},
    {"qualifier alone", "aff.", {{preGenus, "aff."}, {species, "."}}},
    {"near miss of a qualifier", "Cf. Alphina", {{genus, "Cf."}, {species, "Alphina"}}},
    {"qualified species", "Alphina cf. betana minor",
        {{genus, "Alphina"}, {preSpecies, "cf."}, {species, "betana minor"}}},
    {"? in front of the species is one", "Alphina ? betana",
        {{genus, "Alphina"}, {species, "? betana"}}},
    {"qualifier without a species", "Alphina aff.", {{genus, "Alphina"}, {preSpecies, "aff."}}},
    {"thirty bytes stay together", "Alphina abcdefghijklmno pqrstuvwxyzabc",
        {{genus, "Alphina"}, {species, "abcdefghijklmno pqrstuvwxyzabc"}}},
    {"thirty-one do not", "Alphina abcdefghijklmno pqrstuvwxyzabcd",
        {{genus, "Alphina"}, {species, "abcdefghijklmno"}, {subspecies, "pqrstuvwxyzabcd"}}},
    {"subspecies overflows to the author, which takes the rest",
        "Alphina abcdefghijklmnopqrstuvwxyz123 a123456789b123456789c12345678 d "
        "e123456789f123456789 "
        "g123456789",
        {{genus, "Alphina"}, {species, "abcdefghijklmnopqrstuvwxyz123"},
            {subspecies, "a123456789b123456789c12345678 "},
            {author, "d e123456789f123456789 g123456789"}}},
    {"word longer than a part", "Alphina abcdefghijklmnopqrstuvwxyz1234567 x",
        {{genus, "Alphina"}, {species, "abcdefghijklmnopqrstuvwxyz1234"}, {subspecies, "x"}}},
};

class Sentence : public testing::TestWithParam<SentenceCase> {};
TEST_P(Sentence, Words) { EXPECT_EQ(GetParam().slots, slotsOf(Taxon(GetParam().sentence, 0))); }
INSTANTIATE_TEST_SUITE_P(Rules, Sentence, testing::ValuesIn(kSentences));

TEST(Sentence, LookupIsRefused)
{
    const MessageLog screen;
    const Taxon taxon("Alphina betana", 1);
    EXPECT_EQ(std::vector<std::string>{"Warning: Attempt to lookuop Taxon::Taxon"}, screen.texts());
    EXPECT_STREQ("betana", taxon.species());
}

struct CaseCase {
    const char* text;
    const char* cased;
};
const CaseCase kSpeciesCases[] = {
    {"BETANA", "betana"},
    {"sp. a1 rri x", "sp. A1 RRI X"},
    {"SPA. b", "spa. b"},
    {"betana Spt 3", "betana SPT 3"},
    {"betana spt", "betana spt"},
    {"spt betana", "spt betana"},
    {"x ssi y rri z ms q", "x SSI y RRI z MS q"},
    {"x ms y ms z", "x MS y ms z"},
};

TEST(SpeciesCase, WorkingNamesAreRaised)
{
    for (const CaseCase& c : kSpeciesCases) {
        std::string text = c.text;
        fixSpeciesCase(text);
        EXPECT_EQ(c.cased, text);
    }
}

TEST(Slots, CutAtTheirCapacityAndAtACharacter)
{
    Taxon taxon;
    for (int number = 0; number < slot::count; ++number) {
        const std::size_t capacity = slotRule(number).capacity;
        taxon.setField(number, std::string(capacity - 1, 'x') + "é");
        EXPECT_EQ(std::string(capacity - 1, 'x'), taxon.field(number)) << number;
        taxon.setField(number, std::string(capacity + 1, 'y'));
    }
    for (int number = 0; number < slot::count; ++number)
        EXPECT_EQ(std::string(slotRule(number).capacity, 'y'), taxon.field(number)) << number;
    taxon.setField(genus, taxon.field(species) + 28);
    EXPECT_STREQ("yy", taxon.genus());
    taxon.setField(genus, taxon.genus() + 1);
    EXPECT_STREQ("y", taxon.genus()) << "from its own text";
}

TEST(Value, AssignmentKeepsGivenCategory)
{
    Taxon from = taxonOf({{genus, "Alphina"}}, 1901);
    from.givenCategory = "XX";
    from.setSpecId(5);
    from.gen_id = 6;
    from.donor_id = 7;
    from.sipm_code = 8;
    from.ccode = 9;
    from.setAlphaCode("A:1");
    from.setReferences("ref");
    from.setNotes("note");
    Taxon to;
    to.givenCategory = "YY";
    to = from;
    from.addReferences("s"); // of its own
    EXPECT_EQ("YY", to.givenCategory);
    EXPECT_STREQ("Alphina", to.genus());
    EXPECT_EQ((std::vector<long>{1901, 5, 6, 7, 8, 9}),
        (std::vector<long>{to.year, to.spec_id(), to.gen_id, to.donor_id, to.sipm_code, to.ccode}));
    EXPECT_EQ("A:1", to.alphaCode);
    EXPECT_STREQ("ref", to.references());
    EXPECT_STREQ("note", to.notes());
    EXPECT_EQ("", Taxon(from).givenCategory);
}

TEST(Value, LongTextsHold240Bytes)
{
    Taxon taxon;
    EXPECT_EQ(nullptr, taxon.references());
    taxon.addReferences(nullptr);
    EXPECT_STREQ("", taxon.references());
    taxon.setReferences(std::string(238, 'x').c_str());
    taxon.addReferences("yé");
    EXPECT_EQ(std::string(238, 'x') + "y", taxon.references());
    taxon.addReferences("zz");
    EXPECT_EQ(std::string(238, 'x') + "yz", taxon.references());
    taxon.addNotes("a");
    taxon.addNotes("b");
    EXPECT_STREQ("ab", taxon.notes());
}

TEST(Value, AlphaCodeBehindTheColon)
{
    Taxon taxon;
    taxon.setAlphaCode("AB:12:3");
    EXPECT_EQ("12:3", taxon.alphaCodeText(1));
    EXPECT_EQ("AB:12:3", taxon.alphaCodeText(0));
    taxon.setAlphaCode("AB");
    EXPECT_EQ("AB", taxon.alphaCodeText(1));
}

TEST(Value, MakeSpp)
{
    for (const char* word : {"sp.", "SP.", "sp", "SP"}) {
        Taxon taxon = taxonOf({{species, word}});
        EXPECT_EQ(1, taxon.makeSpp());
        EXPECT_STREQ("spp.", taxon.species());
    }
    for (const char* word : {"Sp.", "sp. ", "spp.", "spp", ""}) {
        Taxon taxon = taxonOf({{species, word}});
        EXPECT_EQ(0, taxon.makeSpp());
        EXPECT_STREQ(word, taxon.species());
    }
}

TEST(Value, SetSpeciesPart)
{
    Slots all;
    for (int number = 0; number < slot::count; ++number)
        all.emplace_back(number, "x");
    const Slots front = {{category, "x"}, {preGenus, "x"}, {genus, "x"}, {postGenus, "x"},
        {preSubgenus, "x"}, {subgenus, "x"}, {postSubgenus, "x"}};
    const auto after = [&](const char* text) {
        Taxon taxon = taxonOf(all, 1901);
        taxon.setSpecId(5);
        taxon.setSpeciesPart(text);
        EXPECT_EQ(0, taxon.year);
        EXPECT_EQ(0, taxon.spec_id());
        const Slots slots = slotsOf(taxon);
        EXPECT_EQ(front, Slots(slots.begin(), slots.begin() + 7));
        return Slots(slots.begin() + 7, slots.end());
    };
    EXPECT_EQ((Slots{{species, "spp."}}), after("spp."));
    EXPECT_EQ((Slots{{preSpecies, "cf."}, {species, "x"}, {subspecies, "x"}}), after("cf."));
    EXPECT_EQ((Slots{{species, "x"}, {subspecies, "x"}}), after(nullptr));
}

struct CoilingCase {
    const char* species;
    const char* subspecies;
    int any, sinistral, dextral;
};
const CoilingCase kCoiling[] = {
    {"betana", "", 0, 0, 0},
    {"betana (s)", "", 1, 1, 0},
    {"betana", "Dextral", 1, 0, 1},
    {"betana (D)", "sinistra", 1, 1, 1},
    {"betana s", "(x)", 0, 0, 0},
};

TEST(Value, CoilingDirection)
{
    for (const CoilingCase& c : kCoiling) {
        const Taxon taxon =
            taxonOf({{species, c.species}, {subspecies, c.subspecies}, {genus, "Sindex"}});
        EXPECT_EQ(c.any, taxon.hasCoilingMark()) << c.species;
        EXPECT_EQ(c.sinistral, taxon.isSinistral()) << c.species;
        EXPECT_EQ(c.dextral, taxon.isDextral()) << c.species;
    }
}

} // namespace

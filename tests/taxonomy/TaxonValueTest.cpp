// tests/taxonomy/TaxonValueTest.cpp
#include "taxonomy/SpeciesCase.h"
#include "tests/support/MessageLog.h"
#include "tests/taxonomy/TaxonOf.h"

#include <vector>

#include <gtest/gtest.h>

using namespace slot;

namespace {

TEST(Sentence, FillsTheNamesWordByWord)
{
    const struct {
        const char *name, *sentence, *slots;
    } kCases[] = {
        {"runs of blanks", "  Alphina   betana  ", "g:Alphina|s:betana"},
        {"genus alone", "Alphina", "g:Alphina|s:."},
        {"no words", "  ", "s:."},
        {"qualified genus", "? Alphina", "<g:?|g:Alphina|s:."},
        {"qualifier alone", "aff.", "<g:aff.|s:."},
        {"near miss of a qualifier", "Cf. Alphina", "g:Cf.|s:Alphina"},
        {"qualified species", "Alphina cf. betana minor", "g:Alphina|<s:cf.|s:betana minor"},
        {"a mark is none there", "Alphina ? betana", "g:Alphina|s:? betana"},
        {"qualifier without a species", "Alphina aff.", "g:Alphina|<s:aff."},
        {"thirty bytes stay together", "Alphina abcdefghijklmno pqrstuvwxyzabc",
            "g:Alphina|s:abcdefghijklmno pqrstuvwxyzabc"},
        {"thirty-one do not", "Alphina abcdefghijklmno pqrstuvwxyzabcd",
            "g:Alphina|s:abcdefghijklmno|b:pqrstuvwxyzabcd"},
        {"the author takes the rest",
            "Alphina abcdefghijklmnopqrstuvwxyz123 a123456789b123456789c12345678 d e123456789 f",
            "g:Alphina|s:abcdefghijklmnopqrstuvwxyz123|b:a123456789b123456789c12345678 "
            "|a:d e123456789 f"},
        {"word longer than a part", "Alphina abcdefghijklmnopqrstuvwxyz1234567 x",
            "g:Alphina|s:abcdefghijklmnopqrstuvwxyz1234|b:x"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(c.slots, slotsOf(Taxon(c.sentence, 0))) << c.name;
    const MessageLog screen;
    EXPECT_EQ("g:Alphina|s:betana", slotsOf(Taxon("Alphina betana", 1)));
    EXPECT_EQ(std::vector<std::string>{"Warning: Attempt to lookuop Taxon::Taxon"}, screen.texts());
}

TEST(SpeciesCase, WorkingNamesAreRaised)
{
    for (const auto& [text, cased] :
        {std::pair{"BETANA", "betana"}, {"sp. a1 rri x", "sp. A1 RRI X"}, {"SPA. b", "spa. b"},
            {"betana Spt 3", "betana SPT 3"}, {"betana spt", "betana spt"},
            {"spt betana", "spt betana"}, {"x ssi y rri z ms q", "x SSI y RRI z MS q"},
            {"x ms y ms z", "x MS y ms z"}}) {
        std::string fixed = text;
        fixSpeciesCase(fixed);
        EXPECT_EQ(cased, fixed);
    }
}

struct SlotWords {
    int number;
    std::vector<std::string> exclusive;
    std::string marks;
};

const SlotWords kSlotWords[] = {
    {preGenus, {"cf.", "aff."}, "? \""},
    {postGenus, {"grp.", "ss.", "sl."}, "? \""},
    {preSubgenus, {"cf.", "aff."}, "\""},
    {postSubgenus, {"grp.", "ss.", "sl."}, "? \""},
    {preSpecies, {"cf.", "aff."}, "\""},
    {postSpecies, {"grp.", "ss.", "sl.", "sensu"}, "? \""},
    {preSubspecies, {"cf.", "aff.", "var."}, "\""},
    {postSubspecies, {"ss.", "sl.", "sensu"}, "\""},
};

/// The number of the faulty slot and what is left in `number`.
std::pair<int, std::string> normalised(int number, const std::string& text)
{
    Taxon taxon;
    taxon.setField(number, text);
    const int faulty = taxon.normaliseQualifiers();
    return {faulty, taxon.field(number)};
}

TEST(Qualifiers, OfAnotherSlotDisappearAndTwoExclusiveOnesAreAFault)
{
    for (const auto& [number, exclusive, marks] : kSlotWords) {
        for (const char* word : {"?", "\"", "cf.", "aff.", "grp.", "ss.", "sl.", "sensu", "var."}) {
            const bool accepted = marks.find(word) != std::string::npos
                || std::find(exclusive.begin(), exclusive.end(), word) != exclusive.end();
            EXPECT_EQ(std::pair(0, std::string(accepted ? word : "")), normalised(number, word));
            for (const std::string& other : exclusive) {
                const std::string both = word + other;
                const bool fault = accepted && word[1] && word != other && both.size() <= 8;
                EXPECT_EQ(fault ? number : 0, normalised(number, both).first) << both;
            }
        }
    }
}

TEST(Qualifiers, AreWrittenInOneOrder)
{
    const struct {
        const char* name;
        int number;
        const char *text, *normalised;
    } kCases[] = {
        {"word behind the mark", postSpecies, "ss. ?", "? ss."},
        {"all that go together, in front", preGenus, "\"aff.?", "? aff. \""},
        {"in front of the subspecies the quote precedes", preSubspecies, "var.\"", "\" var."},
        {"found inside other text", postGenus, "xss.x", "ss."},
        {"letter case counts", preGenus, "CF.", ""},
        {"longer than the slot", postSpecies, "?\" sensu", "? \" sens"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(std::pair(0, std::string(c.normalised)), normalised(c.number, c.text)) << c.name;
    Taxon taxon = taxonOf("<g:x|g:cf.|g>:ss. sl.|<s:x|a:sensu aff.");
    EXPECT_EQ(postGenus, taxon.normaliseQualifiers());
    EXPECT_EQ("g:cf.|g>:ss. sl.|<s:x|a:sensu aff.", slotsOf(taxon)) << "stops at the fault";
}

TEST(Qualifiers, CheckTellsTheFaultySlot)
{
    const struct {
        const char *name, *slots;
        int faulty;
    } kCases[] = {
        {"two exclusive words", "<b:cf.var.|g>:\"", preSubspecies},
        {"around the whole name", "<g:\"|b>:\"", 0},
        {"not closed", "<s:\"", preSpecies},
        {"not opened", "s>:\"", postSpecies},
        {"opened twice", "<g:\"|<s:\"|s>:\"", preSpecies},
        {"closed twice", "<g:\"|g>:\"|s>:\"", postSpecies},
        {"a second pair", "<g:\"|g>:\"|<s:\"", preSpecies},
        {"quote in a name is none", "g:\"", 0},
        {"four question marks", "<g:?|g>:?|u>:?|s>:?", postSpecies},
        {"one that the slot does not accept", "<g:?|g>:?|u>:?|<s:?", 0},
        {"quotes come first", "<g:?\"|g>:?|u>:?|s>:?", preGenus},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(c.faulty, taxonOf(c.slots).checkQualifiers()) << c.name;
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
    taxon.setField(genus, taxon.genus() + 29);
    EXPECT_STREQ("y", taxon.genus()) << "from its own text";
}

TEST(Value, AssignmentKeepsGivenCategory)
{
    Taxon from = taxonOf("g:Alphina", 1901), to;
    from.setSpecId(5);
    from.gen_id = 6, from.donor_id = 7, from.sipm_code = 8, from.ccode = 9;
    from.setAlphaCode("A:1");
    from.setReferences("ref");
    from.setNotes("note");
    to.givenCategory = "YY";
    to = from;
    from.addReferences("s"); // of its own
    EXPECT_EQ("YY", to.givenCategory);
    EXPECT_EQ((std::vector<long>{1901, 5, 6, 7, 8, 9}),
        (std::vector<long>{to.year, to.spec_id(), to.gen_id, to.donor_id, to.sipm_code, to.ccode}));
    EXPECT_EQ("g:Alphina A:1 ref note",
        slotsOf(to) + " " + to.alphaCode + " " + to.references() + " " + to.notes());
}

TEST(Value, LongTextsHold240Bytes)
{
    Taxon taxon;
    taxon.addReferences(nullptr);
    EXPECT_STREQ("", taxon.references());
    taxon.setReferences(std::string(238, 'x').c_str());
    taxon.addReferences("yé");
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

TEST(Value, SpeciesPartIsReplaced)
{
    for (const std::string word : {"sp.", "SP.", "sp", "SP", "Sp.", "sp. ", "spp", ""}) {
        Taxon taxon = taxonOf("s:" + word);
        const int made = word.size() > 1 && word != "Sp." && word != "sp. " && word != "spp";
        EXPECT_EQ(made, taxon.makeSpp()) << word;
        EXPECT_EQ(made ? "spp." : word, taxon.species());
    }
    const std::string front = "c:x|<g:x|g:x|g>:x|<u:x|u:x|u>:x";
    for (const auto& [text, after] : {std::pair{"spp.", "|s:spp."}, {"cf.", "|<s:cf.|s:x|b:x"},
             {static_cast<const char*>(nullptr), "|s:x|b:x"}}) {
        Taxon taxon = taxonOf(front + "|<s:x|s:x|s>:x|<b:x|b:x|b>:x|a:x", 1901);
        taxon.setSpecId(5);
        taxon.setSpeciesPart(text);
        EXPECT_EQ(front + after, slotsOf(taxon));
        EXPECT_EQ(0, taxon.year + taxon.spec_id());
    }
}

TEST(Value, CoilingDirection)
{
    const struct {
        const char* slots;
        int any, sinistral, dextral;
    } kCases[] = {
        {"s:betana", 0, 0, 0},
        {"s:betana (s)", 1, 1, 0},
        {"s:betana|b:Dextral", 1, 0, 1},
        {"s:betana (D)|b:sinistra", 1, 1, 1},
        {"g:Sindex|s:betana s|b:(x)", 0, 0, 0},
    };
    for (const auto& c : kCases) {
        const Taxon taxon = taxonOf(c.slots);
        EXPECT_EQ(c.any, taxon.hasCoilingMark()) << c.slots;
        EXPECT_EQ(c.sinistral, taxon.isSinistral()) << c.slots;
        EXPECT_EQ(c.dextral, taxon.isDextral()) << c.slots;
    }
}

} // namespace

// tests/app/import/dictionary/TaxonNameTest.cpp
#include "app/import/TaxonName.h"

#include "app/batch/Italics.h"
#include "tests/taxonomy/TaxonOf.h"

#include <ostream>

#include <gtest/gtest.h>

namespace {

// The slots that are not empty, then the year.
std::string textOf(const Taxon& taxon)
{
    const std::string slots = slotsOf(taxon);
    return taxon.year != 0 ? slots + "|year=" + std::to_string(taxon.year) : slots;
}

struct NameCase {
    const char* written;
    const char* slots;
    const char* composed = nullptr; // where it is not as written
    int fault = 0;
};
void PrintTo(const NameCase& c, std::ostream* out) { *out << c.written; }

const NameCase kNames[] = {
    {"Alphina betana", "g:Alphina|s:betana"},
    {"Alphina betana minor", "g:Alphina|s:betana|b:minor"},
    {"  Alphina   betana ", "g:Alphina|s:betana"},
    // Without a species, and species without a name.
    {"Alphina", "g:Alphina"},
    {"Alphina sp.", "g:Alphina|s:sp."},
    {"Alphina sp", "g:Alphina|s:sp"},
    {"Alphina sp.1", "g:Alphina|s:sp.1"},
    {"Alphina sp. 1 (long, thin)", "g:Alphina|s:sp. 1 (long, thin)"},
    {"Alphina sp. group A", "g:Alphina|s:sp. group A"},
    {"Alphina sp. group", "g:Alphina|s:sp. group"},
    {"Alphina sp. \"TS\"", "g:Alphina|s:sp. \"TS\""},
    {"Alphina sp. ?", "g:Alphina|s:sp.|s>:?"},
    {"Alphina sp. cf. A. betana", "g:Alphina|s:sp. cf. A. betana"},
    {"Alphina spp. (small)", "g:Alphina|s:spp.|b:(small)"},
    {"Alphina (small)", "g:Alphina|s:(small)"},
    {"Alphinidae indet.", "g:Alphinidae|s:indet."},
    // Subgenera.
    {"Alphina (Deltina) betana", "g:Alphina|u:Deltina|s:betana"},
    {"Alphina (Deltina)", "g:Alphina|s:(Deltina)"},
    {"Alphina (or: Deltina) betana", "g:Alphina|s:(or: Deltina) betana"},
    // Marks in front.
    {"cf. Alphina betana", "<g:cf.|g:Alphina|s:betana"},
    {"? Alphina betana", "<g:?|g:Alphina|s:betana"},
    {"?Alphina betana", "<g:?|g:Alphina|s:betana"},
    {"Alphina cf. betana", "g:Alphina|<s:cf.|s:betana"},
    {"Alphina cf betana", "g:Alphina|<s:cf.|s:betana", "Alphina cf. betana"},
    {"Alphina aff. B. betana", "g:Alphina|<s:aff.|s:B. betana"},
    {"Alphina betana cf . A", "g:Alphina|s:betana|<b:cf.|b:A"},
    {"Alphina betana var. minor", "g:Alphina|s:betana|<b:var.|b:minor"},
    {"Alphina betana var minor", "g:Alphina|s:betana|<b:var.|b:minor", "Alphina betana var. minor"},
    {"Alphina ?betana", "g:Alphina|s:betana|s>:?", "Alphina betana?"},
    {"Alphina betana f. minor", "g:Alphina|s:betana|b:f. minor"},
    {"Alphina ex gr. betana", "g:Alphina|s:ex|b:gr. betana"},
    // Marks behind.
    {"Alphina? betana", "g:Alphina|g>:?|s:betana"},
    {"Alphina ? betana", "g:Alphina|g>:?|s:betana"},
    {"Alphina (?) betana", "g:Alphina|g>:?|s:betana", "Alphina? betana"},
    {"Alphina?", "g:Alphina|g>:?"},
    {"Alphina betana?", "g:Alphina|s:betana|s>:?"},
    {"Alphina betana minor?", "g:Alphina|s:betana|b:minor?"},
    {"Alphina betana s.l.", "g:Alphina|s:betana|s>:sl.", "Alphina betana sl."},
    {"Alphina betana sensu lato (big)", "g:Alphina|s:betana|s>:sl.|b:(big)",
        "Alphina betana sl. (big)"},
    {"Alphina betana s.str.", "g:Alphina|s:betana|s>:ss.", "Alphina betana ss."},
    {"Alphina betana minor s.s.", "g:Alphina|s:betana|b:minor|b>:ss.", "Alphina betana minor ss."},
    {"Alphina betana group", "g:Alphina|s:betana|s>:grp.", "Alphina betana grp."},
    {"Alphina betana group A", "g:Alphina|s:betana|b:group A"},
    {"Alphina betana grp.", "g:Alphina|s:betana|s>:grp."},
    {"Alphina betana-group", "g:Alphina|s:betana-group"},
    // Quotation marks.
    {"\"Alphina\" betana", "<g:\"|g:Alphina|g>:\"|s:betana"},
    {"Alphina \"betana\"", "g:Alphina|<s:\"|s:betana|s>:\""},
    {"\"Alphina betana\"", "<g:\"|g:Alphina|s:betana|s>:\""},
    {"Alphina 'betana'", "g:Alphina|<s:\"|s:betana|s>:\"", "Alphina \"betana\""},
    {"Alphina d'orbignyi", "g:Alphina|s:d'orbignyi"},
    // Authors.
    {"Alphina betana Gamma 1901", "g:Alphina|s:betana|a:Gamma|year=1901"},
    {"Alphina betana d'Orbigny, 1826", "g:Alphina|s:betana|a:d'Orbigny,|year=1826"},
    {"Alphina d'Orbigny 1826", "g:Alphina|a:d'Orbigny|year=1826"},
    {"Alphina betana (de Man & Eta, 1990)", "g:Alphina|s:betana|a:(de Man & Eta, 1990)"},
    {"Alphina betana minor de Man 1884", "g:Alphina|s:betana|b:minor|a:de Man|year=1884"},
    {"Alphina betana (Gamma)", "g:Alphina|s:betana|b:(Gamma)"},
    {"Alphina betana Site 1148", "g:Alphina|s:betana|b:Site 1148"},
    {"Alphina betana sensu Gamma", "g:Alphina|s:betana|s>:sensu|a:Gamma"},
    {"Alphina sp. D sensu Eta et al 2007", "g:Alphina|s:sp. D|s>:sensu|a:Eta et al|year=2007"},
    // Letters.
    {"Ørnella åsensis", "g:Ørnella|s:åsensis"},
    {"Alphina betana (<5µm)", "g:Alphina|s:betana|b:(<5µm)"},
    {"Alphina|Betina spp.", "g:Alphina|Betina|s:spp."},
    {"Alphina betana/gammana", "g:Alphina|s:betana/gammana"},
    // Long ones: words move to where they fit.
    {"Alphina betana (deltoid with 2 or more)", "g:Alphina|s:betana|b:(deltoid with 2 or more)"},
    {"Alphina betana gammana (with very long main spines)",
        "g:Alphina|s:betana gammana|b:(with very long main spines)"},
    {"Alphina sp. of the uppermost sandy beds", "g:Alphina|s:sp. of the uppermost sandy|b:beds"},
    {"Alphina betana with a remark that is longer than two parts of a name",
        "g:Alphina|s:betana with a remark that is|b:longer than two parts of a |a:name",
        "Alphina betana with a remark that is longer than two parts of a name"},
    {"Alphina betana s.l. (with more than there is room for)",
        "g:Alphina|s:betana s.l. (with more than|b:there is room for)"},
    {"Alphinabetinagammadeltaepsilonzeta alba", "g:Alphinabetinagammadeltaepsilon|s:alba",
        "Alphinabetinagammadeltaepsilon alba"},
    // Marks that cannot stand together.
    {"Alphina cf. aff. betana", "g:Alphina|<s:cf. aff.|s:betana", nullptr, 7},
    {"Alphina \"betana", "g:Alphina|<s:\"|s:betana", nullptr, 7},
};

class WrittenName : public testing::TestWithParam<NameCase> {};

TEST_P(WrittenName, GoesIntoSlotsAndBack)
{
    const NameCase& c = GetParam();
    const NameReading reading = readName(c.written);
    EXPECT_EQ(c.slots, textOf(reading.taxon));
    EXPECT_EQ(c.fault, reading.fault);
    EXPECT_EQ(c.composed == nullptr, reading.exact);
    if (c.composed) {
        EXPECT_EQ(c.composed, composedName(reading.taxon, true));
    }
    if (c.fault == 0)
        return;
    const NameReading stored = storedName(c.written, partsOfName(c.written));
    EXPECT_EQ(c.fault, stored.fault);
    EXPECT_TRUE(stored.exact);
    EXPECT_EQ(c.written, composedName(stored.taxon)) << "its marks are in the names";
    EXPECT_FALSE(stored.taxon.has(slot::preSpecies));
}
INSTANTIATE_TEST_SUITE_P(Rules, WrittenName, testing::ValuesIn(kNames));

struct PartsCase {
    const char* rule;
    const char* written;
    NameParts parts;
    const char* slots;
    bool exact = true;
};
void PrintTo(const PartsCase& c, std::ostream* out) { *out << c.rule; }

NameParts parts(
    const char* genus, const char* species, const char* subspecies = "", const char* rest = "")
{
    NameParts result;
    result.genus = genus;
    result.species = species;
    result.subspecies = subspecies;
    result.rest = rest;
    return result;
}
NameParts marked(
    NameParts result, const char* genus, const char* species, const char* subspecies = "")
{
    result.genusMark = genus;
    result.speciesMark = species;
    result.subspeciesMark = subspecies;
    return result;
}

const PartsCase kParts[] = {
    {"a mark of the genus stands in front", "", marked(parts("Alphina", "alba"), "?", ""),
        "<g:?|g:Alphina|s:alba"},
    {"unless the name has it behind", "Alphina? alba", marked(parts("Alphina", "alba"), "?", ""),
        "g:Alphina|g>:?|s:alba"},
    {"a mark of the species", "", marked(parts("Alphina", "alba"), "", "cf."),
        "g:Alphina|<s:cf.|s:alba"},
    {"which may stand behind", "", marked(parts("Alphina", "alba", "", "dextral"), "", "s.l."),
        "g:Alphina|s:alba|s>:sl.|b:dextral", false},
    {"doubt about a species stands behind it", "", marked(parts("Alphina", "alba"), "", "?"),
        "g:Alphina|s:alba|s>:?", false},
    {"the text knows better", "Alphina ? alba", marked(parts("Alphina", "alba"), "", "?"),
        "g:Alphina|g>:?|s:alba"},
    {"doubt about a subspecies has no slot", "",
        marked(parts("Alphina", "alba", "minor"), "", "", "?"), "g:Alphina|s:alba|b:? minor"},
    {"nor has a form", "", marked(parts("Alphina", "alba", "minor"), "", "", "f."),
        "g:Alphina|s:alba|b:f. minor"},
    {"a variety has one", "", marked(parts("Alphina", "alba", "minor"), "", "", "var."),
        "g:Alphina|s:alba|<b:var.|b:minor"},
    {"a mark of the text in the place of a subspecies", "Alphina alba cf. A",
        parts("Alphina", "alba", "", "cf. A"), "g:Alphina|s:alba|<b:cf.|b:A"},
    {"a mark of the species in the rest", "Alphina alba grp.", parts("Alphina", "alba", "", "grp."),
        "g:Alphina|s:alba|s>:grp."},
    {"a rest in the place of the species", "Alphina cf. A. alba",
        marked(parts("Alphina", "", "", "A. alba"), "", "cf."), "g:Alphina|<s:cf.|s:A. alba"},
    {"a rest of which the split made nothing", "Alphina (?) sp. II",
        parts("Alphina", "", "", "(?) sp. II"), "g:Alphina|g>:?|s:sp. II", false},
    {"the label of an unnamed species", "", parts("Alphina", "sp.", "", "large"),
        "g:Alphina|s:sp. large"},
    {"quotation marks in a piece", "", parts("\"Forma T\"", ""), "<g:\"|g:Forma T|g>:\""},
    {"quotation marks of a remark", "", parts("Alphina", "spp.", "", "\"(old)\""),
        "g:Alphina|s:spp.|<b:\"|b:(old)|b>:\""},
    {"a piece that is nothing but a mark", "", parts("Alphina", "cf."), "g:Alphina|s:cf."},
    {"above the genus", "Alphinidae indet.", partsAboveGenus("Alphinidae indet."),
        "g:Alphinidae|s:indet."},
    {"above the genus, of several words", "\"Black woody stuff\"",
        partsAboveGenus("\"Black woody stuff\""), "<g:\"|g:Black woody stuff|g>:\""},
};

class NameInPieces : public testing::TestWithParam<PartsCase> {};

TEST_P(NameInPieces, GoesIntoSlots)
{
    const PartsCase& c = GetParam();
    const NameReading stored = storedName(c.written, c.parts);
    EXPECT_EQ(c.slots, textOf(stored.taxon));
    EXPECT_EQ(c.exact, stored.exact);
    EXPECT_EQ(0, stored.fault);
}
INSTANTIATE_TEST_SUITE_P(Rules, NameInPieces, testing::ValuesIn(kParts));

TEST(NameOfParts, IsWrittenInOrder)
{
    NameParts all = marked(parts("Alphina", "alba", "minor", "large"), "?", "cf.", "var.");
    all.subgenus = "Deltina";
    EXPECT_EQ("? Alphina (Deltina) cf. alba var. minor large", nameOfParts(all));
    all.speciesMark = "s.l.";
    EXPECT_EQ("? Alphina (Deltina) alba s.l. var. minor large", nameOfParts(all));
}

struct ItalicsCase {
    const char* marked;
    const char* text;
    const char* terminal;
};
const ItalicsCase kItalics[] = {
    {"cf. \\Alphina alba  \\Gamma 1901", "cf. _Alphina alba_  Gamma 1901",
        "cf. \x1B[3mAlphina alba\x1B[23m  Gamma 1901"},
    {"\\Alphina alba", "_Alphina alba_", "\x1B[3mAlphina alba\x1B[23m"},
    {"\\Alphina \\sp. ", "_Alphina_ sp.", "\x1B[3mAlphina\x1B[23m sp."},
};
TEST(Italics, EndBeforeBlanks)
{
    for (const auto& [text, plain, terminal] : kItalics) {
        EXPECT_EQ(plain, withItalics(text, false));
        EXPECT_EQ(terminal, withItalics(text, true));
    }
}

} // namespace

// tests/app/import/dictionary/TaxonNameTest.cpp
#include "app/import/TaxonName.h"

#include "app/batch/TaxonCommands.h"

#include <ostream>

#include <gtest/gtest.h>

namespace {

// The slots that are not empty, by their numbers, then the year.
std::string slotsOf(const Taxon& taxon)
{
    std::string text;
    for (int number = 0; number < slot::count; ++number)
        if (taxon.has(number))
            text += (text.empty() ? "" : "|") + std::to_string(number) + '=' + taxon.field(number);
    return taxon.year != 0 ? text + "|year=" + std::to_string(taxon.year) : text;
}

struct NameCase {
    const char* written;
    const char* slots;
    const char* composed = nullptr; // where it is not as written
    int fault = 0;
};
void PrintTo(const NameCase& c, std::ostream* out) { *out << c.written; }

const NameCase kNames[] = {
    {"Alphina betana", "2=Alphina|8=betana"},
    {"Alphina betana minor", "2=Alphina|8=betana|11=minor"},
    {"  Alphina   betana ", "2=Alphina|8=betana"},
    // Without a species, and species without a name.
    {"Alphina", "2=Alphina"},
    {"Alphina sp.", "2=Alphina|8=sp."},
    {"Alphina sp", "2=Alphina|8=sp"},
    {"Alphina sp.1", "2=Alphina|8=sp.1"},
    {"Alphina sp. 1 (long, thin)", "2=Alphina|8=sp. 1 (long, thin)"},
    {"Alphina sp. group A", "2=Alphina|8=sp. group A"},
    {"Alphina sp. group", "2=Alphina|8=sp. group"},
    {"Alphina sp. \"TS\"", "2=Alphina|8=sp. \"TS\""},
    {"Alphina sp. ?", "2=Alphina|8=sp.|9=?"},
    {"Alphina sp. cf. A. betana", "2=Alphina|8=sp. cf. A. betana"},
    {"Alphina spp. (small)", "2=Alphina|8=spp.|11=(small)"},
    {"Alphina (small)", "2=Alphina|8=(small)"},
    {"Alphinidae indet.", "2=Alphinidae|8=indet."},
    // Subgenera.
    {"Alphina (Deltina) betana", "2=Alphina|5=Deltina|8=betana"},
    {"Alphina (Deltina)", "2=Alphina|8=(Deltina)"},
    {"Alphina (or: Deltina) betana", "2=Alphina|8=(or: Deltina) betana"},
    // Marks in front.
    {"cf. Alphina betana", "1=cf.|2=Alphina|8=betana"},
    {"? Alphina betana", "1=?|2=Alphina|8=betana"},
    {"?Alphina betana", "1=?|2=Alphina|8=betana"},
    {"Alphina cf. betana", "2=Alphina|7=cf.|8=betana"},
    {"Alphina cf betana", "2=Alphina|7=cf.|8=betana", "Alphina cf. betana"},
    {"Alphina aff. B. betana", "2=Alphina|7=aff.|8=B. betana"},
    {"Alphina betana cf . A", "2=Alphina|8=betana|10=cf.|11=A"},
    {"Alphina betana var. minor", "2=Alphina|8=betana|10=var.|11=minor"},
    {"Alphina betana var minor", "2=Alphina|8=betana|10=var.|11=minor",
        "Alphina betana var. minor"},
    {"Alphina ?betana", "2=Alphina|8=betana|9=?", "Alphina betana?"},
    {"Alphina betana f. minor", "2=Alphina|8=betana|11=f. minor"},
    {"Alphina ex gr. betana", "2=Alphina|8=ex|11=gr. betana"},
    // Marks behind.
    {"Alphina? betana", "2=Alphina|3=?|8=betana"},
    {"Alphina ? betana", "2=Alphina|3=?|8=betana"},
    {"Alphina (?) betana", "2=Alphina|3=?|8=betana", "Alphina? betana"},
    {"Alphina?", "2=Alphina|3=?"},
    {"Alphina betana?", "2=Alphina|8=betana|9=?"},
    {"Alphina betana minor?", "2=Alphina|8=betana|11=minor?"},
    {"Alphina betana s.l.", "2=Alphina|8=betana|9=sl.", "Alphina betana sl."},
    {"Alphina betana sensu lato (big)", "2=Alphina|8=betana|9=sl.|11=(big)",
        "Alphina betana sl. (big)"},
    {"Alphina betana s.str.", "2=Alphina|8=betana|9=ss.", "Alphina betana ss."},
    {"Alphina betana minor s.s.", "2=Alphina|8=betana|11=minor|12=ss.", "Alphina betana minor ss."},
    {"Alphina betana group", "2=Alphina|8=betana|9=grp.", "Alphina betana grp."},
    {"Alphina betana group A", "2=Alphina|8=betana|11=group A"},
    {"Alphina betana grp.", "2=Alphina|8=betana|9=grp."},
    {"Alphina betana-group", "2=Alphina|8=betana-group"},
    // Quotation marks.
    {"\"Alphina\" betana", "1=\"|2=Alphina|3=\"|8=betana"},
    {"Alphina \"betana\"", "2=Alphina|7=\"|8=betana|9=\""},
    {"\"Alphina betana\"", "1=\"|2=Alphina|8=betana|9=\""},
    {"Alphina 'betana'", "2=Alphina|7=\"|8=betana|9=\"", "Alphina \"betana\""},
    {"Alphina d'orbignyi", "2=Alphina|8=d'orbignyi"},
    // Authors.
    {"Alphina betana Gamma 1901", "2=Alphina|8=betana|13=Gamma|year=1901"},
    {"Alphina betana d'Orbigny, 1826", "2=Alphina|8=betana|13=d'Orbigny,|year=1826"},
    {"Alphina betana (de Man & Eta, 1990)", "2=Alphina|8=betana|13=(de Man & Eta, 1990)"},
    {"Alphina betana minor de Man 1884", "2=Alphina|8=betana|11=minor|13=de Man|year=1884"},
    {"Alphina betana (Gamma)", "2=Alphina|8=betana|11=(Gamma)"},
    {"Alphina betana 1200 m", "2=Alphina|8=betana|11=1200 m"},
    {"Alphina betana sensu Gamma", "2=Alphina|8=betana|9=sensu|13=Gamma"},
    {"Alphina sp. D sensu Eta et al 2007", "2=Alphina|8=sp. D|9=sensu|13=Eta et al|year=2007"},
    // Letters.
    {"Ørnella åsensis", "2=Ørnella|8=åsensis"},
    {"Alphina betana (<5µm)", "2=Alphina|8=betana|11=(<5µm)"},
    {"Alphina|Betina spp.", "2=Alphina|Betina|8=spp."},
    {"Alphina betana/gammana", "2=Alphina|8=betana/gammana"},
    // Long ones: words move to where they fit.
    {"Alphina betana (deltoid with 2 or more)", "2=Alphina|8=betana|11=(deltoid with 2 or more)"},
    {"Alphina betana gammana (with very long main spines)",
        "2=Alphina|8=betana gammana|11=(with very long main spines)"},
    {"Alphina sp. of the uppermost sandy beds", "2=Alphina|8=sp. of the uppermost sandy|11=beds"},
    {"Alphina betana with a remark that is longer than two parts of a name",
        "2=Alphina|8=betana with a remark that is|11=longer than two parts of a |13=name",
        "Alphina betana with a remark that is longer than two parts of a name"},
    {"Alphinabetinagammadeltaepsilonzeta alba", "2=Alphinabetinagammadeltaepsilon|8=alba",
        "Alphinabetinagammadeltaepsilon alba"},
    // Marks that cannot stand together.
    {"Alphina cf. aff. betana", "2=Alphina|7=cf. aff.|8=betana", nullptr, 7},
    {"Alphina \"betana", "2=Alphina|7=\"|8=betana", nullptr, 7},
};

class WrittenName : public testing::TestWithParam<NameCase> {};

TEST_P(WrittenName, GoesIntoSlotsAndBack)
{
    const NameCase& c = GetParam();
    const NameReading reading = readName(c.written);
    EXPECT_EQ(c.slots, slotsOf(reading.taxon));
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
        "1=?|2=Alphina|8=alba"},
    {"unless the name has it behind", "Alphina? alba", marked(parts("Alphina", "alba"), "?", ""),
        "2=Alphina|3=?|8=alba"},
    {"a mark of the species", "", marked(parts("Alphina", "alba"), "", "cf."),
        "2=Alphina|7=cf.|8=alba"},
    {"which may stand behind", "", marked(parts("Alphina", "alba", "", "dextral"), "", "s.l."),
        "2=Alphina|8=alba|9=sl.|11=dextral", false},
    {"doubt about a species stands behind it", "", marked(parts("Alphina", "alba"), "", "?"),
        "2=Alphina|8=alba|9=?", false},
    {"the text knows better", "Alphina ? alba", marked(parts("Alphina", "alba"), "", "?"),
        "2=Alphina|3=?|8=alba"},
    {"doubt about a subspecies has no slot", "",
        marked(parts("Alphina", "alba", "minor"), "", "", "?"), "2=Alphina|8=alba|11=? minor"},
    {"nor has a form", "", marked(parts("Alphina", "alba", "minor"), "", "", "f."),
        "2=Alphina|8=alba|11=f. minor"},
    {"a variety has one", "", marked(parts("Alphina", "alba", "minor"), "", "", "var."),
        "2=Alphina|8=alba|10=var.|11=minor"},
    {"a mark of the text in the place of a subspecies", "Alphina alba cf. A",
        parts("Alphina", "alba", "", "cf. A"), "2=Alphina|8=alba|10=cf.|11=A"},
    {"a mark of the species in the rest", "Alphina alba grp.", parts("Alphina", "alba", "", "grp."),
        "2=Alphina|8=alba|9=grp."},
    {"a rest in the place of the species", "Alphina cf. A. alba",
        marked(parts("Alphina", "", "", "A. alba"), "", "cf."), "2=Alphina|7=cf.|8=A. alba"},
    {"a rest of which the split made nothing", "Alphina (?) sp. II",
        parts("Alphina", "", "", "(?) sp. II"), "2=Alphina|3=?|8=sp. II", false},
    {"the label of an unnamed species", "", parts("Alphina", "sp.", "", "large"),
        "2=Alphina|8=sp. large"},
    {"quotation marks in a piece", "", parts("\"Forma T\"", ""), "1=\"|2=Forma T|3=\""},
    {"quotation marks of a remark", "", parts("Alphina", "spp.", "", "\"(old)\""),
        "2=Alphina|8=spp.|10=\"|11=(old)|12=\""},
    {"a piece that is nothing but a mark", "", parts("Alphina", "cf."), "2=Alphina|8=cf."},
    {"above the genus", "Alphinidae indet.", partsAboveGenus("Alphinidae indet."),
        "2=Alphinidae|8=indet."},
    {"above the genus, of several words", "\"Black woody stuff\"",
        partsAboveGenus("\"Black woody stuff\""), "1=\"|2=Black woody stuff|3=\""},
};

class NameInPieces : public testing::TestWithParam<PartsCase> {};

TEST_P(NameInPieces, GoesIntoSlots)
{
    const PartsCase& c = GetParam();
    const NameReading stored = storedName(c.written, c.parts);
    EXPECT_EQ(c.slots, slotsOf(stored.taxon));
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

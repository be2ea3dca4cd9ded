// tests/taxonomy/TaxonDisplayTest.cpp
#include "tests/support/Restore.h"
#include "tests/taxonomy/TaxonOf.h"

#include <ostream>

#include <gtest/gtest.h>

using namespace slot;

namespace {

struct DisplayCase {
    const char* name;
    Slots slots;
    short year;
    int showAuthor, italicMarks, abbreviateGenus;
    std::string shown;
};
void PrintTo(const DisplayCase& c, std::ostream* out) { *out << c.name; }

const Slots kPlain = {{genus, "Alphina"}, {species, "betana"}, {author, "Gamma"}};
const Slots kUndetermined = {{genus, "Alphina"}, {species, "sp. A"}};
const Slots kQuoted = {
    {genus, "Alphina"}, {preSpecies, "\""}, {species, "betana"}, {postSpecies, "\""}};

Slots with(Slots slots, const Slots& more)
{
    slots.insert(slots.end(), more.begin(), more.end());
    return slots;
}

const DisplayCase kDisplay[] = {
    {"genus and species", kPlain, 1901, 0, 0, 0, "Alphina betana"},
    {"author and year", kPlain, 1901, 1, 0, 0, "Alphina betana  Gamma 1901"},
    {"no year", kPlain, 0, 1, 0, 0, "Alphina betana  Gamma"},
    {"italics", kPlain, 1901, 1, 1, 0, R"(\Alphina betana  \Gamma 1901)"},
    {"italics, no author text", {{genus, "Alphina"}}, 1901, 1, 1, 0, R"(\Alphina  \ 1901)"},
    {"abbreviated", kPlain, 0, 0, 0, 1, "A. betana"},
    {"a letter is a character", {{genus, "Ørstedia"}, {species, "bø"}}, 0, 0, 0, 1, "Ø. bø"},
    {"a group of species is not", {{genus, "Alphina"}, {species, "spp."}}, 0, 0, 0, 1,
        "Alphina spp."},
    {"near miss of the group", {{genus, "Alphina"}, {species, "spp. A"}}, 0, 0, 0, 1, "A. spp. A"},
    {"in front: shows the author", with(kPlain, {{preGenus, "cf."}}), 1901, 0, 0, 0,
        "cf. Alphina betana  Gamma 1901"},
    {"in front of the subspecies", with(kPlain, {{preSubspecies, "var."}, {subspecies, "minor"}}),
        1901, 0, 1, 0, R"(\Alphina betana \var. \minor  \Gamma 1901)"},
    {"lower case", with(kPlain, {{preSpecies, "AFF."}}), 0, 0, 0, 0, "Alphina aff. betana  Gamma"},
    {"mark in front stands close", with(kPlain, {{preGenus, "?"}}), 0, 0, 0, 0,
        "?Alphina betana  Gamma"},
    {"mark behind stands close", with(kPlain, {{postGenus, "?"}}), 0, 0, 0, 0, "Alphina? betana"},
    {"word behind stands off", with(kPlain, {{postGenus, "grp."}}), 0, 0, 1, 0,
        R"(\Alphina \grp. \betana)"},
    {"quoted", kQuoted, 0, 0, 0, 0, R"(Alphina "betana")"},
    {"quoted, italics", kQuoted, 0, 0, 1, 0, R"(\Alphina \"\betana\")"},
    {"sensu shows the author", with(kPlain, {{postSpecies, "Sensu"}}), 1901, 0, 0, 0,
        "Alphina betana sensu  Gamma 1901"},
    {"sensu behind the genus does not", with(kPlain, {{postGenus, "sensu"}}), 1901, 0, 0, 0,
        "Alphina sensu betana"},
    {"subgenus", with(kPlain, {{subgenus, "Deltina"}}), 0, 0, 0, 0, "Alphina (Deltina) betana"},
    {"subgenus alone, italics", {{subgenus, "Deltina"}}, 0, 0, 1, 0, R"(\(Deltina))"},
    {"subspecies", with(kPlain, {{subspecies, "minor"}}), 0, 0, 1, 0, R"(\Alphina betana minor)"},
    {"undetermined", kUndetermined, 0, 0, 0, 0, "Alphina sp. A"},
    {"undetermined is upright", kUndetermined, 0, 0, 1, 0, R"(\Alphina \sp. A)"},
    {"near miss of sp.", {{genus, "Alphina"}, {species, "sparsa"}}, 0, 0, 1, 0,
        R"(\Alphina sparsa)"},
    {"the category is not shown", with(kPlain, {{category, "FORAM"}}), 0, 0, 0, 0,
        "Alphina betana"},
    {"trailing blanks of a part", {{genus, "Alphina  "}, {species, "betana "}}, 0, 0, 0, 0,
        "Alphina betana"},
    {"no name but an author", {{author, "Gamma"}}, 0, 1, 0, 0, " Gamma"},
    {"qualifiers without a part", {{postGenus, "?"}, {species, "betana"}}, 0, 0, 0, 0, "?betana"},
};

class Display : public testing::TestWithParam<DisplayCase> {};
TEST_P(Display, Name)
{
    const DisplayCase& c = GetParam();
    Taxon taxon = taxonOf(c.slots, c.year);
    EXPECT_EQ(c.shown, taxon.displayName(c.showAuthor, c.italicMarks, c.abbreviateGenus, 0));
}
INSTANTIATE_TEST_SUITE_P(Rules, Display, testing::ValuesIn(kDisplay));

TEST(Display, PlaceholdersOfAnEmptyName)
{
    Taxon taxon;
    EXPECT_STREQ("*** No taxon defined ***", taxon.displayName(0, 0, 0, 0));
    taxon.donor_id = 7;
    EXPECT_STREQ("*** No donor taxon for donor id: 7 ***", taxon.displayName(0, 0, 0, 0));
    taxon.setSpecId(123);
    EXPECT_STREQ("*** No taxon in database for id: 123 ***", taxon.displayName(0, 0, 0, 0));
    taxon.setField(category, "FORAM");
    EXPECT_STREQ("*** No taxon in database for id: 123 ***", taxon.displayName(1, 1, 0, 0));
}

TEST(Display, CodeInFront)
{
    const Restore on(showTaxonCodes, 1);
    Taxon taxon = taxonOf(kPlain);
    taxon.ccode = 1;
    taxon.sipm_code = 12345;
    EXPECT_STREQ("2345 Alphina betana", taxon.displayName(0, 0, 0, 1));
    EXPECT_STREQ("Alphina betana", taxon.displayName(0, 0, 0, 0));
    taxon.sipm_code = 123456789;
    EXPECT_STREQ("56789 Alphina betana", taxon.displayName(0, 0, 0, 1));
    clearShowTaxonCodes();
    EXPECT_STREQ("Alphina betana", taxon.displayName(0, 0, 0, 1));
}

TEST(Display, LongestNameEndsAtACharacter)
{
    Taxon taxon;
    for (int number = preGenus; number < slot::author; ++number)
        taxon.setField(number, std::string(40, 'x')); // cut to 8 and 30
    std::string name = "x";
    for (int i = 0; i < 39; ++i)
        name += "é";
    taxon.setField(slot::author, name);
    const std::string shown = taxon.displayName(1, 0, 0, 0);
    // 199 bytes in front of the author, then room for x and 27 characters of two bytes.
    EXPECT_EQ(199U + 55U, shown.size());
    EXPECT_EQ(name.substr(0, 55), shown.substr(199));
}

struct ShortCase {
    const char* name;
    Slots slots;
    int maxLen;
    const char* shown;
};
void PrintTo(const ShortCase& c, std::ostream* out) { *out << c.name; }

const ShortCase kShort[] = {
    {"fits", kPlain, 14, "Alphina betana"},
    {"does not fit", kPlain, 13, "A.betana"},
    {"species cut", kPlain, 5, "A.bet"},
    {"nothing left for the species", kPlain, 2, "A."},
    {"what stands in front is not cut", with(kPlain, {{preGenus, "cf."}, {preSpecies, "aff."}}), 1,
        "cf.A.aff."},
    {"negative", kPlain, -1, "A."},
    {"a group keeps its genus", {{preGenus, "?"}, {genus, "Alphina"}, {species, "spp."}}, 5,
        "?Alph"},
    {"no genus", {{species, "betanalonga"}}, 5, ".beta"},
    {"letters of two bytes", {{genus, "Øa"}, {species, "béta"}}, 5, "Ø.b"},
    {"no room for half a letter", {{genus, "Øa"}, {species, "béta"}}, 6, "Ø.bé"},
};

class ShortName : public testing::TestWithParam<ShortCase> {};
TEST_P(ShortName, Length)
{
    Taxon taxon = taxonOf(GetParam().slots);
    EXPECT_STREQ(GetParam().shown, taxon.shortName(GetParam().maxLen));
}
INSTANTIATE_TEST_SUITE_P(Rules, ShortName, testing::ValuesIn(kShort));

TEST(ShortName, HasATextOfItsOwnAndOverwritesTheDisplayName)
{
    Taxon a = taxonOf({{genus, "Alphina"}, {species, "betana"}});
    Taxon b = taxonOf({{genus, "Betina"}, {species, "gammana"}});
    const char* shortName = a.shortName(5);
    std::string shown = b.displayName(0, 0, 0, 0);
    EXPECT_STREQ("A.bet", shortName);
    EXPECT_STREQ("B.gam", b.shortName(5));
    EXPECT_EQ("Betina gammana", shown);
}

struct AuthorCase {
    const char* name;
    Slots slots;
    short year;
    int always;
    const char* text;
};
void PrintTo(const AuthorCase& c, std::ostream* out) { *out << c.name; }

const AuthorCase kAuthors[] = {
    {"author and year", {{author, "Gamma"}}, 1990, 0, " Gamma 1990"},
    {"no year keeps the blank", {{author, "Gamma"}}, 0, 0, " Gamma "},
    {"no author", {}, 1990, 0, "1990"},
    {"early year", {{author, "Gamma"}}, 99, 0, " Gamma   99"},
    {"nothing", {}, 0, 1, ""},
    {"qualifier in front", {{preSubspecies, "cf."}, {author, "Gamma"}}, 1990, 0, ""},
    {"qualifier in front, always", {{preGenus, "cf."}, {author, "Gamma"}}, 1990, 1, " Gamma 1990"},
    {"qualifier behind", {{postSpecies, "ss."}, {author, "Gamma"}}, 1990, 0, " Gamma 1990"},
};

class AuthorYear : public testing::TestWithParam<AuthorCase> {};
TEST_P(AuthorYear, Text)
{
    char text[88];
    taxonOf(GetParam().slots, GetParam().year).authorYearText(text, GetParam().always);
    EXPECT_STREQ(GetParam().text, text);
}
INSTANTIATE_TEST_SUITE_P(Rules, AuthorYear, testing::ValuesIn(kAuthors));

} // namespace

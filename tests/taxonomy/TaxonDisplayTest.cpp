// tests/taxonomy/TaxonDisplayTest.cpp
#include "tests/support/Restore.h"
#include "tests/taxonomy/TaxonOf.h"

#include <gtest/gtest.h>

namespace {

const std::string kPlain = "c:FORAM|g:Alphina|s:betana|a:Gamma";
const std::string kQuoted = "g:Alphina|<s:\"|s:betana|s>:\"";

TEST(DisplayName, IsComposed)
{
    const struct {
        const char* name;
        std::string slots;
        short year;
        const char* how; // with the author, with italic marks, with an abbreviated genus
        const char* shown;
    } kCases[] = {
        {"without author", kPlain, 1901, "", "Alphina betana"},
        {"author and year", kPlain, 1901, "a", "Alphina betana  Gamma 1901"},
        {"italics", kPlain, 1901, "ai", R"(\Alphina betana  \Gamma 1901)"},
        {"italics, no author text", "g:Alphina", 1901, "ai", R"(\Alphina  \ 1901)"},
        {"a letter is a character", "g:Ørstedia|s:bø", 0, "g", "Ø. bø"},
        {"a group of species is not abbreviated", "g:Alphina|s:spp.", 0, "g", "Alphina spp."},
        {"near miss of the group", "g:Alphina|s:spp. A", 0, "g", "A. spp. A"},
        {"in front of the subspecies", kPlain + "|<b:var.|b:minor", 1901, "i",
            R"(\Alphina betana \var. \minor  \Gamma 1901)"},
        {"lower case", kPlain + "|<s:AFF.", 0, "", "Alphina aff. betana  Gamma"},
        {"mark in front stands close", kPlain + "|<g:?", 0, "", "?Alphina betana  Gamma"},
        {"mark behind stands close", kPlain + "|g>:?", 0, "", "Alphina? betana"},
        {"word behind stands off", kPlain + "|g>:grp.", 0, "i", R"(\Alphina \grp. \betana)"},
        {"quoted", kQuoted, 0, "", R"(Alphina "betana")"},
        {"quoted, italics", kQuoted, 0, "i", R"(\Alphina \"\betana\")"},
        {"sensu shows the author", kPlain + "|s>:Sensu", 0, "", "Alphina betana sensu  Gamma"},
        {"but not behind the genus", kPlain + "|g>:sensu", 0, "", "Alphina sensu betana"},
        {"subgenus", kPlain + "|u:Deltina", 0, "", "Alphina (Deltina) betana"},
        {"subgenus alone, italics", "u:Deltina", 0, "i", R"(\(Deltina))"},
        {"subspecies", kPlain + "|b:minor", 0, "i", R"(\Alphina betana minor)"},
        {"undetermined is upright", "g:Alphina|s:sp. A", 0, "i", R"(\Alphina \sp. A)"},
        {"near miss of sp.", "g:Alphina|s:sparsa", 0, "i", R"(\Alphina sparsa)"},
        {"trailing blanks of a part", "g:Alphina  |s:betana ", 0, "", "Alphina betana"},
        {"no name but an author", "a:Gamma", 0, "a", " Gamma"},
        {"qualifiers without a part", "g>:?|s:betana", 0, "", "?betana"},
    };
    for (const auto& c : kCases) {
        Taxon taxon = taxonOf(c.slots, c.year);
        const std::string how = c.how;
        const auto asked = [&how](char letter) { return how.find(letter) != std::string::npos; };
        EXPECT_STREQ(c.shown, taxon.displayName(asked('a'), asked('i'), asked('g'), 0)) << c.name;
    }
}

TEST(DisplayName, PlaceholdersOfAnEmptyName)
{
    Taxon taxon;
    EXPECT_STREQ("*** No taxon defined ***", taxon.displayName(0, 0, 0, 0));
    taxon.donor_id = 7;
    EXPECT_STREQ("*** No donor taxon for donor id: 7 ***", taxon.displayName(0, 0, 0, 0));
    taxon.setSpecId(123);
    taxon.setField(slot::category, "FORAM");
    EXPECT_STREQ("*** No taxon in database for id: 123 ***", taxon.displayName(1, 1, 0, 0));
}

TEST(DisplayName, CodeInFront)
{
    const Restore on(showTaxonCodes, 1);
    Taxon taxon = taxonOf(kPlain);
    taxon.ccode = 1;
    for (const auto& [code, inFront] : {std::pair{12345L, "2345 "}, {123456789L, "56789 "}}) {
        taxon.sipm_code = code;
        EXPECT_EQ(std::string(inFront) + "Alphina betana", taxon.displayName(0, 0, 0, 1));
        EXPECT_STREQ("Alphina betana", taxon.displayName(0, 0, 0, 0));
    }
    clearShowTaxonCodes();
    EXPECT_STREQ("Alphina betana", taxon.displayName(0, 0, 0, 1));
}

TEST(DisplayName, LongestEndsAtACharacter)
{
    Taxon taxon;
    for (int number = slot::preGenus; number < slot::author; ++number)
        taxon.setField(number, std::string(40, 'x')); // cut to 8 and 30
    std::string name = "x";
    for (int i = 0; i < 39; ++i)
        name += "é";
    taxon.setField(slot::author, name);
    // 199 bytes in front of the author, then room for x and 27 characters of two bytes.
    EXPECT_EQ(name.substr(0, 55), std::string(taxon.displayName(1, 0, 0, 0)).substr(199));
}

TEST(ShortName, IsCutAtTheSpecies)
{
    const struct {
        const char* name;
        std::string slots;
        int maxLen;
        const char* shown;
    } kCases[] = {
        {"fits", kPlain, 14, "Alphina betana"},
        {"does not fit", kPlain, 13, "A.betana"},
        {"species cut", kPlain, 5, "A.bet"},
        {"negative", kPlain, -1, "A."},
        {"what stands in front is not cut", kPlain + "|<g:cf.|<s:aff.", 1, "cf.A.aff."},
        {"a group keeps its genus", "<g:?|g:Alphina|s:spp.", 5, "?Alph"},
        {"no genus", "s:betanalonga", 5, ".beta"},
        {"no room for half a letter", "g:Øa|s:béta", 5, "Ø.b"},
        {"room for both halves", "g:Øa|s:béta", 6, "Ø.bé"},
    };
    for (const auto& c : kCases)
        EXPECT_STREQ(c.shown, taxonOf(c.slots).shortName(c.maxLen)) << c.name;
}

TEST(AuthorYear, Text)
{
    const struct {
        const char* name;
        std::string slots;
        short year;
        int always;
        const char* text;
    } kCases[] = {
        {"no year keeps the blank", "a:Gamma", 0, 0, " Gamma "},
        {"no author", "", 1990, 0, "1990"},
        {"early year", "a:Gamma", 99, 0, " Gamma   99"},
        {"nothing", "", 0, 1, ""},
        {"qualifier in front", "<b:cf.|a:Gamma", 1990, 0, ""},
        {"qualifier in front, always", "<g:cf.|a:Gamma", 1990, 1, " Gamma 1990"},
        {"qualifier behind", "s>:ss.|a:Gamma", 1990, 0, " Gamma 1990"},
    };
    for (const auto& c : kCases) {
        char text[88];
        taxonOf(c.slots, c.year).authorYearText(text, c.always);
        EXPECT_STREQ(c.text, text) << c.name;
    }
}

} // namespace

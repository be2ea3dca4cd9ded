// tests/taxonomy/TaxonQualifierTest.cpp
#include "tests/taxonomy/TaxonOf.h"

#include <algorithm>
#include <ostream>

#include <gtest/gtest.h>

using namespace slot;

namespace {

struct ConflictCase {
    int number;
    std::vector<std::string> exclusive;
    std::string marks;
};
void PrintTo(const ConflictCase& c, std::ostream* out) { *out << "slot " << c.number; }

const ConflictCase kConflicts[] = {
    {preGenus, {"cf.", "aff."}, "? \""},
    {postGenus, {"grp.", "ss.", "sl."}, "? \""},
    {preSubgenus, {"cf.", "aff."}, "\""},
    {postSubgenus, {"grp.", "ss.", "sl."}, "? \""},
    {preSpecies, {"cf.", "aff."}, "\""},
    {postSpecies, {"grp.", "ss.", "sl.", "sensu"}, "? \""},
    {preSubspecies, {"cf.", "aff.", "var."}, "\""},
    {postSubspecies, {"ss.", "sl.", "sensu"}, "\""},
};

int normalise(int number, const std::string& text, std::string* normalised)
{
    Taxon taxon = taxonOf({{number, text}});
    const int faulty = taxon.normaliseQualifiers();
    *normalised = taxon.field(number);
    return faulty;
}

class SlotWords : public testing::TestWithParam<ConflictCase> {};

TEST_P(SlotWords, OthersDisappear)
{
    const auto& [number, exclusive, marks] = GetParam();
    for (const char* word : {"?", "\"", "cf.", "aff.", "grp.", "ss.", "sl.", "sensu", "var."}) {
        const bool accepted = marks.find(word) != std::string::npos
            || std::find(exclusive.begin(), exclusive.end(), word) != exclusive.end();
        std::string normalised;
        EXPECT_EQ(0, normalise(number, word, &normalised));
        EXPECT_EQ(accepted ? word : "", normalised) << word;
    }
}

TEST_P(SlotWords, TwoExclusiveOnesAreAFault)
{
    const auto& [number, exclusive, marks] = GetParam();
    for (const std::string& a : exclusive) {
        for (const std::string& b : exclusive) {
            const std::string both = (a + b).substr(0, 8);
            if (a == b || both.find(b) == std::string::npos)
                continue;
            std::string normalised;
            EXPECT_EQ(number, normalise(number, both, &normalised)) << both;
            EXPECT_EQ(both, normalised) << "left as it was";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Slots, SlotWords, testing::ValuesIn(kConflicts));

struct NormaliseCase {
    const char* name;
    int number;
    const char* text;
    const char* normalised;
};
void PrintTo(const NormaliseCase& c, std::ostream* out) { *out << c.name; }

const NormaliseCase kNormalise[] = {
    {"written order", postSpecies, "ss. ?", "? ss."},
    {"all that go together, in front", preGenus, "\"aff.?", "? aff. \""},
    {"in front of the subspecies the quote precedes", preSubspecies, "var.\"", "\" var."},
    {"found inside other text", postGenus, "xss.x", "ss."},
    {"twice the same is one", preGenus, "cf. cf.", "cf."},
    {"letter case counts", preGenus, "CF.", ""},
    {"unknown text", preGenus, "near", ""},
    {"longer than the slot", postSpecies, "?\" sensu", "? \" sens"},
};

class Normalise : public testing::TestWithParam<NormaliseCase> {};
TEST_P(Normalise, Words)
{
    std::string normalised;
    EXPECT_EQ(0, normalise(GetParam().number, GetParam().text, &normalised));
    EXPECT_EQ(GetParam().normalised, normalised);
}
INSTANTIATE_TEST_SUITE_P(Rules, Normalise, testing::ValuesIn(kNormalise));

TEST(Normalise, StopsAtTheFaultAndLeavesNamesAlone)
{
    Taxon taxon = taxonOf({{preGenus, "x"}, {genus, "cf."}, {postGenus, "ss. sl."},
        {preSpecies, "x"}, {author, "sensu aff."}});
    EXPECT_EQ(postGenus, taxon.normaliseQualifiers());
    EXPECT_EQ(
        (Slots{{genus, "cf."}, {postGenus, "ss. sl."}, {preSpecies, "x"}, {author, "sensu aff."}}),
        slotsOf(taxon));
}

struct CheckCase {
    const char* name;
    Slots slots;
    int faulty;
};
void PrintTo(const CheckCase& c, std::ostream* out) { *out << c.name; }

const CheckCase kChecks[] = {
    {"nothing", {}, 0},
    {"two exclusive words", {{preSubspecies, "cf.var."}, {postGenus, "\""}}, preSubspecies},
    {"opened and closed", {{preGenus, "\""}, {postGenus, "\""}}, 0},
    {"around the whole name", {{preGenus, "\""}, {postSubspecies, "\""}}, 0},
    {"not closed", {{preSpecies, "\""}}, preSpecies},
    {"not opened", {{postSpecies, "\""}}, postSpecies},
    {"opened twice", {{preGenus, "\""}, {preSpecies, "\""}, {postSpecies, "\""}}, preSpecies},
    {"closed twice", {{preGenus, "\""}, {postGenus, "\""}, {postSpecies, "\""}}, postSpecies},
    {"a second pair", {{preGenus, "\""}, {postGenus, "\""}, {preSpecies, "\""}}, preSpecies},
    {"quote in a name is none", {{genus, "\""}}, 0},
    {"three question marks", {{preGenus, "?"}, {postGenus, "?"}, {postSubgenus, "?"}}, 0},
    {"four question marks",
        {{preGenus, "?"}, {postGenus, "?"}, {postSubgenus, "?"}, {postSpecies, "?"}}, postSpecies},
    {"one that the slot does not accept",
        {{preGenus, "?"}, {postGenus, "?"}, {postSubgenus, "?"}, {preSpecies, "?"}}, 0},
    {"quotes come first",
        {{preGenus, "?\""}, {postGenus, "?"}, {postSubgenus, "?"}, {postSpecies, "?"}}, preGenus},
};

class Check : public testing::TestWithParam<CheckCase> {};
TEST_P(Check, Qualifiers)
{
    EXPECT_EQ(GetParam().faulty, taxonOf(GetParam().slots).checkQualifiers());
}
INSTANTIATE_TEST_SUITE_P(Rules, Check, testing::ValuesIn(kChecks));

} // namespace

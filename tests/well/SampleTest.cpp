// tests/well/SampleTest.cpp
#include "well/Sample.h"
#include "db/CurrentUser.h"
#include "tests/support/Restore.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace {

struct TypeCase {
    const char* text;
    const char* entered; // code of a new sample
    const char* stored;  // code of a sample from its row
    long bit;            // of the entered one
    long bitOfText;      // of the text taken as a code
};
void PrintTo(const TypeCase& c, std::ostream* out) { *out << '"' << (c.text ? c.text : "") << '"'; }

const TypeCase kTypes[] = {
    {"CU", "CU", "CU", 1, 1},
    {"SC", "SC", "SC", 2, 2},
    {"CO", "CO", "CO", 4, 4},
    {"OC", "OC", "OC", 8, 8},
    {"LOG", "LOG", "LOG", 16, 16},
    {"log", "LOG", "LOG", 16, 1},
    {"swc", "SC", "CU", 2, 1},
    {"ddc", "CU", "CU", 1, 1},
    {"WDC", "CU", "CU", 1, 1},
    {"COTS", "CO", "CU", 4, 1},
    {"coral", "CO", "CU", 4, 1},
    {"C", "CU", "CU", 1, 1},
    {"XY", "CU", "CU", 1, 1},
    {"SC ", "CU", "SC", 1, 1},
    {" SC", "CU", "CU", 1, 1},
    {"", "CU", "CU", 1, 1},
    {nullptr, "CU", "CU", 1, 1},
};

class SampleTypes : public testing::TestWithParam<TypeCase> {};

TEST_P(SampleTypes, AreTranslatedOnTheWayIn)
{
    const TypeCase& c = GetParam();
    const Sample entered(100, 110, c.text, 'M');
    EXPECT_STREQ(c.entered, entered.GetType());
    EXPECT_EQ(c.bit, entered.GetTypeBit());
    const Sample stored(1, 2, 100, c.text, 0, 0, 110);
    EXPECT_STREQ(c.stored, stored.GetType());
    EXPECT_EQ(Sample::TypeBitOf(c.stored), stored.GetTypeBit());
    EXPECT_EQ(c.bitOfText, Sample::TypeBitOf(c.text));
    EXPECT_EQ(c.bitOfText > 1 || (c.text && std::string(c.text) == "CU"),
        Sample::IsKnownType(c.text) == 1);
}

INSTANTIATE_TEST_SUITE_P(Codes, SampleTypes, testing::ValuesIn(kTypes));

struct DepthCase {
    const char* name;
    float top, base;
    const char* type;
    char units;
    float metresTop, metresBase;
    int interval;
    int kind;
};
void PrintTo(const DepthCase& c, std::ostream* out) { *out << c.name; }

const DepthCase kDepths[] = {
    {"both given", 1000, 1010, "CU", 'M', 1000, 1010, 1, 0},
    {"feet come in as metres", 1000, 1010, "SC", 'F', 304.8F, 307.848F, 1, 1},
    {"lower-case f is not feet", 1000, 1010, "CO", 'f', 1000, 1010, 1, 2},
    {"no base", 1500, 0, "OC", 'M', 1500, 1500, 0, 2},
    {"no top", 0, 1500, "LOG", 'M', 1500, 1500, 0, 2},
    {"below a tenth of a millimetre is none", 0.00009F, 1500, "CU", 'M', 1500, 1500, 0, 0},
    {"a tenth of a millimetre is a depth", 0.00011F, 1500, "CU", 'M', 0.00011F, 1500, 1, 0},
    {"above the datum", -12, -10, "CU", 'M', -12, -10, 1, 0},
    {"a millimetre is no interval", 100, 100.0009F, "CU", 'M', 100, 100.0009F, 0, 0},
    {"two millimetres are one", 100, 100.002F, "CU", 'M', 100, 100.002F, 1, 0},
};

class SampleDepths : public testing::TestWithParam<DepthCase> {};

TEST_P(SampleDepths, OfANewSample)
{
    const DepthCase& c = GetParam();
    const Sample s(c.top, c.base, c.type, c.units);
    EXPECT_FLOAT_EQ(c.metresTop, s.top);
    EXPECT_FLOAT_EQ(c.metresBase, s.base);
    EXPECT_FLOAT_EQ(c.metresBase, s.GetDepth('M', 0, 0));
    EXPECT_EQ(c.interval, s.IsInterval());
    EXPECT_EQ(c.kind, s.DepthKind());
    EXPECT_NEAR(c.units == 'F' ? 1000 : c.metresTop, s.GetTop(c.units, 0, 0), 1e-3);
}

INSTANTIATE_TEST_SUITE_P(Rules, SampleDepths, testing::ValuesIn(kDepths));

TEST(SampleDepth, IsTheTopOnlyWithoutABase)
{
    Sample s(1500, 1510, "CU", 'M');
    s.base = 0;
    EXPECT_EQ(1500, s.GetDepth('M', 0, 0));
    EXPECT_EQ(0, s.GetBase('M', 0, 0));
    s.top = 0;
    EXPECT_EQ(0, s.GetDepth('M', 0, 0));
}

TEST(SampleDepth, ShiftsThenConvertsThenNegates)
{
    Sample s(304.8F, 609.6F, "CO", 'M');
    s.SetShift(3.048F);
    EXPECT_EQ(1, s.shiftSet);
    EXPECT_NEAR(-1010, s.GetTop('F', 1, 1), 1e-3);
    EXPECT_NEAR(2010, s.GetBase('F', 0, 1), 1e-3);
    EXPECT_NEAR(-2010, s.GetDepth('F', 1, 1), 1e-3);
    EXPECT_NEAR(2000, s.GetDepth('F', 0, 0), 1e-3);
}

struct SetterCase {
    const char* name;
    void (*set)(Sample&);
    const char* after; // top base type bit label grid_x grid_y
    int saved;
};
void PrintTo(const SetterCase& c, std::ostream* out) { *out << c.name; }

const SetterCase kSetters[] = {
    {"half a millimetre is no change", [](Sample& s) { s.SetTop(100.0005F, 'M'); },
        "100 110 SC 2 lab 3 4", 1},
    {"two millimetres are", [](Sample& s) { s.SetTop(100.25F, 'M'); }, "100.25 110 SC 2 lab 3 4",
        0},
    {"top in feet", [](Sample& s) { s.SetTop(1000, 'F'); }, "304.8 110 SC 2 lab 3 4", 0},
    {"the same base", [](Sample& s) { s.SetBase(110, 'M'); }, "100 110 SC 2 lab 3 4", 1},
    {"a base of none", [](Sample& s) { s.SetBase(0, 'M'); }, "100 0 SC 2 lab 3 4", 0},
    {"the depth of others is their base", [](Sample& s) { s.SetDepth(120, 'M'); },
        "100 120 SC 2 lab 3 4", 0},
    {"the depth of cuttings is their top",
        [](Sample& s) { s.SetType("CU"), s.saved = 1, s.SetDepth(120, 'M'); },
        "120 110 CU 1 lab 3 4", 0},
    {"the same type", [](Sample& s) { s.SetType("SC"); }, "100 110 SC 2 lab 3 4", 1},
    {"a type is taken as it stands", [](Sample& s) { s.SetType("swc"); }, "100 110 swc 1 lab 3 4",
        0},
    {"a type brings its bit", [](Sample& s) { s.SetType("LOG"); }, "100 110 LOG 16 lab 3 4", 0},
    {"the same label", [](Sample& s) { s.SetLabel("lab"); }, "100 110 SC 2 lab 3 4", 1},
    {"a label of 16 bytes is cut", [](Sample& s) { s.SetLabel("0123456789abcdeX"); },
        "100 110 SC 2 0123456789abcde 3 4", 0},
    {"what is cut off is no change",
        [](Sample& s) {
            s.SetLabel("0123456789abcde"), s.saved = 1, s.SetLabel("0123456789abcdeX");
        },
        "100 110 SC 2 0123456789abcde 3 4", 1},
    {"no label", [](Sample& s) { s.SetLabel(""); }, "100 110 SC 2  3 4", 0},
    {"the same grid", [](Sample& s) { s.SetGrid(3, 4); }, "100 110 SC 2 lab 3 4", 1},
    {"one grid value", [](Sample& s) { s.SetGrid(3, 5); }, "100 110 SC 2 lab 3 5", 0},
    {"completing depths", [](Sample& s) { s.top = 0, s.FixDepths(); }, "110 110 SC 2 lab 3 4", 1},
};

class SampleSetters : public testing::TestWithParam<SetterCase> {};

TEST_P(SampleSetters, ClearSavedWhenTheyChange)
{
    Sample s(1, 2, 100, "SC", 3, 4, 110);
    s.label = "lab";
    GetParam().set(s);
    std::ostringstream after;
    after << s.top << ' ' << s.base << ' ' << s.GetType() << ' ' << s.GetTypeBit() << ' '
          << s.label.view() << ' ' << s.grid_x << ' ' << s.grid_y;
    EXPECT_EQ(GetParam().after, after.str());
    EXPECT_EQ(GetParam().saved, s.saved);
}

INSTANTIATE_TEST_SUITE_P(Rules, SampleSetters, testing::ValuesIn(kSetters));

TEST(SampleAudit, IsTheCurrentUsersUntilSet)
{
    const Restore<FixedText<5>> user(currentUserAbr, "ABC");
    Sample s(100, 0, "CU", 'M');
    EXPECT_FALSE(s.created.isValid());
    EXPECT_FALSE(s.modified.isValid());
    s.SetCreated(Date(5, 3, 1998), "");
    s.SetModified(Date(6, 3, 1998), "LONGNAME");
    EXPECT_EQ("ABC", s.creator);
    EXPECT_EQ("LONGN", s.modifier);
    EXPECT_EQ("1998-03-05", s.created.isoText());
    EXPECT_EQ("1998-03-06", s.modified.isoText());
}

TEST(SampleMarks, AreSetAtFirst)
{
    Sample s(100, 0, "CU", 'M');
    EXPECT_EQ((std::array<int, 4>{1, 1, 1, 1}), s.marks);
    s.ClearMarks();
    EXPECT_EQ((std::array<int, 4>{}), s.marks);
}

} // namespace

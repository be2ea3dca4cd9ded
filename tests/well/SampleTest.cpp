// tests/well/SampleTest.cpp
#include "db/CurrentUser.h"
#include "tests/support/Restore.h"
#include "tests/well/WellTest.h"

namespace {

TEST(SampleTypes, AreTranslatedOnTheWayIn)
{
    const struct {
        const char *text, *entered, *stored; // codes of a new sample and of one from its row
        long bit, textBit;                   // of the entered code; of the text taken as a code
    } kCases[] = {
        {"SC", "SC", "SC", 2, 2},
        {"CO", "CO", "CO", 4, 4},
        {"LOG", "LOG", "LOG", 16, 16},
        {"swc", "SC", "CU", 2, 1},
        {"COTS", "CO", "CU", 4, 1},
        {"XY", "CU", "CU", 1, 1},
        {"SC ", "CU", "SC", 1, 1},
        {" SC", "CU", "CU", 1, 1},
        {"", "CU", "CU", 1, 1},
        {nullptr, "CU", "CU", 1, 1},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text ? c.text : "none");
        const Sample entered(100, 110, c.text, 'M'), stored(1, 2, 100, c.text, 0, 0, 110);
        EXPECT_EQ(joined(c.entered, c.stored, c.bit, c.textBit),
            joined(entered.GetType(), stored.GetType(), entered.GetTypeBit(),
                Sample::TypeBitOf(c.text)));
    }
    EXPECT_EQ(1, Sample::IsKnownType("CU"));
    EXPECT_EQ(0, Sample::IsKnownType("cu"));
}

TEST(SampleDepths, AreCompletedAndKeptInMetres)
{
    const struct {
        const char* name;
        float top, base;
        char units;
        float metresTop, metresBase;
        int interval;
    } kCases[] = {
        {"feet come in as metres", 1000, 1010, 'F', 304.8F, 307.848F, 1},
        {"no base", 1500, 0, 'M', 1500, 1500, 0},
        {"below a tenth of a millimetre is no top", 0.00009F, 1500, 'M', 1500, 1500, 0},
        {"a tenth of a millimetre is one", 0.00011F, 1500, 'M', 0.00011F, 1500, 1},
        {"above the datum", -12, -10, 'M', -12, -10, 1},
        {"a millimetre is no interval", 10, 10.0009F, 'M', 10, 10.0009F, 0},
        {"a bit more is one", 10, 10.0011F, 'M', 10, 10.0011F, 1},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        const Sample s(c.top, c.base, "CU", c.units);
        EXPECT_FLOAT_EQ(c.metresTop, s.top);
        EXPECT_FLOAT_EQ(c.metresBase, s.GetDepth('M', 0, 0));
        EXPECT_EQ(c.interval, s.IsInterval());
    }
}

TEST(SampleDepths, AreShiftedThenConvertedThenNegated)
{
    Sample s(304.8F, 609.6F, "CO", 'M');
    s.SetShift(3.048F);
    EXPECT_NEAR(-1010, s.GetTop('F', 1, 1), 1e-3);
    EXPECT_NEAR(2010, s.GetDepth('F', 0, 1), 1e-3);
    EXPECT_NEAR(2000, s.GetBase('F', 0, 0), 1e-3);
    s.base = 0; // a sample's depth is its top then
    EXPECT_NEAR(1010, s.GetDepth('F', 0, 1), 1e-3);
    EXPECT_EQ(0, s.IsInterval());
}

TEST(SampleSetters, ClearSavedWhenTheyChange)
{
    const struct {
        const char* name;
        void (*set)(Sample&);
        const char* after; // top, base, type, bit, label, grid, saved
    } kCases[] = {
        {"half a millimetre", [](Sample& s) { s.SetTop(100.0005F, 'M'); },
            "100|110|SC|2|lab|3|4|1|"},
        {"two millimetres in feet", [](Sample& s) { s.SetBase(361, 'F'); },
            "100|110.033|SC|2|lab|3|4|0|"},
        {"the depth of others is their base", [](Sample& s) { s.SetDepth(120, 'M'); },
            "100|120|SC|2|lab|3|4|0|"},
        {"of cuttings their top", [](Sample& s) { s.type = "CU", s.SetDepth(120, 'M'); },
            "120|110|CU|2|lab|3|4|0|"},
        {"the same type", [](Sample& s) { s.SetType("SC"); }, "100|110|SC|2|lab|3|4|1|"},
        {"a type is taken as it stands", [](Sample& s) { s.SetType("swc"); },
            "100|110|swc|1|lab|3|4|0|"},
        {"a type brings its bit", [](Sample& s) { s.SetType("LOG"); }, "100|110|LOG|16|lab|3|4|0|"},
        {"16 bytes of label", [](Sample& s) { s.SetLabel("0123456789abcdeX"); },
            "100|110|SC|2|0123456789abcde|3|4|0|"},
        {"what is cut off is no change",
            [](Sample& s) { s.label = "0123456789abcde", s.SetLabel("0123456789abcdeX"); },
            "100|110|SC|2|0123456789abcde|3|4|1|"},
        {"one of the grid", [](Sample& s) { s.SetGrid(3, 5); }, "100|110|SC|2|lab|3|5|0|"},
        {"completing depths", [](Sample& s) { s.top = 0, s.FixDepths(); },
            "110|110|SC|2|lab|3|4|1|"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        Sample s(1, 2, 100, "SC", 3, 4, 110);
        s.label = "lab";
        c.set(s);
        EXPECT_EQ(c.after,
            joined(s.top, s.base, s.GetType(), s.GetTypeBit(), s.label.view(), s.grid_x, s.grid_y,
                int(s.saved)));
    }
}

TEST(SampleSetters, KeepTheUserUnlessAnotherIsNamed)
{
    const Restore<FixedText<5>> user(currentUserAbr, "XYZ");
    Sample made(1, 1, "CU", 'M'), read(1, 2, 1, "CU", 0, 0, 1);
    EXPECT_EQ("XYZ|XYZ|", joined(read.creator.view(), read.modifier.view()));
    made.SetCreated(Date(5, 3, 1998), "", 0);
    made.SetModified(Date(), "LONGNAME");
    EXPECT_EQ("1998-03-05||XYZ|LONGN|",
        joined(made.created.isoText(), made.modified.isoText(), made.creator.view(),
            made.modifier.view()));
    made.ClearMarks();
    EXPECT_EQ("1|0|", joined(read.marks[3], made.marks[3]));
}

TEST(SampleLabel, IsComposed)
{
    constexpr int kLong = 0, kShort = 1, kPoint = 0, kRange = 1;
    const struct {
        const char* name;
        const char* type;
        float top, base; // metres, as they stand
        char units;
        int shortForm, showRange, forceUnits, withLabel;
        const char* expected;
    } kCases[] = {
        {"long", "CU", 1000.4F, 1010.6F, 'M', kLong, kPoint, 0, 0, "1010.60m CU"},
        {"range padded", "CU", 1000.4F, 1010.6F, 'M', kLong, kRange, 0, 0, " 1000.40-1010.60m CU"},
        {"wide range", "SC", 1e5F, 100002, 'M', kLong, kRange, 0, 0, "100000.00-100002.00m SC"},
        {"long has the label", "CO", 10, 10, 'M', kLong, kPoint, 0, -1, "10.00m CO lab"},
        {"units that are neither", "CO", 10, 10, 'x', kLong, kPoint, 0, 0, "10.00' CO"},
        {"outcrop is its label", "OC", 10, 12, 'M', kLong, kRange, 0, 0, "lab"},
        {"outcrop with depth", "OC", 10, 12, 'M', kLong, kRange, 1, 0, "   10.00-12.00m lab"},
        {"outcrop in short", "OC", 10, 12, 'M', kShort, kRange, 0, -1, "10.00-12.00"},
        {"whole numbers", "CU", 1000.4F, 1010.6F, 'M', kShort, kRange, 0, -1, "1000-1011"},
        {"a half rounds away", "CU", -2.5F, -2.5F, 'M', kShort, kPoint, 0, -1, "-3"},
        {"zero has no sign", "CU", -0.3F, -0.3F, 'M', kShort, kPoint, 0, -1, "0"},
        {"tenths", "SC", 1234.56F, 1234.56F, 'M', kShort, kPoint, 0, -1, "1234.6"},
        {"a half tenth", "SC", 0.25F, 0.25F, 'M', kShort, kPoint, 0, -1, "0.3"},
        {"tenths have no base", "SC", 1234.56F, 1240, 'M', kShort, kRange, 0, -1, "1234.6-"},
        {"log", "LOG", 1234.56F, 1234.56F, 'M', kShort, kPoint, 0, -1, "1234.56 log"},
        {"log with label", "LOG", 10, 10, 'M', kShort, kPoint, 0, 1, "10.00 log lab"},
        {"core from the datum", "CO", 0, 12, 'M', kShort, kRange, 0, 0, "0.00-12.00"},
        {"no other starts there", "LOG", 0, 12, 'M', kShort, kRange, 0, 0, "12.00 log"},
        {"no base", "CO", 10, 0, 'M', kShort, kRange, 0, 0, "10.00"},
        {"hardly a range", "CO", 1, 1.00009F, 'M', kShort, kRange, 0, 0, "1.00"},
        {"just a range", "CO", 1, 1.00011F, 'M', kShort, kRange, 0, 0, "1.00-1.00"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        Sample s(1, 2, 5, c.type, 0, 0, 5);
        s.top = c.top;
        s.base = c.base;
        s.label = "lab";
        EXPECT_STREQ(c.expected,
            s.DepthLabel(c.units, c.shortForm, c.showRange, c.forceUnits, 0, c.withLabel));
    }
}

TEST(SampleLabel, HasATextOfItsOwnPerFunction)
{
    Sample s(3.048F, 6.096F, "OC", 'M');
    s.SetShift(0.3048F);
    const char* label = s.DepthLabel('M', 0, 1, 0, 1, -1);
    EXPECT_STREQ("11.00-21.00'", s.DepthRangeText('F', 1));
    s.base = s.top + 0.00005F;
    EXPECT_STREQ("3.05m", s.DepthRangeText('M', 0));
    s.base = 0;
    EXPECT_STREQ("3.05m", s.DepthRangeText('M', 0));
    EXPECT_STREQ("OC", label);
}

} // namespace

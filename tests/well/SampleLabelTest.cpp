// tests/well/SampleLabelTest.cpp
#include "well/Sample.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace {

struct LabelCase {
    const char* name;
    const char* type;
    float top, base; // metres
    char units;
    int shortForm, showRange, forceUnits, withLabel;
    const char* expected;
};
void PrintTo(const LabelCase& c, std::ostream* out) { *out << c.name; }

constexpr int kLong = 0, kShort = 1, kPoint = 0, kRange = 1, kPlain = 0, kForced = 1;
constexpr int kNoLabel = 0, kLabel = 1, kByForm = -1;

const LabelCase kLabels[] = {
    {"long", "CU", 1000.4F, 1010.6F, 'M', kLong, kPoint, kPlain, kNoLabel, "1010.60m CU"},
    {"long range is padded in front", "CU", 1000.4F, 1010.6F, 'M', kLong, kRange, kPlain, kNoLabel,
        " 1000.40-1010.60m CU"},
    {"long range of small depths", "SC", 1, 2.5F, 'M', kLong, kRange, kPlain, kNoLabel,
        "    1.00-2.50m SC"},
    {"long range of a wide depth", "SC", 100000, 100002, 'M', kLong, kRange, kPlain, kNoLabel,
        "100000.00-100002.00m SC"},
    {"long has the label by itself", "CO", 10, 10, 'M', kLong, kPoint, kPlain, kByForm,
        "10.00m CO lab"},
    {"long label asked for", "CO", 10, 10, 'M', kLong, kPoint, kPlain, kLabel, "10.00m CO lab"},
    {"long in feet", "CO", 3.048F, 3.048F, 'F', kLong, kPoint, kPlain, kNoLabel, "10.00' CO"},
    {"units that are neither", "CO", 10, 10, 'x', kLong, kPoint, kPlain, kNoLabel, "10.00' CO"},
    {"outcrop is its label", "OC", 10, 12, 'M', kLong, kRange, kPlain, kNoLabel, "lab"},
    {"outcrop with its depth", "OC", 10, 12, 'M', kLong, kRange, kForced, kNoLabel,
        "   10.00-12.00m lab"},
    {"outcrop in short", "OC", 10, 12, 'M', kShort, kRange, kPlain, kByForm, "10.00-12.00"},
    {"cuttings in whole numbers", "CU", 1000.4F, 1010.6F, 'M', kShort, kRange, kPlain, kByForm,
        "1000-1011"},
    {"a half rounds up", "CU", 2.5F, 2.5F, 'M', kShort, kPoint, kPlain, kByForm, "3"},
    {"a half above the datum rounds away", "CU", -2.5F, -2.5F, 'M', kShort, kPoint, kPlain, kByForm,
        "-3"},
    {"next to a half", "CU", 0.49999997F, 0.49999997F, 'M', kShort, kPoint, kPlain, kByForm, "0"},
    {"zero has no sign", "CU", -0.3F, -0.3F, 'M', kShort, kPoint, kPlain, kByForm, "0"},
    {"sidewall core in tenths", "SC", 1234.56F, 1234.56F, 'M', kShort, kPoint, kPlain, kByForm,
        "1234.6"},
    {"a half tenth rounds away", "SC", 0.25F, 0.25F, 'M', kShort, kPoint, kPlain, kByForm, "0.3"},
    {"sidewall core range has no base", "SC", 1234.56F, 1240, 'M', kShort, kRange, kPlain, kByForm,
        "1234.6-"},
    {"log", "LOG", 1234.56F, 1234.56F, 'M', kShort, kPoint, kPlain, kByForm, "1234.56 log"},
    {"log with label", "LOG", 1234.56F, 1234.56F, 'M', kShort, kPoint, kPlain, kLabel,
        "1234.56 log lab"},
    {"core range", "CO", 10, 12, 'M', kShort, kRange, kPlain, kNoLabel, "10.00-12.00"},
    {"core from the datum", "CO", 0, 12, 'M', kShort, kRange, kPlain, kNoLabel, "0.00-12.00"},
    {"no other starts there", "LOG", 0, 12, 'M', kShort, kRange, kPlain, kNoLabel, "12.00 log"},
    {"no base", "CO", 10, 0, 'M', kShort, kRange, kPlain, kNoLabel, "10.00"},
    {"hardly a range", "CO", 1, 1.00009F, 'M', kShort, kRange, kPlain, kNoLabel, "1.00"},
    {"just a range", "CO", 1, 1.00011F, 'M', kShort, kRange, kPlain, kNoLabel, "1.00-1.00"},
};

class SampleLabel : public testing::TestWithParam<LabelCase> {};

TEST_P(SampleLabel, IsComposed)
{
    const LabelCase& c = GetParam();
    Sample s(1, 2, 5, c.type, 0, 0, 5);
    s.top = c.top; // as they stand: a new sample would complete them
    s.base = c.base;
    s.label = "lab";
    EXPECT_STREQ(
        c.expected, s.DepthLabel(c.units, c.shortForm, c.showRange, c.forceUnits, 0, c.withLabel));
}

INSTANTIATE_TEST_SUITE_P(Rules, SampleLabel, testing::ValuesIn(kLabels));

TEST(SampleLabelText, FallsBackToTheTypeOfAnUnlabelledOutcrop)
{
    EXPECT_STREQ("OC", Sample(10, 12, "OC", 'M').DepthLabel('M', kLong, kRange, kPlain, 0, -1));
    EXPECT_STREQ("12.00m CO", Sample(12, 12, "CO", 'M').DepthLabel('M', 0, 0, 0, 0, kLabel));
}

TEST(SampleLabelText, ShiftsWhenAsked)
{
    Sample s(10, 12, "CO", 'M');
    s.SetShift(0.5F);
    EXPECT_STREQ("10.50-12.50", s.DepthLabel('M', kShort, kRange, kPlain, 1, kNoLabel));
    EXPECT_STREQ("10.50-12.50m", s.DepthRangeText('M', 1));
}

TEST(SampleRangeText, NeedsABaseThatDiffers)
{
    Sample s(3.048F, 6.096F, "CU", 'M');
    EXPECT_STREQ("10.00-20.00'", s.DepthRangeText('F', 0));
    s.base = s.top + 0.00005F;
    EXPECT_STREQ("3.05m", s.DepthRangeText('M', 0));
    s.base = 0;
    EXPECT_STREQ("3.05m", s.DepthRangeText('M', 0));
}

TEST(SampleLabelText, HasATextOfItsOwnPerFunction)
{
    const Sample a(10, 10, "CO", 'M'), b(20, 20, "CO", 'M');
    const char* label = a.DepthLabel('M', 1, 0, 0, 0, 0);
    const char* range = b.DepthRangeText('M', 0);
    EXPECT_STREQ("10.00", label);
    EXPECT_STREQ("20.00m", range);
}

} // namespace

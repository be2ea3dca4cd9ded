// tests/interp/CodesTest.cpp
#include "interp/IGDLookups.h"
#include "interp/IGDTypes.h"
#include "interp/LocaleDate.h"
#include "tests/interp/InterpTest.h"

namespace {

constexpr const char *kNoType = "****UNKNOWN TYPE****", *kNoColumn = "****UNKNOWN COLUMN****";

TEST_F(InterpTest, TypesHaveNamesOfWhichSomeLeadBack)
{
    db.run("INSERT INTO DISCS VALUES ('M', 'Micro', 'Mic', 'Micropalaeontological'),"
           " ('X', 'Ex', 'E', 'Other')");
    for (const auto& c : {std::tuple{3, 0, "Chronostratigraphy", 3}, {16, 0, "Nanno. Comments", 0},
             {4, 1, kNoType, 0}, {14, 0, kNoType, 0}, {24, 0, kNoType, 0}, {45, 1, kNoType, 0},
             {41, 0, "Biozone", 4}, {41, 1, "Micropalaeontological Biozone", 41},
             {44, 1, "Other Biozone", 44}, {13, 0, "Lithology Qualifiers", 13}}) {
        const auto& [type, withDiscipline, name, back] = c;
        EXPECT_STREQ(name, typeName(type, withDiscipline));
        EXPECT_EQ(back, typeCode(name)) << name;
    }
    EXPECT_EQ("13|0|", joined(typeCode("Lithology Stringer"), typeCode("sequence")));
}

TEST(Codes, RanksAndBoundariesHaveNames)
{
    for (const auto& [type, hier, longForm, name] :
        {std::tuple{3, 5, 1, "Epoch"}, {3, 5, 0, "Age"}, {3, 1, 0, "Period/Epoch"},
            {2, 5, 1, kNoColumn}, {43, 2, 0, "Super Zone"}, {4, 1, 0, kNoColumn},
            {10, 77, 0, "Sequence"}, {13, 81, 0, "Lithology Qualifier"}, {0, 1, 0, kNoColumn}})
        EXPECT_STREQ(name, columnName(type, hier, longForm)) << type << " " << hier;
    for (const auto& [type, name, longForm, hier] :
        {std::tuple{0, "zone", 0, 3}, {2, "Zone", 0, 0}, {42, "ZONE", 0, 3}, {0, "Sequence", 0, 1},
            {13, "lithology STRINGER", 0, 83}, {3, "Age", 0, 2}, {0, "Age", 1, 7}})
        EXPECT_EQ(hier, columnRank(type, name, longForm)) << name;
    for (int code = 0; code <= 8; ++code)
        EXPECT_EQ(code % 8, boundaryCode(boundaryName(code)));
    EXPECT_EQ("***BOUNDARY TYPE ERROR****|7|", joined(boundaryName(8), boundaryCode("?fault")));
}

TEST_F(InterpTest, SingleQuestionsLeaveTheirResultsWithoutARow)
{
    char name[81] = "as it was";
    int hier = -1;
    long sch_id = -1;
    EXPECT_EQ("0|0|0|",
        joined(
            schemeIdByName(2, "beta"), termByAbr(2, "U", name, &hier), termAge(99, 'B', &sch_id)));
    EXPECT_EQ("as it was|-1|-1|", joined(name, hier, sch_id));
    EXPECT_EQ("1|66|30|",
        joined(schemeIdByName(3, "beta"), termAge(12, 'B', nullptr), termAge(12, 'T', &sch_id)));
    EXPECT_EQ(10, termByAbr(1, "P", name, &hier));
    EXPECT_EQ("Period|3|1|", joined(name, hier, sch_id));
}

TEST(Codes, DatesAreReadInTheOrderOfTheLocale)
{
    // The classic locale writes the month first.
    for (const auto& [text, iso] : {std::pair{"03/05/98", "1998-03-05"},
             {"1998-03-05", "1998-03-05"}, {"13/1/98", ""}, {"1998-3", ""}})
        EXPECT_EQ(iso, dateInLocale(text).isoText()) << text;
}

} // namespace

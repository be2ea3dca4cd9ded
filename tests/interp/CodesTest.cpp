// tests/interp/CodesTest.cpp
#include "interp/IGDLookups.h"
#include "interp/IGDTypes.h"
#include "interp/LocaleDate.h"
#include "tests/interp/InterpTest.h"

#include <gmock/gmock.h>

namespace {

const std::string kNoType = "****UNKNOWN TYPE****", kNoColumn = "****UNKNOWN COLUMN****";

TEST_F(InterpTest, TypesHaveNamesOfWhichSomeLeadBack)
{
    db.run("INSERT INTO DISCS VALUES ('M', 'Micro', 'Mic', 'Micropalaeontological'),"
           " ('X', 'Ex', 'E', 'Other')");
    const struct {
        int type, withDiscipline;
        std::string name;
        int back;
    } kCases[] = {{3, 0, "Chronostratigraphy", 3}, {13, 0, "Lithology Qualifiers", 13},
        {16, 0, "Nanno. Comments", 0}, {4, 1, kNoType, 0}, {14, 0, kNoType, 0}, {24, 0, kNoType, 0},
        {45, 1, kNoType, 0}, {41, 0, "Biozone", 4}, {41, 1, "Micropalaeontological Biozone", 41},
        {44, 1, "Other Biozone", 44}};
    for (const auto& c : kCases) {
        EXPECT_EQ(c.name, typeName(c.type, c.withDiscipline)) << c.type;
        EXPECT_EQ(c.back, typeCode(c.name.c_str())) << c.name;
    }
    EXPECT_EQ(13, typeCode("Lithology Stringer"));
    EXPECT_EQ(0, typeCode("sequence")) << "letter case counts";
}

TEST(Codes, RanksHaveNamesInTheirType)
{
    const struct {
        int type, hier, longForm;
        std::string name;
    } kNames[] = {{3, 5, 1, "Epoch"}, {3, 5, 0, "Age"}, {3, 1, 0, "Period/Epoch"},
        {3, 9, 1, kNoColumn}, {2, 5, 1, kNoColumn}, {43, 2, 0, "Super Zone"}, {4, 1, 0, kNoColumn},
        {10, 77, 0, "Sequence"}, {13, 81, 0, "Lithology Qualifier"}, {13, 1, 0, kNoColumn},
        {0, 1, 0, kNoColumn}};
    for (const auto& c : kNames)
        EXPECT_EQ(c.name, columnName(c.type, c.hier, c.longForm)) << c.type << " " << c.hier;
    const struct {
        int type;
        const char* name;
        int longForm, hier;
    } kRanks[] = {{0, "zone", 0, 3}, {2, "Zone", 0, 0}, {42, "ZONE", 0, 3}, {0, "Sequence", 0, 1},
        {13, "lithology STRINGER", 0, 83}, {3, "Age", 0, 2}, {0, "Age", 1, 7}, {3, "Eon", 0, 0}};
    for (const auto& c : kRanks)
        EXPECT_EQ(c.hier, columnRank(c.type, c.name, c.longForm)) << c.name;
}

TEST(Codes, BoundariesHaveSevenQualities)
{
    for (int code = 0; code <= 8; ++code)
        EXPECT_EQ(code % 8, boundaryCode(boundaryName(code)));
    EXPECT_STREQ("***BOUNDARY TYPE ERROR****", boundaryName(8));
    EXPECT_EQ(7, boundaryCode("?fault"));
}

TEST_F(InterpTest, SingleQuestionsLeaveTheirResultsWithoutARow)
{
    char name[81] = "as it was";
    int hier = -1;
    long sch_id = -1;
    const auto texts = [&] { return joined(name, hier, sch_id); };
    EXPECT_EQ("0|0|0|0|",
        joined(schemeIdByName(2, "beta"), termByAbr(2, "U", name, &hier),
            termNameAndRank(99, name, &hier), termAge(99, 'B', &sch_id)));
    EXPECT_EQ("as it was|-1|-1|", texts());
    EXPECT_EQ("1|66|30|",
        joined(schemeIdByName(3, "beta"), termAge(12, 'B', nullptr), termAge(12, 'T', &sch_id)));
    EXPECT_EQ(11, termByAbr(1, "U", name, &hier));
    EXPECT_EQ("Upper|7|1|", texts());
    EXPECT_EQ(10, termNameAndRank(10, name, &hier));
    EXPECT_EQ("Period|3|1|", texts());
}

TEST_F(InterpTest, OnlyLithologyIsDeletedByType)
{
    const StatementLog log;
    for (const int type : {11, 12, 13, 14})
        deleteWellRows(type, 7);
    EXPECT_THAT(log.statements(),
        testing::ElementsAre("DELETE FROM " + table("ZRILITH") + " WHERE well_id =7",
            "DELETE FROM " + table("ZRQLITH") + " WHERE well_id =7"));
}

TEST(Codes, DatesAreReadInTheOrderOfTheLocale)
{
    // The classic locale writes the month first.
    for (const auto& [text, iso] :
        {std::pair{"03/05/98", "1998-03-05"}, {"1998-03-05", "1998-03-05"},
            {"3.5.2001", "2001-03-05"}, {"13/1/98", ""}, {"1998-3", ""}, {"", ""}})
        EXPECT_EQ(iso, dateInLocale(text).isoText()) << text;
}

} // namespace

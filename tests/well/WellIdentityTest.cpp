// tests/well/WellIdentityTest.cpp
#include "tests/well/WellTest.h"
#include "well/WellList.h"

#include <memory>

namespace {

using WellIdentity = WellTest;

std::string byName(const char* name, int length)
{
    Well well;
    well.FindByName(name, length);
    return identityOf(well);
}

std::string byCode(const char* code, int length)
{
    Well well;
    EXPECT_EQ(well.FindByCode(code, length), well.well_id);
    return identityOf(well);
}

TEST_F(WellIdentity, IsFoundOrLeftOpen)
{
    const std::string seven = "7|C-7|Well Seven|the seventh|1|";
    const struct {
        const char* name;
        std::string expected, found;
    } kCases[] = {
        {"identifier", seven, identityOf(Well(7L))},
        {"identifier of none", "8|**No well code for ID=8|**Unnamed well ID=8||0|",
            identityOf(Well(8L))},
        {"placeholders are cut", "12345678|**No well code for ID=123|**Unnamed well ID=1234567||0|",
            identityOf(Well(12345678L))},
        {"code", seven, identityOf(Well("C-7"))},
        {"code of none", "0|C-8|||0|", identityOf(Well("C-8"))},
        {"code without identifier", "0|LONE|||0|", identityOf(Well("LONE"))},
        {"by name with blanks behind", seven, byName("Well Seven   xyz", 13)},
        {"by name that ends early", seven, byName("Well Seven", 99)},
        {"by name of 30 without identifier", "0|LONE|Lone well of 25 letters x||0|",
            byName("Lone well of 25 letters xxxxxx", 30)},
        {"by name of blanks keeps the first", "0|| ||0|", byName("   ", 3)},
        {"by code with white space behind", seven, byCode("C-7\t  ", 6)},
        {"by code without identifier", "0|LONE|LONE||0|", byCode("LONE", 4)},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(c.expected, c.found) << c.name;
    Well again;
    again.FindByName("Well Seven", 10);
    again.FindByName("None", 4);
    EXPECT_EQ("0|C-7|None|the seventh|1|", identityOf(again));
    again.FindByCode("C-7", 3);
    EXPECT_EQ(headerOf(Well(7L)), headerOf(again));
    EXPECT_TRUE(boxes.boxes().empty());
}

TEST_F(WellIdentity, GoesToTheDriverAsComposed)
{
    const StatementLog log;
    byName("None", 4);
    byCode("C-8", 3);
    byName("Well Seven", 10);
    const std::string wells = " FROM " + table("WELLS");
    const std::string both = wells + " w, " + table("well_ident") + " v  WHERE w.";
    EXPECT_EQ((Statements{"SELECT v.well_id, v.well_code, v.descrip" + both
                      + "well_name='None' AND w.well_code=v.well_code ",
                  "SELECT well_code" + wells + " WHERE well_name='None'",
                  "SELECT v.well_id, w.well_name, w.units, v.descrip" + both
                      + "well_code='C-8' AND w.well_code=v.well_code ",
                  "SELECT v.well_id, v.well_code, v.descrip" + both
                      + "well_name='Well Seven' AND w.well_code=v.well_code "}),
        log.statements());
}

TEST_F(WellIdentity, GivesNames)
{
    char name[26], code[26];
    EXPECT_EQ(1, Well::GetWellNames(7, name, code));
    EXPECT_EQ("Well Seven|C-7|", joined(name, code));
    EXPECT_EQ(0, Well::GetWellNames(8, name, code));
    EXPECT_EQ("no name, id=8|no code, id=8|", joined(name, code));
    Well well(7L);
    EXPECT_STREQ("Well Seven", well.StoredName());
    well.well_name = "None";
    well.WriteHeader("C-7");
    EXPECT_STREQ("None", well.StoredName());
    EXPECT_STREQ("", well.StoredName()) << "rolled back";
}

std::string namesOf(const WellList& wells)
{
    std::string names;
    for (const Well* w : wells)
        names += joined(w->well_name.view(), w->well_id);
    return names;
}

TEST_F(WellIdentity, IsUniqueInAListOrderedByName)
{
    WellList wells;
    for (const auto& [name, id] :
        {std::pair("b", 1L), {"a", 2L}, {"B", 3L}, {"a", 4L}, {"0", 4L}}) {
        auto well = std::make_unique<Well>();
        well->well_name = name;
        well->well_id = id;
        if (wells.AddUnique(well.get()))
            well.release();
    }
    EXPECT_EQ("B|3|a|2|a|4|b|1|", namesOf(wells));
    const std::array<const Well*, 6> at{
        wells.At(-1), wells.At(0), wells.At(1), wells.At(4), wells.At(5), wells.Get(7, 0)};
    EXPECT_EQ((std::array<const Well*, 6>{nullptr, nullptr, wells.Get(3, 0), wells.Get(1, 0)}), at);
    EXPECT_EQ(1, wells.AddById(7));
    EXPECT_EQ(0, wells.AddById(7));
    EXPECT_EQ(8, wells.Get(8, 1)->well_id);
    EXPECT_EQ("**Unnamed well ID=8|8|B|3|Well Seven|7|a|2|a|4|b|1|", namesOf(wells));
}

} // namespace

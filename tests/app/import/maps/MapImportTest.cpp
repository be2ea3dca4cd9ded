// tests/app/import/maps/MapImportTest.cpp
#include "db/CurrentUser.h"
#include "tests/app/ImportRun.h"
#include "tests/support/Restore.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

using Lines = std::vector<std::string>;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kHeader = "file,kind,column,from,value,units\n";

class Mapping : public testing::Test {
protected:
    ImportResult import(const std::string& map)
    {
        log = IssueLog();
        const auto file = folder.write("wells_map.csv", map); // by its name it might be wells
        return importFiles({{folder.path()}, false, file}, log);
    }
    TestDatabase db;
    Folder folder;
    IssueLog log;
};

struct Level {
    const char* name;
    char wellType;
    const char* header;
    const char* units;
    const char* cell;
    const char* metres;
};
void PrintTo(const Level& l, std::ostream* out) { *out << l.name; }

class MappedLevel : public Mapping, public testing::WithParamInterface<Level> {};

TEST_P(MappedLevel, IsStoredAsItsWellCounts)
{
    const Level& level = GetParam();
    folder.write("wells.csv", std::string("well_code,units,type\nA,F,") + level.wellType + '\n');
    folder.write("lv.csv", std::string("c,") + level.header + "\nA," + level.cell + '\n');
    const ImportResult result =
        import(kHeader + std::string("lv.csv,samples,well_code,c,,\n,,type,,OC,\n,,depth,")
            + level.header + ",," + level.units + "\n");
    ASSERT_EQ("", result.failure);
    EXPECT_EQ(level.metres, db.value("SELECT round(top_depth,6) FROM SAMPLES"));
}
INSTANTIATE_TEST_SUITE_P(Units, MappedLevel,
    testing::Values(Level{"upwards in an outcrop", 'O', "height", "ft up", "100", "30.48"},
        Level{"downwards in an outcrop", 'O', "below_top", "m down", "12", "-12"},
        Level{"upwards in a well", 'W', "height", "UP M", "3", "-3"},
        Level{"in centimetres", 'W', "z", "cm", "29", "0.29"},
        Level{"in the unit that the name ends in", 'W', "level_cm", "", "29", "0.29"},
        Level{"in the map's unit, whatever the name", 'W', "level_cm", "m", "29", "29"},
        Level{"in inches", 'W', "z", "in", "120", "3.048"},
        Level{"in the unit of the well", 'W', "z", "", "10", "3.048"},
        Level{"in the unit of the well, upwards", 'O', "z", "up", "10", "3.048"}));

struct Wrong {
    const char* name;
    const char* lines;
    const char* text; ///< in the failure, or told of the file
};
void PrintTo(const Wrong& w, std::ostream* out) { *out << w.name; }

class WrongMap : public Mapping, public testing::WithParamInterface<Wrong> {};

TEST_P(WrongMap, SaysWhereAndWhatIsKnown)
{
    folder.write("lv.csv", "c,z\nA,1\n");
    const ImportResult result = import(std::string(kHeader) + GetParam().lines);
    EXPECT_NE("", result.failure);
    std::string said = result.failure;
    for (const std::string& text : log.texts)
        said += '\n' + text;
    EXPECT_THAT(said, HasSubstr(GetParam().text));
}
INSTANTIATE_TEST_SUITE_P(Faults, WrongMap,
    testing::Values(
        Wrong{"kind", "lv.csv,sample,depth,z,,\n",
            "wells_map.csv:2: no kind of file is called \"sample\"; there are: wells, sections, "},
        Wrong{"column", "# first\nlv.csv,samples,depht,z,,\n",
            "wells_map.csv:3: samples has no column \"depht\"; there are: well_code, samp_id, "},
        Wrong{"two sources", "lv.csv,samples,depth,z,3,\n", ":2: give either the column"},
        Wrong{"no source", "lv.csv,samples,depth,,,\n", ":2: give either the column"},
        Wrong{"twice", "lv.csv,samples,depth,z,,\n,,top_depth,c,,\n",
            ":3: top_depth is filled in line 2 already"},
        Wrong{
            "unit", "lv.csv,samples,depth,z,,fathoms\n", ":2: the unit \"fathoms\" is not known; "},
        Wrong{"unit of a text", "lv.csv,samples,label,z,,m\n", ":2: label is no depth"},
        Wrong{"direction of a well", "lv.csv,wells,td,z,,m up\n", ":2: depths of a well itself"},
        Wrong{"brace", "lv.csv,samples,label,,{z,\n", ":2: a brace of \"{z\""},
        Wrong{"required", "lv.csv,samples,depth,z,,\n",
            ":2: samples of lv.csv need also: well_code, type"},
        Wrong{"required with the usual names", "lv.csv,wells,*,,,\n,,well_name,c,,\n",
            "lv.csv: failed: is left without the column well_code by "},
        Wrong{"file", "l.csv,wells,well_code,c,,\n",
            ":2: no file is called l.csv; there are: lv.csv."},
        Wrong{"column of the file", "lv.csv,wells,well_code,d,,\n",
            "lv.csv: failed: has no column \"d\", which "},
        Wrong{"column in a text", "lv.csv,wells,well_code,,{d},\n", ":2 names; it has: c, z"},
        Wrong{"fixed value", "lv.csv,wells,well_code,c,,\n,,units,,X,\n",
            "wells_map.csv:3: units cannot be \"X\": unknown unit (M or F)"},
        Wrong{"nothing", "", "wells_map.csv: says nothing of any file"},
        Wrong{"no file at first", ",samples,depth,z,,\n", ":2: the first line names a file"}));

TEST_F(Mapping, MakesSeveralKindsOfOneTable)
{
    const Restore user(currentUserAbr);
    currentUserAbr = "ME";
    folder.write("Lakes 1.csv",
        "lake,depth,taxon,n\nL,1,Navicula alba,5\nL,1,Navicula nigra,0\n"
        "L,2,Navicula alba,7\nL,2,Navicula alba,7\nM,2,Navicula alba,0.5\n");
    const std::string map = "column;file;kind;value;from\n"
                            "well_code;lakes?1.*;wells;;lake\n"
                            "cat_mnem;lakes?1.*;categories;DIAT\n"
                            "disc_id;;;M\n"
                            "category;lakes?1.*;taxa;DIAT\nname;;;;taxon\n"
                            "taxon;lakes?1.*;counts;;taxon\ncount;;;;n\n"
                            "samp_id;;;{lake}/{depth};\ncategory;;;DIAT\ndisc_id;;;M\n"
                            "# samples are stored before the counts, wherever they stand\n"
                            "samp_id;lakes?1.*;samples;{lake}/{depth};\ntype;;;CO\n"
                            "label;;;\"{lake}, at {depth}\"\nwell_code;;;;lake\nDepth;;;;depth\n";
    const ImportResult first = import(map);
    ASSERT_EQ("", first.failure);
    EXPECT_THAT(countsOf(first),
        ElementsAre("wells of Lakes 1.csv 2/2/0/0/0/0", "samples of Lakes 1.csv 3/3/0/0/0/0",
            "categories of Lakes 1.csv 1/1/0/0/0/0", "taxa of Lakes 1.csv 2/2/0/0/0/0",
            "counts of Lakes 1.csv 5/3/0/0/1/2"));
    EXPECT_THAT(log.texts,
        Contains("wells of Lakes 1.csv: note: 3 rows repeat others in these "
                 "columns; each is taken once"));
    EXPECT_THAT(
        log.texts, Contains(HasSubstr("counts of Lakes 1.csv:5: refused: the same sample")));
    EXPECT_THAT(db.rows("SELECT s.label,o.medium FROM TAXONOCC o JOIN SAMPLES s ON s.samp_id ="
                        " o.samp_id ORDER BY 1"),
        ElementsAre("L, at 1|5", "L, at 2|7", "M, at 2|1"));
    EXPECT_EQ(0, import(map).stored());
}

TEST_F(Mapping, AddsToTheUsualNames)
{
    folder.write(
        "bores.csv", "well_code,well_name,area,country,month\nA,a,X,N,\nB,b,Y,N,1998-03\n");
    const ImportResult result = import(kHeader
        + std::string("BORES.csv,wells,*,*,,\n,,Country,area,,\n"
                      ",,spud_date,,{month}-01,\n"));
    ASSERT_EQ("", result.failure);
    EXPECT_THAT(log.texts, ElementsAre("bores.csv: note: columns not kept: country"));
    EXPECT_THAT(db.rows("SELECT well_code,well_name,country FROM WELLS ORDER BY 1"),
        ElementsAre("A|a|X", "B|b|Y"));
    EXPECT_EQ("1", db.value("SELECT count(spud_date) FROM WELLS"));
}

} // namespace

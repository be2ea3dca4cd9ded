// tests/app/import/interpretation/InterpretationImportTest.cpp
#include "tests/app/import/dictionary/FaultSweep.h"

#include <ostream>

namespace {

const Files kWells{{"wells.csv", "well_code,units,well_type\nA,M,W\nO,M,O\n"}};

Files with(Files files)
{
    files.insert(files.begin(), kWells.begin(), kWells.end());
    return files;
}

Lines termsOf(TestDatabase& db)
{
    return db.rows("SELECT s.name, t.igd_type, t.hier, t.name, t.abr, t.u_age, t.l_age, t.red"
                   " FROM IGD_DICT t JOIN IGD_SCH s ON s.sch_id = t.sch_id ORDER BY t.igd_id");
}
Lines zonesOf(TestDatabase& db)
{
    return db.rows("SELECT s.name, z.igd_type, z.hier, a.type, coalesce(a.base_depth, a.top_depth),"
                   " coalesce(b.base_depth, b.top_depth), upp_inf, low_inf, top_bnd FROM IGD z "
                   "JOIN IGD_SCH s ON s.sch_id = z.sch_id JOIN SAMPLES a ON a.samp_id ="
                   " top_id JOIN SAMPLES b ON b.samp_id = base_id ORDER BY z.rowid");
}
Lines rocksOf(TestDatabase& db)
{
    return db.rows("SELECT r.top_depth, r.base_depth, l.lith_id, l.descr, l.lithabr, r.place FROM"
                   " (SELECT top_depth, base_depth, lith_id, '' AS place FROM ZRILITH UNION ALL"
                   " SELECT top_depth, base_depth, lith_id, type || plotpos FROM ZRQLITH) r"
                   " JOIN LITHDESC l ON l.lith_id = r.lith_id ORDER BY 1, 6, 3");
}
Lines environmentsOf(TestDatabase& db)
{
    return db.rows("SELECT s.name, count(*), max(t.term_no), t.term, t.red FROM ENV_SCH s JOIN"
                   " ENVSCHMBR t ON t.envsch_id = s.envsch_id GROUP BY 1");
}
Lines markersOf(TestDatabase& db)
{
    return db.rows("SELECT round(depth, 3), diam FROM CASING UNION ALL SELECT depth, colour FROM"
                   " WELLSMARK UNION ALL SELECT s.base_depth, f.name || f.age || ' ' || p.bnd ||"
                   " coalesce(p.inf, '') FROM SQPICK p JOIN SURFACE f ON f.surface_id ="
                   " p.surface_id JOIN SAMPLES s ON s.samp_id = p.samp_id");
}

struct FileCase {
    const char* name;
    Files files;
    Lines issues; ///< without "refused" and "adjusted", which the marks ! and ~ stand for
    Lines (*rows)(TestDatabase&);
    Lines stored;
};
void PrintTo(const FileCase& c, std::ostream* out) { *out << c.name; }

// "zones.csv:2: refused: x" as "zones.csv:2! x".
std::string brief(std::string text)
{
    for (const auto& [word, mark] : {std::pair(": refused:", "!"), {": adjusted:", "~"}})
        if (const std::size_t at = text.find(word); at != std::string::npos)
            text.replace(at, std::string(word).size(), mark);
    return text;
}

class InterpretationFiles : public testing::TestWithParam<FileCase> {};

TEST_P(InterpretationFiles, ComeInOnce)
{
    TestDatabase db;
    IssueLog log;
    EXPECT_EQ("", importAll(with(GetParam().files), log).failure);
    Lines told;
    for (const std::string& text : log.texts)
        if (text.find(": note: ") == std::string::npos)
            told.push_back(brief(text));
    EXPECT_EQ(GetParam().issues, told);
    EXPECT_EQ(GetParam().stored, GetParam().rows(db));
    EXPECT_EQ(0, importAll(with(GetParam().files), log).stored()) << "a second import";
    EXPECT_EQ(GetParam().stored, GetParam().rows(db));
}

const std::string kZones = "sch_id,hier,zone_name,abr,top_age_ma,base_age_ma,region\n";
const std::string kSchemes = "sch_id,scheme_name,category,igd_type\n1,Zs,,43\n";

std::string manyTerms()
{
    std::string text = "scheme_name,term_no,term,r,g,b\n";
    for (int i = 1; i <= 21; ++i)
        text += "Deep," + std::to_string(i) + ",t" + std::to_string(i) + ",1,2,3\n";
    return text + "Deep,3,x,1,2,3\nDeep,4,t5,1,2,3\n";
}

const FileCase kCases[] = {
    {"a time scale is called as its file, and has no rank 0",
        {{"chronostrat_2024.csv",
            "rank,name,abbr,top_ma,base_ma,r,g,b,hier\nSuper-Eon,Old,O,5,9,1,2,3,0\n"
            "Sub-Period,Mid,ABCDEF,1,5,0,0,0,\nAge,Same,,1,2,300,1,1,\nEpoch,Same,,1,2,,,,\n"
            "Age,Same,,7,8,,,,\nAge,Bad,,3,2,,,,\nAge,10%,,3,4,,,,\nAge,Lap,,1.5,4,,,,\n"
            "X,No,,1,2,,,,\n"}},
        {"chronostrat_2024.csv:2~ hier \"0\": ranks begin with 1; stored as 1",
            "chronostrat_2024.csv:3~ abbr \"ABCDEF\": longer than 5 bytes; cut to \"ABCDE\"",
            "chronostrat_2024.csv:3~ r \"0\": stored, but black is shown as white",
            "chronostrat_2024.csv:4~ r \"300\": colours go from 0 to 255; the colour is not taken",
            "chronostrat_2024.csv:6! name \"Same\": this name is in line 4 already",
            "chronostrat_2024.csv:7! top_ma \"3\": the top is older than the base",
            "chronostrat_2024.csv:8! name \"10%\": a percent sign cannot stand here: searches take "
            "it for a wildcard",
            "chronostrat_2024.csv:9~ top_ma \"1.5\": stored, but its ages overlap those in line 4",
            "chronostrat_2024.csv:10! hier: neither a rank nor the name of one"},
        termsOf,
        {"chronostrat_2024|3|1|Old|O|5|9|1", "chronostrat_2024|3|4|Mid|ABCDE|1|5|0",
            "chronostrat_2024|3|7|Same|NULL|1|2|NULL", "chronostrat_2024|3|5|Same|NULL|1|2|NULL",
            "chronostrat_2024|3|7|Lap|NULL|1.5|4|NULL"}},
    {"schemes of both kinds, types stated and by discipline",
        {{"schemes.csv", kSchemes + "2,Zs,,3\n3,By,NANNO,\n4,None,,\n5,Odd,,99\n"},
            {"old_schemes.csv", "scheme_id,name\n1,Ladder\n"},
            {"categories.csv", "category,disc_id,group_name\nNANNO,N,n\n"},
            {"zones.csv", kZones + "1,3,Z1,a,1,2,\n3,4,Z1,b,1,2,\n7,3,Z1,,1,2,\n"}},
        {"schemes.csv:3! scheme_name \"Zs\": this scheme is in line 2 already",
            "schemes.csv:5! igd_type: neither igd_type nor the discipline of a category tells what "
            "interpretations the scheme is for",
            "schemes.csv:6! igd_type \"99\": no type of interpretations",
            "zones.csv:4! sch_id \"7\": no such scheme in the database or among the accepted rows "
            "of schemes files"},
        termsOf, {"Zs|43|3|Z1|a|1|2|NULL", "By|42|4|Z1|b|1|2|NULL"}},
    {"zones of one name in other regions",
        {{"schemes.csv", kSchemes},
            {"zones.csv", kZones + "1,3,Z,,1,2,N\n1,3,Z,,1.5,2,S\n1,3,z,,4,5,N\n1,3,Y,,1.9,3,S\n"}},
        {"zones.csv:3~ zone_name \"Z\": this name is in line 2 already; stored as Z (S)",
            "zones.csv:4! zone_name \"z\": this name is in line 2 already",
            "zones.csv:5~ top_age_ma \"1.9\": stored, but its ages overlap those in line 3"},
        termsOf,
        {"Zs|43|3|Z|NULL|1|2|NULL", "Zs|43|3|Z (S)|NULL|1.5|2|NULL", "Zs|43|3|Y|NULL|1.9|3|NULL"}},
    {"formation tops",
        {{"samples.csv", "well_code,depth_m,type\nA,20,CU\n"},
            {"lithostrat_units.csv",
                "unit_id,unit_name,level,scheme\n1,G GP,GROUP,N\n2,F FM,FORMATION,N\n"},
            {"formation_tops.csv",
                "well_code,top_md_m,base_md_m,unit_name,level,parent_name,unit_id,scheme\n"
                "A,10,20,G GP,GROUP,,1,\nA,20.005,30,F FM,FORMATION,G GP,2,\nA,40,50,F FM,,,2,\n"
                "A,20.005,31,f fm,,,2,\nA,60,,F FM,,,2,\nA,60,60,F FM,,,2,\nO,9,5,G GP,,,1,\n"
                "A,70,80,New,MEMBER,P FM,9,N\nA,70,80,Odd,,,,N\n"}},
        {"formation_tops.csv:5! unit_name \"f fm\": this name at this top is in line 3 already",
            "formation_tops.csv:6! base_md_m: has no base",
            "formation_tops.csv:7! base_md_m \"60\": the base does not lie below the top",
            "formation_tops.csv:10! unit_name \"Odd\": not in the scheme, and without a rank"},
        zonesOf,
        {"N|2|1|LOG|10|20|G GP|NULL|3", "N|2|2|CU|20|30|F FM|NULL|3", "N|2|2|LOG|40|50|F FM|NULL|3",
            "N|2|1|OC|9|5|G GP|NULL|3", "N|2|3|LOG|70|80|New|NULL|3"}},
    {"ages of intervals",
        {{"age_intervals.csv",
            "well_code,top_depth_m,base_depth_m,age_name,auxiliary_age_name,top_age_ma,base_age_ma,"
            "scheme\nA,1,2,UPPER,LOWER,5,9,S\nA,2,3,UPPER,,5,7,S\n"}},
        {},
        [](TestDatabase& db) {
            Lines all = zonesOf(db);
            for (const std::string& term : termsOf(db))
                all.push_back(term);
            return all;
        },
        {"S|3|7|LOG|1|2|UPPER|LOWER|3", "S|3|7|LOG|2|3|UPPER|NULL|3", "S|3|7|UPPER|NULL|5|7|NULL",
            "S|3|7|LOWER|NULL|5|9|NULL"}},
    {"zones of details, run by run",
        {{"samples.csv",
             "samp_id,well_code,depth_m,type\n1,A,30,CO\n2,A,10,CO\n3,A,20,CO\n4,A,40,CO\n5,A,50,CO"
             "\n"},
            {"sample_details.csv",
                "samp_id,disc_id,analyst,zone_bottom,zone_top,zone_scheme\n1,N,X,Z1,Z1,S\n2,N,X,Z1,"
                "Z1,S\n"
                "3,N,X,Z1,Z1,S\n4,N,X,Z1,,S\n5,N,X,Z2,Z1,S\n1,N,Y,Z3,Z3,S\n"}},
        {}, zonesOf,
        {"S|4|3|CO|10|30|Z1|NULL|3", "S|4|3|CO|50|50|Z1|Z2|3", "S|4|3|CO|30|30|Z3|NULL|3"}},
    {"layers: bases, codes, overlaps",
        {{"lithology_codes.csv",
             "lith_code,lithology,abbreviation\n65000,Shale,SH\n999,Sand,S\n1,shale,\n"},
            {"lithology_layers.csv",
                "well_code,top_depth_m,base_depth_m,lithology,lith_code\nA,30,,Coal,\n"
                "A,20,,Shale,65000\nA,5,25,sand,\nA,5,25,Coal,\nA,40,45,,\nO,9,,Coal,\nO,4,3,Coal,"
                "\n"}},
        {"lithology_codes.csv:4! lithology \"shale\": this rock is in line 2 already",
            "lithology_layers.csv:2~ base_depth_m: has no base; ends at the next top, 40 m",
            "lithology_layers.csv:3~ base_depth_m: has no base; ends at the next top, 30 m",
            "lithology_layers.csv:4~ top_depth_m \"5\": stored, but its depths overlap those in "
            "line 3",
            "lithology_layers.csv:5! top_depth_m \"5\": a rock over these depths is in line 4 "
            "already",
            "lithology_layers.csv:6! lithology: is empty",
            "lithology_layers.csv:7~ base_depth_m: has no base; ends at the next top, 4 m"},
        rocksOf,
        {"4|3|65002|Coal|NULL|", "5|25|65001|Sand|S|", "9|4|65002|Coal|NULL|",
            "20|30|65000|Shale|SH|", "30|40|65002|Coal|NULL|"}},
    {"shares of an interval lie side by side",
        {{"intervals.csv", "well_code,top_depth_m,base_depth_m\nA,0,10\nA,5,10\n"},
            {"lithology_components.csv",
                "well_code,base_depth_m,lithology,percent\nA,10,Clay,20\nA,10,Chalk,70\nA,10,Salt,"
                "10"
                "\nA,10,clay,5\nA,11,Clay,5\nA,10,Mud,0\nA,10,Silt,9\n"}},
        {"intervals.csv:3! base_depth_m \"10\": an interval with this base is in line 2 already",
            "lithology_components.csv:5! lithology \"clay\": this rock of the interval is in line "
            "2 "
            "already",
            "lithology_components.csv:6! base_depth_m \"11\": no interval with this base among the "
            "accepted rows of the intervals file beside it",
            "lithology_components.csv:7! percent \"0\": no share of the interval",
            "lithology_components.csv:8~ percent \"9\": stored, but the shares of the interval "
            "exceed 100"},
        rocksOf,
        {"0|10|1001|Chalk|NULL|", "0|10|1000|Clay|NULL|A0.0", "0|10|1003|Silt|NULL|A100.0",
            "0|10|1002|Salt|NULL|A90.0"}},
    {"twenty environments", {{"env_scheme.csv", manyTerms()}},
        {"env_scheme.csv:22! term \"t21\": the scheme has twenty terms already, the most that one "
         "holds",
            "env_scheme.csv:23! term \"x\": a term of this name or number is in line 4 already",
            "env_scheme.csv:24! term \"t5\": a term of this name or number is in line 6 already"},
        environmentsOf, {"Deep|20|20|t20|1"}},
    {"casing, markers and picks",
        {{"casing.csv",
             "well_code,casing_type,casing_diameter_in,casing_depth_ft\nA,INTERM.,9  5/8,100\n"
             "A,OPEN HOLE,,200\nA,PROD.,,300\nA,INTERM.,9 5/8,100\n"},
            {"seismic_markers.csv", "well_code,depth_m,colour\nA,7,red\nA,7,blue\n"},
            {"surfaces.csv",
                "surface_id,name,age_ma,scheme\n1,SB1,12.5,\n2,MFS,3,\n3,No,1,Nowhere\n"},
            {"picks.csv",
                "well_code,depth_m,surface,surface_id,boundary,comments\nA,7,SB1,,Fault,c\n"
                "A,8,,2,9,\nA,7,SB1,1,,\nA,8,XX,,,\nA,,SB1,,,\n"}},
        {"casing.csv:2~ casing_diameter_in \"9  5/8\": stored as \"9 5/8\"",
            "casing.csv:3! casing_type \"OPEN HOLE\": there is no casing in it",
            "casing.csv:4~ casing_diameter_in: the diameter is not known; stored without",
            "casing.csv:5! casing_depth_ft \"100\": the same casing is in line 2 already",
            "seismic_markers.csv:3! depth_m \"7\": a marker at this depth is in line 2 already",
            "surfaces.csv:4! scheme \"Nowhere\": no such scheme in the database or in files beside "
            "it",
            "picks.csv:3~ boundary \"9\": no quality of boundaries (1 to 7, or its name); not "
            "taken",
            "picks.csv:4! this pick is in line 2 already",
            "picks.csv:5! surface \"XX\": no such surface in the database or among the accepted "
            "rows of surfaces files",
            "picks.csv:6! depth_m: neither a sample of the samples files beside it nor a depth"},
        markersOf, {"30.48|9 5/8", "91.44|NULL", "7|red", "7|SB112.5 6c", "8|MFS3.0 3"}},
};
INSTANTIATE_TEST_SUITE_P(Rules, InterpretationFiles, testing::ValuesIn(kCases));

Lines allOf(TestDatabase& db)
{
    Lines all = contentsOf(db);
    for (const char* table : {"IGD_SCH", "IGD_DICT", "IGD", "LITHDESC", "ZRILITH", "ZRQLITH",
             "ENV_SCH", "ENVSCHMBR", "CASING", "WELLSMARK", "SURFACE", "SQPICK"})
        for (const std::string& row : db.rows(std::string("SELECT * FROM ") + table))
            all.push_back(std::string(table) + ": " + row);
    return all;
}

TEST(WholeInterpretation, EachDriverCallFailing)
{
    if (testSettings().kind != 0 || !testSettings().prefix.empty())
        GTEST_SKIP() << "long, and the writers' statements are the same in every kind";
    const auto prepare = [](TestDatabase& db) {
        db.run("INSERT INTO WELLS (well_code) VALUES ('A')");
        db.run("INSERT INTO WELL_IDENT VALUES (1, 'A', NULL)");
        db.run("INSERT INTO IGD_SCH (sch_id, name, igd_type) VALUES (1, 'S', 2)");
    };
    const Files files{
        {"formation_tops.csv", "well_code,top_m,base_m,unit_name,level,scheme\nA,1,2,U,GROUP,S\n"},
        {"intervals.csv", "well_code,top_depth_m,base_depth_m\nA,0,10\n"},
        {"lithology_components.csv",
            "well_code,base_depth_m,lithology,percent\nA,10,Clay,60\nA,10,Mud,40\n"},
        {"env_scheme.csv", "scheme_name,term\nE,t\n"},
        {"casing.csv", "well_code,diam,depth_m\nA,7,10\n"},
        {"seismic_markers.csv", "well_code,depth_m,colour\nA,7,red\n"},
        {"surfaces.csv", "name,age_ma\nSB,2\n"},
        {"picks.csv", "well_code,depth_m,surface\nA,2,SB\n"}};
    EXPECT_GT(sweepFaults(files, prepare, allOf, 17), 150);
}

} // namespace

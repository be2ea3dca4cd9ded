// tests/app/import/analysis/AnalysisImportTest.cpp
#include "db/CurrentUser.h"
#include "tests/app/import/dictionary/FaultSweep.h"
#include "tests/support/Restore.h"

#include <ostream>

namespace {

using testing::ElementsAre;

// A well of two samples and a dictionary, known by the numbers of their set.
const Files kBase{{"wells.csv", "well_code,units,well_type\nA,F,W\n"},
    {"samples.csv", "samp_id,well_code,top_depth_m,type\n1,A,10,CU\n2,A,20,CU\n"},
    {"categories.csv", "category,disc_id,group_name\nDINO,P,d\nPOLL,P,p\nFORAM,M,f\n"},
    {"taxa.csv",
        "spec_id,category,name\n1,DINO,Alphina alba\n2,POLL,Betina nova\n"
        "3,FORAM,Gammina rubra\n"}};

Files with(Files files)
{
    files.insert(files.begin(), kBase.begin(), kBase.end());
    return files;
}

Lines analysesOf(TestDatabase& db)
{
    return db.rows("SELECT d.samp_id, d.disc_id, d.analyst, d.barren, d.notes FROM SMPDTL d"
                   " ORDER BY d.samp_id, d.disc_id, d.analyst");
}
Lines occurrencesOf(TestDatabase& db)
{
    return db.rows("SELECT o.samp_id, o.spec_id, d.analyst, o.disc_id, o.status || o.ident_type"
                   " || coalesce(o.caved, ''), o.abund, o.medium, o.comments FROM TAXONOCC o"
                   " JOIN SMPDTL d ON d.samp_id = o.samp_id AND d.analy_id = o.analy_id"
                   " ORDER BY o.rowid");
}
Lines eventsOf(TestDatabase& db)
{
    return db.rows(
        "SELECT n.name, e.ev_type, s.type, coalesce(s.base_depth, s.top_depth), e.comments"
        " FROM EVENTS e JOIN EVENTDIC n ON n.ev_id = e.ev_id"
        " JOIN SAMPLES s ON s.samp_id = e.samp_id ORDER BY e.rowid");
}
Lines standardsOf(TestDatabase& db)
{
    return db.rows("SELECT s.name, s.topcsu, s.basecsu, s.units, n.name, e.ev_type, e.csu"
                   " FROM CMPSTD s JOIN CMPSTDEV e ON e.std_id = s.std_id"
                   " JOIN EVENTDIC n ON n.ev_id = e.ev_id ORDER BY e.csu");
}
Lines depthsOf(TestDatabase& db)
{
    return db.rows("SELECT corenum, round(top_depth, 3), round(base_depth, 3) FROM CORES"
                   " UNION ALL SELECT 'point', ddepth, tvdepth FROM WELLTVD");
}

struct FileCase {
    const char* name;
    Files files;
    Lines issues;
    Lines (*rows)(TestDatabase&);
    Lines stored;
};
void PrintTo(const FileCase& c, std::ostream* out) { *out << c.name; }

class AnalyticalFiles : public testing::TestWithParam<FileCase> {};

TEST_P(AnalyticalFiles, ComeInOnce)
{
    TestDatabase db;
    const Restore user(currentUserAbr);
    currentUserAbr = "ME";
    IssueLog log;
    const ImportResult first = importAll(with(GetParam().files), log);
    EXPECT_EQ("", first.failure);
    Lines told;
    for (const std::string& text : log.texts)
        if (text.find(": note: ") == std::string::npos)
            told.push_back(text);
    EXPECT_EQ(GetParam().issues, told);
    EXPECT_EQ(GetParam().stored, GetParam().rows(db));
    EXPECT_EQ(0, importAll(with(GetParam().files), log).stored()) << "a second import";
    EXPECT_EQ(GetParam().stored, GetParam().rows(db));
}

const std::string kDetails = "samp_id,disc_id,category,analyst,group_abundance,notes\n";
const std::string kOccurrences = "samp_id,spec_id,disc_id,analyst,abundance,percent,count\n";

std::string at(const char* file, int line)
{
    return std::string(file) + ".csv:" + std::to_string(line) + ": ";
}
const char* const kSame =
    "refused: the same sample, taxon, analyst, status and identification are in line 2 already, "
    "which is kept";

const FileCase kCases[] = {
    {"a second look is a further analysis",
        {{"sample_details.csv",
            kDetails
                + "1,P,DINO,ABC,A,\n1,P,POLL,ABC,B,x\n2,P,POLL,ABC,,\n1,P,DINO,ABC,R,\n"
                  "1,P,DINO,ABC,A,\n1,,FORAM,ABC/4,,\n"}},
        {at("sample_details", 6) + "refused: the same row is in line 2 already"}, analysesOf,
        {"1|M|ABC/4|N|category=FORAM", "1|P|ABC|N|category=DINO; group_abundance=A",
            "1|P|ABC/2|Y|category=POLL; group_abundance=B; x",
            "1|P|ABC/3|N|category=DINO/2; group_abundance=R", "2|P|ABC/2|N|category=POLL"}},
    {"rows that make no analysis",
        {{"sample_details.csv",
            kDetails + "9,P,,ABC,,\n1,,,ABC,,\n1,P,,LONGER,,\n1,P,,A/B,,\n1,P,,,,\n"}},
        {at("sample_details", 2)
                + "refused: samp_id \"9\": no such sample among the accepted rows of the samples "
                  "files beside it",
            at("sample_details", 3)
                + "refused: disc_id: neither the row nor a category tells the discipline (M, N, P "
                  "or A)",
            at("sample_details", 4)
                + "refused: analyst \"LONGER\": longer than 5 bytes; cut it would be another "
                  "analyst's",
            at("sample_details", 5) + "refused: analyst \"A/B\": no abbreviation of an analyst"},
        analysesOf, {"1|P|ME|N|NULL"}},
    {"occurrences follow the categories of their taxa",
        {{"sample_details.csv", kDetails + "1,P,DINO,ABC,,\n1,P,POLL,ABC,,\n"},
            {"occurrences.csv", kOccurrences + "1,1,,ABC,R,,\n1,2,P,ABC,C,,\n2,3,M,ABC,,,\n"}},
        {}, occurrencesOf,
        {"1|1|ABC|P|IP|R|0|NULL", "1|2|ABC/2|P|IP|C|0|NULL", "2|3|ABC|M|IP|NULL|0|NULL"}},
    {"abundances",
        {{"occurrences.csv",
             kOccurrences
                 + "1,1,P,ABC,rT?,,\n1,2,P,ABC,14%,14,\n1,3,P,ABC,R,20,\n2,1,P,ABC,,,4.4\n"
                   "2,2,P,ABC,see text,,\n2,3,P,ABC,few,,7\n"},
            {"abundance_codes.csv", "abund,word,scheme\nR,RARE,Mine\nF,FEW,Mine\n"}},
        {at("occurrences", 5)
                + "adjusted: count \"4.4\": no whole count; stored as 4, as written it is kept in "
                  "the comments",
            at("occurrences", 6)
                + "adjusted: abundance \"see text\": no code, count or percentage that is known; "
                  "as written it is kept in the comments"},
        occurrencesOf,
        {"1|1|ABC|P|R?|T|0|abundance=rT?", "1|2|ABC|P|IP|NULL|0|abundance=14%",
            "1|3|ABC|P|IP|R|0|percent=20", "2|1|ABC|P|IP|NULL|4|abundance=4.4",
            "2|2|ABC|P|IP|NULL|0|abundance=see text", "2|3|ABC|P|IP|F|7|abundance=few"}},
    {"the same taxon twice",
        {{"occurrences.csv",
            kOccurrences
                + "1,1,P,ABC,R,,\n1,1,P,ABC,C,,\n1,1,P,ABC,r1,,\n1,1,P,ABC,R?,,\n"
                  "1,1,P,XYZ,A,,\n"}},
        {at("occurrences", 3) + kSame}, occurrencesOf,
        {"1|1|ABC|P|IP|R|0|NULL", "1|1|ABC|P|RP|NULL|1|abundance=r1",
            "1|1|ABC|P|I?|R|0|abundance=R?", "1|1|XYZ|P|IP|A|0|NULL"}},
    {"what was not found, what is not there",
        {{"occurrences.csv",
            kOccurrences + "1,1,P,ABC,-,,\n1,1,P,ABC,,0,\n1,1,P,ABC,,,0\n1,9,P,ABC,R,,\n"}},
        {at("occurrences", 2) + "refused: abundance \"-\": looked for and not found; no occurrence",
            at("occurrences", 3)
                + "refused: percent \"0\": looked for and not found; no occurrence",
            at("occurrences", 4) + "refused: count \"0\": looked for and not found; no occurrence",
            at("occurrences", 5)
                + "refused: spec_id \"9\": no such taxon among the accepted rows of the taxa files "
                  "beside it"},
        occurrencesOf, {}},
    {"counts with marks in columns, taxa by name",
        {{"counts.csv",
            "samp_id,taxon,category,count,status,ident_type,caved\n1,Alphina alba,dino,3,R,?,C\n"
            "1,Alphina alba,POLL,3,I,P,N\n1,Betina nova,POLL,5,x,,\n"}},
        {at("counts", 3)
                + "refused: taxon \"Alphina alba\": no such taxon in the category; the dictionary "
                  "comes first",
            at("counts", 4) + "adjusted: status \"x\": not a known mark; not taken"},
        occurrencesOf, {"1|1|ME|P|R?C|NULL|3|NULL", "1|2|ME|P|IP|NULL|5|NULL"}},
    {"events between two depths, first and last in time",
        {{"event_dictionary.csv",
             "datum_id,description,datum_type\n7,Alphina alba,LO\n8,Alphina alba,FO\n"
             "9,Alphina alba,LO\n10,Alphina alba,LCO\n11,,FO\n"},
            {"events.csv",
                "well_code,datum_id,datum_type,depth_top_m,depth_base_m,age_young_ma\n"
                "A,7,LO,20,10,3.5\nA,8,FO,15,30,\nA,9,LO,20,10,\nA,7,LAD,1,2,\nA,1,FO,1,2,\n"
                "A,8,XX,1,2,\n"}},
        {at("event_dictionary", 4)
                + "adjusted: description \"Alphina alba\": another event of this name stands "
                  "further up; stored as \"Alphina alba (9)\"",
            at("event_dictionary", 6) + "refused: description: has no name",
            at("events", 5) + "refused: this event of the well is in line 2 already",
            at("events", 6)
                + "refused: datum_id \"1\": no such event in the database or among the accepted "
                  "rows of event_dictionary files",
            at("events", 7)
                + "refused: datum_type \"XX\": no kind of event that is known (F, L, FO, LO, FCO, "
                  "LCO, ...)"},
        eventsOf,
        {"Alphina alba|F|CU|20|from=10; to=20; age=3.5", "Alphina alba|L|LOG|15|from=15; to=30",
            "Alphina alba (9)|F|CU|20|from=10; to=20"}},
    {"a standard that rises upwards",
        {{"event_dictionary.csv", "ev_id,name\n1,Alphina alba\n"},
            {"composite_standard.csv",
                "standard,ev_id,ev_type,csu\nBig,1,L,100\nBig,1,F,160.5\nBig,1,F,7\n"}},
        {at("composite_standard", 4) + "refused: this event of the standard is in line 3 already"},
        standardsOf,
        {"Big|160.5|100|CSU|Alphina alba|L|100", "Big|160.5|100|CSU|Alphina alba|F|160.5"}},
    {"cores and surveys",
        {{"cores.csv",
             "well_code,core_number,top_depth,base_depth,depth_unit\nA,1,10,20,m\nA,2,100,200,ft\n"
             "A,3,100,200,\nA,4,20,20,m\nA,5,,0,\nA,1,30,40,m\n"},
            {"tvd_points.csv",
                "well_code,md_m,tvd_m\nA,100,100\nA,200,190\nA,300,0\nA,100.004,100\nA,,5\n"}},
        {at("tvd_points", 4) + "refused: tvd_m \"0\": 0 stands for a depth that is not known",
            at("tvd_points", 5) + "refused: md_m \"100.004\": the same depth is in line 2 already",
            at("tvd_points", 6) + "refused: md_m: has no measured depth",
            at("cores", 4) + "adjusted: depth_unit: no unit; those of the well are taken, feet",
            at("cores", 5) + "refused: base_depth \"20\": the base does not lie below the top",
            at("cores", 6) + "refused: top_depth: has no top",
            at("cores", 7)
                + "refused: core_number \"1\": this core of the well is in line 2 already"},
        depthsOf, {"1|10|20", "2|30.48|60.96", "3|30.48|60.96", "point|100|100", "point|200|190"}},
};
INSTANTIATE_TEST_SUITE_P(Rules, AnalyticalFiles, testing::ValuesIn(kCases));

TEST(Analyses, TakeTheSchemeOfTheirSet)
{
    TestDatabase db;
    IssueLog log;
    importAll(with({{"analysts.csv", "analyst,name\nABC,Ann\nABC,Bob\nTOOLONG,x\n"},
                  {"abundance_codes.csv", "abund,word,scheme\nR,RARE,Mine\nF,FEW,Mine\n"},
                  {"sample_details.csv", kDetails + "1,P,,ABC,,\n"}}),
        log);
    EXPECT_THAT(db.rows("SELECT u.abr, s.name, l.abr, l.min, l.output_val FROM ANALY_HDR h"
                        " JOIN USERDEF u ON u.user_id = h.analyst JOIN ABNSCHME s ON"
                        " s.scheme_id = h.abnsch_id JOIN ABNSCHMBR l ON l.scheme_id = s.scheme_id"),
        ElementsAre("ABC|Mine|R|0|1", "ABC|Mine|F|32767|2"));
}

Lines allOf(TestDatabase& db)
{
    Lines all = contentsOf(db);
    for (const char* table : {"USERDEF", "ANALY_HDR", "SMPDTL", "TAXONOCC", "EVENTDIC", "EVENTS",
             "CMPSTD", "CMPSTDEV", "CORES", "WELLTVD"})
        for (const std::string& row : db.rows(std::string("SELECT * FROM ") + table))
            all.push_back(std::string(table) + ": " + row);
    return all;
}

TEST(WholeWell, EachDriverCallFailing)
{
    if (testSettings().kind != 0 || !testSettings().prefix.empty())
        GTEST_SKIP() << "long, and the writers' statements are the same in every kind";
    const auto prepare = [](TestDatabase& db) {
        db.run("INSERT INTO WELLS (well_code) VALUES ('A')");
        db.run("INSERT INTO WELL_IDENT VALUES (1, 'A', NULL)");
        db.run("INSERT INTO CATEGORY VALUES ('DINO', 'd', 'P')");
        db.run("INSERT INTO GENUS (gen_id, cat_mnem, genus) VALUES (1, 'DINO', 'Betina')");
        db.run("INSERT INTO SPECIES (spec_id, gen_id, species) VALUES (1, 1, 'nova')");
        db.run("INSERT INTO USERDEF VALUES (1, 'ABC')");
        db.run("INSERT INTO ANALY_HDR (well_id, analy_id, disc_id, analyst, analy_no) VALUES"
               " (1, 1, 'P', 1, 1)");
    };
    const Files files{{"samples.csv", "samp_id,well_code,depth_m,type\n1,A,10,CU\n"},
        {"occurrences.csv",
            "samp_id,taxon,category,analyst,abundance\n1,Betina nova,DINO,ABC,R\n"
            "1,Betina nova,DINO,XYZ,R\n"},
        {"event_dictionary.csv", "ev_id,name\n1,Betina nova\n"},
        {"events.csv", "well_code,ev_id,ev_type,depth_m\nA,1,F,15\n"},
        {"composite_standard.csv", "ev_id,ev_type,csu\n1,F,1\n"},
        {"tvd_points.csv", "well_code,md_m,tvd_m\nA,100,99\n"},
        {"cores.csv", "well_code,core_number,top_depth,base_depth,depth_unit\nA,1,10,20,m\n"}};
    EXPECT_GT(sweepFaults(files, prepare, allOf, 18), 150);
}

} // namespace

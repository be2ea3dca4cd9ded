// tests/app/ImportChecksTest.cpp
#include "tests/app/ImportRun.h"

#include <ostream>

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

struct CheckCase {
    const char* name;
    std::string content;
    Lines issues;
    Lines stored;
};
void PrintTo(const CheckCase& c, std::ostream* out) { *out << c.name; }

// One file into a database with the wells A (metres), F (feet) and O (an outcrop).
class Checked : public testing::TestWithParam<CheckCase> {
protected:
    void expect(const char* file, const std::string& select)
    {
        TestDatabase db;
        db.run(
            "INSERT INTO WELLS (well_code, well_name, type, units, td) VALUES"
            " ('A', NULL, 'W', 'M', NULL), ('F', NULL, 'W', 'F', 100), ('O', NULL, 'O', 'M', NULL),"
            " ('L`o', NULL, 'W', 'M', NULL)");
        db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (1, 'A'), (2, 'F'), (3, 'O'),"
               " (4, 'L`o')");
        const Folder folder;
        IssueLog log;
        const ImportResult result =
            importFiles({{folder.write(file, GetParam().content)}, false}, log);
        EXPECT_EQ(GetParam().issues, log.texts);
        const bool failed =
            !log.texts.empty() && log.texts.back().find(": failed: ") != std::string::npos;
        EXPECT_EQ(failed ? "A file cannot be used; nothing was stored." : "", result.failure);
        EXPECT_EQ(GetParam().stored, db.rows(select));
    }
};

using SamplesFile = Checked;

TEST_P(SamplesFile, IsChecked)
{
    expect("samples.csv",
        "SELECT well_id, round(top_depth, 3), round(base_depth, 3), type, label FROM SAMPLES"
        " ORDER BY samp_id");
}

const std::string kHead = "well_code,top_depth_m,base_depth_m,type,label\n";
std::string at(int line) { return "samples.csv:" + std::to_string(line) + ": "; }
const std::string kTypes = "unknown sample type (CU, SC, CO, OC and LOG are known; WDC, DDC, SWC "
                           "and what begins with CO are translated)";

const CheckCase kSamples[] = {
    {"good rows", kHead + "A,1.5,2.5,CU,x\nA,,3,LOG,\n", {},
        {"1|1.5|2.5|CU|x", "1|NULL|3|LOG|NULL"}},
    {"quotes, bars, commas and apostrophes", kHead + "A,1,2,CU,\"a|\"\"b\"\", d'O\"\nL'o,1,2,CU,\n",
        {}, {"1|1|2|CU|a|\"b\", d`O", "4|1|2|CU|NULL"}},
    {"line breaks in a label", kHead + "A,1,2,CU,\"a\nb\"\nA,x,2,CU,\n",
        {at(2) + "adjusted: label \"a b\": line breaks and control characters became blanks",
            at(4) + "refused: top_depth_m \"x\": not a number"},
        {"1|1|2|CU|a b"}},
    {"a label cut at a character", kHead + "A,1,2,CU,abcdefghijklmn\u00E9\n",
        {at(2)
            + "adjusted: label \"abcdefghijklmn\u00E9\": longer than 15 bytes; cut to "
              "\"abcdefghijklmn\""},
        {"1|1|2|CU|abcdefghijklmn"}},
    {"numbers that are none",
        kHead + "A,nan,2,CU,\nA,1e999,2,CU,\nA,0x1,2,CU,\nA,1.5m,2,CU,\nA,+1e0,2,CU,\n",
        {at(2) + "refused: top_depth_m \"nan\": not a number",
            at(3) + "refused: top_depth_m \"1e999\": not a number",
            at(4) + "refused: top_depth_m \"0x1\": not a number",
            at(5) + "refused: top_depth_m \"1.5m\": not a number"},
        {"1|1|2|CU|NULL"}},
    {"everything wrong with a row is told", kHead + "B,x,2,XX,\n",
        {at(2)
                + "refused: well_code \"B\": no such well in the database or among the accepted "
                  "rows "
                  "of wells files",
            at(2) + "refused: top_depth_m \"x\": not a number",
            at(2) + "refused: type \"XX\": " + kTypes},
        {}},
    {"no well, a wildcard in a well", kHead + ",1,2,CU,\n50%,1,2,CU,\n",
        {at(2) + "refused: well_code: is empty",
            at(3)
                + "refused: well_code \"50%\": a percent sign cannot stand here: searches take it "
                  "for a wildcard"},
        {}},
    {"sample types", kHead + "A,1,1,swc,\nA,2,2,DDC,\nA,3,3,Cots,\nA,4,4,,\nA,5,5,cu,\n",
        {at(2) + "adjusted: type \"swc\": stored as sample type SC",
            at(3) + "adjusted: type \"DDC\": stored as sample type CU",
            at(4) + "adjusted: type \"Cots\": stored as sample type CO",
            at(5) + "adjusted: type: no sample type; stored as CU (cuttings)"},
        {"1|1|1|SC|NULL", "1|2|2|CU|NULL", "1|3|3|CO|NULL", "1|4|4|CU|NULL", "1|5|5|CU|NULL"}},
    {"an interval upside down, and an outcrop's right way up",
        kHead + "A,2,1,CU,\nO,2,1,OC,\nO,1,2,OC,\n",
        {at(2) + "refused: base_depth_m \"1\": the base lies above the top",
            at(4) + "refused: base_depth_m \"2\": the base lies above the top"},
        {"3|2|1|OC|NULL"}},
    {"depths of zero and none",
        kHead + "A,0,0,CO,a\nA,5,-0.00005,CO,b\nA,,,CO,c\nA,-999.25,,CO,d\n",
        {at(2) + "adjusted: top_depth_m \"0\": stored, but a depth of 0 counts as absent",
            at(3)
                + "adjusted: base_depth_m \"-0.00005\": stored, but a depth of 0 counts as absent",
            at(4) + "adjusted: has no depth; stored without one",
            at(5)
                + "adjusted: top_depth_m \"-999.25\": stands for a value that is not known; left "
                  "empty",
            at(5) + "adjusted: has no depth; stored without one"},
        {"1|0|0|CO|a", "1|5|-0|CO|b", "1|NULL|NULL|CO|c", "1|NULL|NULL|CO|d"}},
    {"rows alike", kHead + "A,1,2,CU,x\nA,1.00001,2,cu,x\nA,1,2,CU,y\n",
        {at(3) + "refused: the same well, depths, type and label are in line 2 already"},
        {"1|1|2|CU|x", "1|1|2|CU|y"}},
    {"numbers of the file used twice", "samp_id,well_code,depth_m,type\n7,A,1,CU\n7,A,2,CU\n",
        {at(3) + "refused: samp_id \"7\": this number is in line 2 already"}, {"1|1|NULL|CU|NULL"}},
    {"decimal commas throughout", kHead + "A,\"1,5\",\"2\",CU,\nA,7,\"8,25\",CU,\n",
        {"samples.csv: note: top_depth_m \"1,5\": decimals are written with a comma; read as 1.5",
            "samples.csv: note: base_depth_m \"8,25\": decimals are written with a comma; read as "
            "8.25"},
        {"1|1.5|2|CU|NULL", "1|7|8.25|CU|NULL"}},
    {"decimal commas here and there", kHead + "A,\"1,5\",2,CU,\nA,1.5,2,CU,\nA,\"1,000.5\",2,CU,\n",
        {at(2)
                + "refused: top_depth_m \"1,5\": a decimal comma in a column that also writes "
                  "decimal "
                  "points",
            at(4) + "refused: top_depth_m \"1,000.5\": not a number"},
        {"1|1.5|2|CU|NULL"}},
    {"semicolons and decimal commas", "well_code;depth_m;type\nA;1,5;CU\n",
        {"samples.csv: note: fields are separated by semicolons",
            "samples.csv: note: depth_m \"1,5\": decimals are written with a comma; read as 1.5"},
        {"1|1.5|NULL|CU|NULL"}},
    {"units in the column name", "well_code,Top Depth [ft],base_depth_m,type\nF,100,50,CU\n", {},
        {"2|30.48|50|CU|NULL"}},
    {"units of the row",
        "well_code,top_depth,units,type\nF,100,m,CU\nA,100,Feet,CU\nA,1,fathoms,CU\nF,100,,CU\n",
        {at(4) + "refused: units \"fathoms\": unknown unit (M or F)",
            "samples.csv: note: depths without a unit are taken to be in the units of their well"},
        {"2|100|NULL|CU|NULL", "1|30.48|NULL|CU|NULL", "2|30.48|NULL|CU|NULL"}},
    {"units of the well, told once", "well_code,top_depth,type\nF,100,CU\nF,200,CU\nA,100,CU\n",
        {"samples.csv: note: depths without a unit are taken to be in the units of their well"},
        {"2|30.48|NULL|CU|NULL", "2|60.96|NULL|CU|NULL", "1|100|NULL|CU|NULL"}},
    {"rows that are no rows", kHead + "A,1,2,CU\nA,1,2,CU,x,\nA,1,2,\"C\"U,x\nA,1,2,CU,\xE9\n",
        {at(2) + "refused: 4 fields instead of 5", at(3) + "refused: 6 fields instead of 5",
            at(4)
                + "refused: a quotation mark in line 4 is neither doubled nor at the edge of a "
                  "field",
            at(5) + "refused: byte 10 of line 5 (0xE9) is not UTF-8"},
        {}},
    {"byte-order mark and columns that are not kept",
        "\xEF\xBB\xBFwell_code,depth_m,section,type,,top_depth_m\nA,1,2,CU,x,5\n",
        {"samples.csv: note: begins with a byte-order mark, which was dropped",
            "samples.csv: note: columns not kept: depth_m, section, \"\""},
        {"1|5|NULL|CU|NULL"}},
    {"a unit that is not known", "well_code,top_depth_km,base_depth_m,type\nA,1,2,CU\n",
        {"samples.csv: note: top_depth_km: unknown unit \"km\" (m and ft are known); the column is "
         "not kept"},
        {"1|NULL|2|CU|NULL"}},
    {"an empty file", "", {"samples.csv: failed: is empty"}, {}},
    {"a required column missing", "well_code,depth_m,label\nA,1,x\n",
        {"samples.csv: failed: has no column type"}, {}},
    {"no depth column", "well_code,type\nA,CU\n",
        {"samples.csv: failed: has no column top_depth or base_depth"}, {}},
    {"a column twice", "well_code,type,depth_m,Depth_m\nA,CU,1,2\n",
        {"samples.csv: failed: the column Depth_m is there twice"}, {}},
    {"a header that cannot be read", "well_code,\xE9\nA,1\n",
        {"samples.csv: failed: its header cannot be read: byte 11 of line 1 (0xE9) is not UTF-8"},
        {}},
    {"a quote never closed", kHead + "A,1,2,CU,x\nA,1,2,CU,\"x\n",
        {"samples.csv: failed: a quotation mark opens in the row of line 3 and never closes"}, {}},
};
INSTANTIATE_TEST_SUITE_P(Rules, SamplesFile, testing::ValuesIn(kSamples));

using WellsFile = Checked;

TEST_P(WellsFile, IsChecked)
{
    expect("wells.csv",
        "SELECT w.well_code, coalesce(well_name, ''), grid_x, lat_dec, spud_date, round(td, 2),"
        " type, units FROM WELLS w JOIN WELL_IDENT i ON i.well_code = w.well_code"
        " WHERE i.well_id > 4 OR w.well_code = 'F' ORDER BY i.well_id");
}

std::string inWells(int line) { return "wells.csv:" + std::to_string(line) + ": "; }
const std::string kF = "F||NULL|NULL|NULL|100|W|F";

const CheckCase kWells[] = {
    {"all kinds of columns",
        "well_code,well_name,grid_x,latitude,arrival_date,total_depth_m,type,units\n"
        "N,\u00D8rn,5,-61.5,1998-03-05,100,o,feet\n",
        {}, {kF, "N|\u00D8rn|5|-61.5|1998-03-05|328.08|O|F"}},
    {"an update leaves what the file does not have", "well_code,spud_date\nF,1998-03-05 00:00:00\n",
        {}, {"F||NULL|NULL|1998-03-05|100|W|F"}},
    {"an empty cell empties, a bad one leaves alone", "well_code,td\nF,\nN,x\n",
        {inWells(3) + "adjusted: td \"x\": not a number; not taken"},
        {"F||NULL|NULL|NULL|NULL|W|F", "N||NULL|NULL|NULL|NULL|W|M"}},
    {"header depths in other units", "well_code,td_ft,units\nN,1000,M\nF,1000,\n", {},
        {"F||NULL|NULL|NULL|1000|W|F", "N||NULL|NULL|NULL|304.8|W|M"}},
    {"no units", "well_code,td,units\nN,1000,\nF,1000,x\n",
        {inWells(2) + "adjusted: units: no units given; metres are taken",
            inWells(3) + "refused: units \"x\": unknown unit (M or F)"},
        {kF, "N||NULL|NULL|NULL|1000|W|M"}},
    {"dates", "well_code,spud_date\nN1,9999-12-31\nN2,1998-02-30\nN3,05.03.1998\nN4,1998-3\n",
        {inWells(2)
                + "adjusted: spud_date \"9999-12-31\": stands for a date that is not known; left "
                  "empty",
            inWells(3)
                + "adjusted: spud_date \"1998-02-30\": no such day in the calendar; not taken",
            inWells(4) + "adjusted: spud_date \"05.03.1998\": not a date (yyyy-mm-dd); not taken",
            inWells(5) + "adjusted: spud_date \"1998-3\": not a date (yyyy-mm-dd); not taken"},
        {kF, "N1||NULL|NULL|NULL|NULL|W|M", "N2||NULL|NULL|NULL|NULL|W|M",
            "N3||NULL|NULL|NULL|NULL|W|M", "N4||NULL|NULL|NULL|NULL|W|M"}},
    {"whole numbers", "well_code,grid_x\nN1,2147483647\nN2,2147483648\nN3,-1.5\n",
        {inWells(3)
                + "adjusted: grid_x \"2147483648\": too large for a whole number of 32 bits; not "
                  "taken",
            "wells.csv: note: grid_x \"-1.5\": rounded to whole numbers"},
        {kF, "N1||2147483647|NULL|NULL|NULL|W|M", "N2||NULL|NULL|NULL|NULL|W|M",
            "N3||-2|NULL|NULL|NULL|W|M"}},
    {"positions", "well_code,lat_dec\nN1,90.5\nN2,-90\n",
        {inWells(2) + "adjusted: lat_dec \"90.5\": no such position on earth; not taken"},
        {kF, "N1||NULL|NULL|NULL|NULL|W|M", "N2||NULL|-90|NULL|NULL|W|M"}},
    {"another kind of well type", "well_code,well_type\nN,EXPLORATION\nM,O\n",
        {"wells.csv: note: well_type: holds other texts than W and O; the column is not kept"},
        {kF, "N||NULL|NULL|NULL|NULL|W|M", "M||NULL|NULL|NULL|NULL|W|M"}},
    {"a well type under its other name", "well_code,well_type\nN,O\n", {},
        {kF, "N||NULL|NULL|NULL|NULL|O|M"}},
    {"an unknown well type", "well_code,type\nN,X\n",
        {inWells(2) + "adjusted: type \"X\": unknown well type (W or O); not taken"},
        {kF, "N||NULL|NULL|NULL|NULL|W|M"}},
    {"a well twice", "well_code,well_name\nN'1,a\nN`1,b\n",
        {inWells(3) + "refused: well_code \"N`1\": this well is in line 2 already"},
        {kF, "N`1|a|NULL|NULL|NULL|NULL|W|M"}},
    {"long names",
        "well_code,well_name\n" + std::string(26, 'c') + ",\u00D8" + std::string(24, 'n') + "\n",
        {inWells(2) + "adjusted: well_code \"" + std::string(26, 'c')
                + "\": longer than 25 bytes; cut to \"" + std::string(25, 'c') + "\"",
            inWells(2) + "adjusted: well_name \"\u00D8" + std::string(24, 'n')
                + "\": longer than 25 bytes; cut to \"\u00D8" + std::string(23, 'n') + "\""},
        {kF, std::string(25, 'c') + "|\u00D8" + std::string(23, 'n') + "|NULL|NULL|NULL|NULL|W|M"}},
    {"names with a wildcard", "well_code,well_name\nN,50%\n%,x\n",
        {inWells(2)
                + "adjusted: well_name \"50%\": stored, but not found by this name: searches take "
                  "a percent sign for a wildcard",
            inWells(3)
                + "refused: well_code \"%\": a percent sign cannot stand here: searches take "
                  "it for a wildcard"},
        {kF, "N|50%|NULL|NULL|NULL|NULL|W|M"}},
};
INSTANTIATE_TEST_SUITE_P(Rules, WellsFile, testing::ValuesIn(kWells));

} // namespace

// tests/app/BatchTest.cpp
#include "tests/app/Program.h"

#include <algorithm>
#include <ostream>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST_F(Program, CreatesImportsAndLists)
{
    const std::string set = ZONARIS_SOURCE_DIR "/examples/synthetic";
    EXPECT_EQ(0, run("create --empty a.zdb"));
    EXPECT_EQ("Created a.zdb\n", out);
    const std::string before = contentOf(folder.path() / "a.zdb");
    EXPECT_EQ(1, run("--database a.zdb create"));
    EXPECT_EQ("zonaris: a.zdb is there already; it was left as it is.\n", err);
    EXPECT_EQ(before, contentOf(folder.path() / "a.zdb"));

    EXPECT_EQ(0, run("--database a.zdb import --dry-run " + set));
    EXPECT_THAT(out, HasSubstr("\nDry run: nothing was stored.\n"));
    EXPECT_EQ(0, run("--database a.zdb wells"));
    EXPECT_EQ("number  code  name  type  units  operator  field  country\n", out);

    EXPECT_EQ(0, run("--database a.zdb --user AB import --strict " + set));
    EXPECT_THAT(out,
        StartsWith("file                    read  new  updated  unchanged  adjusted  refused\n"
                   "wells.csv                  3    3        0          0         0        0\n"
                   "samples.csv               60   60        0          0         0        0\n"));
    EXPECT_THAT(out, testing::EndsWith("\nStored.\n"));
    EXPECT_EQ(0, run("import --database a.zdb --kind 2 " + set)) << "options may stand behind";
    EXPECT_THAT(out, HasSubstr("\nNothing changed: all rows are in the database already.\n"));

    for (const char* kind : {"0", "2"}) {
        EXPECT_EQ(0, run(std::string("--database a.zdb wells --kind ") + kind));
        EXPECT_EQ(
            "number  code   name            type  units  operator   field      country\n"
            "     2  SYN-2  Cape Dor\u00E9 2     W     F      Synthetic  CAPE DOR\u00C9  NOWHERE\n"
            "     3  SYN-3  S\u00F6der\u00E5s quarry  O     M                            NOWHERE\n"
            "     1  SYN-1  \u00D8rnefjell 1     W     M      Synthetic  \u00D8RNEFJELL  NOWHERE\n",
            out);
        EXPECT_EQ(0, run(std::string("--database a.zdb samples 3 --kind ") + kind));
        EXPECT_THAT(out,
            StartsWith("  depth [m]  top [m]  base [m]  type  label\n"
                       "12.50-12.30    12.50     12.30  OC    \u00E5sen top\n"
                       "11.20-11.00    11.20     11.00  OC    bed 8\n"));
        EXPECT_THAT(out, HasSubstr("quarry's lip"));
    }
    EXPECT_EQ(0, run("--database a.zdb samples SYN-2"));
    EXPECT_THAT(out, HasSubstr("\n5250.20-5250.40   5250.20    5250.40  CO    2-1 \"soft\"\n"));
    EXPECT_EQ(0, run("--database a.zdb samples 'Cape Dor\u00E9 2' --units m"));
    EXPECT_THAT(out, HasSubstr("\n1600.26-1600.32  1600.26   1600.32  CO    2-1 \"soft\"\n"));
}

TEST_F(Program, CreatesWithTheStarterDictionariesOrNotAtAll)
{
    ASSERT_EQ(0, run("create a.zdb"));
    EXPECT_EQ("", err);
    EXPECT_THAT(out, StartsWith("Created a.zdb\nstarter dictionary     rows\ndisciplines.csv"));
    EXPECT_THAT(out, HasSubstr("\nchronostrat_ics.csv     179\n"));
    EXPECT_EQ(0, run("--database a.zdb age 'ics 2024-12' 65"));
    EXPECT_THAT(out, HasSubstr("   7  Age  Danian  e1 "));

    std::filesystem::create_directory(folder.path() / "dictionaries");
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"none", "disc_id,disc_name\n",
            "not found. Looked for:\n  none\nSet ZONARIS_STARTER to the folder that holds them."},
        {"dictionaries", "disc_id,disc_name\nM,Micro\nX,Other\n",
            "in dictionaries could not be loaded. Rows refused: 1."},
        {"dictionaries", "", "could not be loaded. A file cannot be used; nothing was stored."}};
    for (const auto& [place, content, message] : cases) {
        folder.write("dictionaries/disciplines.csv", content);
        setenv("ZONARIS_STARTER", place, 1);
        EXPECT_EQ(1, run("create b.zdb"));
        EXPECT_THAT(err, HasSubstr(message));
        EXPECT_THAT(err,
            testing::EndsWith("\nNo database was made. With --empty it is made "
                              "without them.\n"));
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "b.zdb")) << message;
    }
    EXPECT_EQ(0, run("create --empty b.zdb"));
    unsetenv("ZONARIS_STARTER");
}

struct Shown {
    const char* arguments;
    int status;
    const char* text; ///< in the output, or where the status is not 0 in the errors
};

const Shown kShown[] = {
    {"load SYN-1", 0, "\nMicropalaeontology occurrences      96        0"},
    {"summary SYN-1", 0,
        "\nWell name: \u00D8rnefjell 1\nTotal: 31 samples, depth range 1010.00m to 1210.00m\n"
        "Total M occurrences: 96\nTotal N occurrences: 30\n"},
    {"summary SYN-1 --units F --compact", 0,
        "range 3313.65' to 3969.82'\nTotal occurrences: 96\nRead into discipline: M\n"},
    {"list SYN-1", 0,
        "\nSample depth:\t1040\nDiscipline: M\nStatus: I,Type P, , Counts: 15, SIPM: 0"},
    {"occurrences SYN-1 --disc p --analyst AN3/2", 0,
        "\n1120.00   1130.00  CU    AN3/2    Phantasmidinium robustum?  in place  certain"},
    {"occurrences SYN-1 --disc M --csv", 0,
        "\n\"1140.00\",\"1150.00\",\"CU\",\"AN1\",\"Fictina prima\",\"in place\",\"certain\","
        "\"caved\",\"\",\"\",\"1\",\"\",\"\",\"\",\"\"\n"},
    {"occurrences SYN-1 --disc P --analyst AN9", 1, "There are: AN3, AN3/2."},
    {"tops SYN-1 --disc M --exclude-suspect", 0,
        "1090-1100  CU     1080-1090  reworked in 2 samples beyond  1180-1190  CU     1190-1200"},
    {"tops SYN-1 --disc X", 1,
        "There is no discipline X. There are: M (Micropalaeontology), N (Nanno"},
    {"events SYN-1", 0, "\n   1043.5  SC    Top of Fictina secunda "},
    {"standard 'Synthetic standard'", 0, "\n17.000  Base of Fictina prima\n"},
    {"standard Other", 1, "No composite standard is called Other."},
    {"depth SYN-1 --md 1100", 0, "true vertical depth 1062.77 m\n"},
    {"depth SYN-1 --tvd 4000 --units F", 0, "measured depth 3986.22 ft, true vertical depth 4000"},
    {"depth SYN-2 --md 1", 1, "The well has no deviation survey"},
    {"depth SYN-1", 1, "Give one depth"},
    {"sample-lithology SYN-1", 0, "depth [m]  type  per cent  code  lithology\n"},
    {"events NOWHERE-1", 1, "NOWHERE-1"},
};

TEST_F(Program, ShowsWhatAWellHolds)
{
    ASSERT_EQ(0, run("create a.zdb"));
    ASSERT_EQ(0, run("--database a.zdb import " ZONARIS_SOURCE_DIR "/examples/synthetic"));
    for (const Shown& shown : kShown) {
        EXPECT_EQ(shown.status, run(std::string("--database a.zdb ") + shown.arguments));
        EXPECT_THAT(shown.status == 0 ? out : err, HasSubstr(shown.text)) << shown.arguments;
    }
}

TEST_F(Program, ShowsInterpretations)
{
    folder.write("wells.csv", "well_code,units\nA,M\n");
    folder.write("lithostrat_units.csv",
        "unit_id,unit_name,level,hier,parent_id,parent_name\n1,ONE GP,GROUP,1,,\n"
        "2,TWO GP,GROUP,1,,\n");
    folder.write("formation_tops.csv",
        "well_code,top_md_m,base_md_m,unit_name,level,parent_name,unit_id,parent_id\n"
        "A,100,200,ONE GP,GROUP,,1,\nA,150,300,TWO GP,GROUP,,2,\n");
    folder.write("lithology_codes.csv", "lith_code,lithology,abbreviation\n30000,Sandstone,SST\n");
    folder.write("lithology_intervals.csv",
        "well_code,top_md_m,base_md_m,lith_code,lithology\nA,100,110,30000,Sandstone\n");
    ASSERT_EQ(0, run("create a.zdb"));
    ASSERT_EQ(0, run("--database a.zdb import --strict .")) << err;
    EXPECT_EQ(0, run("--database a.zdb zones A --type 2 --rank 1 --units F"));
    EXPECT_THAT(out, HasSubstr("\n  328.08     656.17  Group  ONE GP  Confident    Confident "));
    EXPECT_EQ(0, run("--database a.zdb conflicts A"));
    EXPECT_THAT(out, HasSubstr("\nGroup  ONE GP  TWO GP    overlap from 150.00 to 200.00\n"));
    EXPECT_EQ(0, run("--database a.zdb lithology A"));
    EXPECT_THAT(out, HasSubstr("\n 100.00    110.00  rock  SST   Sandstone\n"));
    EXPECT_EQ(0, run("--database a.zdb schemes"));
    EXPECT_THAT(out, HasSubstr("  Lithostratigraphy  "));
    for (const char* empty : {"environment A", "picks A"}) {
        EXPECT_EQ(0, run(std::string("--database a.zdb ") + empty));
        EXPECT_EQ(1, std::ranges::count(out, '\n')) << "titles only";
    }
    EXPECT_EQ(1, run("--database a.zdb zones A --type 7"));
    EXPECT_THAT(err, HasSubstr("There are: 3 (Chronostratigraphy), 2 (Lithostratigraphy), 4 ("));
}

TEST_F(Program, TellsRefusedRowsFromFailures)
{
    folder.write("wells.csv", "well_code\nA\n");
    folder.write("samples.csv", "well_code,type,depth_m\nA,CU,1\nA,XX,2\nA,CU,\n");
    ASSERT_EQ(0, run("create a.zdb"));
    EXPECT_EQ(1, run("--database a.zdb import --dry-run --strict ."));
    EXPECT_EQ(0, run("--database a.zdb import ."));
    EXPECT_THAT(out, HasSubstr("samples.csv     3    2        0          0         1        1\n"));
    EXPECT_THAT(err,
        StartsWith("samples.csv:3: refused: type \"XX\": unknown sample type (CU, SC, CO, OC and"));
    EXPECT_THAT(
        err, testing::EndsWith("samples.csv:4: adjusted: has no depth; stored without one\n"));
    EXPECT_EQ(1, run("--database a.zdb import --strict ."));
    EXPECT_THAT(out, HasSubstr("Nothing changed: no row that could be stored was new."));
    EXPECT_EQ(0, run("--database a.zdb samples A"));
    EXPECT_EQ("depth [m]  top [m]  base [m]  type  label\n"
              "                              CU\n"
              "        1     1.00      1.00  CU\n",
        out);

    folder.write("samples.csv", "");
    EXPECT_EQ(1, run("--database a.zdb import ."));
    EXPECT_THAT(err, HasSubstr("samples.csv: failed: is empty\n"));
    EXPECT_THAT(err, HasSubstr("zonaris: A file cannot be used; nothing was stored.\n"));
}

struct UsageCase {
    const char* name;
    const char* arguments;
    int status;
    const char* message; // in the one stream that is not empty
};
void PrintTo(const UsageCase& c, std::ostream* out) { *out << c.name; }

const UsageCase kUsages[] = {
    {"help", "--help", 0, "Exit status: 0 done, 1 failed, 2 wrong usage."},
    {"help of a command", "import --help", 0, "--strict"},
    {"version", "--version", 0, "zonaris "},
    {"unknown option", "--nonsense", 2, "--nonsense"},
    {"unknown command", "--database a.zdb translate", 2, "translate"},
    {"no database", "wells", 2, "name it with --database or --connect"},
    {"two databases", "--database a.zdb --connect DSN=x wells", 2, "--database excludes --connect"},
    {"unknown kind", "--database a.zdb --kind 4 wells", 2, "--kind"},
    {"long user", "--database a.zdb --user ABCDEF wells", 2, "--user: more than 5 bytes"},
    {"unknown unit", "--database a.zdb samples A --units K", 2, "--units"},
    {"no well", "--database a.zdb samples", 2, "WELL is required"},
    {"nothing to import", "--database a.zdb import", 2, "INPUT is required"},
    {"nothing to create", "create", 2, "name the file to create"},
    {"a file to create twice", "--database a.zdb create b.zdb", 2, "the file is given twice"},
    {"no such file", "--database none.zdb wells", 1, "There is no database file none.zdb"},
    {"secrets stay secret", "--connect 'DSN=NO_SUCH;PWD=secret' wells", 1, "DSN=NO_SUCH;PWD=***\n"},
};

class Usage : public Program, public testing::WithParamInterface<UsageCase> {};

TEST_P(Usage, HasAnExitStatusAndAWord)
{
    const auto& [name, arguments, status, message] = GetParam();
    EXPECT_EQ(status, run(arguments));
    EXPECT_THAT(status == 0 ? out : err, HasSubstr(message));
    EXPECT_EQ("", status == 0 ? err : out);
    EXPECT_THAT(out + err, testing::Not(HasSubstr("secret\n")));
}
INSTANTIATE_TEST_SUITE_P(Rules, Usage, testing::ValuesIn(kUsages));

} // namespace

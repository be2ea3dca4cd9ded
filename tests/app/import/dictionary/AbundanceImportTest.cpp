// tests/app/import/dictionary/AbundanceImportTest.cpp
#include "dict/Abns.h"
#include "tests/app/import/dictionary/DictionaryRun.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

struct LevelCase {
    const char* name;
    std::string levels;
    Lines issues;
    Lines stored; ///< place, name, code, minimum, output
};
void PrintTo(const LevelCase& c, std::ostream* out) { *out << c.name; }

std::string at(int line) { return "levels.csv:" + std::to_string(line) + ": "; }

std::string manyLevels(int count)
{
    std::string text = "scheme_id,abr,min\n";
    for (int i = 1; i <= count; ++i)
        text += "1,L" + std::to_string(i) + ',' + std::to_string(i) + '\n';
    return text;
}

Lines manyRows(int count)
{
    Lines rows;
    for (int i = 1; i <= count; ++i)
        rows.push_back(
            std::to_string(i) + "|NULL|L" + std::to_string(i) + '|' + std::to_string(i) + "|0");
    return rows;
}

const LevelCase kLevels[] = {
    {"a ladder",
        "scheme_id,entry_no,entry_name,abr,min,output_val\n1,1,Rare,R,0,\n1,2,Many,M,5,9\n", {},
        {"1|Rare|R|0|0", "2|Many|M|5|9"}},
    {"by the scheme's name, without places", "scheme,abr,min\nAnn's,R,1\nAnn's,M,5\n", {},
        {"1|NULL|R|1|0", "2|NULL|M|5|0"}},
    {"places in any order", "scheme_id,entry_no,abr,min\n1,2,M,5\n1,1,R,0\n", {},
        {"1|NULL|R|0|0", "2|NULL|M|5|0"}},
    {"bounds that are no counts",
        "scheme_id,abr,min,min_exclusive\n1,R,0.01,N\n1,F,1,Y\n1,C,2.5,y\n1,A,10,\n1,V,100,yes\n",
        {at(2) + "adjusted: min \"0.01\": from 0.01 (1/100): the level begins with a count of 1",
            at(3) + "adjusted: min \"1\": more than 1: the level begins with a count of 2",
            at(4) + "adjusted: min \"2.5\": more than 2.5: the level begins with a count of 3",
            at(6) + "adjusted: min \"100\": more than 100: the level begins with a count of 101"},
        {"1|NULL|R|1|0", "2|NULL|F|2|0", "3|NULL|C|3|0", "4|NULL|A|10|0", "5|NULL|V|101|0"}},
    {"levels that counts do not tell apart", "scheme_id,abr,min\n1,R,0.01\n1,F,0.1\n1,C,1\n",
        {at(2) + "adjusted: min \"0.01\": from 0.01 (1/100): the level begins with a count of 1",
            at(3) + "adjusted: min \"0.1\": from 0.1 (1/10): the level begins with a count of 1",
            at(3)
                + "adjusted: min \"0.1\": level R below begins with 1; no count gives it, but its "
                  "code can be recorded",
            at(4)
                + "adjusted: min \"1\": level F below begins with 1; no count gives it, but its "
                  "code can be recorded"},
        {"1|NULL|R|1|0", "2|NULL|F|1|0", "3|NULL|C|1|0"}},
    {"bounds out of range", "scheme_id,abr,min\n1,R,-1\n1,F,40000\n1,C,x\n",
        {at(2) + "refused: min \"-1\": a count is never below 0",
            at(3)
                + "adjusted: min \"40000\": more than 32767, the largest that a level has; stored "
                  "as "
                  "that",
            at(4) + "refused: min \"x\": not a number"},
        {"1|NULL|F|32767|0"}},
    {"codes", "scheme_id,abr,min\n1,Freq,0\n1,Frequent,5\n1,,6\n1,+,7\n",
        {at(3) + "refused: abr \"Frequent\": the code Freq is in line 2 already",
            at(4) + "refused: abr: has no code"},
        {"1|NULL|Freq|0|0", "2|NULL|+|7|0"}},
    {"a long code", "scheme_id,abr,min\n1,Abund,0\n",
        {at(2) + "adjusted: abr \"Abund\": longer than 4 bytes; cut to \"Abun\""},
        {"1|NULL|Abun|0|0"}},
    {"one place twice", "scheme_id,entry_no,abr,min\n1,1,R,0\n1,1,F,1\n",
        {at(3) + "refused: abr \"F\": place 1 of the scheme is in line 2 already"},
        {"1|NULL|R|0|0"}},
    {"no such scheme", "scheme_id,abr,min\n9,R,0\n",
        {at(2)
            + "refused: scheme_id \"9\": no such scheme in the database or among the accepted rows "
              "of schemes files"},
        {}},
    {"twelve levels", manyLevels(12), {}, manyRows(12)},
    {"fourteen levels", manyLevels(14),
        {at(14)
                + "refused: abr \"L13\": the scheme has twelve levels already, the most that one "
                  "holds",
            at(15)
                + "refused: abr \"L14\": the scheme has twelve levels already, the most that one "
                  "holds"},
        manyRows(12)},
    {"another kind of file", "samp_id,well_code,height_ft\n1,A,2\n",
        {"levels.csv: note: has no column abr; left as another kind of file"}, {}},
    {"levels of nothing", "abr,min\nR,0\n",
        {"levels.csv: failed: has no column scheme_id or scheme"}, {}},
};

class Levels : public testing::TestWithParam<LevelCase> {};

TEST_P(Levels, AreChecked)
{
    TestDatabase db;
    const Files files{
        {"schemes.csv", "scheme_id,name\n1,Ann's\n"}, {"levels.csv", GetParam().levels}};
    for (const bool again : {false, true}) {
        IssueLog log;
        const ImportResult result = importAll(files, log);
        EXPECT_EQ(GetParam().issues, log.texts);
        EXPECT_EQ(GetParam().stored,
            db.rows("SELECT entry_no, entry_name, abr, min, output_val FROM ABNSCHMBR"
                    " ORDER BY entry_no"));
        if (again) {
            EXPECT_EQ(0, result.stored());
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Rules, Levels, testing::ValuesIn(kLevels));

TEST(AbundanceFiles, GiveWhatTheCoreCountsBy)
{
    TestDatabase db;
    IssueLog log;
    importAll({{"schemes.csv",
                   "scheme_id,name\n4,Per field\n5,Per field\n6,Name with more than 25 bytes\n"},
                  {"levels.csv",
                      "scheme_id,abr,min,min_exclusive\n4,R,0,N\n4,F,0.1,N\n4,C,1,Y\n4,A,10,Y\n"}},
        log);
    EXPECT_THAT(log.texts,
        testing::Contains("schemes.csv:3: refused: name \"Per field\": this scheme is in line 2 "
                          "already"));
    EXPECT_THAT(db.rows("SELECT name FROM ABNSCHME ORDER BY 1"),
        ElementsAre("Name with more than 25 by", "Per field"));
    Abns scheme;
    scheme.loadByName("Per field");
    std::string codes;
    for (const long count : {0L, 1L, 2L, 10L, 11L})
        codes += scheme.abrForCount(count);
    EXPECT_EQ("RFCCA", codes);

    for (int i = 1; i <= 12; ++i)
        db.run("INSERT INTO ABNSCHMBR (scheme_id, entry_no) VALUES (2, " + std::to_string(20 + i)
            + ")");
    EXPECT_EQ(
        1, importAll({{"levels.csv", "scheme,entry_no,abr,min\nPer field,5,V,90\n"}}, log).stored())
        << "the levels of another scheme do not count";
}

} // namespace

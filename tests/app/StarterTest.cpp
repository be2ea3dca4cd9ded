// tests/app/StarterTest.cpp
#include "dict/Abns.h"
#include "interp/EnvSchemeList.h"
#include "interp/IGDTypes.h"
#include "interp/igd_sch.h"
#include "taxonomy/Categories.h"
#include "taxonomy/Disciplines.h"
#include "tests/app/import/dictionary/FaultSweep.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

const std::filesystem::path kStarter = ZONARIS_SOURCE_DIR "/schema/starter";

class Starter : public testing::Test {
protected:
    Starter()
        : loaded_(importFiles({{kStarter}, false}, log_))
    {
    }
    TestDatabase db;
    IssueLog log_;
    const ImportResult loaded_;
};

TEST_F(Starter, LoadsWithoutAWord)
{
    EXPECT_EQ("", loaded_.failure);
    EXPECT_EQ(Lines{}, log_.texts);
    EXPECT_EQ(7u, loaded_.files.size());
    for (const FileCounts& counts : loaded_.files)
        EXPECT_EQ(counts.read, counts.added) << counts.file;
    EXPECT_EQ(0, importFiles({{kStarter}, false}, log_).stored());
}

TEST_F(Starter, AnswersTheCore)
{
    const Discs disciplines;
    for (int n = 0; n < kDisciplines; ++n) {
        EXPECT_EQ(discLetters[n], disciplines[n].letter);
        EXPECT_EQ(std::string(disciplines[n].adj.view()) + " Biozone", typeName(41 + n, 1));
    }
    EXPECT_EQ("Palynology", disciplines[discIndex('P')].name.view());
    EXPECT_STREQ("Calcareous Nannofossils", categoryName("NANNO"));
    EXPECT_EQ('A', categoryDisc("GRAPT"));

    Abns counts;
    counts.loadByName("Counts, eight levels");
    for (const auto& [count, abr] : {std::pair(0, "VR"), {9, "R"}, {10, "F"}, {749, "VA"}})
        EXPECT_STREQ(abr, counts.abrForCount(count)) << count;

    const EnvSchemeList schemes;
    const env_scheme* depths = schemes.findScheme(0);
    ASSERT_NE(nullptr, depths);
    EXPECT_LT(depths->termNumber("Inner neritic"), depths->termNumber("Outer neritic"));
    EXPECT_EQ(depths->nTerms(), depths->termNumber("Hadal"));
}

TEST_F(Starter, FindsTheFinestUnitOfAnAge)
{
    igd_sch chart("ICS 2024-12", 3, 1);
    const std::tuple<float, float, const char*, const char*> cases[] = {
        {0.001f, 0.001f, "Meghalayan", ""}, {65.f, 65.f, "Danian", ""}, {70.f, 64.f, "", ""},
        {64.f, 70.f, "Danian", "Maastrichtian"}, {421.f, 421.f, "Pridoli", ""},
        {424.f, 424.f, "Ludfordian", ""}, {320.f, 320.f, "Bashkirian", ""},
        {650.f, 650.f, "Cryogenian", ""}, {4000.f, 4000.f, "Eoarchean", ""},
        {5000.f, 5000.f, "", ""}};
    for (const auto& [top, base, first, second] : cases) {
        igdDict* found[2];
        chart.findTermsForAges(top, base, &found[0], &found[1]);
        EXPECT_EQ(first, found[0] ? found[0]->name.view() : "") << top;
        EXPECT_EQ(*second ? second : first, found[1] ? found[1]->name.view() : first) << top;
    }
}

struct Flaw {
    const char* name;
    const char* sql; ///< finds the rows that have it
};
void PrintTo(const Flaw& f, std::ostream* out) { *out << f.name; }

class StarterFlaws : public Starter, public testing::WithParamInterface<Flaw> {};

TEST_P(StarterFlaws, AreNone) { EXPECT_EQ(Lines{}, db.rows(GetParam().sql)); }

INSTANTIATE_TEST_SUITE_P(Rules, StarterFlaws,
    testing::Values(
        Flaw{"a unit across the end of another",
            "SELECT a.name, b.name FROM IGD_DICT a JOIN IGD_DICT b ON a.u_age < b.u_age AND"
            " b.u_age < a.l_age AND a.l_age < b.l_age"},
        Flaw{"a unit outside those of wider ranks",
            "SELECT name FROM IGD_DICT u WHERE hier > 1 AND NOT EXISTS (SELECT 1 FROM IGD_DICT p"
            " WHERE p.hier IN (u.hier - 1, u.hier - 2) AND p.u_age <= u.u_age"
            " AND p.l_age >= u.l_age)"},
        Flaw{"two units of a rank at one age",
            "SELECT a.name, b.name FROM IGD_DICT a JOIN IGD_DICT b ON a.hier = b.hier AND"
            " a.igd_id < b.igd_id AND a.u_age < b.l_age AND b.u_age < a.l_age"
            " WHERE a.name <> 'Precambrian' AND b.name <> 'Precambrian'"},
        Flaw{"no colour or abbreviation",
            "SELECT name FROM IGD_DICT WHERE abr IS NULL OR red + green + blue IS NULL"},
        Flaw{"a category of no discipline",
            "SELECT cat_mnem FROM CATEGORY WHERE coalesce(disc_id, '') NOT IN (SELECT disc_id FROM "
            "DISCS)"},
        Flaw{"an abbreviation of two rocks",
            "SELECT abr FROM LITHDESC GROUP BY upper(abr) HAVING count(*) > 1 OR abr IS NULL"},
        Flaw{"a kind of rock without members",
            "SELECT k.column1 FROM (VALUES ('N'), ('A'), ('Q'), ('S')) k WHERE k.column1 NOT IN"
            " (SELECT cmp FROM LITHDESC)"},
        Flaw{"levels that do not rise",
            "SELECT a.abr FROM ABNSCHMBR a JOIN ABNSCHMBR b ON a.scheme_id = b.scheme_id AND"
            " a.entry_no < b.entry_no AND a.min >= b.min"}));

TEST_F(Starter, AgesOfWellsUseItsChart)
{
    const std::string before = db.value("SELECT count(*) FROM IGD_DICT");
    const Folder folder;
    folder.write("wells.csv", "well_code\nA\n");
    folder.write("age_intervals.csv",
        "well_code,top_m,base_m,age_name,scheme\n"
        "A,1,2,DANIAN,ICS 2024-12\nA,2,3,Precambrian,ICS 2024-12\n");
    EXPECT_EQ(3, importFiles({{folder.path()}, false}, log_).stored());
    EXPECT_EQ(before, db.value("SELECT count(*) FROM IGD_DICT"));
    EXPECT_EQ((Lines{"Danian|7", "Precambrian|1"}),
        db.rows("SELECT t.name, z.hier FROM IGD z JOIN IGD_DICT t ON t.igd_id = z.upp_zone"
                " ORDER BY 1"));
}

TEST_F(Starter, IsChangedByItsKeepersOnly)
{
    const Folder folder;
    folder.write("disciplines.csv", "disc_id,disc_name\nm,Micro\nX,No\nM,Again\n");
    folder.write("lithologies.csv", "lithology,kind\nPYRITE,\nChalk,rock\nJet,A\nClay,accessory\n");
    EXPECT_EQ(3, importFiles({{folder.path()}, false}, log_).stored());
    EXPECT_EQ((Lines{"disciplines.csv:3: refused: disc_id \"X\": unknown discipline (M, N, P or A)",
                  "disciplines.csv:4: refused: disc_id \"M\": this discipline is in line 2 already",
                  "lithologies.csv:3: refused: kind \"rock\": neither main, accessory, qualifier "
                  "nor stringer"}),
        log_.texts);
    EXPECT_EQ("Micro|Micropalaeontological",
        db.rows("SELECT disc_name, disc_adj FROM DISCS WHERE disc_id = 'M'").front());
    EXPECT_EQ((Lines{"Chalk|N", "Clay|A", "Jet|A", "Pyrite|A"}),
        db.rows("SELECT descr, cmp FROM LITHDESC WHERE descr IN ('Pyrite', 'Chalk', 'Jet', 'Clay')"
                " ORDER BY 1"));
}

TEST(DisciplinesAndRocks, EachDriverCallFailing)
{
    const auto prepare = [](TestDatabase& db) {
        db.run("INSERT INTO DISCS (disc_id, disc_name) VALUES ('M', 'old')");
    };
    const auto contents = [](TestDatabase& db) {
        return db.rows("SELECT disc_id, disc_name FROM DISCS UNION ALL SELECT descr, cmp FROM"
                       " LITHDESC ORDER BY 1");
    };
    const Files files{{"disciplines.csv", "disc_id,disc_name\nM,new\nP,p\n"},
        {"lithologies.csv", "lithology,kind\nPyrite,A\n"}};
    EXPECT_GT(sweepFaults(files, prepare, contents, 3), 20);
}

} // namespace

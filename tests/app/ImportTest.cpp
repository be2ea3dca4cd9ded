// tests/app/ImportTest.cpp
#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "store/Transaction.h"
#include "tests/app/ImportRun.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

using Lines = std::vector<std::string>;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kWells = "well_code,well_name,units,spud_date\n"
                               "B'1,Ann's well,F,1998-03-05\n"
                               "A,,M,\n";
constexpr const char* kSamples = "samp_id,well_code,top_depth,base_depth,type,label\n"
                                 "1,B'1,100,110,CU,\n"
                                 "2,B'1,,105,SC,d'O|x\n"
                                 "3,A,7,8,CO,\n"
                                 "4,C,7,8,CO,\n";

class Importing : public testing::Test {
protected:
    ImportResult import(std::vector<std::filesystem::path> inputs, bool dryRun = false)
    {
        log = IssueLog();
        return importFiles({std::move(inputs), dryRun}, log);
    }
    TestDatabase db;
    Folder folder;
    IssueLog log;
};

TEST_F(Importing, StoresOnceInTheOrderOfReference)
{
    const auto samples = folder.write("samples.csv", kSamples);
    const auto wells = folder.write("wells.csv", kWells);
    const Lines refused{
        "samples.csv: note: depths without a unit are taken to be in the units of their well",
        "samples.csv:5: refused: well_code \"C\": no such well in the database or among the "
        "accepted "
        "rows of wells files"};

    const ImportResult dry = import({folder.path()}, true);
    EXPECT_EQ("", dry.failure);
    EXPECT_THAT(countsOf(dry), ElementsAre("wells.csv 2/2/0/0/0/0", "samples.csv 4/3/0/0/0/1"));
    EXPECT_EQ(refused, log.texts);
    EXPECT_THAT(contentsOf(db), IsEmpty());

    const ImportResult first = import({samples, wells, folder.path()});
    EXPECT_EQ(refused, log.texts) << "a file that is named twice counts once";
    EXPECT_EQ(countsOf(dry), countsOf(first));
    EXPECT_EQ(5, first.stored());
    EXPECT_EQ(1, first.refused());
    const Lines stored = contentsOf(db);
    EXPECT_EQ(7u, stored.size());

    const ImportResult second = import({folder.path()});
    EXPECT_THAT(countsOf(second), ElementsAre("wells.csv 2/0/0/2/0/0", "samples.csv 4/0/0/3/0/1"));
    EXPECT_EQ(0, second.stored());
    EXPECT_EQ(stored, contentsOf(db));

    folder.write("wells.csv", "well_code,well_name\nA,new\nB'1,Ann's well\n");
    EXPECT_THAT(countsOf(import({wells}, true)), ElementsAre("wells.csv 2/0/1/1/0/0"));
    EXPECT_EQ(stored, contentsOf(db));
    EXPECT_THAT(countsOf(import({wells})), ElementsAre("wells.csv 2/0/1/1/0/0"));
    EXPECT_EQ("new", db.value("SELECT well_name FROM WELLS WHERE well_code = 'A'"));
    EXPECT_EQ("F", db.value("SELECT units FROM WELLS WHERE well_code = 'B`1'"));
}

TEST_F(Importing, StoresWhatTheCoreFinds)
{
    folder.write("wells.csv", kWells);
    folder.write("samples.csv", kSamples);
    import({folder.path()});
    Well well;
    well.FindByCode("B'1", 3);
    EXPECT_EQ("Ann`s well", well.well_name.str());
    EXPECT_EQ(Date(5, 3, 1998), well.spud_date);
    EXPECT_EQ('F', well.units);
    well.LoadSamples(0);
    ASSERT_EQ(2, well.samples.count());
    EXPECT_STREQ("105.00' SC d`O|x", (*well.samples.begin())->DepthLabel('F', 0, 1, 0, 0, -1));
    EXPECT_NEAR(33.528, (*++well.samples.begin())->GetBase('M', 0, 0), 1e-4);
}

TEST_F(Importing, KnowsFilesByTheirNames)
{
    folder.write("Wells.CSV", "well_code\nA\n");
    folder.write("north_wells.csv", "well_code\nB\n");
    folder.write("wells-old.csv", "code\nC\n");
    folder.write("swells.csv", "well_code\nD\n");
    folder.write("wells.txt", "well_code\nE\n");
    folder.write("unknown.csv", "well_code\nF\n");
    EXPECT_EQ("", import({folder.path()}).failure);
    EXPECT_THAT(log.texts,
        ElementsAre("swells.csv: note: no such file is known; left",
            "unknown.csv: note: no such file is known; left",
            "wells-old.csv: note: has no column well_code; left as another kind of file"));
    EXPECT_THAT(db.rows("SELECT well_code FROM WELLS ORDER BY 1"), ElementsAre("A", "B"));
}

TEST_F(Importing, NeedsSomethingToImport)
{
    EXPECT_THAT(import({folder.path()}).failure,
        testing::StartsWith("Nothing to import. Known files: wells.csv, sections.csv, "));
    const auto missing = folder.path() / "none";
    folder.write("wells.csv", "well_code\nA\n");
    EXPECT_EQ(missing.string() + " is not there.", import({folder.path(), missing}).failure);
    EXPECT_THAT(contentsOf(db), IsEmpty());
}

TEST_F(Importing, StoresNothingBesideAFileThatCannotBeUsed)
{
    folder.write("wells.csv", kWells);
    folder.write("samples.csv", "well_code,type,depth_m\nA,CU,1\nA,CU,\"2\n");
    EXPECT_EQ("A file cannot be used; nothing was stored.", import({folder.path()}).failure);
    EXPECT_THAT(contentsOf(db), IsEmpty());
}

TEST_F(Importing, NamesFilesOfSeveralSetsByTheirPaths)
{
    const Folder other;
    folder.write("wells.csv", "well_code\nA\n");
    other.write("wells.csv", "well_code\nA\nB\n");
    const ImportResult result = import({folder.path(), other.path()});
    const std::string first = (folder.path() / "wells.csv").string();
    const std::string second = (other.path() / "wells.csv").string();
    EXPECT_THAT(countsOf(result), ElementsAre(first + " 1/1/0/0/0/0", second + " 2/1/0/0/0/1"));
    EXPECT_THAT(log.texts,
        ElementsAre(
            second + ":2: refused: well_code \"A\": this well is in " + first + ":2 already"));
}

// Reads and stores a file as an import does, with the context in the test's hands.
void load(ImportContext& context, RowLoader& loader, const InputFile& file)
{
    FileReport report(file.name, nullptr);
    CsvReader reader(file.path);
    CsvRow row;
    reader.next(&row);
    while (reader.next(&row)) {
        report.beginRow(row.line);
        CellReader cells(file, row, report);
        ASSERT_TRUE(loader.check(cells));
        if (!report.refused() && context.phase == ImportPhase::Storing) {
            ASSERT_NE(Outcome::Failed, loader.store()) << loader.error();
        }
    }
}

InputFile samplesFile(const std::filesystem::path& path)
{
    InputFile file;
    file.path = path;
    file.name = path.filename();
    file.set = path.parent_path();
    file.shape = shapeOfFile("samples");
    FileReport report(file.name, nullptr);
    readHeader(&file, &report);
    return file;
}

TEST_F(Importing, KeepsTheNumbersOfSetsApart)
{
    db.run("INSERT INTO WELLS (well_code) VALUES ('A')");
    db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (9, 'A')");
    db.run("INSERT INTO SAMPLES (samp_id, well_id, top_depth, type) VALUES (50, 9, 10, 'CU')");
    const std::string head = "samp_id,well_code,depth_m,type\n";
    const Folder other;
    const InputFile files[] = {samplesFile(folder.write("samples.csv",
                                   head + "1,A,10,CU\n2,A,20,CU\n3,A,20,CU\n4,B,1,CU\n")),
        samplesFile(other.write("samples.csv", head + "1,A,30,CU\nx,A,40,CU\n"))};
    ImportContext context(Writing::Write);
    const auto loader = makeSamplesLoader(context);
    Transaction transaction;
    for (const ImportPhase phase : {ImportPhase::Checking, ImportPhase::Storing}) {
        context.phase = phase;
        for (const InputFile& file : files)
            load(context, *loader, file);
    }
    const auto known = [&](int set) {
        Lines ids;
        for (const auto& [id, to] : context.ids("samples", files[set].set))
            ids.push_back(id + '=' + std::to_string(to.databaseId));
        std::ranges::sort(ids);
        return ids;
    };
    EXPECT_THAT(known(0), ElementsAre("1=50", "2=51", "3=51"))
        << "a repeated row stands for the sample that is there; a refused one for nothing";
    EXPECT_THAT(known(1), ElementsAre("1=52", "x=53"));
}

std::string manyWells(int rows)
{
    std::string text = "well_code\n";
    for (int i = 0; i < rows; ++i)
        text += "W" + std::to_string(i) + '\n';
    return text;
}

TEST_F(Importing, TellsHowFarItIsAndCanBeCancelled)
{
    folder.write("wells.csv", manyWells(1001));
    for (const char* at : {"wells.csv checked 1000", "wells.csv stored 1000"}) {
        log = IssueLog();
        log.cancelAt = at;
        EXPECT_EQ(
            "Cancelled; nothing was stored.", importFiles({{folder.path()}, false}, log).failure);
        EXPECT_EQ(at, log.steps.back());
        EXPECT_THAT(contentsOf(db), IsEmpty());
    }
    EXPECT_EQ(1001, import({folder.path()}).stored());
    EXPECT_THAT(log.steps, ElementsAre("wells.csv checked 1000", "wells.csv stored 1000"));
}

TEST_F(Importing, NoticesAFileThatChangesUnderIt)
{
    struct Meddler : IssueLog {
        const Folder* folder = nullptr;
        void progress(const std::string&, long, ImportPhase phase) override
        {
            if (phase == ImportPhase::Checking)
                folder->write("wells.csv", manyWells(999) + "%\n");
        }
    } meddler;
    meddler.folder = &folder;
    folder.write("wells.csv", manyWells(1000));
    EXPECT_EQ("wells.csv changed while it was read; nothing was stored.",
        importFiles({{folder.path()}, false}, meddler).failure);
    EXPECT_THAT(contentsOf(db), IsEmpty());
}

// What must not happen wherever the database fails: half of an import.
TEST(ImportFaults, EachDriverCallFailing)
{
    const Folder folder;
    folder.write("wells.csv", "well_code,well_name\nA,new\nB,b\n");
    folder.write("samples.csv", "well_code,type,depth_m\nA,CU,1\nB,CU,2\n");
    int fired = 0;
    for (int n = 1;; ++n) {
        TestDatabase db;
        db.run("INSERT INTO WELLS (well_code, well_name) VALUES ('A', 'old')");
        db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (1, 'A')");
        const Lines before = contentsOf(db);
        const DriverFault fault(n);
        IssueLog log;
        const ImportResult result = importFiles({{folder.path()}, false}, log);
        const std::string where = fault.call() + ' ' + std::to_string(n);
        if (result.failure.empty()) {
            EXPECT_EQ(6u, contentsOf(db).size()) << where;
            EXPECT_THAT(
                countsOf(result), ElementsAre("wells.csv 2/1/1/0/0/0", "samples.csv 2/2/0/0/0/0"));
            // Only calls that end a statement may fail without harm.
            if (fault.fired()) {
                EXPECT_THAT(fault.call(), testing::StartsWith("SQLFree")) << where;
            }
        } else {
            EXPECT_EQ(before, contentsOf(db)) << where;
            // Rows that could not be ended show at the next use of their statement.
            EXPECT_THAT(result.failure,
                HasSubstr(fault.call() == "SQLFreeStmt" ? "is open" : "injected fault"))
                << where;
            EXPECT_EQ(0, result.stored()) << where;
        }
        if (!fault.fired())
            break;
        ++fired;
    }
    EXPECT_GT(fired, 100);
}

} // namespace

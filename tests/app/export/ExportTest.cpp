// tests/app/export/ExportTest.cpp
#include "app/tables/TableFile.h"
#include "tests/app/export/RoundTrip.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <set>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

void insertWell(TestDatabase& db, const std::string& id, const std::string& code)
{
    db.run("INSERT INTO WELLS (well_code) VALUES ('" + code + "')");
    db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (" + id + ", '" + code + "')");
    db.run(
        "INSERT INTO SAMPLES (samp_id, well_id, top_depth) VALUES (" + id + "0, " + id + ", 100)");
    db.run("INSERT INTO BCMMNTS (usamp_id, comments) VALUES (" + id + "0, 'of " + code + "')");
    db.run("INSERT INTO CASING (well_id, depth, diam) VALUES (" + id + ", 5, '20')");
}

// Where the tables are defined for files, nothing of the schema may be left out.
TEST(TableFiles, HoldEveryColumnOfTheSchema)
{
    TestDatabase db;
    std::set<std::string> defined;
    for (const TableFile& table : tableFiles())
        for (const TableField& field : table.fields)
            for (const char* column : {field.column, field.twin})
                if (column)
                    defined.insert(lowerCased(std::string(table.name) + '.' + column));
    std::set<std::string> stored;
    for (const std::string& column :
        db.rows("SELECT lower(m.name) || '.' || lower(c.name) FROM sqlite_master m,"
                " pragma_table_info(m.name) c WHERE m.type = 'table'"))
        if (!column.starts_with("sqlite_") && !column.starts_with("schema_info."))
            stored.insert(column);
    EXPECT_EQ(stored, defined);
}

// The page lists every file with its header.
TEST(TableFiles, StandInTheDocument)
{
    const std::string page =
        contentOf(std::filesystem::path(ZONARIS_SOURCE_DIR) / "docs/export.md");
    for (const TableFile& table : tableFiles()) {
        std::string header = headerOf(table);
        for (std::size_t at = 0; (at = header.find(',', at)) != std::string::npos; at += 4)
            header.replace(at, 1, "`, `");
        EXPECT_THAT(page, HasSubstr("| `" + table.stem() + ".csv` | `" + header + "` |"));
    }
}

TEST(Export, OneWellTakesItsRowsAndTheDictionaries)
{
    TestDatabase db;
    insertWell(db, "1", "A");
    insertWell(db, "2", "B");
    db.run("INSERT INTO USERDEF (user_id, abr) VALUES (4, 'ME')");
    const Folder folder;
    const Files files = exported({folder.path(), 2});
    EXPECT_THAT(files.at("wells.csv"), HasSubstr("\nB,"));
    EXPECT_THAT(files.at("wells.csv"), testing::Not(HasSubstr("\nA,")));
    EXPECT_EQ("well_id,well_code,descrip\n1,B,\n", files.at("well_ident.csv"));
    EXPECT_EQ("samp_id,well_code,top_depth_m,base_depth_m,type,label,grid_x,grid_y,created,"
              "modified,creator,modifier\n1,B,100,,,,,,,,,\n",
        files.at("samples.csv"));
    EXPECT_EQ("usamp_id,interp_id,disc_id,analyst,comments,sample_depth_m\n1,,,,of B,\n",
        files.at("bcmmnts.csv"));
    EXPECT_EQ("well_code,depth_m,diam\nB,5,20\n", files.at("casing.csv"));
    EXPECT_EQ("user_id,abr\n1,ME\n", files.at("userdef.csv"));
}

TEST(Export, SaysWhatPeopleReadButImportIgnoresIt)
{
    TestDatabase db;
    insertWell(db, "1", "A");
    db.run("INSERT INTO GENUS (gen_id, genus) VALUES (3, 'Globigerina')");
    db.run("INSERT INTO SPECIES (spec_id, gen_id, species, author) VALUES (8, 3, 'bulloides',"
           " 'd`Orbigny')");
    db.run("INSERT INTO TAXONOCC (well_id, samp_id, spec_id, comments) VALUES (1, 10, 8,"
           " 'abundance=14%; percent=14; seen; twice')");
    db.run("INSERT INTO TAXONOCC (well_id, samp_id, spec_id, comments) VALUES (1, 10, 9,"
           " 'percent=14;abundance=x')");
    const Folder folder;
    exported({folder.path()});
    EXPECT_EQ("well_code,samp_id,spec_id,analy_id,disc_id,status,ident_type,abund,caved,marker,"
              "medium,coarse,fine,spec_type_id,preserv,colour,comments,abundance,percent,"
              "sample_depth_m,taxon\n"
              "A,1,1,,,,,,,,,,,,,,\"seen; twice\",14%,14,,Globigerina bulloides  d'Orbigny\n"
              "A,1,?9,,,,,,,,,,,,,,\"percent=14;abundance=x\",,,,\n",
        contentOf(folder.path() / "taxonocc.csv"));
    IssueLog log;
    EXPECT_EQ(0, importFiles({{folder.path()}, false}, log).stored());
    EXPECT_EQ(std::vector<std::string>(), log.texts);
}

// What another program stores between two files belongs to neither.
TEST(Export, SeesOneStateOfTheDatabase)
{
    TestDatabase db;
    insertWell(db, "1", "A");
    const Folder folder;
    const ExportResult result = exportTables({folder.path()}, [&](const ExportedFile& file) {
        if (file.name == "wells.csv")
            insertWell(db, "2", "B");
    });
    EXPECT_EQ("", result.failure);
    EXPECT_EQ("2", db.value("SELECT count(*) FROM CASING"));
    EXPECT_EQ("well_code,depth_m,diam\nA,5,20\n", contentOf(folder.path() / "casing.csv"));
}

TEST(Export, LeavesOtherFilesAndNoHalfOnes)
{
    TestDatabase db;
    insertWell(db, "1", "A");
    const Folder folder;
    folder.write("notes.txt", "mine");
    folder.write("wells.csv", "old");
    const Files before = filesIn(folder.path());
    EXPECT_THAT(exportTables({folder.path()}).failure,
        testing::AllOf(testing::StartsWith(folder.path().string()), HasSubstr("--force")));
    EXPECT_EQ(before, filesIn(folder.path()));
    {
        const DriverFault fault(30, "SQLFetch");
        EXPECT_THAT(exportTables({folder.path(), 0, true}).failure, HasSubstr("injected fault"));
    }
    EXPECT_EQ(before, filesIn(folder.path()));
    Files files = exported({folder.path(), 0, true});
    EXPECT_EQ("mine", files.at("notes.txt"));
    EXPECT_NE("old", files.at("wells.csv"));
    EXPECT_EQ(tableFiles().size() + 1, files.size());
    EXPECT_THAT(exportTables({folder.path() / "notes.txt"}).failure, HasSubstr("notes.txt"));
}

// Each call of the driver failing: nothing is left behind, or the call did not matter.
TEST(Export, EachDriverCallFailing)
{
    TestDatabase db;
    insertWell(db, "1", "A");
    const Folder good;
    const Files files = exported({good.path(), 1});
    const Folder parent;
    const auto folder = parent.path() / "new";
    for (int n = 1;; n += 3) {
        const DriverFault fault(n);
        const ExportResult result = exportTables({folder, 1});
        if (!fault.fired())
            break;
        const std::string what = std::to_string(n) + ' ' + fault.call();
        if (result.failure.empty()) {
            EXPECT_EQ(files, filesIn(folder)) << what;
        } else {
            EXPECT_FALSE(std::filesystem::exists(folder)) << what;
            EXPECT_THAT(result.failure, HasSubstr("injected fault")) << what;
        }
        std::filesystem::remove_all(folder);
    }
}

} // namespace

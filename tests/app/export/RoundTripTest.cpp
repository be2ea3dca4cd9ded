// tests/app/export/RoundTripTest.cpp
#include "tests/app/export/RoundTrip.h"
#include "app/tables/TableFile.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

const std::filesystem::path kSynthetic =
    std::filesystem::path(ZONARIS_SOURCE_DIR) / "examples/synthetic";

TEST(RoundTrip, ExampleData)
{
    const Folder folder;
    expectRoundTrip(folder.path(), [](TestDatabase&) {
        IssueLog log;
        ASSERT_EQ("", importFiles({{kSynthetic}, false}, log).failure);
    });
    const Files files = filesIn(folder.path());
    EXPECT_THAT(files.at("well_ident.csv"), HasSubstr("\n1,SYN-1,"));
}

// What a cell can hold that a careless copy loses, in the database's own literals.
const std::map<FieldKind, std::vector<std::string>> kOdd = {
    {FieldKind::Text,
        {"'it`s'", "'say \"no\"'", "'  two in front'", "'two behind  '", "'a,b;c\td'",
            "'line\nbreak\r\nand\rmore'", "'\xC3\x98rnefj\xC3\xA9ll'", "''", "NULL", "'0'", "'?5'",
            "'#2'", "'abundance=1; percent=2; x'", "'abundance=1;percent=2'"}},
    {FieldKind::Whole, {"0", "-1", "2147483647", "NULL", "7"}},
    {FieldKind::Number, {"-0.0", "1e-7", "0.1", "1.7976931348623157e308", "NULL", "1234567.125"}},
    {FieldKind::Date, {"'2024-02-29'", "NULL", "'0999-12-31'"}},
    {FieldKind::Reference, {"970", "0", "NULL", "980", "4711", "990", "1000"}}};
constexpr int kRows = 14; // every value once at least

std::string oddValue(const TableFile& table, std::size_t field, int row)
{
    const FieldKind kind = table.fields[field].kind;
    if (kind == FieldKind::Own)
        return std::to_string(1000 - 10 * row); // larger numbers come first in no file
    const auto& values = kOdd.at(kind);
    const std::string value = values[(field * 3 + static_cast<std::size_t>(row)) % values.size()];
    const bool isUnique = table.keyUse == KeyUse::Unique && table.fields[field].isKey;
    if (isUnique && kind == FieldKind::Whole)
        return std::to_string(row - 3);
    if (isUnique && kind == FieldKind::Text && value.starts_with('\''))
        return value.substr(0, value.size() - 1) + "~" + std::to_string(row) + "'";
    if (isUnique && kind == FieldKind::Reference)
        return std::to_string(1000 - 10 * row);
    return table.numbersPerWell && field == 0 && value == "NULL" ? "4711" : value;
}

void fillOddly(TestDatabase& db)
{
    for (const TableFile& table : tableFiles())
        for (int row = 0; row < kRows; ++row) {
            std::string columns;
            std::string values;
            for (std::size_t i = 0; i < table.fields.size(); ++i) {
                columns += std::string(i ? "," : "") + table.fields[i].column;
                values += (i ? "," : "") + oddValue(table, i, row);
            }
            if (table.fields.size() > 1 || !values.starts_with("NULL"))
                db.run("INSERT INTO " + std::string(table.name) + " (" + columns + ") VALUES ("
                    + values + ")");
        }
}

TEST(RoundTrip, OddRowsOfEveryTable)
{
    const Folder folder;
    expectRoundTrip(folder.path(), fillOddly);
    const Files files = filesIn(folder.path());
    EXPECT_EQ(tableFiles().size(), files.size());
    EXPECT_THAT(files.at("wells.csv"), HasSubstr("it's~"));
}

// Rows that are alike in all but what refers to them.
TEST(RoundTrip, TwinsKeepTheirOwnRows)
{
    const Folder folder;
    expectRoundTrip(folder.path(), [](TestDatabase& db) {
        db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (5, 'A')");
        db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (3, 'A')");
        for (const char* id : {"30", "20"})
            db.run(std::string("INSERT INTO SAMPLES (samp_id, well_id, top_depth) VALUES (") + id
                + ", 5, 100)");
        db.run("INSERT INTO BCMMNTS (usamp_id, comments) VALUES (20, 'lower number')");
        db.run("INSERT INTO BCMMNTS (usamp_id, comments) VALUES (30, 'higher number')");
        db.run("INSERT INTO BCMMNTS (usamp_id, comments) VALUES (31, 'of no sample')");
    });
    EXPECT_EQ("usamp_id,interp_id,disc_id,analyst,comments,sample_depth_m\n"
              "1,,,,lower number,\n2,,,,higher number,\n?31,,,,of no sample,\n",
        filesIn(folder.path()).at("bcmmnts.csv"));
    EXPECT_THAT(filesIn(folder.path()).at("samples.csv"), HasSubstr("\n1,#2,100,,"));
}

// The same well under other numbers.
TEST(TableImport, FindsRowsByTheirKeys)
{
    TestDatabase db;
    db.run("INSERT INTO WELL_IDENT (well_id, well_code, descrip) VALUES (9, 'O`B', 'old')");
    db.run("INSERT INTO SAMPLES (samp_id, well_id, top_depth, type) VALUES (70, 9, 100, 'CU')");
    db.run("INSERT INTO CASING (well_id, depth, diam) VALUES (9, 10, '20')");
    const Folder folder;
    folder.write("well_ident.csv", "well_id,well_code,descrip\n1,O'B,new\n");
    folder.write("samples.csv",
        "samp_id,well_code,top_depth_m,base_depth_m,type,label,grid_x,grid_y,created,modified,"
        "creator,modifier\n1,O'B,100.0,,CU,,,,,,,\n2,O'B,200,,CU,,,,,,,\n3,X,1,,CU,,,,,,,\n");
    folder.write("casing.csv", "well_code,depth_m,diam\nO'B,1e1,20\nO'B,10,20\nO'B,x,20\n");
    folder.write("bcmmnts.csv",
        "usamp_id,interp_id,disc_id,analyst,comments\n1,,M,,here\n4,,M,,nowhere\n?70,,M,,other\n");
    IssueLog log;
    const ImportResult result = importFiles({{folder.path()}, false}, log);
    EXPECT_EQ("", result.failure);
    EXPECT_THAT(countsOf(result),
        testing::ElementsAre("well_ident.csv 1/0/1/0/0/0", "samples.csv 3/1/0/1/0/1",
            "bcmmnts.csv 3/1/0/0/0/2", "casing.csv 3/1/0/1/0/1"));
    EXPECT_THAT(log.texts,
        testing::ElementsAre("samples.csv:4: refused: well_code \"X\": names no row of "
                             "well_ident.csv in the same folder",
            "bcmmnts.csv:3: refused: usamp_id \"4\": names no row of samples.csv in the same "
            "folder",
            "bcmmnts.csv:4: refused: usamp_id \"?70\": named a row that was missing where this was "
            "written; here another row has its number",
            "casing.csv:4: refused: depth_m \"x\": not a number"));
    EXPECT_EQ("9|O`B|new", db.rows("SELECT well_id, well_code, descrip FROM WELL_IDENT").front());
    EXPECT_EQ("70|here", db.rows("SELECT usamp_id, comments FROM BCMMNTS").front());
    EXPECT_EQ(0, importFiles({{folder.path()}, false}, log).stored());
}

// A site's own headers have the columns that it knows.
TEST(TableImport, ReadsAndWritesTheColumnsThatAreThere)
{
    TestDatabase db;
    db.run("DROP TABLE WELLS_MASTER");
    db.run("CREATE TABLE WELLS_MASTER (well_code VARCHAR(25), FIELD VARCHAR(20))");
    db.run("INSERT INTO WELLS_MASTER (well_code, FIELD) VALUES ('A', 'Old')");
    const Folder folder;
    std::string master = exported({folder.path()}).at("wells_master.csv");
    EXPECT_THAT(master, HasSubstr("\nA,,,,,,Old,,"));
    master.replace(master.find("Old"), 3, "New");
    folder.write("wells_master.csv", master + "B" + std::string(21, ',') + "\n");
    IssueLog log;
    const ImportResult result = importFiles({{folder.path()}, false}, log);
    EXPECT_EQ("", result.failure);
    EXPECT_EQ(2, result.stored());
    EXPECT_THAT(
        db.rows("SELECT * FROM WELLS_MASTER ORDER BY 1"), testing::ElementsAre("A|New", "B|NULL"));
}

// Each call of the driver failing: all is stored or nothing, and the failure is told.
TEST(TableImport, EachDriverCallFailing)
{
    const Folder folder;
    folder.write("well_ident.csv", "well_id,well_code,descrip\n1,A,new\n2,B,\n");
    folder.write("casing.csv", "well_code,depth_m,diam\nA,10,20\nB,?,20\nB,11,20\n");
    const std::string sql = "SELECT i.well_id, well_code, descrip, depth FROM WELL_IDENT i LEFT "
                            "JOIN CASING c ON c.well_id = i.well_id ORDER BY 1";
    for (int n = 1;; n += 2) {
        TestDatabase db;
        db.run("INSERT INTO WELL_IDENT (well_id, well_code, descrip) VALUES (9, 'A', 'old')");
        const DriverFault fault(n);
        IssueLog log;
        const std::string failure = importFiles({{folder.path()}, false}, log).failure;
        const std::string what = std::to_string(n) + ' ' + fault.call() + ": " + failure;
        if (failure.empty())
            EXPECT_THAT(db.rows(sql), testing::ElementsAre("9|A|new|10", "10|B|NULL|11")) << what;
        else
            EXPECT_THAT(db.rows(sql), testing::ElementsAre("9|A|old|NULL")) << what;
        if (!fault.fired())
            break;
    }
}

} // namespace

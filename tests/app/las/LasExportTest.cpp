#include "app/las/LasFile.h"
#include "app/las/LasWriter.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestDatabase.h"
#include "well/Well.h"

#include <sstream>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class LasOfAWell : public testing::Test {
protected:
    LasOfAWell()
    {
        db.run(
            "INSERT INTO WELLS (well_code, well_name, operator, field, units, td, rte, lat_dec,"
            " long_dec, comp_date) VALUES ('A/1', 'Ørn: {one}', 'Any Co.', 'F|1', 'F', 10000, 82,"
            " 61.25, -2.5, '2001-05-17')");
        db.run("INSERT INTO WELL_IDENT VALUES (7, 'A/1', NULL)");
        db.run(
            "INSERT INTO SAMPLES (samp_id, well_id, top_depth, base_depth, type) VALUES"
            " (1, 7, 1000, 1000.25, 'CU'), (2, 7, 1100, 1100.5, 'CU'), (3, 7, 1200, 1200, 'SC')");
        db.run("INSERT INTO IGD_SCH VALUES (5, 'A scheme, ours', 3, NULL, NULL)");
        db.run("INSERT INTO IGD (well_id, igd_type, interp_id, hier, top_id, base_id, sch_id,"
               " upp_inf, top_bnd, base_bnd) VALUES (7, 3, 0, 2, 1, 2, 5, 'Lower, upper', 3, 4),"
               " (7, 2, 0, 1, 2, 3, 0, 'd`Orb \"x\"' || char(10) || 'y', 3, 3),"
               " (7, 3, 4, 1, 1, 3, 5, '~other', 1, 7), (7, 3, 4, 1, 1, 99, 5, 'Homeless', 1, 7)");
        db.run("INSERT INTO CORES VALUES (7, 1010, 1019.5, '1, upper', 'Y'), (7, 1020, 1030, 2, "
               "NULL)");
        db.run("INSERT INTO CORESHIFT VALUES (7, 1010, 1.5), (7, 1019.5, -0.5)");
        db.run("INSERT INTO WELLTVD VALUES (7, 0, 0), (7, 1000, 990.125)");
    }

    LasFile exported()
    {
        Well well(7L);
        made = lasExportOf(well);
        EXPECT_EQ("", made.error);
        std::vector<std::string> problems;
        std::istringstream in(made.content);
        LasFile file = readLas(in, &problems);
        EXPECT_THAT(problems, IsEmpty());
        return file;
    }

    TestDatabase db;
    MessageLog boxes;
    LasExport made;
};

// The rows of a section as `TestDatabase::rows` gives those of a table.
std::vector<std::string> rowsOf(const LasFile& file, const char* title)
{
    const LasSection* section = file.section(title);
    if (!section)
        return {"no section"};
    std::vector<std::string> texts;
    for (const LasRow& row : section->rows) {
        std::string& text = texts.emplace_back();
        for (const std::string& field : row.fields)
            text += (&field == &row.fields.front() ? "" : "|") + field;
    }
    return texts;
}

TEST_F(LasOfAWell, SaysWhatTheDatabaseHas)
{
    const LasFile file = exported();
    EXPECT_EQ(db.rows("SELECT printf('%.4f', top_depth), printf('%.4f', base_depth), corenum,"
                      " ifnull(recovered, ''), printf('%.4f', ifnull((SELECT shift FROM CORESHIFT"
                      " WHERE depth=top_depth), 0)), printf('%.4f', ifnull((SELECT shift FROM"
                      " CORESHIFT WHERE depth=base_depth), 0)) FROM CORES ORDER BY top_depth"),
        rowsOf(file, "Core_Data"));
    EXPECT_EQ(db.rows("SELECT printf('%.4f', ddepth), printf('%.4f', tvdepth) FROM WELLTVD"),
        rowsOf(file, "Inclinometry_Data"));
    EXPECT_THAT(rowsOf(file, "Tops_Data"),
        ElementsAre(HasSubstr("Lower, upper|1000.2500|1100.5000|A scheme, ours|"),
            HasSubstr("d'Orb 'x' y|1100.5000|1200.0000||"),
            HasSubstr("~other|1000.2500|1200.0000|A scheme, ours|")));
    EXPECT_EQ("~other|1000.2500|1200.0000|A scheme, ours|Chronostratigraphy|1|Eon|Possible|"
              "?Fault|4",
        rowsOf(file, "Tops_Data")[2]);
}

TEST_F(LasOfAWell, HeaderInMetresAndFreeOfMarks)
{
    const LasFile file = exported();
    const auto item = [&](const char* name, const char* section = "Well") {
        const LasItem* found = file.section(section)->item(name);
        return found ? found->value + ' ' + found->unit : "none";
    };
    EXPECT_EQ("1000.0000 M", item("STRT"));
    EXPECT_EQ("1200.0000 M", item("STOP"));
    EXPECT_EQ("Ørn; (one) ", item("WELL"));
    EXPECT_EQ("A/1 ", item("UWI"));
    EXPECT_EQ("17/05/2001 ", item("DATE"));
    EXPECT_EQ("-2.5000000 DEG", item("LONG"));
    EXPECT_EQ("3048.0000 M", item("TDD", "Parameter"));
    EXPECT_EQ("none", item("SEAL", "Parameter"));
    EXPECT_THAT(made.changes,
        ElementsAre("WELL \"Ørn; (one)\": a colon became a semicolon; braces became brackets",
            "FLD \"F/1\": a bar became a slash",
            "TOPN \"d'Orb 'x' y\": a quotation mark became an apostrophe; a line break or tab "
            "became a blank"));
    EXPECT_THAT(made.reports, ElementsAre(HasSubstr("Homeless")));
}

TEST_F(LasOfAWell, WithoutAnything)
{
    for (const char* table : {"IGD", "CORES", "WELLTVD", "SAMPLES"})
        db.run(std::string("DELETE FROM ") + table);
    const LasFile file = exported();
    EXPECT_EQ(3u, file.sections.size());
    EXPECT_EQ("-999.25", file.section("Well")->item("STRT")->value);
}

// A column that cannot be read is empty for the core; statements and rows are what counts.
TEST_F(LasOfAWell, EachFailingStatementOrFetchGivesAllOrNothing)
{
    db.run("DELETE FROM CORESHIFT");            // their loader does not tell where rows end early
    db.run("DELETE FROM IGD WHERE base_id=99"); // a failing look for its sample ends the process
    exported();
    const std::string whole = made.content;
    int failures = 0;
    for (const char* call : {"SQLExecDirect", "SQLFetch"}) {
        for (int n = 1;; ++n) {
            Well well(7L);
            well.LoadSamples(0); // a failure here ends the process
            const DriverFault fault(n, call);
            made = lasExportOf(well);
            if (!fault.fired())
                break;
            failures += made.error.empty() ? 0 : 1;
            EXPECT_EQ(made.error.empty() ? whole : "", made.content) << n << ' ' << call;
        }
    }
    EXPECT_GT(failures, 20);
}

} // namespace

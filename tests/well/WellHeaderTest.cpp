// tests/well/WellHeaderTest.cpp
#include "db/Session.h"
#include "tests/support/Restore.h"
#include "tests/well/WellTest.h"
#include "well/WellMaster.h"

#include <memory>

namespace {

TEST(WellUnits, AreFeetOrMetres)
{
    for (const std::string c : {"''|feet|FT|F|F|", "F'|feet|FT|F|F|", "f'|feet|FT|F|F|",
             "mm|metres|M|M|M|", "xm|metres|M|M|M|"}) {
        Well well;
        well.SetUnits(c[0]);
        std::string texts;
        for (const int form : {2, 3, 4, 1, 9})
            texts += joined(well.UnitsText(form));
        EXPECT_EQ(c.substr(1), texts);
    }
}

constexpr const char* kSeven = "Well Seven|Oper|Land|Field|11|12|61.25|2.5|3000.5|1.5|-90.25|25.5|"
                               "O|F|2|1998-03-05|1998-04-06|ED50|500.5|OCS-1|Shire|";

using WellHeader = WellTest;

TEST_F(WellHeader, IsReadInFourStatements)
{
    Well well;
    well.ReadHeader();
    well.well_id = 7;
    well.well_code = "C-7";
    const StatementLog log;
    well.ReadHeader();
    EXPECT_EQ(kSeven, headerOf(well));
    const std::string from = " FROM " + table("wells") + " WHERE well_code='C-7'";
    EXPECT_EQ((Statements{"SELECT well_name,operator,country,field,grid_x,grid_y" + from,
                  "SELECT lat_dec,long_dec" + from,
                  "SELECT td,sl,sb,rte,type,units,datum,spud_date,comp_date,geoDatum,kicko" + from,
                  "SELECT ocs,county" + from}),
        log.statements());
    well.well_code = "C-8";
    well.ReadHeader();
    EXPECT_EQ(kSeven, headerOf(well)) << "without a row it stays";
}

TEST_F(WellHeader, IsWrittenInFourStatements)
{
    Well well(7L);
    well.well_code = "N-7";
    well.spud_date = Date();
    well.geoDatum = "";
    well.type = 0;
    const StatementLog log;
    EXPECT_EQ(1, well.WriteHeader("C-7"));
    const std::string update = "UPDATE " + table("wells") + " SET ";
    const std::string where = " WHERE well_code='C-7'";
    EXPECT_EQ(
        (Statements{update
                + "well_name='Well Seven',well_code='N-7',operator='Oper',country='Land',"
                  "field='Field',grid_x=11,grid_y=12,spud_date=NULL,comp_date="
                + dateLiteral(Date(6, 4, 1998)) + where,
            update + "lat_dec=61.25,long_dec=2.5" + where,
            update + "td=3000.5,kicko=500.5,sl=1.5,sb=-90.25,rte=25.5,type=NULL,units='F',datum=2"
                + where,
            update + "ocs='OCS-1',county='Shire'" + where}),
        log.statements());
}

TEST_F(WellHeader, ComesBackAsWritten)
{
    Well well(7L);
    well.well_code = "N-7";
    well.units = 0;
    well.datum = -3;
    well.county = "Top's";
    well.WriteHeader("C-7");
    well.WriteHeader("N-7"); // the first one renamed the row under the other three
    dbCommit();
    db.run("UPDATE WELL_IDENT SET well_code='N-7' WHERE well_id=7");
    well.county = "Top`s";
    EXPECT_EQ(headerOf(well), headerOf(Well(7L)));
    EXPECT_STREQ("metres", Well(7L).UnitsText(3));
}

/// The master view in use.
class WellMaster : public WellTest {
protected:
    const Restore<int> inUse{useWellsMaster, 1};
    const Restore<std::array<MasterColumn, 21>> columns{masterColumns};

    void master(const std::string& columnsOfIt, const std::string& values)
    {
        db.run("DROP TABLE WELLS_MASTER");
        db.run("CREATE TABLE WELLS_MASTER (well_code, " + columnsOfIt + ")");
        db.run("INSERT INTO WELLS_MASTER VALUES ('C-7', " + values + ")");
        useWellsMaster = 0;
        well = std::make_unique<Well>(7L); // a statement that runs lets the session see the tables
        useWellsMaster = 1;
        Well::ProbeMasterColumns();
    }
    std::unique_ptr<Well> well; // as in WELLS
};

TEST_F(WellMaster, ReplacesEveryFieldAndWritesIt)
{
    db.run("INSERT INTO WELLS_MASTER VALUES ('C-7', 'Other', 'Op2', 'Land2', 'Shire2', 'OCS-2',"
           " 'Field2', 21, 22, '1999-05-06', '1999-06-07', 62.5, 3.5, 4000, 2, 3, 4, 600, 5, 'W',"
           " 'M', 'WGS84')");
    Well::ProbeMasterColumns();
    EXPECT_EQ("Other|Op2|Land2|Field2|21|22|62.5|3.5|4000|2|3|4|W|M|5|1999-05-06|1999-06-07|WGS84|"
              "600|OCS-2|Shire2|",
        headerOf(Well(7L)));
    dbCommit();
    useWellsMaster = 0;
    EXPECT_EQ("Other|21|62.5|4000|W|OCS-2|",
        db.value("SELECT well_name||'|'||grid_x||'|'||lat_dec||'|'||CAST(td AS INTEGER)||'|'||type"
                 "||'|'||ocs||'|' FROM WELLS WHERE well_code='C-7'"));
}

TEST_F(WellMaster, TakesOnlyWhatIsThereAndDiffers)
{
    const struct {
        const char* name;
        const char* columns;
        const char* values;
        const char *was, *is; // what of the header is replaced, and by what
    } kCases[] = {
        {"two of the columns", "COUNTY TEXT, operator TEXT", "'Shire', 'Op2'", "Oper", "Op2"},
        {"another type is refused", "TYPE TEXT", "'X'", "", ""},
        {"lower-case units are refused", "UNITS TEXT", "'m'", "", ""},
        {"units beside a refused type", "UNITS TEXT, TYPE TEXT", "'M', 'X'", "|F|", "|M|"},
        {"what is cut off is no difference", "OCS TEXT", "'OCS-567890xyz'", "OCS-1", "OCS-567890"},
        {"a datum is a byte", "DATUM INTEGER", "258", "", ""},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.name);
        master(c.columns, c.values);
        std::string expected = kSeven;
        if (*c.was)
            expected.replace(expected.find(c.was), std::string(c.was).size(), c.is);
        const StatementLog log;
        EXPECT_EQ(*c.was ? 1 : 0, well->RefreshFromMaster(1));
        EXPECT_EQ(*c.was ? 5U : 1U, log.statements().size());
        EXPECT_EQ(expected, headerOf(*well));
        EXPECT_EQ(0, well->RefreshFromMaster(1)) << "again";
        dbRollback();
    }
}

TEST_F(WellMaster, IsAskedForItsColumnsInOneOrder)
{
    master("UNITS TEXT, WELL_NAME TEXT", "'M', 'Other'");
    const StatementLog log;
    EXPECT_EQ(0, well->RefreshFromMaster(0)) << "not to be written";
    EXPECT_EQ("Other|M|", joined(well->well_name.view(), well->units));
    useWellsMaster = 0;
    EXPECT_EQ(0, well->RefreshFromMaster(1));
    EXPECT_EQ((Statements{"SELECT WELL_NAME,UNITS FROM " + table("WELLS_MASTER")
                  + " WHERE well_code='C-7'"}),
        log.statements());
}

} // namespace

// tests/db/LookupsTest.cpp
#include "db/Lookups.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string schemeName(int id)
{
    char name[81] = "untouched";
    const int found = schemeNameOf(id, name);
    return std::to_string(found) + name;
}

// Every look-up of well 7, species 100 and scheme 3, or of what is not there.
std::string lookedUp(bool there, bool withFatalOnes = true)
{
    const long well = there ? 7 : 8;
    std::string all = wellCodeOf(there ? 7 : 9);
    const char units = wellUnits(well);
    all += "," + std::string(1, units ? units : '0') + "," + wellNameOf(well);
    if (withFatalOnes) {
        all += "," + std::string(1, speciesDisc(there ? 100 : 1)) + ",";
        all += speciesCategory(there ? 100 : 1) + ("," + schemeName(there ? 3 : 1));
    }
    return all;
}

class Lookups : public testing::Test {
protected:
    Lookups()
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        database.run("INSERT INTO CATEGORY (cat_mnem, disc_id) VALUES ('FORAM', 'M')");
        database.run("INSERT INTO GENUS (gen_id, cat_mnem) VALUES (10, 'FORAM')");
        database.run("INSERT INTO SPECIES (spec_id, gen_id) VALUES (100, 10)");
        database.run(
            "INSERT INTO WELLS (well_code, well_name, units) VALUES ('7-1', 'Heidrun', 'F')");
        database.run(
            "INSERT INTO WELL_IDENT (well_id, well_code) VALUES (7, '7-1'), (8, 'no header')");
        database.run("INSERT INTO IGD_SCH (sch_id, name) VALUES (3, 'NP zones')");
    }
    TestDatabase database;
    MessageLog messages;
};

TEST_F(Lookups, FindWhatIsThereAndNothingIsNoError)
{
    EXPECT_EQ("7-1,F,Heidrun,M,FORAM,1NP zones", lookedUp(true));
    EXPECT_EQ(",0,, , ,0", lookedUp(false)) << "not that of the call before";
    EXPECT_EQ(7, wellIdOf("7-1"));
    EXPECT_EQ(0, wellIdOf("none"));
    EXPECT_EQ(0, wellIdOf("")) << "NULL equals nothing";
    EXPECT_EQ(9, nextId("well_id", "WELL_IDENT"));
    database.run("DELETE FROM WELL_IDENT");
    EXPECT_EQ(1, nextId("well_id", "WELL_IDENT")) << "an empty table";
    database.run("INSERT INTO WELL_IDENT (well_id) VALUES (-5)");
    EXPECT_EQ(-4, nextId("well_id", "WELL_IDENT"));
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Lookups, FailuresAreReportedForTheIdentifierOnly)
{
    lookedUp(true);
    database.run("DROP TABLE WELL_IDENT");
    EXPECT_EQ(",0,", lookedUp(true, false));
    EXPECT_THAT(messages.texts(), IsEmpty());
    EXPECT_EQ(0, wellIdOf("7-1"));
    EXPECT_THAT(messages.texts(),
        ElementsAre("SELECT well_id FROM " + sql::table("WELL_IDENT") + " WHERE well_code='7-1'",
            HasSubstr("WELL_IDENT")));
}

TEST_F(Lookups, FailuresThatEndTheProcess)
{
    messages.echo();
    for (const char* table : {"GENUS", "IGD_SCH"})
        database.run(std::string("DROP TABLE ") + table);
    const auto ended = testing::ExitedWithCode(1);
    EXPECT_EXIT(speciesDisc(100), ended, "box: SELECT c.disc_id.*\nbox: .*GENUS");
    EXPECT_EXIT(speciesCategory(100), ended, "box: SELECT g.cat_mnem.*\nbox: .*GENUS");
    EXPECT_EXIT(schemeName(3), ended, "box: SELECT name.*\nbox: .*IGD_SCH");
}

} // namespace

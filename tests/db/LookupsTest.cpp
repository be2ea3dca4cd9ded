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

class Lookups : public testing::Test {
protected:
    Lookups()
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        database.run("INSERT INTO CATEGORY (cat_mnem, disc_id) VALUES ('FORAM', 'M')");
        database.run("INSERT INTO GENUS (gen_id, cat_mnem) VALUES (10, 'FORAM')");
        database.run("INSERT INTO SPECIES (spec_id, gen_id) VALUES (100, 10)");
        database.run("INSERT INTO WELLS (well_code, well_name, units) "
                     "VALUES ('6507/7-1', 'Heidrun', 'F')");
        database.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (7, '6507/7-1')");
        database.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (8, 'no header')");
        database.run("INSERT INTO IGD_SCH (sch_id, name) VALUES (3, 'NP zones')");
    }
    TestDatabase database;
    MessageLog messages;
};

TEST_F(Lookups, FindWhatIsThere)
{
    EXPECT_EQ('M', speciesDisc(100));
    EXPECT_STREQ("FORAM", speciesCategory(100));
    EXPECT_STREQ("6507/7-1", wellCodeOf(7));
    EXPECT_EQ('F', wellUnits(7));
    EXPECT_STREQ("Heidrun", wellNameOf(7));
    EXPECT_EQ(7, wellIdOf("6507/7-1"));
    char name[81] = "untouched";
    EXPECT_EQ(1, schemeNameOf(3, name));
    EXPECT_STREQ("NP zones", name);
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Lookups, AMissingRowIsNoError)
{
    EXPECT_EQ(' ', speciesDisc(1));
    EXPECT_STREQ(" ", speciesCategory(1));
    wellCodeOf(7);
    EXPECT_STREQ("", wellCodeOf(1)) << "not that of the call before";
    EXPECT_EQ('\0', wellUnits(8));
    EXPECT_STREQ("", wellNameOf(8));
    EXPECT_EQ(0, wellIdOf("none"));
    EXPECT_EQ(0, wellIdOf("")) << "NULL equals nothing";
    char name[81] = "untouched";
    EXPECT_EQ(0, schemeNameOf(1, name));
    EXPECT_STREQ("", name);
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Lookups, SentAsComposed)
{
    const StatementLog log;
    speciesDisc(100);
    wellUnits(7);
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT c.disc_id FROM " + sql::table("SPECIES") + " S, " + sql::table("GENUS")
                + " G, " + sql::table("CATEGORY")
                + " C WHERE s.spec_id=100 AND g.gen_id=s.gen_id AND g.cat_mnem=c.cat_mnem",
            "SELECT w.units FROM " + sql::table("wells") + " w," + sql::table("well_ident")
                + " i WHERE i.well_code=w.well_code AND i.well_id=7"));
}

TEST_F(Lookups, FailuresWithoutAReport)
{
    wellCodeOf(7);
    wellNameOf(7);
    database.run("DROP TABLE WELL_IDENT");
    EXPECT_STREQ("", wellCodeOf(7));
    EXPECT_STREQ("", wellNameOf(7));
    EXPECT_EQ('\0', wellUnits(7));
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Lookups, FailuresThatAreReported)
{
    database.run("DROP TABLE WELL_IDENT");
    EXPECT_EQ(0, wellIdOf("6507/7-1"));
    EXPECT_EQ(1, nextId("well_id", "WELL_IDENT"));
    EXPECT_THAT(messages.texts(),
        ElementsAre(
            "SELECT well_id FROM " + sql::table("WELL_IDENT") + " WHERE well_code='6507/7-1'",
            HasSubstr("WELL_IDENT"),
            "SELECT max(well_id) as conval FROM " + sql::table("WELL_IDENT"),
            HasSubstr("WELL_IDENT")));
}

TEST_F(Lookups, NextIdentifier)
{
    EXPECT_EQ(9, nextId("well_id", "WELL_IDENT"));
    database.run("DELETE FROM WELL_IDENT");
    EXPECT_EQ(1, nextId("well_id", "WELL_IDENT")) << "an empty table";
    database.run("INSERT INTO WELL_IDENT (well_id) VALUES (-5)");
    EXPECT_EQ(-4, nextId("well_id", "WELL_IDENT"));
}

TEST_F(Lookups, FailuresThatEndTheProcess)
{
    messages.echo();
    for (const char* table : {"GENUS", "IGD_SCH"})
        database.run(std::string("DROP TABLE ") + table);
    char name[81];
    const auto ended = testing::ExitedWithCode(1);
    EXPECT_EXIT(speciesDisc(100), ended, "box: SELECT c.disc_id.*\nbox: .*GENUS");
    EXPECT_EXIT(speciesCategory(100), ended, "box: SELECT g.cat_mnem.*\nbox: .*GENUS");
    EXPECT_EXIT(schemeNameOf(3, name), ended, "box: SELECT name.*\nbox: .*IGD_SCH");
}

} // namespace

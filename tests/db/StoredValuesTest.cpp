// tests/db/StoredValuesTest.cpp
// Single values from the shipped tables.
#include "db/ErrorReporter.h"
#include "db/Lookups.h"
#include "db/Preferences.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Restore.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Preferences : public testing::Test {
protected:
    void store(const std::string& key, const std::string& literal)
    {
        database.run("INSERT INTO PREF_USER (user_id, pref_key, pref_value) VALUES (42, '" + key
            + "', " + literal + ")");
    }
    TestDatabase database;
    MessageLog messages;
};

// What each reader finds, and what it leaves in a variable of the caller.
std::string read(int user, const char* key)
{
    char buffer[300] = "kept";
    std::string whole = "kept";
    int integer = 77;
    float number = 0.5F;
    std::string found;
    for (const int result : {prefGet(user, key, buffer), prefGet(user, key, whole),
             prefGetInt(user, key, &integer), prefGetFloat(user, key, &number)})
        found += std::to_string(result);
    EXPECT_EQ(whole, buffer);
    return found + " '" + whole + "' " + std::to_string(integer) + " " + std::to_string(number);
}

TEST_F(Preferences, AreReadOrTheDefaultIsLeft)
{
    const std::string missing = "0000 'kept' 77 0.500000";
    EXPECT_EQ(missing, read(42, "KEY"));
    for (const auto& [literal, expected] :
        std::vector<std::pair<const char*, const char*>>{{"NULL", "1100 '' 77 0.500000"},
            {"'Top of '", "1111 'Top of' 77 0.500000"}, {"' 3.75'", "1111 ' 3.75' 3 3.750000"},
            {"'+4x'", "1111 '+4x' 4 4.000000"}, {"'-1e2'", "1111 '-1e2' -1 -100.000000"}}) {
        database.run("DELETE FROM PREF_USER");
        store("KEY", literal);
        EXPECT_EQ(expected, read(42, "KEY")) << literal;
    }
    EXPECT_EQ(missing, read(43, "KEY")) << "another user's";
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Preferences, WritingTwiceGivesOneRow)
{
    EXPECT_EQ(1, prefPut(42, "A", "Top of "));
    EXPECT_EQ(1, prefPut(43, "A", "theirs"));
    EXPECT_EQ(1, prefPut(42, "A", "Upper "));
    EXPECT_EQ(1, prefPutInt(42, "B", -1));
    EXPECT_EQ(1, prefPutFloat(42, "C", 1.5F));
    EXPECT_EQ("0", database.value("SELECT COUNT(*) FROM PREF_USER")) << "nothing is committed";
    dbCommit();
    EXPECT_THAT(database.rows("SELECT * FROM PREF_USER ORDER BY user_id, pref_key"),
        ElementsAre("42|A|Upper ", "42|B|-1", "42|C|1.500000", "43|A|theirs"));
}

TEST_F(Preferences, CopiesOnlyWhatTheBufferHolds)
{
    const std::string start(18, 'x');
    store("KEY", "'" + start + "\u00F8" + std::string(400, 'y') + "'");
    char small[20];
    EXPECT_EQ(1, prefGet(42, "KEY", small, sizeof small));
    EXPECT_EQ(start, small) << "the character did not fit whole";
    std::string whole;
    EXPECT_EQ(1, prefGet(42, "KEY", whole));
    EXPECT_EQ(420U, whole.size());
}

// Every operation.
std::string readAndWrite(const char* key)
{
    std::string found = read(42, key) + " ";
    for (const int result :
        {prefPut(42, key, "1"), prefPutInt(42, key, 1), prefPutFloat(42, key, 1)})
        found += std::to_string(result);
    return found;
}

TEST_F(Preferences, ALongKeyIsReportedByEachCheckAndAFatalErrorStopsEveryOperation)
{
    store("ABCDEFGHIJ", "'5'");
    store("ABCDEFGHIJK", "'5'");
    EXPECT_EQ("1111 '5' 5 5.000000 111", readAndWrite("ABCDEFGHIJ"));
    EXPECT_THAT(messages.texts(), IsEmpty()) << "ten are allowed";
    EXPECT_EQ("1111 '5' 5 5.000000 111", readAndWrite("ABCDEFGHIJK"));
    std::vector<std::string> expected;
    for (const char check : std::string("rrrrrrwrwwrwwr"))
        expected.push_back(
            (check == 'w' ? "Attempt to put value into" : "Attempt to select value from")
            + std::string(" PREF_USER over 10 chars: ABCDEFGHIJK"));
    EXPECT_EQ(expected, messages.texts());
    const Restore fatal(fatalError, 1);
    messages.clear();
    const StatementLog log;
    EXPECT_EQ("0000 'kept' 77 0.500000 000", readAndWrite("ABCDEFGHIJK"));
    EXPECT_THAT(log.statements(), IsEmpty());
    EXPECT_THAT(messages.texts(), IsEmpty());
}

const std::string kWhere = " WHERE pref_key='KEY' AND user_id=42";

TEST_F(Preferences, FailuresAreReported)
{
    store("KEY", "'old'");
    {
        const DriverFault fault(2, "SQLExecDirect", DriverFault::Once, "HY000", "no update");
        EXPECT_EQ(0, prefPut(42, "KEY", "")) << "does not insert";
        EXPECT_THAT(messages.texts(),
            ElementsAre("UPDATE " + sql::table("PREF_USER") + " SET pref_value=NULL" + kWhere,
                AllOf(StartsWith("Error updating PREF_USER table: "), HasSubstr("no update"))));
    }
    messages.clear();
    database.run("DROP TABLE PREF_USER");
    const std::string select = "SELECT pref_value FROM " + sql::table("PREF_USER") + kWhere;
    std::string whole;
    EXPECT_EQ(0, prefGet(42, "KEY", whole));
    EXPECT_THAT(messages.texts(),
        ElementsAre(select, AllOf(HasSubstr("PREF_USER"), Not(StartsWith("Error selecting")))));
    messages.clear();
    EXPECT_EQ(0, prefPut(42, "KEY", "x")) << "a failed look-up goes on to insert";
    EXPECT_THAT(messages.texts(),
        ElementsAre(select, StartsWith("Error selecting from PREF_USER table: "),
            "INSERT INTO " + sql::table("PREF_USER")
                + " (user_id, pref_key, pref_value ) VALUES (42,'KEY','x')",
            StartsWith("Error inserting into PREF_USER table: ")));
    EXPECT_EQ(0, fatalError);
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
}

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

// tests/app/shell/DoctorTest.cpp
#include "app/shell/Doctor.h"
#include "app/shell/OpenDatabase.h"
#include "tests/support/DriverControl.h"
#include "tests/support/TestDatabase.h"

#include "db/Connection.h"
#include "db/Session.h"
#include "schema/SchemaObjects.h"

#include <algorithm>
#include <regex>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

class Doctor : public testing::Test {
protected:
    Doctor()
    {
        settings.databaseFile = db.file();
        settings.kind = testSettings().kind;
        settings.ownerPrefix = testSettings().prefix;
        dbDisconnect();
    }
    ~Doctor() override { dbDisconnect(); }

    std::vector<std::string> problems() const
    {
        std::vector<std::string> texts;
        for (const Diagnosis::Problem& problem : examineDatabase(settings).problems) {
            texts.push_back(problem.text);
            EXPECT_FALSE(problem.remedy.empty()) << problem.text;
        }
        return texts;
    }

    TestDatabase db;
    ConnectionSettings settings;
};

TEST_F(Doctor, TellsWhatADatabaseIs)
{
    std::string facts;
    for (const Diagnosis::Fact& fact : examineDatabase(settings).facts)
        facts += fact.name + '=' + fact.value + '\n';
    for (const char* fact : {"program=zonaris ", "driver=libdesktopdb.so ", "engine=SQLite 3",
             "integrity=ok\n", "journal=wal\n", "tables=version 2\n", "driver manager=0"})
        EXPECT_THAT(facts, HasSubstr(fact));
    const auto count = std::to_string(relations().size());
    EXPECT_THAT(facts, HasSubstr("relations=" + count + " of " + count));
}

struct Harm {
    const char* sql;
    const char* problem; ///< empty: none
};

const Harm kHarms[] = {
    {"SELECT 1", ""},
    {"DROP INDEX IGD_BY_WELL", "The index IGD_BY_WELL is missing."},
    {"DROP TRIGGER SAMPLES_TOP_UPDATED", "The trigger SAMPLES_TOP_UPDATED is missing."},
    {"DROP TABLE TXNOTES", "The table TXNOTES is missing."},
    {"ALTER TABLE WELLS DROP COLUMN ocs", "The table WELLS lacks the column ocs."},
    {"DROP TABLE WELLS_MASTER", "The table WELLS_MASTER is missing."},
    {"ALTER TABLE WELLS_MASTER RENAME TO SITE_WELLS; CREATE VIEW", ""},
    {"INSERT INTO SAMPLES (samp_id, well_id) VALUES (1, 7), (2, 0), (3, NULL)",
        "1 rows of SAMPLES name in well_id a row of WELL_IDENT that is not there."},
    {"INSERT INTO CATEGORY (cat_mnem, disc_id) VALUES ('A', 'M')",
        "1 rows of CATEGORY name in disc_id a row of DISCS that is not there."},
    {"INSERT INTO SMPDTL (analy_id, well_id) VALUES (3, NULL)", ""},
    {"INSERT INTO SMPDTL (analy_id, well_id) VALUES (3, 0)",
        "1 rows of SMPDTL name in well_id, analy_id a row of ANALY_HDR that is not there."},
    {"UPDATE SCHEMA_INFO SET version = 1000", "The tables are of a later version than this "},
    {"UPDATE SCHEMA_INFO SET version = 1", ""},
    {"DELETE FROM SCHEMA_INFO", "The version of the tables is not told by SCHEMA_INFO."},
};

TEST_F(Doctor, FindsEachHarmAndNoOther)
{
    for (const Harm& harm : kHarms) {
        TestDatabase harmed;
        dbDisconnect();
        settings.databaseFile = harmed.file();
        if (const std::string sql = harm.sql; sql.ends_with("; CREATE VIEW")) {
            harmed.run(sql.substr(0, sql.find(';')));
            harmed.run("CREATE VIEW WELLS_MASTER AS SELECT well_code FROM SITE_WELLS");
        } else {
            harmed.run(sql);
        }
        const auto found = problems();
        EXPECT_EQ(*harm.problem ? 1u : 0u, found.size()) << harm.sql;
        EXPECT_THAT(found.empty() ? "" : found.front(), HasSubstr(harm.problem));
    }
    EXPECT_EQ(SQL_NULL_HDBC, dbConnectionHandle());
}

TEST_F(Doctor, SaysWhyItCannotConnect)
{
    settings.databaseFile += ".none";
    EXPECT_THAT(problems(), testing::ElementsAre(HasSubstr("There is no database file ")));
    settings.databaseFile.clear();
    EXPECT_THAT(problems(), testing::IsEmpty());
    settings.connectString = db.connectString();
    EXPECT_THAT(problems(), testing::IsEmpty());
}

// A column whose comment names a key of another table is a relation.
TEST(Relations, AreThoseOfTheComments)
{
    const std::regex line(R"(\n +([a-z_]+) +[A-Z]+(?:\(\d+\))?[^\n]*-- ([A-Z_]+)[.]([a-z_]+))");
    int named = 0;
    for (const SchemaObject& table : schemaObjects()) {
        const std::string text(table.kind == "TABLE" ? table.statement : "");
        for (std::sregex_iterator it(text.begin(), text.end(), line), end; it != end; ++it) {
            const std::string column = (*it)[1], target = (*it)[2], key = (*it)[3];
            if (key == "abr" || (target == "ANALY_HDR" && key == "disc_id"))
                continue; // derived, or a name that may be unknown
            ++named;
            EXPECT_TRUE(std::ranges::any_of(relations(),
                [&](const Relation& relation) {
                    return relation.table == table.name && relation.target == target
                        && std::string(relation.columns).ends_with(column)
                        && std::string(relation.targetColumns).ends_with(key);
                }))
                << table.name << '.' << column;
        }
    }
    EXPECT_GT(named, 60);
}

// Literals of dates are what the session's format says; only these kinds have one to set.
TEST_F(Doctor, OpeningSetsTheDateFormatOfTheKindsThatHaveOne)
{
    driver_control::record();
    const StatementLog log;
    ASSERT_EQ("", openDatabase(settings));
    const auto sent = log.statements();
    const auto count = std::ranges::count(sent, "ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ");
    EXPECT_EQ(settings.kind == 2 || settings.kind == 3 ? 1 : 0, count);
    EXPECT_FALSE(sent.empty());
}

} // namespace

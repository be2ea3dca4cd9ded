// tests/schema/SchemaTest.cpp
#include "schema/Schema.h"
#include "schema/StatementSplitter.h"
#include "tests/schema/OdbcDatabase.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

TEST(Schema, MakesADatabaseOfItsVersion)
{
    OdbcDatabase database;
    ASSERT_EQ(database.failure(), "");
    EXPECT_EQ(database.rows("SELECT version FROM SCHEMA_INFO"),
        std::vector<std::string>{std::to_string(kSchemaVersion)});
}

// The session takes "|" and "?" for the places of parameters, a "%" behind WHERE for a wildcard,
// and a driver may read an apostrophe in a comment as the start of a literal.
TEST(Schema, StatementsPassThroughASessionUnchanged)
{
    for (const std::string_view statement : schemaStatements()) {
        EXPECT_EQ(statement.find_first_of("|?#[]{}"), std::string_view::npos) << statement;
        EXPECT_EQ(statement.find('%', std::min(statement.find("WHERE"), statement.size())),
            std::string_view::npos)
            << statement;
        EXPECT_EQ(std::ranges::count(statement, '\'') % 2, 0) << statement;
        EXPECT_EQ(statement.starts_with("--") || statement.ends_with(";"), false) << statement;
    }
}

struct SplitCase {
    const char* rule;
    const char* text;
    std::vector<std::string_view> statements;
};

const SplitCase kSplits[] = {
    {"one behind the other", "A 1;\nB 2 ;", {"A 1", "B 2 "}},
    {"comments in front go, inside they stay", "-- x\nA -- y; z\n 1; -- end", {"A -- y; z\n 1"}},
    {"literals and names may hold what ends or opens", "A ';--' 1; B \"a;b\" 2;",
        {"A ';--' 1", "B \"a;b\" 2"}},
    {"a trigger with its body", "CREATE TRIGGER t BEGIN U 1; U 2; END; B 2;",
        {"CREATE TRIGGER t BEGIN U 1; U 2; END", "B 2"}},
    {"a trigger with a case that ends a statement",
        "CREATE TRIGGER t BEGIN U CASE 1 END; U 2; END; B 2;",
        {"CREATE TRIGGER t BEGIN U CASE 1 END; U 2; END", "B 2"}},
    {"nothing", " -- only this", {}},
};

TEST(StatementSplitter, CutsAtTheEndOfEachStatement)
{
    for (const SplitCase& c : kSplits)
        EXPECT_EQ(splitStatements(c.text), c.statements) << c.rule;
}

struct KeyCase {
    const char* rule;
    const char* first;
    const char* second;
    bool accepted;
};

const KeyCase kKeys[] = {
    {"one header per well code", "WELLS (well_code) VALUES ('W1')",
        "WELLS (well_code) VALUES ('W1')", false},
    {"wells may share a name", "WELLS (well_code, well_name) VALUES ('W1', 'A')",
        "WELLS (well_code, well_name) VALUES ('W2', 'A')", true},
    {"wells number their analyses by themselves", "ANALY_HDR (well_id, analy_id) VALUES (7, 1)",
        "ANALY_HDR (well_id, analy_id) VALUES (8, 1)", true},
    {"an analysis has one detail per sample", "SMPDTL (samp_id, analy_id) VALUES (1, 1)",
        "SMPDTL (samp_id, analy_id) VALUES (1, 1)", false},
    {"details may wait for their analysis", "SMPDTL (samp_id, disc_id) VALUES (1, 'M')",
        "SMPDTL (samp_id, disc_id) VALUES (1, 'M')", true},
    {"a taxon reworked and in place",
        "TAXONOCC (samp_id, analy_id, spec_id, status) VALUES (1, 1, 1, 'R')",
        "TAXONOCC (samp_id, analy_id, spec_id, status) VALUES (1, 1, 1, 'I')", true},
    {"a taxon twice with different abundance",
        "TAXONOCC (samp_id, analy_id, spec_id, abund) VALUES (1, 1, 1, 'R')",
        "TAXONOCC (samp_id, analy_id, spec_id, abund) VALUES (1, 1, 1, 'C')", true},
    {"equal casing strings", "CASING (well_id, depth, diam) VALUES (7, 900, '7')",
        "CASING (well_id, depth, diam) VALUES (7, 900, '7')", true},
    {"one preferred name per scheme", "SYNONYMY (spec_id, sch_id, pref) VALUES (1, 1, 2)",
        "SYNONYMY (spec_id, sch_id, pref) VALUES (1, 1, 3)", false},
    {"a preferred name per scheme", "SYNONYMY (spec_id, sch_id, pref) VALUES (1, 1, 2)",
        "SYNONYMY (spec_id, sch_id, pref) VALUES (1, 2, 3)", true},
    {"one lithology per key, by either spelling", "LITHDESC (lith_id) VALUES (1001)",
        "LITHDESC (lithcode) VALUES (1001)", false},
    {"lithostratigraphic codes may share an end", "ZRLITHO (top_id, base_id) VALUES (1, 2)",
        "ZRLITHO (top_id, base_id) VALUES (1, 3)", true},
    {"one value per user and setting", "PREF_USER (user_id, pref_key) VALUES (1, 'TOPPFX')",
        "PREF_USER (user_id, pref_key) VALUES (1, 'TOPPFX')", false},
};

TEST(Schema, KeysRefuseOnlyWhatIsOneThing)
{
    OdbcDatabase database;
    for (const KeyCase& c : kKeys) {
        const std::string table = std::string(c.first).substr(0, std::string(c.first).find(' '));
        EXPECT_EQ(database.run("DELETE FROM " + table), "");
        EXPECT_EQ(database.run(std::string("INSERT INTO ") + c.first), "") << c.rule;
        EXPECT_EQ(database.run(std::string("INSERT INTO ") + c.second).empty(), c.accepted)
            << c.rule;
    }
}

} // namespace

// tests/schema/SchemaTest.cpp
#include "schema/Schema.h"

#include "schema/StatementSplitter.h"
#include "tests/support/SchemaDatabase.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

TEST(Schema, MakesADatabaseOfItsVersion)
{
    EXPECT_EQ(SchemaDatabase().lines("SELECT version FROM SCHEMA_INFO"),
        std::vector{std::to_string(kSchemaVersion)});
}

// The session takes "|" and "?" for the places of parameters, a "%" behind WHERE for a wildcard,
// and a driver may read an apostrophe in a comment as the start of a literal.
TEST(Schema, StatementsPassThroughASessionUnchanged)
{
    for (const std::string_view statement : schemaStatements()) {
        const std::size_t where = std::min(statement.find("WHERE"), statement.size());
        EXPECT_EQ(statement.find_first_of("|?#[]{}"), statement.npos) << statement;
        EXPECT_EQ(statement.find('%', where), statement.npos) << statement;
        EXPECT_EQ(std::ranges::count(statement, '\'') % 2, 0) << statement;
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
    {"literals and names", "A ';--' 1; B \"a;b\" 2;", {"A ';--' 1", "B \"a;b\" 2"}},
    {"a trigger with its body, a case in it", "CREATE TRIGGER t BEGIN U CASE 1 END; U 2; END; B 2;",
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
    std::string table;
    const char* first;
    const char* second;
    const char* count;
};

const KeyCase kKeys[] = {
    {"one header per well code", "WELLS (well_code)", "'W1'", "'W1'", "1"},
    {"wells may share a name", "WELLS (well_code, well_name)", "'W1', 'A'", "'W2', 'A'", "2"},
    {"wells number their analyses", "ANALY_HDR (well_id, analy_id)", "7, 1", "8, 1", "2"},
    {"an analysis has one detail per sample", "SMPDTL (samp_id, analy_id)", "1, 1", "1, 1", "1"},
    {"details may wait for theirs", "SMPDTL (samp_id, disc_id)", "1, 'M'", "1, 'M'", "2"},
    {"a taxon may stand there twice", "TAXONOCC (samp_id, spec_id)", "1, 1", "1, 1", "2"},
    {"equal casing strings", "CASING (well_id, depth)", "7, 900", "7, 900", "2"},
    {"a preferred name per scheme", "SYNONYMY (spec_id, sch_id)", "1, 1", "1, 2", "2"},
    {"but only one", "SYNONYMY (spec_id, sch_id, pref)", "1, 1, 2", "1, 1, 3", "1"},
    {"one lithology per key", "LITHDESC (lith_id)", "1001", "1001", "1"},
    {"codes may share an end", "ZRLITHO (top_id, base_id)", "1, 2", "1, 3", "2"},
    {"one value per setting", "PREF_USER (user_id, pref_key)", "1, 'TOP'", "1, 'TOP'", "1"},
};

TEST(Schema, KeysRefuseOnlyWhatIsOneThing)
{
    SchemaDatabase database;
    for (const auto& [rule, columns, first, second, count] : kKeys) {
        const std::string table = columns.substr(0, columns.find(' '));
        database.run("DELETE FROM " + table);
        for (const std::string values : {first, second})
            database.run("INSERT OR IGNORE INTO " + columns + " VALUES (" + values + ")");
        EXPECT_EQ(database.lines("SELECT count(*) FROM " + table), std::vector<std::string>{count})
            << rule;
    }
}

} // namespace

// tests/schema/InStepTest.cpp
#include "tests/schema/OdbcDatabase.h"

#include <gmock/gmock.h>

#include <map>
#include <span>

// Values that have two spellings, or that follow from other rows, whichever of them is written.
// Each case also runs with triggers that fire themselves, where a set that does not settle fails.

namespace {

class InStep : public testing::TestWithParam<bool> {
protected:
    void SetUp() override
    {
        ASSERT_EQ(database.failure(), "");
        const std::string mode = GetParam() ? "ON" : "OFF";
        ASSERT_EQ(database.run("PRAGMA recursive_triggers = " + mode), "");
    }
    void write(const std::string& sql) { EXPECT_EQ(database.run(sql), "") << sql; }

    OdbcDatabase database;
};

std::string triggerMode(const testing::TestParamInfo<bool>& mode)
{
    return mode.param ? "FireThemselves" : "AsShipped";
}

INSTANTIATE_TEST_SUITE_P(Triggers, InStep, testing::Bool(), triggerMode);

struct Pair {
    const char* table;
    const char* first;
    const char* second;
    const char* one;
    const char* two;
    const char* other;
};

const Pair kPairs[] = {
    {"SAMPLES", "top_depth", "depth", "1010.5", "1020.25", "990.75"},
    {"SAMPLES", "base_depth", "bot_depth", "1010.5", "1020.25", "990.75"},
    {"ZRSLITH", "percent", "percnt", "40", "60", "5"},
    {"LITHDESC", "lith_id", "lithcode", "1001", "1002", "1003"},
    {"LITHDESC", "descr", "lithdescr", "Sandstone", "Shale", "Chalk"},
    {"LITHDESC", "abr", "lithabr", "Sst", "Sh", "Ch"},
    {"SIPMDICT", "text", "txt", "Code A", "Code B", "Code C"},
};

struct Scenario {
    const char* rule;
    bool onARow; ///< which holds {1}
    const char* write;
    const char* read;
};

// {t} table, {a} and {b} the two spellings, {1} and {2} values.
const Scenario kScenarios[] = {
    {"inserted by the first", false, "INSERT INTO {t} ({a}) VALUES ({1})", "{1}"},
    {"inserted by the second", false, "INSERT INTO {t} ({b}) VALUES ({1})", "{1}"},
    {"inserted by both", false, "INSERT INTO {t} ({a}, {b}) VALUES ({1}, {1})", "{1}"},
    {"inserted by both, the first decides", false, "INSERT INTO {t} ({a}, {b}) VALUES ({1}, {2})",
        "{1}"},
    {"inserted by none", false, "INSERT INTO {t} ({a}, {b}) VALUES (NULL, NULL)", "NULL"},
    {"updated by the first", true, "UPDATE {t} SET {a} = {2} WHERE rowid = 2", "{2}"},
    {"updated by the second", true, "UPDATE {t} SET {b} = {2} WHERE rowid = 2", "{2}"},
    {"updated by both", true, "UPDATE {t} SET {a} = {2}, {b} = {2} WHERE rowid = 2", "{2}"},
    {"updated by the second beside an unchanged first", true,
        "UPDATE {t} SET {a} = {1}, {b} = {2} WHERE rowid = 2", "{2}"},
    {"updated by both, the first decides", true,
        "UPDATE {t} SET {a} = {2}, {b} = NULL WHERE rowid = 2", "{2}"},
    {"emptied by the first", true, "UPDATE {t} SET {a} = NULL WHERE rowid = 2", "NULL"},
    {"emptied by the second", true, "UPDATE {t} SET {b} = NULL WHERE rowid = 2", "NULL"},
    {"emptied by both", true, "UPDATE {t} SET {a} = NULL, {b} = NULL WHERE rowid = 2", "NULL"},
};

std::string filled(std::string text, const std::map<std::string, std::string>& values)
{
    for (const auto& [mark, value] : values)
        for (size_t at; (at = text.find(mark)) != text.npos;)
            text.replace(at, mark.size(), value);
    return text;
}

void checkPair(OdbcDatabase& database, const Pair& pair, const Scenario& scenario)
{
    const auto quoted = [](const char* value) { return "'" + std::string(value) + "'"; };
    const auto sql = [&](const char* text) {
        return filled(text,
            {{"{t}", pair.table}, {"{a}", pair.first}, {"{b}", pair.second},
                {"{1}", quoted(pair.one)}, {"{2}", quoted(pair.two)}, {"{o}", quoted(pair.other)}});
    };
    std::vector<std::string> failures = {database.run(sql("DELETE FROM {t}")),
        database.run(sql("INSERT INTO {t} ({a}) VALUES ({o})"))};
    if (scenario.onARow)
        failures.push_back(database.run(sql("INSERT INTO {t} ({a}) VALUES ({1})")));
    failures.push_back(database.run(sql(scenario.write)));
    EXPECT_THAT(failures, testing::Each(""));

    const std::string read = filled(scenario.read, {{"{1}", pair.one}, {"{2}", pair.two}});
    const std::string other = pair.other;
    EXPECT_EQ(database.rows(sql("SELECT {a}, {b} FROM {t} ORDER BY rowid")),
        (std::vector<std::string>{other + "|" + other, read + "|" + read}));
}

TEST_P(InStep, BothSpellingsReadTheSame)
{
    for (const Pair& pair : kPairs)
        for (const Scenario& scenario : kScenarios) {
            SCOPED_TRACE(std::string(pair.table) + "." + pair.first + " " + scenario.rule);
            checkPair(database, pair, scenario);
        }
}

struct DerivedCase {
    const char* rule;
    std::vector<const char*> writes;
    std::vector<std::string> read;
};

const char* const kAnalyses[] = {
    "INSERT INTO USERDEF (user_id, abr) VALUES (1, 'ABC')",
    "INSERT INTO USERDEF (user_id, abr) VALUES (2, 'DEF')",
    "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (7,10,'M',1,1)",
    "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (7,11,'M',1,2)",
    "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (7,12,'N',2,1)",
    "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (8,10,'P',2,1)",
};

constexpr const char* kDetail10 = "INSERT INTO SMPDTL (well_id,samp_id,analy_id) VALUES (7,100,10)";
constexpr const char* kDetail11 = "INSERT INTO SMPDTL (well_id,samp_id,analy_id) VALUES (7,101,11)";

// Read back as analy_id, disc_id and analyst.
const DerivedCase kDetails[] = {
    {"the identifier names discipline and analyst", {kDetail10}, {"10|M|ABC"}},
    {"a second run has its number behind a slash", {kDetail11}, {"11|M|ABC/2"}},
    {"identifiers are those of the well",
        {"INSERT INTO SMPDTL (well_id,samp_id,analy_id) VALUES (8,100,10)"}, {"10|P|DEF"}},
    {"words find the identifier",
        {"INSERT INTO SMPDTL (well_id,samp_id,disc_id,analyst) VALUES (7,100,'M','ABC/2')"},
        {"11|M|ABC/2"}},
    {"words of another well find nothing",
        {"INSERT INTO SMPDTL (well_id,samp_id,disc_id,analyst) VALUES (9,100,'N','DEF')"},
        {"NULL|N|DEF"}},
    {"the identifier decides over words",
        {"INSERT INTO SMPDTL (well_id,samp_id,analy_id,disc_id,analyst) "
         "VALUES (7,100,10,'N','DEF')"},
        {"10|M|ABC"}},
    {"an unknown identifier keeps the words",
        {"INSERT INTO SMPDTL (well_id,samp_id,analy_id,disc_id,analyst) "
         "VALUES (7,100,99,'N','DEF')"},
        {"99|N|DEF"}},
    {"an unknown user keeps the words",
        {"INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (7,13,'P',9,2)",
            "INSERT INTO SMPDTL (well_id,samp_id,analy_id,disc_id,analyst) "
            "VALUES (7,100,13,'M','GHI/2')"},
        {"13|P|GHI/2"}},
    {"another identifier",
        {kDetail10, kDetail11, "UPDATE SMPDTL SET analy_id=12 WHERE samp_id=100"},
        {"12|N|DEF", "11|M|ABC/2"}},
    {"another analyst", {kDetail10, kDetail11, "UPDATE SMPDTL SET analyst='ABC' WHERE samp_id=101"},
        {"10|M|ABC", "10|M|ABC"}},
    {"other words", {kDetail10, "UPDATE SMPDTL SET disc_id='N', analyst='DEF'"}, {"12|N|DEF"}},
    {"words that no analysis has", {kDetail10, "UPDATE SMPDTL SET analyst='XYZ'"}, {"NULL|M|XYZ"}},
    {"all three, the identifier decides",
        {kDetail10, "UPDATE SMPDTL SET analy_id=11, disc_id='N', analyst='DEF'"}, {"11|M|ABC/2"}},
    {"all three, an unknown identifier",
        {kDetail10, "UPDATE SMPDTL SET analy_id=99, disc_id='N', analyst='DEF'"}, {"99|N|DEF"}},
    {"other words beside an unchanged identifier",
        {kDetail10, "UPDATE SMPDTL SET analy_id=10, disc_id='N', analyst='DEF'"}, {"12|N|DEF"}},
    {"unchanged words beside an unknown identifier",
        {"INSERT INTO SMPDTL (well_id,samp_id,analy_id,disc_id,analyst) "
         "VALUES (7,100,99,'N','DEF')",
            "UPDATE SMPDTL SET disc_id='N', analyst='DEF'"},
        {"99|N|DEF"}},
    {"another well", {kDetail10, "UPDATE SMPDTL SET well_id=8"}, {"10|P|DEF"}},
    {"an emptied identifier takes its words along", {kDetail10, "UPDATE SMPDTL SET analy_id=NULL"},
        {"NULL|NULL|NULL"}},
    {"an identifier emptied beside other words",
        {kDetail10, "UPDATE SMPDTL SET analy_id=NULL, disc_id='N', analyst='DEF'"}, {"12|N|DEF"}},
    {"an emptied analyst", {kDetail10, "UPDATE SMPDTL SET analyst=NULL"}, {"NULL|M|NULL"}},
    {"words before their analysis",
        {"INSERT INTO SMPDTL (well_id,samp_id,disc_id,analyst) VALUES (7,100,'P','ABC')",
            "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) "
            "VALUES (7,13,'P',1,1)"},
        {"13|P|ABC"}},
    {"an identifier before its analysis",
        {"INSERT INTO SMPDTL (well_id,samp_id,analy_id) VALUES (7,100,13)",
            "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) "
            "VALUES (7,13,'P',1,1)"},
        {"13|P|ABC"}},
    {"an analysis before its user",
        {"INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (7,13,'P',3,1)",
            "INSERT INTO SMPDTL (well_id,samp_id,analy_id) VALUES (7,100,13)",
            "INSERT INTO SMPDTL (well_id,samp_id,disc_id,analyst) VALUES (7,101,'P','GHI')",
            "INSERT INTO USERDEF (user_id, abr) VALUES (3, 'GHI')"},
        {"13|P|GHI", "13|P|GHI"}},
    {"the analysis changes discipline",
        {kDetail10, kDetail11,
            "INSERT INTO SMPDTL (well_id,samp_id,analy_id,disc_id,analyst) "
            "VALUES (9,102,10,'P','GHI')",
            "UPDATE ANALY_HDR SET disc_id='A' WHERE well_id=7 AND analy_id=10"},
        {"10|A|ABC", "11|M|ABC/2", "10|P|GHI"}},
    {"the analysis changes hands",
        {kDetail10, kDetail11, "UPDATE ANALY_HDR SET analyst=2 WHERE well_id=7 AND analy_id=11"},
        {"10|M|ABC", "11|M|DEF/2"}},
    {"the analysis becomes the first run",
        {kDetail10, kDetail11, "UPDATE ANALY_HDR SET analy_no=1 WHERE well_id=7 AND analy_id=11"},
        {"10|M|ABC", "11|M|ABC"}},
    {"the user is renamed", {kDetail10, kDetail11, "UPDATE USERDEF SET abr='XYZ' WHERE user_id=1"},
        {"10|M|XYZ", "11|M|XYZ/2"}},
    {"two analyses of one key stay apart",
        {"INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (7,9,'M',1,1)",
            kDetail10, "UPDATE ANALY_HDR SET disc_id='P' WHERE well_id=7 AND analy_id IN (9,10)",
            "UPDATE USERDEF SET abr='XYZ' WHERE user_id=1"},
        {"10|P|XYZ"}},
};

constexpr const char* kFound10 = "INSERT INTO TAXONOCC (well_id,samp_id,analy_id) VALUES (7,1,10)";

// Read back as analy_id and disc_id.
const DerivedCase kOccurrences[] = {
    {"the identifier names the discipline", {kFound10}, {"10|M"}},
    {"a wrong letter is put right",
        {"INSERT INTO TAXONOCC (well_id,samp_id,analy_id,disc_id) VALUES (7,1,10,'P')"}, {"10|M"}},
    {"an unknown identifier keeps its letter",
        {"INSERT INTO TAXONOCC (well_id,samp_id,analy_id,disc_id) VALUES (7,1,99,'P')"}, {"99|P"}},
    {"a letter without an identifier stays",
        {"INSERT INTO TAXONOCC (well_id,samp_id,disc_id) VALUES (7,1,'P')"}, {"NULL|P"}},
    {"another identifier", {kFound10, kFound10, "UPDATE TAXONOCC SET analy_id=12 WHERE rowid=1"},
        {"12|N", "10|M"}},
    {"another well", {kFound10, "UPDATE TAXONOCC SET well_id=8"}, {"10|P"}},
    {"another letter is put right", {kFound10, "UPDATE TAXONOCC SET disc_id='P'"}, {"10|M"}},
    {"an emptied identifier takes its letter along",
        {kFound10, kFound10, "UPDATE TAXONOCC SET analy_id=NULL WHERE rowid=1"},
        {"NULL|NULL", "10|M"}},
    {"an identifier emptied beside a letter",
        {kFound10, "UPDATE TAXONOCC SET analy_id=NULL, disc_id='P'"}, {"NULL|P"}},
    {"occurrences before their analysis",
        {"INSERT INTO TAXONOCC (well_id,samp_id,analy_id) VALUES (7,1,13)",
            "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) "
            "VALUES (7,13,'P',1,1)"},
        {"13|P"}},
    {"the analysis changes discipline",
        {kFound10, "INSERT INTO TAXONOCC (well_id,samp_id,analy_id,disc_id) VALUES (9,1,10,'P')",
            "UPDATE ANALY_HDR SET disc_id='A' WHERE well_id=7 AND analy_id=10"},
        {"10|A", "10|P"}},
};

class DerivedKeys : public InStep {
protected:
    void start()
    {
        for (const char* table : {"TAXONOCC", "SMPDTL", "ANALY_HDR", "USERDEF"})
            write(std::string("DELETE FROM ") + table);
        for (const char* sql : kAnalyses)
            write(sql);
    }
    void check(std::span<const DerivedCase> cases, const std::string& query)
    {
        for (const DerivedCase& c : cases) {
            start();
            for (const char* sql : c.writes)
                write(sql);
            EXPECT_EQ(database.rows(query), c.read) << c.rule;
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Triggers, DerivedKeys, testing::Bool(), triggerMode);

TEST_P(DerivedKeys, DetailsNameTheirAnalysisByIdentifierAndWords)
{
    check(kDetails, "SELECT analy_id, disc_id, analyst FROM SMPDTL ORDER BY rowid");
}

TEST_P(DerivedKeys, OccurrencesHaveTheDisciplineOfTheirAnalysis)
{
    check(kOccurrences, "SELECT analy_id, disc_id FROM TAXONOCC ORDER BY rowid");
}

} // namespace

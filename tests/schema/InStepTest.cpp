// tests/schema/InStepTest.cpp
#include "tests/support/SchemaDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

// Values that have two spellings, or that follow from other rows, whichever of them is written.
// Each case also runs with triggers that fire themselves, where a set that does not settle fails.

namespace {

using Lines = std::vector<std::string>;

class InStep : public testing::TestWithParam<const char*> {
protected:
    InStep() { database.run(std::string("PRAGMA recursive_triggers = ") + GetParam()); }

    SchemaDatabase database;
};
INSTANTIATE_TEST_SUITE_P(Triggers, InStep, testing::Values("OFF", "ON"));

struct Pair {
    const char* table;
    const char* first;
    const char* second;
};

const Pair kPairs[] = {
    {"SAMPLES", "top_depth", "depth"},
    {"SAMPLES", "base_depth", "bot_depth"},
    {"ZRSLITH", "percent", "percnt"},
    {"LITHDESC", "lith_id", "lithcode"},
    {"LITHDESC", "descr", "lithdescr"},
    {"LITHDESC", "abr", "lithabr"},
    {"SIPMDICT", "text", "txt"},
};

struct Scenario {
    const char* rule;
    const char* write;
    const char* value; ///< of both afterwards
};

// t is the table, a and b are the two spellings; an update finds 1 in them.
const Scenario kScenarios[] = {
    {"inserted by the first", "INSERT INTO t (a) VALUES (1)", "1"},
    {"inserted by the second", "INSERT INTO t (b) VALUES (1)", "1"},
    {"inserted by both, the first decides", "INSERT INTO t (a, b) VALUES (1, 2)", "1"},
    {"inserted by none", "INSERT INTO t (a) VALUES (NULL)", "NULL"},
    {"updated by the first", "UPDATE t SET a = 2 WHERE a = 1", "2"},
    {"updated by the second", "UPDATE t SET b = 2 WHERE b = 1", "2"},
    {"beside an unchanged first", "UPDATE t SET a = 1, b = 2 WHERE a = 1", "2"},
    {"updated by both, the first decides", "UPDATE t SET a = 2, b = NULL WHERE a = 1", "2"},
    {"emptied by the first", "UPDATE t SET a = NULL WHERE a = 1", "NULL"},
    {"emptied by the second", "UPDATE t SET b = NULL WHERE b = 1", "NULL"},
};

std::string inWords(const Pair& pair, std::string sql)
{
    sql = std::regex_replace(sql, std::regex("\\bt\\b"), pair.table);
    sql = std::regex_replace(sql, std::regex("\\ba\\b"), pair.first);
    return std::regex_replace(sql, std::regex("\\bb\\b"), pair.second);
}

TEST_P(InStep, BothSpellingsReadTheSame)
{
    for (const Pair& pair : kPairs)
        for (const auto& [rule, write, value] : kScenarios) {
            database.run(inWords(pair, "DELETE FROM t"));
            database.run(inWords(pair, "INSERT INTO t (a) VALUES (3)"));
            if (std::string_view(write).starts_with("UPDATE"))
                database.run(inWords(pair, "INSERT INTO t (a) VALUES (1)"));
            database.run(inWords(pair, write));
            EXPECT_EQ(database.lines(inWords(pair, "SELECT a, b FROM t ORDER BY rowid")),
                (Lines{"3|3", std::string(value) + "|" + value}))
                << pair.table << "." << pair.first << " " << rule;
        }
}

struct DerivedCase {
    const char* rule;
    Lines writes;
    Lines rows; ///< details as "analy_id|disc_id|analyst", then occurrences as "analy_id|disc_id"
};

std::string user(const std::string& id, const std::string& abr)
{
    return "INSERT INTO USERDEF (user_id,abr) VALUES (" + id + ",'" + abr + "')";
}

/// Values: well_id, analy_id, disc_id, analyst, analy_no.
std::string analysis(const std::string& values)
{
    return "INSERT INTO ANALY_HDR (well_id,analy_id,disc_id,analyst,analy_no) VALUES (" + values
        + ")";
}

/// Values: well_id, analy_id, disc_id, analyst. Details are told apart by samp_id, from 1.
std::string detail(const std::string& values)
{
    return "INSERT INTO SMPDTL (samp_id,well_id,analy_id,disc_id,analyst) "
           "SELECT count(*)+1,"
        + values + " FROM SMPDTL";
}

/// Values: well_id, analy_id, disc_id.
std::string found(const std::string& values)
{
    return "INSERT INTO TAXONOCC (well_id,analy_id,disc_id) VALUES (" + values + ")";
}

std::string changed(const std::string& values) { return "UPDATE SMPDTL SET " + values; }
std::string foundChanged(const std::string& values) { return "UPDATE TAXONOCC SET " + values; }

const std::string kDetail10 = detail("7,10,NULL,NULL");
const std::string kDetail11 = detail("7,11,NULL,NULL");
const std::string kFound10 = found("7,10,NULL");
const std::string kAnalysis13 = analysis("7,13,'P',1,1");
const std::string kOthers = "disc_id='N',analyst='DEF'";
const std::string kFirst = " WHERE samp_id=1";
const std::string kRenamed = "UPDATE USERDEF SET abr='XYZ' WHERE user_id=1";

const Lines kStart = {"DELETE FROM TAXONOCC", "DELETE FROM SMPDTL", "DELETE FROM ANALY_HDR",
    "DELETE FROM USERDEF", user("1", "ABC"), user("2", "DEF"), analysis("7,10,'M',1,1"),
    analysis("7,11,'M',1,2"), analysis("7,12,'N',2,1"), analysis("8,10,'P',2,1")};

const DerivedCase kDerived[] = {
    {"identifiers are those of the well", {detail("8,10,NULL,NULL")}, {"10|P|DEF"}},
    {"words find the identifier", {detail("7,NULL,'M','ABC/2'")}, {"11|M|ABC/2"}},
    {"words of another well find nothing", {detail("9,NULL,'N','DEF'")}, {"NULL|N|DEF"}},
    {"the identifier decides over words", {detail("7,10,'N','DEF'")}, {"10|M|ABC"}},
    {"an unknown identifier keeps the words", {detail("7,99,'N','DEF'")}, {"99|N|DEF"}},
    {"an unknown user as well", {analysis("7,13,'P',9,2"), detail("7,13,'M','G/2'")}, {"13|P|G/2"}},
    {"another identifier, one row alone", {kDetail10, kDetail11, changed("analy_id=12" + kFirst)},
        {"12|N|DEF", "11|M|ABC/2"}},
    {"other words, one row alone", {kDetail10, kDetail11, changed(kOthers + kFirst)},
        {"12|N|DEF", "11|M|ABC/2"}},
    {"words that no analysis has", {kDetail10, changed("analyst='XYZ'")}, {"NULL|M|XYZ"}},
    {"an identifier among all", {kDetail10, changed("analy_id=11," + kOthers)}, {"11|M|ABC/2"}},
    {"an unknown one among all", {kDetail10, changed("analy_id=99," + kOthers)}, {"99|N|DEF"}},
    {"an unchanged one among all", {kDetail10, changed("analy_id=10," + kOthers)}, {"12|N|DEF"}},
    {"unchanged words", {detail("7,99,'N','DEF'"), changed(kOthers)}, {"99|N|DEF"}},
    {"an emptied identifier", {kDetail10, changed("analy_id=NULL")}, {"NULL|NULL|NULL"}},
    {"an emptied one among all", {kDetail10, changed("analy_id=NULL," + kOthers)}, {"12|N|DEF"}},
    {"unknown and emptied", {detail("7,99,'M','ABC'"), changed("analy_id=NULL")}, {"NULL|M|ABC"}},
    {"an emptied analyst", {kDetail10, changed("analyst=NULL")}, {"NULL|M|NULL"}},
    {"another well", {kDetail10, changed("well_id=8")}, {"10|P|DEF"}},
    {"words before their analysis", {detail("7,NULL,'P','ABC'"), kAnalysis13}, {"13|P|ABC"}},
    {"identifiers before their analysis",
        {detail("7,13,NULL,NULL"), found("7,13,NULL"), kAnalysis13}, {"13|P|ABC", "13|P"}},
    {"an analysis before its user",
        {analysis("7,13,'P',3,1"), detail("7,13,NULL,NULL"), detail("7,NULL,'P','GHI'"),
            user("3", "GHI")},
        {"13|P|GHI", "13|P|GHI"}},
    {"the analysis changes discipline",
        {kDetail10, kDetail11, detail("9,10,'P','GHI'"), kFound10, found("9,10,'P'"),
            "UPDATE ANALY_HDR SET disc_id='A' WHERE well_id=7 AND analy_id=10"},
        {"10|A|ABC", "11|M|ABC/2", "10|P|GHI", "10|A", "10|P"}},
    {"the analysis becomes the first run",
        {kDetail11, "UPDATE ANALY_HDR SET analy_no=1 WHERE well_id=7 AND analy_id=11"},
        {"11|M|ABC"}},
    {"the user is renamed", {kDetail10, kDetail11, kRenamed}, {"10|M|XYZ", "11|M|XYZ/2"}},
    {"two analyses of one key stay apart",
        {analysis("7,9,'M',1,1"), kDetail10,
            "UPDATE ANALY_HDR SET disc_id='P' WHERE well_id=7 AND analy_id IN (9,10)", kRenamed},
        {"10|P|XYZ"}},
    {"a letter is put right", {found("7,10,'P'")}, {"10|M"}},
    {"without an analysis it stays", {found("7,99,'P'")}, {"99|P"}},
    {"another letter is put right", {kFound10, foundChanged("disc_id='P'")}, {"10|M"}},
    {"another identifier found", {kFound10, kFound10, foundChanged("analy_id=12 WHERE rowid=1")},
        {"12|N", "10|M"}},
    {"another well found", {kFound10, foundChanged("well_id=8")}, {"10|P"}},
    {"an emptied identifier found",
        {kFound10, kFound10, foundChanged("analy_id=NULL WHERE rowid=1")}, {"NULL|NULL", "10|M"}},
    {"and beside a letter", {kFound10, foundChanged("analy_id=NULL,disc_id='P'")}, {"NULL|P"}},
};

TEST_P(InStep, DetailsAndOccurrencesFollowTheirAnalysis)
{
    for (const auto& [rule, writes, rows] : kDerived) {
        for (const Lines& statements : {kStart, writes})
            for (const std::string& sql : statements)
                database.run(sql);
        Lines read = database.lines("SELECT analy_id,disc_id,analyst FROM SMPDTL ORDER BY rowid");
        std::ranges::copy(database.lines("SELECT analy_id,disc_id FROM TAXONOCC ORDER BY rowid"),
            std::back_inserter(read));
        EXPECT_EQ(read, rows) << rule;
    }
}

} // namespace

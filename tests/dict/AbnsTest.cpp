// tests/dict/AbnsTest.cpp
#include "db/ItemList.h"
#include "db/Session.h"
#include "dict/Abntrans.h"
#include "dict/AbundanceSchemes.h"
#include "tests/support/FaultTable.h"

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::SizeIs;

using Texts = std::vector<std::string>;

namespace {

/// Present, rare, marked, common, abundant.
Abns ladder()
{
    Abns scheme;
    scheme.addLevel("P", "Present", 0, 0);
    scheme.addLevel("R", "Rare", 1, 3);
    scheme.addLevel("+", "Marked", 2, 0);
    scheme.addLevel("C", "Common", 5, 0);
    scheme.addLevel("A", "Abundant", 20, 50);
    return scheme;
}

TEST(Abns, CountsGiveTheHighestLevelTheyReach)
{
    const Abns scheme = ladder();
    for (const auto& [count, abr] : {std::pair{-1, "P"}, {0, "P"}, {1, "R"}, {3, "R"}, {4, "R"},
             {5, "C"}, {19, "C"}, {20, "A"}, {500, "A"}})
        EXPECT_STREQ(abr, scheme.abrForCount(count)) << count;
    Abns marked;
    marked.addLevel("+1", "First", 0, 0);
    marked.addLevel("+2", "Second", 1, 0);
    EXPECT_STREQ("+1", marked.abrForCount(9)) << "the first level is never passed over";
}

TEST(Abns, AbbreviationsGiveTheirLevelOrTheFirst)
{
    const Abns scheme = ladder();
    const struct {
        const char* abr;
        long value;
        const char* name;
        int level;
    } kCases[] = {
        {"R", 3, "Rare", 2},
        {"+", 0, "Marked", 3},
        {"C", 5, "Common", 4},
        {"a", 0, "Present", 1},
        {"", 0, "", 1},
        {nullptr, 0, "", 1},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(c.value, scheme.valueForAbr(c.abr)) << c.name;
        EXPECT_STREQ(c.name, scheme.nameForAbr(c.abr));
        EXPECT_EQ(c.level, scheme.levelOfAbr(c.abr)) << c.name;
    }
    EXPECT_STREQ("C", scheme.abrForName("Common"));
    EXPECT_STREQ("", scheme.abrForName("common"));
    for (const auto& [value, level] :
        {std::pair{-1.0F, 1}, {0.5F, 1}, {1.0F, 2}, {4.5F, 3}, {5.0F, 4}, {1e9F, 5}})
        EXPECT_EQ(level, scheme.levelOfValue(value)) << value;
    Abns high;
    high.addLevel("X", "First", 7, 0);
    high.levels[0].output = 0; // as the database may hold it
    EXPECT_EQ(7, high.valueForAbr("Z"));
    EXPECT_EQ(0, high.valueForAbr("+")) << "whatever the levels are";
    high.addLevel("X", "Second", 8, 0);
    EXPECT_STREQ("Second", high.nameForAbr("X")) << "from above";
}

TEST(Abns, OutsideTheLevels)
{
    Abns scheme = ladder();
    for (const int i : {-1, 5, 12}) {
        EXPECT_STREQ("Undefined", scheme.abrAt(i));
        EXPECT_STREQ("Undefined", scheme.nameAt(i));
        EXPECT_STREQ("", scheme.nameOrEmptyAt(i));
        EXPECT_EQ(0, scheme.minAt(i) + scheme.outputAt(i));
    }
    scheme.clearLevels();
    EXPECT_EQ((Texts{"", "", ""}),
        (Texts{scheme.abrForCount(1), scheme.nameForAbr("P"), scheme.abrForName("Present")}));
    EXPECT_EQ(0, scheme.valueForAbr("R") + scheme.levelOfAbr("R") + scheme.levelOfValue(5));
}

TEST(Abns, LevelsAreTrimmedThenCutAndTwelveAreTheMost)
{
    Abns scheme;
    scheme.addLevel("  ABCDE ", "   a name of 25 letters, cut here", 65537, 4294967298);
    EXPECT_STREQ("ABCD", scheme.abrAt(0));
    EXPECT_STREQ("a name of 25 letters, cut", scheme.nameAt(0));
    EXPECT_EQ(1, scheme.minAt(0)) << "of 16 bits";
    EXPECT_EQ(2, scheme.outputAt(0)) << "of 32 bits";
    testing::internal::CaptureStderr();
    for (int i = 0; i < 12; ++i)
        scheme.addLevel(" L ", " name  ", 65537, 0);
    EXPECT_EQ(
        "\nMaximum number of abundance levels reached ", testing::internal::GetCapturedStderr());
    EXPECT_EQ(1, scheme.outputAt(11));
    EXPECT_STREQ("name", scheme.nameAt(11));
    EXPECT_EQ(12, scheme.levelCount());
}

TEST(Abntrans, GivesTheFirstOfItsKey)
{
    Abntrans table;
    table.add("rare", 'a', 'b', "text", 'c');
    table.add("rare", 'x', 'x', "other", 'x');
    table.add("a key of more than twenty-nine letters", 'd', 'e', nullptr, 'f');
    for (int i = 3; i < 101; ++i)
        table.add(i < 100 ? "filler" : "beyond", 'x', 'x', "", 'x');
    EXPECT_EQ(100, table.count());
    for (const auto& [key, expected] : {std::pair{"Rare", "123before"}, {"beyond", "123before"},
             {"a key of more than twenty-nine letters", "123before"}, {"rare", "abctext"},
             {"a key of more than twenty-nin", "def"}}) {
        char c1 = '1', c2 = '2', c3 = '3', text[30] = "before";
        EXPECT_EQ(*expected != '1', table.find(key, &c1, &c2, text, &c3)) << key;
        EXPECT_EQ(expected, std::string({c1, c2, c3}) + text) << key;
    }
}

struct SchemeData {
    SchemeData()
    {
        db.run("INSERT INTO ABNSCHME VALUES (7, 'Seven'), (8, 'eight'), (9, 'Empty')");
        db.run("INSERT INTO ABNSCHMBR (scheme_id, entry_no, entry_name, abr, min, output_val)"
               " VALUES (7, 2, '  Rare', ' R', 1, 0), (7, 1, 'Present', 'P', NULL, 4),"
               " (7, 3, NULL, NULL, 65541, 60)");
        for (int i = 1; i <= 13; ++i)
            db.run("INSERT INTO ABNSCHMBR VALUES (8, " + std::to_string(i) + ", 'n', 'L', 1, 0)");
    }

    TestDatabase db;
};

class Schemes : public testing::Test, protected SchemeData {};

std::string table(const std::string& name) { return testSettings().prefix + name; }

const std::string kById = "SELECT name FROM " + table("ABNSCHME") + " WHERE scheme_id=";
const std::string kLevels =
    "SELECT entry_name, abr, min, output_val FROM " + table("ABNSCHMBR") + " WHERE scheme_id=";

std::string textOf(const Abns& scheme)
{
    std::string text = std::to_string(scheme.scheme_id) + " " + scheme.name.str() + ":";
    for (int i = 0; i < scheme.levelCount(); ++i)
        text += std::string(" ") + scheme.abrAt(i) + "," + scheme.nameAt(i) + ","
            + std::to_string(scheme.minAt(i)) + "," + std::to_string(scheme.outputAt(i));
    return text;
}

const std::string kSeven = "7 Seven: P,Present,0,4 R,Rare,1,0 ,,5,60";

TEST_F(Schemes, LoadWithTheirLevelsInOrder)
{
    const StatementLog log;
    Abns scheme;
    scheme.loadByName("Seven");
    EXPECT_EQ(kSeven, textOf(scheme));
    scheme.loadById(8);
    EXPECT_EQ("eight", scheme.name);
    EXPECT_EQ(12, scheme.levelCount());
    scheme.loadById(7);
    EXPECT_EQ(kSeven, textOf(scheme));
    scheme.loadByName("seven or so");
    EXPECT_EQ("0" + kSeven.substr(1), textOf(scheme)) << "all else stays";
    scheme.loadById(7);
    scheme.loadById(99);
    EXPECT_EQ("0" + kSeven.substr(1), textOf(scheme));
    scheme.loadById(9);
    EXPECT_EQ("9 Empty:", textOf(scheme));
    Texts statements = log.statements();
    statements.resize(4);
    EXPECT_THAT(statements,
        ElementsAre("SELECT scheme_id FROM " + table("ABNSCHME") + " WHERE name='Seven'",
            kLevels + "7 ORDER BY entry_no", kById + "8", kLevels + "8 ORDER BY entry_no"));
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
}

TEST_F(Schemes, AreSharedThroughTheRegistry)
{
    // The registry lives as long as the process, so its schemes have identifiers of their own.
    db.run("UPDATE ABNSCHME SET scheme_id = 70 WHERE scheme_id = 7");
    db.run("UPDATE ABNSCHMBR SET scheme_id = 70 WHERE scheme_id = 7");
    const StatementLog log;
    Abns* scheme = schemeById(70);
    EXPECT_EQ("70" + kSeven.substr(1), textOf(*scheme));
    EXPECT_EQ(scheme, schemeById(70));
    EXPECT_THAT(log.statements(), SizeIs(2));
    Abns* unknown = schemeById(-70);
    EXPECT_EQ("0 :", textOf(*unknown));
    EXPECT_NE(unknown, schemeById(-70)) << "its identifier is 0";
    EXPECT_EQ(unknown, schemeById(0));
}

TEST_F(Schemes, CachesReadAgainWhenAnotherSchemeIsAskedFor)
{
    cachedAbrForCount(1, 9);
    cachedValueForAbr("P", 9);
    const StatementLog log;
    EXPECT_STREQ("R", cachedAbrForCount(3, 7));
    db.run("UPDATE ABNSCHMBR SET abr = 'Z' WHERE scheme_id = 7");
    EXPECT_STREQ("R", cachedAbrForCount(4, 7));
    EXPECT_THAT(log.statements(), ElementsAre(kById + "7", kLevels + "7 ORDER BY entry_no"));
    EXPECT_EQ(60, cachedValueForAbr("Z", 7)) << "a cache of its own";
    EXPECT_STREQ("L", cachedAbrForCount(4, 8));
    EXPECT_STREQ("Z", cachedAbrForCount(4, 7));
}

TEST_F(Schemes, AllInOrderOfTheirNames)
{
    const StatementLog log;
    const std::unique_ptr<ItemList> all(allSchemes());
    EXPECT_EQ(1, all->sorted) << "whatever is added later finds its place";
    Texts names;
    for (const Item* item : *all)
        names.push_back(std::to_string(item->id) + " " + item->text.str());
    EXPECT_EQ((Texts{"9 Empty", "7 Seven", "8 eight"}), names) << "by bytes";
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT scheme_id, name FROM " + table("ABNSCHME") + " ORDER BY name"));
}

const FaultCase<SchemeData> kFaults[] = {
    {"by name",
        [](SchemeData&) {
            Abns scheme;
            scheme.loadByName("Seven");
            return textOf(scheme);
        },
        {{1, "Error in: SELECT scheme_id FROM", "0 :", "0 :", true},
            {2, "Error in: SELECT entry_name", "7 Seven:", "7 Seven:", true}}},
    {"by identifier",
        [](SchemeData&) {
            Abns scheme;
            scheme.loadById(7);
            return textOf(scheme);
        },
        {{1, "Error in: SELECT name FROM", "0 :", "0 :", true},
            {2, "Error in: SELECT entry_name", "7 Seven:", "7 Seven:", true}}},
    {"all",
        [](SchemeData&) {
            const std::unique_ptr<ItemList> all(allSchemes());
            return std::to_string(all->count);
        },
        {{1, "Error in: SELECT scheme_id, name", "0", "0", true}}},
};

TEST(AbnsFaults, LeaveWhatWasReadAndAreReported) { expectFaults(kFaults); }
TEST(AbnsFaults, EndTheProcessWhereTheyAreFatal) { expectEnds(kFaults); }

} // namespace

// tests/db/PreferencesTest.cpp
#include "db/Preferences.h"
#include "db/ErrorReporter.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Restore.h"

#include <ostream>
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

constexpr int kUser = 42;

class Preferences : public testing::Test {
protected:
    void store(const std::string& key, const std::string& literal)
    {
        database.run("INSERT INTO PREF_USER (user_id, pref_key, pref_value) VALUES (42, '" + key
            + "', " + literal + ")");
    }
    std::vector<std::string> stored()
    {
        dbCommit();
        return database.rows("SELECT * FROM PREF_USER ORDER BY user_id, pref_key");
    }
    TestDatabase database;
    MessageLog messages;
};

TEST_F(Preferences, AMissingSettingLeavesTheDefault)
{
    store("OTHER", "'7'");
    char text[20] = "Top of ";
    std::string whole = "Base of ";
    int integer = 1;
    float number = 2.5F;
    EXPECT_EQ(0, prefGet(kUser, "TOPPFX", text, sizeof text));
    EXPECT_EQ(0, prefGet(kUser, "BASEPFX", whole));
    EXPECT_EQ(0, prefGetInt(kUser, "MFSPLIT", &integer));
    EXPECT_EQ(0, prefGetInt(43, "OTHER", &integer)) << "another user's";
    EXPECT_EQ(0, prefGetFloat(kUser, "SCALE", &number));
    EXPECT_STREQ("Top of ", text);
    EXPECT_EQ("Base of ", whole);
    EXPECT_EQ(1, integer);
    EXPECT_EQ(2.5F, number);
    EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST_F(Preferences, WritingTwiceGivesOneRow)
{
    EXPECT_EQ(1, prefPut(kUser, "TOPPFX", "Top of "));
    EXPECT_EQ(1, prefPut(43, "TOPPFX", "theirs"));
    EXPECT_EQ(1, prefPut(kUser, "TOPPFX", "Upper "));
    EXPECT_EQ("0", database.value("SELECT COUNT(*) FROM PREF_USER")) << "nothing is committed";
    EXPECT_THAT(stored(), ElementsAre("42|TOPPFX|Upper ", "43|TOPPFX|theirs"));
}

TEST_F(Preferences, NumbersAreStoredAsPrinted)
{
    EXPECT_EQ(1, prefPutInt(kUser, "A", 25));
    EXPECT_EQ(1, prefPutInt(kUser, "B", -1));
    EXPECT_EQ(1, prefPutFloat(kUser, "C", 1.5F));
    EXPECT_THAT(stored(), ElementsAre("42|A|25", "42|B|-1", "42|C|1.500000"));
    int integer = 0;
    float number = 0;
    EXPECT_EQ(1, prefGetInt(kUser, "B", &integer));
    EXPECT_EQ(1, prefGetFloat(kUser, "C", &number));
    EXPECT_EQ(-1, integer);
    EXPECT_EQ(1.5F, number);
}

TEST_F(Preferences, StoredTexts)
{
    const struct {
        const char *literal, *text;
        int numberFound, integer; // 77 and 0.5: left as they were
        float number;
    } rows[] = {
        {"NULL", "", 0, 77, 0.5F},
        {"'Top of '", "Top of", 1, 77, 0.5F},
        {"'12'", "12", 1, 12, 12.0F},
        {"' 3.75'", " 3.75", 1, 3, 3.75F},
        {"'+4x'", "+4x", 1, 4, 4.0F},
        {"'1e2'", "1e2", 1, 1, 100.0F},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.literal);
        database.run("DELETE FROM PREF_USER");
        store("KEY", row.literal);
        char text[300] = "untouched";
        std::string whole = "untouched";
        int integer = 77;
        float number = 0.5F;
        EXPECT_EQ(1, prefGet(kUser, "KEY", text));
        EXPECT_STREQ(row.text, text);
        EXPECT_EQ(1, prefGet(kUser, "KEY", whole));
        EXPECT_EQ(row.text, whole);
        EXPECT_EQ(row.numberFound, prefGetInt(kUser, "KEY", &integer));
        EXPECT_EQ(row.integer, integer);
        EXPECT_EQ(row.numberFound, prefGetFloat(kUser, "KEY", &number));
        EXPECT_EQ(row.number, number);
    }
}

TEST_F(Preferences, CopiesOnlyWhatTheBufferHolds)
{
    const std::string start(18, 'x');
    store("KEY", "'" + start + "\u00F8" + std::string(400, 'y') + "'");
    char small[20];
    EXPECT_EQ(1, prefGet(kUser, "KEY", small, sizeof small));
    EXPECT_EQ(start, small) << "the character did not fit whole";
    std::string large(300, '#');
    EXPECT_EQ(1, prefGet(kUser, "KEY", large.data()));
    EXPECT_EQ(299U, std::string(large.c_str()).size());
    std::string whole;
    EXPECT_EQ(1, prefGet(kUser, "KEY", whole));
    EXPECT_EQ(420U, whole.size());
}

// Every operation, and which check speaks in it when the key is long: r reading, w writing.
struct Operation {
    const char* name;
    int (*run)(const char* key);
    const char* checks;
};
void PrintTo(const Operation& o, std::ostream* out) { *out << o.name; }

int getText(const char* key)
{
    char value[300];
    return prefGet(kUser, key, value);
}
int getString(const char* key)
{
    std::string value;
    return prefGet(kUser, key, value);
}
template <typename T, int (*get)(int, const char*, T*)> int getNumber(const char* key)
{
    T value = 0;
    return get(kUser, key, &value);
}

const Operation kOperations[] = {{"prefGet into a buffer", getText, "r"},
    {"prefGet into a string", getString, "r"}, {"prefGetInt", getNumber<int, prefGetInt>, "rr"},
    {"prefGetFloat", getNumber<float, prefGetFloat>, "rr"},
    {"prefPut", [](const char* key) { return prefPut(kUser, key, "1"); }, "wr"},
    {"prefPutInt", [](const char* key) { return prefPutInt(kUser, key, 1); }, "wwr"},
    {"prefPutFloat", [](const char* key) { return prefPutFloat(kUser, key, 1); }, "wwr"}};

class EveryOperation : public Preferences, public testing::WithParamInterface<Operation> {};

TEST_P(EveryOperation, ReportsALongKeyAndGoesOn)
{
    store("ABCDEFGHIJ", "'5'");
    store("ABCDEFGHIJK", "'5'");
    EXPECT_EQ(1, GetParam().run("ABCDEFGHIJ"));
    EXPECT_THAT(messages.texts(), IsEmpty()) << "ten are allowed";
    EXPECT_EQ(1, GetParam().run("ABCDEFGHIJK"));
    std::vector<std::string> expected;
    for (const char check : std::string(GetParam().checks))
        expected.push_back(check == 'w'
                ? "Attempt to put value into PREF_USER over 10 chars: ABCDEFGHIJK"
                : "Attempt to select value from PREF_USER over 10 chars: ABCDEFGHIJK");
    EXPECT_EQ(expected, messages.texts());
}

TEST_P(EveryOperation, DoesNothingWhileTheProcessIsToEnd)
{
    store("ABCDEFGHIJK", "'5'");
    const Restore fatal(fatalError, 1);
    const StatementLog log;
    EXPECT_EQ(0, GetParam().run("ABCDEFGHIJK"));
    EXPECT_THAT(log.statements(), IsEmpty());
    EXPECT_THAT(messages.texts(), IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(Preferences, EveryOperation, testing::ValuesIn(kOperations));

const std::string kWhere = " WHERE pref_key='KEY' AND user_id=42";

TEST_F(Preferences, FailuresWithoutTheTable)
{
    database.run("DROP TABLE PREF_USER");
    const std::string select = "SELECT pref_value FROM " + sql::table("PREF_USER") + kWhere;
    const auto selecting = StartsWith("Error selecting from PREF_USER table: ");
    EXPECT_EQ(0, getText("KEY"));
    EXPECT_THAT(messages.texts(), ElementsAre(select, selecting));
    messages.clear();
    EXPECT_EQ(0, getString("KEY"));
    EXPECT_THAT(messages.texts(),
        ElementsAre(select, AllOf(HasSubstr("PREF_USER"), Not(StartsWith("Error selecting")))));
    messages.clear();
    EXPECT_EQ(0, prefPut(kUser, "KEY", "x")) << "a failed look-up goes on to insert";
    EXPECT_THAT(messages.texts(),
        ElementsAre(select, selecting,
            "INSERT INTO " + sql::table("PREF_USER")
                + " (user_id, pref_key, pref_value ) VALUES (42,'KEY','x')",
            StartsWith("Error inserting into PREF_USER table: ")));
    EXPECT_EQ(0, fatalError);
}

TEST_F(Preferences, AFailedUpdateDoesNotInsert)
{
    store("KEY", "'old'");
    const DriverFault fault(2, "SQLExecDirect", DriverFault::Once, "HY000", "no update");
    EXPECT_EQ(0, prefPut(kUser, "KEY", ""));
    EXPECT_TRUE(fault.fired());
    EXPECT_THAT(messages.texts(),
        ElementsAre("UPDATE " + sql::table("PREF_USER") + " SET pref_value=NULL" + kWhere,
            AllOf(StartsWith("Error updating PREF_USER table: "), HasSubstr("no update"))));
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
}

} // namespace

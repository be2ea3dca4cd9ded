// tests/db/PreferencesTest.cpp
#include "db/Preferences.h"
#include "db/ErrorReporter.h"
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

// Every operation, and which check speaks in it when the key is long: r reading, w writing.
struct Operation {
    int (*run)(const char* key);
    std::string checks;
};

int getText(const char* key)
{
    char value[300];
    return prefGet(42, key, value);
}
int getString(const char* key)
{
    std::string value;
    return prefGet(42, key, value);
}
template <typename T, int (*get)(int, const char*, T*)> int getNumber(const char* key)
{
    T value = 0;
    return get(42, key, &value);
}

TEST_F(Preferences, ALongKeyIsReportedAndAFatalErrorStopsEveryOperation)
{
    const Operation operations[] = {{getText, "r"}, {getString, "r"},
        {getNumber<int, prefGetInt>, "rr"}, {getNumber<float, prefGetFloat>, "rr"},
        {[](const char* key) { return prefPut(42, key, "1"); }, "wr"},
        {[](const char* key) { return prefPutInt(42, key, 1); }, "wwr"},
        {[](const char* key) { return prefPutFloat(42, key, 1); }, "wwr"}};
    store("ABCDEFGHIJ", "'5'");
    store("ABCDEFGHIJK", "'5'");
    for (const Operation& operation : operations) {
        messages.clear();
        EXPECT_EQ(1, operation.run("ABCDEFGHIJ"));
        EXPECT_THAT(messages.texts(), IsEmpty()) << "ten are allowed";
        EXPECT_EQ(1, operation.run("ABCDEFGHIJK"));
        std::string checks;
        for (const std::string& text : messages.texts())
            checks += text == "Attempt to put value into PREF_USER over 10 chars: ABCDEFGHIJK" ? "w"
                : text == "Attempt to select value from PREF_USER over 10 chars: ABCDEFGHIJK"
                ? "r"
                : text;
        EXPECT_EQ(operation.checks, checks);
        const Restore fatal(fatalError, 1);
        messages.clear();
        const StatementLog log;
        EXPECT_EQ(0, operation.run("ABCDEFGHIJK"));
        EXPECT_THAT(log.statements(), IsEmpty());
        EXPECT_THAT(messages.texts(), IsEmpty());
    }
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
    const auto selecting = StartsWith("Error selecting from PREF_USER table: ");
    EXPECT_EQ(0, getString("KEY"));
    EXPECT_THAT(messages.texts(),
        ElementsAre(select, AllOf(HasSubstr("PREF_USER"), Not(StartsWith("Error selecting")))));
    messages.clear();
    EXPECT_EQ(0, getText("KEY"));
    EXPECT_EQ(0, prefPut(42, "KEY", "x")) << "a failed look-up goes on to insert";
    EXPECT_THAT(messages.texts(),
        ElementsAre(select, selecting, select, selecting,
            "INSERT INTO " + sql::table("PREF_USER")
                + " (user_id, pref_key, pref_value ) VALUES (42,'KEY','x')",
            StartsWith("Error inserting into PREF_USER table: ")));
    EXPECT_EQ(0, fatalError);
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
}

} // namespace

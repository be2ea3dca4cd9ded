// tests/app/ShellTest.cpp
#include "app/shell/FindWell.h"
#include "app/shell/OpenDatabase.h"
#include "tests/app/Files.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Restore.h"
#include "tests/support/TestDatabase.h"

#include "db/Connection.h"
#include "db/CurrentUser.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Session.h"

#include <cstdlib>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

bool isConnected() { return dbConnectionHandle() != SQL_NULL_HDBC; }

class Shell : public testing::Test {
protected:
    Shell()
    {
        settings.databaseFile = db.file();
        settings.kind = testSettings().kind;
        settings.ownerPrefix = testSettings().prefix;
        dbDisconnect();
    }
    ~Shell() override { dbDisconnect(); }

    TestDatabase db;
    const Folder folder;
    const Restore<int> userId{currentUserId};
    const Restore<FixedText<5>> userAbr{currentUserAbr};
    ConnectionSettings settings;
};

TEST_F(Shell, OpensAFileAsTheUser)
{
    db.run("INSERT INTO USERDEF (user_id, abr) VALUES (3, 'AB'), (4, 'O`H')");
    const std::tuple<const char*, int> users[] = {{"AB", 3}, {"O'H", 4}, {"XY", 0}, {"", 0}};
    for (const auto& [user, id] : users) {
        settings.user = user;
        ASSERT_EQ("", openDatabase(settings));
        EXPECT_EQ(id, currentUserId) << user;
        EXPECT_EQ(user, currentUserAbr.str());
    }
    EXPECT_EQ(testSettings().kind, dbKind);
    EXPECT_EQ(testSettings().prefix, ownerPrefix.str());
    // Only with the session's date format do the literals of the kind mean days.
    db.run("INSERT INTO WELLS (well_code, spud_date) VALUES ('A', '1998-03-05')");
    Cursor rows("SELECT well_code FROM " + sql::table("WELLS")
        + " WHERE spud_date=" + sql::date(Date(5, 3, 1998)));
    EXPECT_TRUE(rows.next());
}

TEST_F(Shell, OpensAConnectionString)
{
    settings.databaseFile.clear();
    settings.connectString = db.connectString();
    EXPECT_EQ("", openDatabase(settings));
    settings.connectString = "DSN=NO_SUCH_SOURCE;UID=me;PWD=secret";
    const std::string error = openDatabase(settings);
    EXPECT_THAT(error, StartsWith("Could not connect with DSN=NO_SUCH_SOURCE;UID=me;PWD=***\n"));
    EXPECT_THAT(error, HasSubstr("Data source name not found"));
    EXPECT_FALSE(isConnected());
}

TEST_F(Shell, SaysWhyItCannotOpen)
{
    const std::string missing = (folder.path() / "none.zdb").string();
    const auto open = [&](auto&& change) {
        ConnectionSettings other = settings;
        change(other);
        const std::string error = openDatabase(other);
        EXPECT_FALSE(isConnected());
        return error;
    };
    EXPECT_EQ("There is no database file " + missing + ". Make one with: zonaris create " + missing,
        open([&](auto& s) { s.databaseFile = missing; }));
    EXPECT_FALSE(std::filesystem::exists(missing)) << "opening makes no file";
    EXPECT_EQ(folder.path().string() + " is a folder, not a database file.",
        open([&](auto& s) { s.databaseFile = folder.path().string(); }));
    const std::string text = folder.write("text.zdb", "no database at all, but a text").string();
    EXPECT_NE("", open([&](auto& s) { s.databaseFile = text; }));
    const std::string empty = folder.write("empty.zdb", "").string();
    EXPECT_EQ(empty + " holds no tables of this program. Make a database with: zonaris create FILE",
        open([&](auto& s) { s.databaseFile = empty; }));
    EXPECT_EQ("Name either a database file or a connection string.",
        open([](auto& s) { s.connectString = "DSN=x"; }));
    EXPECT_EQ("Name either a database file or a connection string.",
        open([](auto& s) { s.databaseFile.clear(); }));
    EXPECT_EQ("The user abbreviation \"ABCDEF\" has more than 5 bytes.",
        open([](auto& s) { s.user = "ABCDEF"; }));
    EXPECT_EQ("The owner prefix \"" + std::string(51, 'x') + "\" has more than 50 bytes.",
        open([](auto& s) { s.ownerPrefix = std::string(51, 'x'); }));
    db.run("UPDATE SCHEMA_INFO SET version = 1000");
    EXPECT_THAT(open([](auto&) {}),
        HasSubstr("has tables of version 1000; this program knows versions up to"));
}

TEST_F(Shell, NamesTheDriverThatCannotBeUsed)
{
    const std::string bad = folder.write("driver.so", "no library").string();
    setenv("ZONARIS_DRIVER", bad.c_str(), 1);
    EXPECT_THAT(openDatabase(settings), HasSubstr(bad));
    setenv("ZONARIS_DRIVER", (bad + ".none").c_str(), 1);
    EXPECT_THAT(openDatabase(settings), HasSubstr("Looked for:\n  " + bad + ".none"));
    unsetenv("ZONARIS_DRIVER");
}

TEST_F(Shell, EachDriverCallFailingLeavesNoSession)
{
    settings.user = "AB";
    const MessageLog boxes; // a statement that cannot be dropped is reported
    int fired = 0;
    for (int n = 1;; ++n) {
        const DriverFault fault(n);
        const std::string error = openDatabase(settings);
        EXPECT_EQ(error.empty(), isConnected()) << fault.call() << ' ' << n;
        if (!fault.fired()) {
            EXPECT_EQ("", error);
            break;
        }
        ++fired;
    }
    EXPECT_GT(fired, 10);
}

TEST_F(Shell, CreatesAFileOnceAndWhole)
{
    settings.databaseFile = (folder.path() / "a b;c.zdb").string();
    {
        const DriverFault fault(20, "SQLExecute");
        EXPECT_NE("", createDatabaseFile(settings));
        EXPECT_TRUE(fault.fired());
    }
    EXPECT_FALSE(isConnected());
    EXPECT_TRUE(std::filesystem::is_empty(folder.path())) << "nothing half made is left";
    EXPECT_EQ("", createDatabaseFile(settings));
    EXPECT_TRUE(isConnected());
    EXPECT_EQ("", openDatabase(settings));
    EXPECT_EQ(settings.databaseFile + " is there already; it was left as it is.",
        createDatabaseFile(settings));
    settings.databaseFile = (folder.path() / "none" / "a.zdb").string();
    EXPECT_NE("", createDatabaseFile(settings));
    settings.databaseFile.clear();
    EXPECT_EQ("Name the database file to create.", createDatabaseFile(settings));
}

TEST(FindWell, ByCodeThenNameThenNumber)
{
    TestDatabase db;
    db.run(
        "INSERT INTO WELLS (well_code, well_name) VALUES ('A', '7'), ('7', 'B`s'), ('B', 'same'),"
        " ('C', 'same'), ('NO_ID', 'alone')");
    db.run(
        "INSERT INTO WELL_IDENT (well_id, well_code) VALUES (1, 'A'), (2, '7'), (3, 'B'), (4, 'C'),"
        " (12, 'D')");
    const std::tuple<const char*, long, std::string> cases[] = {
        {"A", 1, ""},
        {"7", 2, ""}, // a code before a name
        {"B's", 2, ""},
        {"3", 3, ""},
        {"same", 0,
            "Several wells answer to \"same\"; name one by its code or number:\n"
            "  B  same  (number 3)\n  C  same  (number 4)"},
        {"alone", 0, "No well has the code, name or number \"alone\"."},
        {"12", 0, "No well has the code, name or number \"12\"."},
        {"1 OR 1=1", 0, "No well has the code, name or number \"1 OR 1=1\"."},
        {"", 0, "No well has the code, name or number \"\"."},
    };
    for (const auto& [text, id, message] : cases) {
        std::string error;
        EXPECT_EQ(id, findWell(text, &error)) << text;
        EXPECT_EQ(message, error);
    }
    const DriverFault fault(1, "SQLExecDirect");
    std::string error;
    EXPECT_EQ(0, findWell("A", &error));
    EXPECT_THAT(error, HasSubstr("injected fault"));
}

} // namespace

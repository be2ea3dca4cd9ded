// tests/platform/desktopdb/ConnectTest.cpp
#include "tests/platform/desktopdb/Client.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

TEST(Connect, AMissingFileIsAnErrorThatNamesIt)
{
    const DatabaseFile file;
    Client client;
    EXPECT_EQ(client.connect(file.connectString("")), SQL_ERROR);
    EXPECT_EQ(client.state(), "08001");
    EXPECT_THAT(client.message(), HasSubstr("does not exist: " + file.path()));
    EXPECT_THAT(client.message(), HasSubstr("[Zonaris][desktopdb]"));
    EXPECT_FALSE(std::filesystem::exists(file.path()));
}

TEST(Connect, CreateMakesIt)
{
    const DatabaseFile file;
    Client client(file);
    EXPECT_TRUE(client.run("CREATE TABLE t (a INTEGER)"));
    EXPECT_TRUE(std::filesystem::exists(file.path()));
}

TEST(Connect, AFileThatIsNoDatabase)
{
    const DatabaseFile file("letter.txt");
    std::ofstream(file.path()) << "Dear Sir or Madam, this is long enough to be looked at.";
    Client client;
    EXPECT_EQ(client.connect(file.connectString()), SQL_ERROR);
    EXPECT_EQ(client.state(), "08001");
    EXPECT_THAT(client.message(), HasSubstr("not a database"));
}

TEST(Connect, AFolder)
{
    const DatabaseFile file;
    const std::string folder = std::filesystem::path(file.path()).parent_path().string();
    Client client;
    EXPECT_EQ(client.connect("Driver=" DESKTOPDB_FILE ";Database=" + folder), SQL_ERROR);
    EXPECT_EQ(client.state(), "08001");
    EXPECT_THAT(client.message(), HasSubstr("folder"));
}

TEST(Connect, NoFileNamed)
{
    Client client;
    EXPECT_EQ(client.connect("Driver=" DESKTOPDB_FILE), SQL_ERROR);
    EXPECT_THAT(client.message(), HasSubstr("Database="));
}

TEST(Connect, AStringThatCannotBeRead)
{
    const DatabaseFile file;
    Client client;
    EXPECT_EQ(client.connect(file.connectString("Dialect=Klingon")), SQL_ERROR);
    EXPECT_THAT(client.message(), HasSubstr("Dialect=Klingon"));
}

/// The working folder while it lives.
class WorkingFolder {
public:
    explicit WorkingFolder(const std::filesystem::path& folder)
        : before_(std::filesystem::current_path())
    {
        std::filesystem::current_path(folder);
    }
    ~WorkingFolder() { std::filesystem::current_path(before_); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::filesystem::path before_;
};

// The engine alone would take these for something else than files of the working folder.
TEST(Connect, NamesThatMeanSomethingToTheEngine)
{
    const WorkingFolder folder(std::filesystem::path(DatabaseFile().path()).parent_path());
    for (const char* name : {":memory:", "file:a.db"}) {
        Client client;
        ASSERT_EQ(
            client.connect(std::string("Driver=" DESKTOPDB_FILE ";Create=1;Database=") + name),
            SQL_SUCCESS);
        client.run("CREATE TABLE t (a INTEGER)");
        EXPECT_TRUE(std::filesystem::exists(name)) << name;
    }
}

TEST(Connect, OddFileNames)
{
    for (const char* name : {"a;b.db", "with blank.db", "100%.db", "a?mode=memory"}) {
        const DatabaseFile file(name);
        Client client;
        ASSERT_EQ(
            client.connect("Driver=" DESKTOPDB_FILE ";Database={" + file.path() + "};Create=1"),
            SQL_SUCCESS)
            << name << client.message();
        client.run("CREATE TABLE t (a INTEGER)");
        EXPECT_TRUE(std::filesystem::exists(file.path())) << name;
    }
}

TEST(Connect, DisconnectRollsBack)
{
    const DatabaseFile file;
    {
        Client client(file);
        client.run("CREATE TABLE t (a INTEGER)");
        client.autocommit(false);
        EXPECT_TRUE(client.run("INSERT INTO t VALUES (1)"));
        EXPECT_EQ(client.disconnect(), SQL_SUCCESS);
    }
    Client other(file, "Timeout=0");
    EXPECT_EQ(other.value("SELECT count(*) FROM t"), "0");
    EXPECT_TRUE(other.run("INSERT INTO t VALUES (2)")); // no lock was left behind
}

TEST(Connect, DisconnectWithOpenRows)
{
    const DatabaseFile file;
    Client client(file);
    const SQLHSTMT rows = client.statement();
    client.execute(rows, "SELECT 1 UNION SELECT 2");
    SQLFetch(rows);
    EXPECT_EQ(client.disconnect(), SQL_SUCCESS);
    EXPECT_EQ(client.connect(file.connectString("")), SQL_SUCCESS);
    EXPECT_EQ(client.value("SELECT 5"), "5");
}

TEST(Connect, TheOutputStringIsWhatCameIn)
{
    const DatabaseFile file;
    Client client;
    SQLCHAR out[500] = "";
    SQLSMALLINT length = 0;
    const std::string text = file.connectString();
    EXPECT_EQ(SQLDriverConnect(client.connection(), nullptr, bytes(text), SQL_NTS, out, sizeof out,
                  &length, SQL_DRIVER_COMPLETE),
        SQL_SUCCESS);
    EXPECT_EQ(reinterpret_cast<const char*>(out), text);
    EXPECT_EQ(length, static_cast<SQLSMALLINT>(text.size()));
}

struct InfoCase {
    SQLUSMALLINT type;
    const char* text;
};

TEST(Connect, InfoTexts)
{
    const DatabaseFile file;
    Client client(file);
    const InfoCase cases[] = {{SQL_DRIVER_NAME, "libdesktopdb.so"}, {SQL_DBMS_NAME, "SQLite"},
        {SQL_IDENTIFIER_QUOTE_CHAR, "\""}, {SQL_SEARCH_PATTERN_ESCAPE, "\\"},
        {SQL_DRIVER_ODBC_VER, "03.80"}};
    for (const InfoCase& c : cases) {
        char text[100] = "";
        SQLSMALLINT length = 0;
        EXPECT_EQ(SQLGetInfo(client.connection(), c.type, text, sizeof text, &length), SQL_SUCCESS);
        EXPECT_STREQ(text, c.text);
        EXPECT_EQ(length, static_cast<SQLSMALLINT>(std::string(c.text).size()));
    }
    char shortText[4] = "";
    EXPECT_EQ(
        SQLGetInfo(client.connection(), SQL_DRIVER_NAME, shortText, sizeof shortText, nullptr),
        SQL_SUCCESS_WITH_INFO);
    EXPECT_STREQ(shortText, "lib");
    SQLUSMALLINT behaviour = 0;
    SQLGetInfo(client.connection(), SQL_CURSOR_COMMIT_BEHAVIOR, &behaviour, 0, nullptr);
    EXPECT_EQ(behaviour, SQL_CB_PRESERVE);
    EXPECT_EQ(SQLGetInfo(client.connection(), 65000, shortText, 0, nullptr), SQL_ERROR);
}

} // namespace

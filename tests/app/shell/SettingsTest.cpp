// tests/app/shell/SettingsTest.cpp
#include "app/shell/ConnectFailure.h"
#include "app/shell/SettingsFile.h"
#include "tests/app/Files.h"

#include <cstdlib>
#include <thread>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class SettingsOnDisk : public testing::Test {
protected:
    SettingsOnDisk() { setenv("ZONARIS_SETTINGS", file.c_str(), 1); }
    ~SettingsOnDisk() override { setenv("ZONARIS_SETTINGS", "", 1); }

    static std::string add(const std::string& name, const ConnectionChoice& choice)
    {
        return changeSettings([&](Settings* settings) {
            settings->connections[name] = choice;
            return std::string();
        });
    }

    static void remember(const std::string& database)
    {
        ConnectionSettings settings;
        settings.databaseFile = database;
        rememberDatabase(settings);
    }

    const Folder folder;
    const std::string file = (folder.path() / "new" / "settings.json").string();
};

TEST_F(SettingsOnDisk, StayFromOneRunToTheNext)
{
    ASSERT_EQ("", add("north", {"", "DSN=a;PWD={\"x};y}", 2, "GEO.", "AB"}));
    remember("one.zdb");
    remember("two.zdb");
    remember("./one.zdb");
    Settings settings;
    ASSERT_EQ("", readSettings(&settings));
    const std::string here = fs::current_path().string();
    EXPECT_EQ(settings.recent, (std::vector{here + "/one.zdb", here + "/two.zdb"}));
    const ConnectionChoice& north = settings.connections["north"];
    EXPECT_EQ("DSN=a;PWD={\"x};y}", north.connect);
    EXPECT_EQ(2, north.kind);
    EXPECT_EQ("GEO.", north.ownerPrefix);
    EXPECT_EQ("AB", north.user);
    for (int i = 0; i < 12; ++i)
        remember(std::to_string(i));
    ASSERT_EQ("", readSettings(&settings));
    EXPECT_EQ(10u, settings.recent.size());
    struct stat status {};
    stat(file.c_str(), &status);
    EXPECT_EQ(0600u, status.st_mode & 0777u);
    EXPECT_EQ(2, std::distance(fs::directory_iterator(folder.path() / "new"), {}))
        << "nothing but file and lock";
}

TEST_F(SettingsOnDisk, KeepWhatOthersWroteAndWhereALinkLeads)
{
    const fs::path real = folder.write(
        "real.json", R"({"later": [1], "connections": {"a": {"file": "/a", "colour": "red"}}})");
    fs::create_directory(folder.path() / "new");
    fs::create_symlink(real, file);
    ASSERT_EQ("", add("b", {"/b", "", {}, {}, {}}));
    EXPECT_TRUE(fs::is_symlink(file));
    const std::string text = contentOf(real);
    EXPECT_THAT(text, HasSubstr("\"later\""));
    EXPECT_THAT(text, HasSubstr("\"colour\": \"red\""));
    EXPECT_THAT(text, HasSubstr("\"/b\""));
}

TEST_F(SettingsOnDisk, OfSeveralAtOnceLoseNothing)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([i] {
            for (int k = 0; k < 5; ++k)
                add("c" + std::to_string(i) + '-' + std::to_string(k), {"/x", "", {}, {}, {}});
        });
    for (std::thread& thread : threads)
        thread.join();
    Settings settings;
    ASSERT_EQ("", readSettings(&settings));
    EXPECT_EQ(40u, settings.connections.size());
}

TEST_F(SettingsOnDisk, ThatAreBrokenAreToldAndLeft)
{
    fs::create_directory(folder.path() / "new");
    const std::pair<const char*, const char*> cases[] = {
        {"{\n\"user\": \"AB\",\n\"connections\": {\"a\": {\"connect\": \"PWD=hush\n", "line 3: "},
        {"{\"user\": 'hush'}", "line 1: "},
        {"[\"hush\"]", "one object in braces"},
        {"{\"kind\": \"hush\"}", "\"kind\" is not a whole number"},
        {"{\"recent\": \"hush\"}", "\"recent\" is not a list"},
        {"{\"connections\": {\"a\": {\"connect\": [\"hush\"]}}}",
            "\"connections.a.connect\" is not a text"},
        {"{\"connections\": {\"a\": \"hush\"}}", "\"connections.a.\" is not an object"},
    };
    for (const auto& [text, told] : cases) {
        folder.write("new/settings.json", text);
        Settings settings;
        for (const std::string& error : {readSettings(&settings), add("b", {})}) {
            EXPECT_THAT(error, HasSubstr(told));
            EXPECT_THAT(error, HasSubstr(file));
            EXPECT_THAT(error, testing::Not(HasSubstr("hush")));
        }
        remember("a.zdb");
        EXPECT_EQ(text, contentOf(file));
    }
}

TEST(SettingsPlace, IsTheOneOfTheDesktop)
{
    const auto place = [](const char* own, const char* config, const char* home) {
        own ? setenv("ZONARIS_SETTINGS", own, 1) : unsetenv("ZONARIS_SETTINGS");
        setenv("XDG_CONFIG_HOME", config, 1);
        setenv("HOME", home, 1);
        return settingsFile().string();
    };
    const std::string before = std::getenv("HOME") ? std::getenv("HOME") : "";
    EXPECT_EQ("/s.json", place("/s.json", "/c", "/h"));
    EXPECT_EQ("", place("", "/c", "/h"));
    EXPECT_EQ("/c/zonaris/settings.json", place(nullptr, "/c", "/h"));
    EXPECT_EQ("/h/.config/zonaris/settings.json", place(nullptr, "relative", "/h"));
    EXPECT_EQ("", place(nullptr, "", ""));
    place("", "", before.c_str());
}

TEST(Connection, IsResolvedByNameAndCompletedByDefaults)
{
    const Folder folder;
    const std::string here = folder.write("both", "").string();
    Settings settings;
    settings.defaults = {"", "", 3, {}, "DF"};
    settings.connections["north"] = {"", "DSN=a", 2, "GEO.", {}};
    settings.connections["south"] = {"/south.zdb", "", {}, {}, "SO"};
    settings.connections[here] = {"/never", "", {}, {}, {}};
    struct Case {
        const char* name;
        ConnectionChoice asked;
        ConnectionSettings meant;
    };
    const Case cases[] = {
        {"string by name", {"", "north", {}, {}, {}}, {"", "DSN=a", 2, "GEO.", "DF"}},
        {"file by name", {"", "south", {}, {}, {}}, {"/south.zdb", "", 3, "", "SO"}},
        {"name as database", {"south", "", 5, "X.", "U"}, {"/south.zdb", "", 5, "X.", "U"}},
        {"given counts first", {"", "north", 0, "", ""}, {"", "DSN=a", 0, "", ""}},
        {"file before name", {here, "", {}, {}, {}}, {here, "", 3, "", "DF"}},
        {"string as it stands", {"", "DSN=north", {}, {}, {}}, {"", "DSN=north", 3, "", "DF"}},
        {"nothing", {}, {"", "", 3, "", "DF"}},
    };
    for (const Case& c : cases) {
        ConnectionSettings meant;
        EXPECT_EQ("", resolveConnection(c.asked, settings, &meant)) << c.name;
        EXPECT_EQ(c.meant.databaseFile, meant.databaseFile) << c.name;
        EXPECT_EQ(c.meant.connectString, meant.connectString) << c.name;
        EXPECT_EQ(c.meant.kind, meant.kind) << c.name;
        EXPECT_EQ(c.meant.ownerPrefix, meant.ownerPrefix) << c.name;
        EXPECT_EQ(c.meant.user, meant.user) << c.name;
    }
    ConnectionSettings meant;
    EXPECT_THAT(resolveConnection({"", "east", {}, {}, {}}, settings, &meant),
        HasSubstr("No connection is called east. There are: "));
    EXPECT_FALSE(isConnectionName("a.zdb"));
    EXPECT_FALSE(isConnectionName("-"));
}

// What a user, a driver or the driver manager makes of a password never shows.
TEST(ConnectFailure, ShowsNoSecretAndSaysWhatToDo)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"DSN=a;UID=me;PWD=hush", "Data source name not found", "odbcinst -q -s"},
        {"DSN=a;PWD={hu;sh}", "login failed for me (hu;sh)", "Check UID and PWD."},
        {"DSN=a;PWD=hu;sh;UID=b", "no = behind sh", "Check the connection string"},
        {"DSN=a;PWD=hush;sh", "Can't open lib 'x' : PWD=hush", "ldd"},
        {"DSN=a, PWD=hush", "refused", "its port"},
        {"DSN=a PASSWORD = hush", "got 'hush'", "Check the connection string"},
        {"DSN=a;PWD={hu}}sh}", "hu}sh, written hu}}sh", "Check the connection string"},
        {"DSN=a;PWD={hush", "not closed: hush", "Check the connection string"},
        {"Token=hush;DSN=a", "", "Check the connection string"},
        {"PWD=hush", "password=hush;x", "Check UID and PWD."},
    };
    for (const auto& [text, reason, advice] : cases) {
        const std::string shown = connectFailure(text, reason);
        for (const char* secret : {"hush", "hu;sh", "hu}sh", "sh;", "hu}}sh", " sh"})
            EXPECT_THAT(shown, testing::Not(HasSubstr(secret))) << text;
        EXPECT_THAT(shown, HasSubstr(advice)) << text;
        EXPECT_THAT(shown, HasSubstr("***")) << text;
    }
}

} // namespace

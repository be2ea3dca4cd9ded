// tests/app/ShellTextTest.cpp
#include "app/batch/TextTable.h"
#include "app/shell/ConnectionSettings.h"
#include "app/shell/DriverLibrary.h"

#include <cstdlib>
#include <sstream>

#include <gtest/gtest.h>

namespace {

TEST(ConnectString, NamesDriverFileAndDialect)
{
    const auto text = [](const char* file, int kind, FileAccess access = FileAccess::Open) {
        return embeddedConnectString("/d.so", file, kind, access);
    };
    EXPECT_EQ("Driver=/d.so;Database=a.zdb;Dialect=Access", text("a.zdb", 0));
    EXPECT_EQ("Driver=/d.so;Database=a.zdb;Dialect=Oracle", text("a.zdb", 2));
    EXPECT_EQ("Driver=/d.so;Database=a.zdb;Dialect=Access", text("a.zdb", 3));
    EXPECT_EQ("Driver=/d.so;Database={a;b}};PWD=c d};Dialect=Access;Create=1",
        text("a;b};PWD=c d", 5, FileAccess::Create));
}

TEST(ConnectString, IsShownWithoutSecrets)
{
    const std::pair<const char*, const char*> cases[] = {
        {"DSN=a;UID=b;PWD=c", "DSN=a;UID=b;PWD=***"},
        {"pwd=c;DSN=a", "pwd=***;DSN=a"},
        {"DSN=a; Password = c ;UID=b", "DSN=a; Password =***;UID=b"},
        {"PWD={c;UID=d};DSN=a", "PWD=***;DSN=a"},
        {"PWD={c}};x};DSN=a", "PWD=***;DSN=a"},
        {"PWD={c;DSN=a", "PWD=***"},
        {"PWD= {c;d};DSN=a", "PWD=***;DSN=a"},
        {"PWD=;DSN=a", "PWD=***;DSN=a"},
        {"NOTPWD=c;DSN=a", "NOTPWD=c;DSN=a"},
        {"DSN=a;", "DSN=a;"},
        {"no pairs", "no pairs"},
        {"", ""},
    };
    for (const auto& [text, shown] : cases)
        EXPECT_EQ(shown, withoutSecrets(text));
}

TEST(Driver, IsLookedForBesideTheProgramUnlessNamed)
{
    using Places = std::vector<std::filesystem::path>;
    const char* before = std::getenv("ZONARIS_DRIVER");
    const std::string kept = before ? before : "";
    unsetenv("ZONARIS_DRIVER");
    EXPECT_EQ((Places{"/opt/z/lib/libdesktopdb.so", "/opt/z/lib/zonaris/libdesktopdb.so"}),
        driverPlaces("/opt/z/bin/zonaris"));
    setenv("ZONARIS_DRIVER", "/elsewhere/d.so", 1);
    EXPECT_EQ(Places{"/elsewhere/d.so"}, driverPlaces("/opt/z/bin/zonaris"));
    std::string error;
    EXPECT_EQ("", driverLibrary(&error));
    EXPECT_EQ("The driver of embedded databases was not found. Looked for:\n  /elsewhere/d.so\n"
              "Set ZONARIS_DRIVER to the file that holds it.",
        error);
    before ? setenv("ZONARIS_DRIVER", kept.c_str(), 1) : unsetenv("ZONARIS_DRIVER");
}

TEST(Table, AlignsByTheWidthOfCharacters)
{
    TextTable table({{"name"}, {"n", TextTable::Align::Right}, {"last"}});
    table.add({"\u00D8rne", "5", "x"});
    table.add({"\u6C34", "1234", ""});
    table.add({"e\u0301t", "", "y"});
    std::ostringstream out;
    table.write(out);
    EXPECT_EQ("name     n  last\n"
              "\u00D8rne     5  x\n"
              "\u6C34    1234\n"
              "e\u0301t          y\n",
        out.str());
    EXPECT_EQ(2u, displayWidth("\xFFx")) << "a lone byte is one column";
    EXPECT_EQ(2u, displayWidth("\U0001F41A"));
}

} // namespace

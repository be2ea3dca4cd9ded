// tests/app/shell/CommandsTest.cpp
#include "tests/app/Program.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::Not;

class Commands : public Program {
protected:
    Commands()
    {
        setenv("ZONARIS_SETTINGS", (folder.path() / "settings.json").c_str(), 1);
        EXPECT_EQ(0, run("create --empty a.zdb")) << err;
    }
    ~Commands() override { setenv("ZONARIS_SETTINGS", "", 1); }

    struct Line {
        const char* arguments;
        int status;
        const char* told; ///< in either stream
    };
    void expect(std::initializer_list<Line> lines)
    {
        for (const Line& line : lines) {
            EXPECT_EQ(line.status, run(line.arguments)) << line.arguments << '\n' << err;
            EXPECT_THAT(out + err, HasSubstr(line.told)) << line.arguments;
            EXPECT_THAT(out + err, Not(HasSubstr("hush"))) << line.arguments;
        }
    }
};

TEST_F(Commands, KeepConnectionsAndNeverShowTheirSecrets)
{
    folder.write("string.txt", "DSN=NO_SUCH_SOURCE;UID=me;PWD={hush;hush}\n");
    expect({
        {"wells", 2, "Recent ones:\n  --database \""},
        {"connection add mine --database a.zdb --user AB --prefix GEO.", 0, ""},
        {"connection add mine --database a.zdb", 1, "mine is there already"},
        {"connection add north --kind 2 --connect - <string.txt", 0, ""},
        {"connection add a.b --database a.zdb", 1, "letters, digits, - and _"},
        {"connection add none", 1, "Say what to connect with"},
        {"connection add name --connect other", 1, "KEY=value"},
        {"connection defaults --user CD", 0, ""},
        {"connections", 0, "north  DSN=NO_SUCH_SOURCE;UID=me;PWD=***"},
        {"connections", 0, "GEO.    AB\n"},
        {"--database mine wells", 0, "number  code"},
        {"--connect mine wells", 0, "number  code"},
        {"--connect north wells", 1, "Could not connect with DSN=NO_SUCH_SOURCE;UID=me;PWD=***\n"},
        {"--connect north doctor", 1, "odbcinst -q -s"},
        {"--connect other wells", 2, "No connection is called other. There are: mine, north."},
        {"--connect 'DSN=NO_SUCH_SOURCE,PWD=hush' wells", 1, "PWD=***"},
        {"--connect 'Driver=none.so;PWD=hush' backup b.zdb", 1, "Could not connect with"},
        {"'DSN=NO_SUCH_SOURCE;PWD=hush' wells", 2, "PWD=***"},
        {"--kind 'PWD=hush' wells", 2, "PWD=***"},
        {"connection remove north", 0, ""},
        {"connection remove north", 1, "No connection is called north."},
    });
    folder.write("settings.json", "{\n\"connections\": {\"a\": {\"connect\": \"PWD=hush");
    expect({
        {"--database a.zdb wells", 0, "settings.json cannot be used: line 2: "},
        {"--connect a wells", 2, "No connection is called a."},
        {"connections", 1, "line 2: this is not JSON"},
        {"doctor", 1, "line 2: this is not JSON"},
    });
}

TEST_F(Commands, KeepPreferencesOfAUser)
{
    expect({
        {"--database a.zdb pref put TOPPFX \"O'Hara's top of\"", 0, ""},
        {"--database a.zdb pref get TOPPFX", 0, "O'Hara's top of\n"},
        {"--database a.zdb pref put TOPPFX other", 0, ""},
        {"--database a.zdb pref list", 0, "key     value\nTOPPFX  other\n"},
        {"--database a.zdb pref get BASEPFX", 1, "There is no preference BASEPFX."},
        {"--database a.zdb pref put ELEVENBYTES x", 1, "A key has 1 to 10 bytes."},
        {"--database a.zdb --user ZZ pref list", 1, "The database knows no user ZZ"},
        {"--database a.zdb pref", 2, "subcommand"},
    });
    const std::string most(299, 'x');
    EXPECT_EQ(1, run("--database a.zdb pref put KEY x" + most));
    EXPECT_EQ(0, run("--database a.zdb pref put KEY " + most));
    EXPECT_EQ(0, run("--database a.zdb pref get KEY"));
    EXPECT_EQ(most + '\n', out);
}

TEST_F(Commands, CopyAndExamine)
{
    expect({
        {"--database a.zdb backup b.zdb", 0, "examined and found whole\n"},
        {"--database a.zdb backup b.zdb", 1, "b.zdb is there already; it was left as it is."},
        {"--database b.zdb wells", 0, "number  code"},
        {"--database b.zdb doctor", 0, "\nNothing is wrong.\n"},
        {"--database none.zdb doctor", 1, "1. There is no database file none.zdb"},
    });
    EXPECT_THAT(contentOf(folder.path() / "settings.json"), HasSubstr("/b.zdb"));
}

} // namespace

// tests/app/EntryTest.cpp
#include "app/Entry.h"

#include "tests/platform/zapp/Recorder.h"

#include <gmock/gmock.h>

#include <ostream>
#include <vector>

namespace {

using testing::ElementsAre;

using Steps = std::vector<std::string>;

class StepToolkit : public Recorder {
public:
    void start() override
    {
        Recorder::start();
        steps.push_back("queue of " + std::to_string(messageQueueAsked));
    }
};

class StepWindow : public RootWindow {
public:
    explicit StepWindow(Steps& steps)
        : steps_(steps)
    {
        steps_.emplace_back("window made");
    }
    ~StepWindow() override
    {
        steps_.push_back(_app->rootWindow() ? "window gone, still root" : "window gone");
        _app->setExitStatus(_app->exitStatus() + 1);
    }
    zWindow* window() override { return reinterpret_cast<zWindow*>(this); }

private:
    Steps& steps_;
};

class Entry : public testing::Test {
protected:
    Entry() { messageQueueAsked = 0; }

    int run(const MainRoutine& routine) { return zonarisEntry(nullptr, nullptr, "", 1, routine); }

    StepToolkit toolkit;
    Steps& steps = toolkit.steps;
    const Serving serving{&toolkit};
};

TEST_F(Entry, RunsAWindowStepByStep)
{
    EXPECT_EQ(_app, nullptr);
    const int status = run(windowRoutine([this](zApp& app) {
        EXPECT_EQ(_app, &app);
        app.setExitStatus(6);
        return std::make_unique<StepWindow>(steps);
    }));
    EXPECT_EQ(status, 7) << "read once the window is gone";
    EXPECT_EQ(_app, nullptr);
    EXPECT_THAT(steps,
        ElementsAre("start", "queue of 128", "prepare", "window made", "loop with a window",
            "window gone", "stop"));
}

TEST_F(Entry, QuitBeforeTheLoopIsHonoured)
{
    run(windowRoutine([this](zApp& app) {
        app.quit();
        return std::make_unique<StepWindow>(steps);
    }));
    EXPECT_THAT(steps,
        ElementsAre(
            "start", "queue of 128", "prepare", "quit", "window made", "window gone", "stop"));
}

TEST_F(Entry, RunsNoLoopWithoutAWindow)
{
    const int status = run(windowRoutine([](zApp& app) {
        app.setExitStatus(3);
        return nullptr;
    }));
    EXPECT_EQ(status, 3);
    EXPECT_THAT(steps, ElementsAre("start", "queue of 128", "prepare", "stop"));
}

TEST_F(Entry, HandsTheStartArgumentsOver)
{
    int instance = 0;
    int previous = 0;
    zonarisEntry(&instance, &previous, "geo.dat", 3, [&](zApp& app) {
        EXPECT_EQ(app.instance(), &instance);
        EXPECT_EQ(app.previousInstance(), &previous);
        EXPECT_STREQ(app.commandLine(), "geo.dat");
        EXPECT_EQ(app.showCommand(), 3);
        steps.emplace_back("routine");
    });
    EXPECT_THAT(steps, ElementsAre("start", "queue of 128", "routine", "stop"));
}

struct LineCase {
    const char* rule;
    std::vector<const char*> argv;
    const char* line;
};

void PrintTo(const LineCase& c, std::ostream* out) { *out << c.rule; }

const LineCase kLines[] = {
    {"no arguments at all", {}, ""},
    {"the program's name is left out", {"zonaris"}, ""},
    {"a plain argument stays bare", {"zonaris", "geo.dat"}, "geo.dat"},
    {"one blank between two", {"zonaris", "a", "b"}, "a b"},
    {"a blank inside is quoted", {"zonaris", "my data", "b"}, R"("my data" b)"},
    {"a tab as well", {"zonaris", "a\tb"}, "\"a\tb\""},
    {"an empty one does not vanish", {"zonaris", "", "b"}, R"("" b)"},
    {"a quotation mark is escaped", {"zonaris", R"(a"b)"}, R"("a\"b")"},
    {"backslashes stay bare", {"zonaris", R"(C:\geo\)"}, R"(C:\geo\)"},
    {"and inside a quoted one", {"zonaris", R"(C:\my data)"}, R"("C:\my data")"},
    {"but double before its end", {"zonaris", R"(C:\my data\)"}, R"("C:\my data\\")"},
    {"and before a quotation mark", {"zonaris", R"(a\\"b)"}, R"("a\\\\\"b")"},
    {"a run that ended is forgotten", {"zonaris", R"(a\b"c)"}, R"("a\b\"c")"},
};

class CommandLine : public testing::TestWithParam<LineCase> {};

TEST_P(CommandLine, IsQuotedForWindows)
{
    const LineCase& c = GetParam();
    const StartArguments start = startArguments(static_cast<int>(c.argv.size()), c.argv.data());
    EXPECT_EQ(start.commandLine, c.line);
    EXPECT_EQ(start.show, 1);
    EXPECT_EQ(start.instance, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Rules, CommandLine, testing::ValuesIn(kLines));

} // namespace

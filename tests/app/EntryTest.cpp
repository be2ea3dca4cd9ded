// tests/app/EntryTest.cpp
#include "app/Entry.h"

#include "tests/platform/zapp/Recorder.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

struct StepWindow : RootWindow {
    explicit StepWindow(Recorder& recorder)
        : recorder_(recorder)
    {
        recorder_.note("made");
    }
    ~StepWindow() override
    {
        recorder_.note("gone");
        _app->setExitStatus(_app->exitStatus() + 1);
    }
    zWindow* window() override { return reinterpret_cast<zWindow*>(this); }

    Recorder& recorder_;
};

TEST(Entry, RunsAWindowStepByStep)
{
    Recorder recorder;
    const auto routine = windowRoutine([&](zApp& app) {
        app.setExitStatus(6);
        return std::make_unique<StepWindow>(recorder);
    });
    const int status = zonarisEntry(nullptr, nullptr, "", 1, routine);
    EXPECT_EQ(status, 7) << "read once the window is gone";
    EXPECT_THAT(recorder.steps,
        ElementsAre(
            "start outside", "prepare", "made", "loop of a window", "gone", "stop outside"));
}

TEST(Entry, RunsNoLoopWithoutAWindow)
{
    Recorder recorder;
    zonarisEntry(nullptr, nullptr, "", 1, windowRoutine([](zApp&) { return nullptr; }));
    EXPECT_THAT(recorder.steps, ElementsAre("start outside", "prepare", "stop outside"));
}

TEST(Entry, HandsTheStartArgumentsOver)
{
    Recorder recorder;
    int instance = 0;
    int previous = 0;
    messageQueueAsked = 0;
    zonarisEntry(&instance, &previous, "geo.dat", 3, [&](zApp& app) {
        EXPECT_EQ(app.instance(), &instance);
        EXPECT_EQ(app.previousInstance(), &previous);
        EXPECT_STREQ(app.commandLine(), "geo.dat");
        EXPECT_EQ(app.showCommand(), 3);
        EXPECT_EQ(messageQueueAsked, 128);
        recorder.note("routine");
    });
    EXPECT_THAT(recorder.steps, ElementsAre("start outside", "routine", "stop outside"));
}

struct LineCase {
    const char* rule;
    std::vector<const char*> argv;
    const char* line;
};

const LineCase kLines[] = {
    {"no arguments at all", {}, ""},
    {"one blank between two, without the program", {"zonaris", "a", "b"}, "a b"},
    {"a blank inside is quoted", {"zonaris", "my data", "b"}, R"("my data" b)"},
    {"a tab as well", {"zonaris", "a\tb"}, "\"a\tb\""},
    {"an empty one does not vanish", {"zonaris", "", "b"}, R"("" b)"},
    {"backslashes stay bare", {"zonaris", R"(C:\geo\)"}, R"(C:\geo\)"},
    {"but double before its end", {"zonaris", R"(C:\my data\)"}, R"("C:\my data\\")"},
    {"and before a quotation mark", {"zonaris", R"(a\\"b)"}, R"("a\\\\\"b")"},
    {"a run that ended is forgotten", {"zonaris", R"(a\b"c)"}, R"("a\b\"c")"},
};

TEST(CommandLine, IsQuotedForWindows)
{
    for (const auto& [rule, argv, line] : kLines) {
        const StartArguments start = startArguments(static_cast<int>(argv.size()), argv.data());
        EXPECT_EQ(start.commandLine, line) << rule;
        EXPECT_EQ(start.show, 1);
    }
}

} // namespace

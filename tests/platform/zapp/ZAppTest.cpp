// tests/platform/zapp/ZAppTest.cpp
#include "platform/zapp/zApp.h"
#include "platform/zapp/ConsoleToolkit.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;

/// Writes down what it is asked for.
class Recorder : public zToolkit {
public:
    void start() override { calls.push_back(_app ? "start late" : "start"); }
    void prepareControls() override { calls.emplace_back("prepare"); }
    void runLoop() override { calls.emplace_back("loop"); }
    void quitLoop() override { calls.emplace_back("quit"); }
    void messageBox(zWindow* parent, const char* text, const char*, long style) override
    {
        calls.push_back(std::string(parent ? "child " : "orphan ") + text);
        calls.push_back(std::to_string(style));
    }
    void stop() override { calls.push_back(_app ? "stop early" : "stop"); }

    std::vector<std::string> calls;
};

/// The toolkit of the process for a while.
struct Serving {
    explicit Serving(zToolkit* toolkit)
        : before(zUseToolkit(toolkit))
    {
    }
    ~Serving() { zUseToolkit(before); }
    Serving(const Serving&) = delete;
    Serving& operator=(const Serving&) = delete;
    zToolkit* before;
};

TEST(ApplicationObject, IsPublishedWhileItLives)
{
    EXPECT_EQ(_app, nullptr);
    {
        zApp app(nullptr, nullptr, nullptr, 0);
        EXPECT_EQ(_app, &app);
    }
    EXPECT_EQ(_app, nullptr);
}

TEST(ApplicationObject, KeepsItsStartArguments)
{
    int instance = 0;
    int previous = 0;
    std::string line = "geo.dat";
    zApp app(&instance, &previous, line.c_str(), 3);
    line = "overwritten";
    EXPECT_EQ(app.instance(), &instance);
    EXPECT_EQ(app.previousInstance(), &previous);
    EXPECT_STREQ(app.commandLine(), "geo.dat");
    EXPECT_EQ(app.showCommand(), 3);
    EXPECT_EQ(app.exitStatus(), 0);
    EXPECT_EQ(app.rootWindow(), nullptr);
}

TEST(ApplicationObject, HandsOverToItsToolkit)
{
    Recorder recorder;
    {
        const Serving serving(&recorder);
        zApp app(nullptr, nullptr, "", 1);
        app.initIntPack();
        app.initIntPack();
        app.go();
        app.quit();
        app.go();
        zMessage(app.rootWindow(), "a", "c", MB_OK);
        int window = 0;
        app.setRootWindow(reinterpret_cast<zWindow*>(&window));
        zMessage(app.rootWindow(), "b", "c", MB_ICONHAND);
    }
    EXPECT_THAT(recorder.calls,
        ElementsAre("start", "prepare", "loop", "quit", "orphan a", "0", "child b", "16", "stop"));
}

TEST(ApplicationObject, StopsTheToolkitThatItStarted)
{
    Recorder first;
    Recorder second;
    const Serving serving(&first);
    {
        zApp app(nullptr, nullptr, "", 1);
        EXPECT_EQ(zUseToolkit(&second), &first);
        app.quit();
    }
    EXPECT_THAT(first.calls, ElementsAre("start", "stop"));
    EXPECT_THAT(second.calls, ElementsAre("quit"));
}

TEST(Console, ServesWithoutAChoice)
{
    const Serving serving(nullptr);
    testing::internal::CaptureStderr();
    zMessage(nullptr, "no such well", "Zonaris Error", MB_ICONHAND);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Zonaris Error: no such well\n");
}

TEST(Console, LoopEndsWhenNothingIsLeftToRun)
{
    ConsoleToolkit console;
    const Serving serving(&console);
    zApp app(nullptr, nullptr, "", 1);
    std::string ran;
    app.go();
    console.post([&] {
        ran += 'a';
        console.post([&] { ran += 'c'; });
    });
    console.post([&] { ran += 'b'; });
    app.go();
    EXPECT_EQ(ran, "abc");
}

TEST(Console, TasksBehindAQuitDoNotRun)
{
    ConsoleToolkit console;
    bool ran = false;
    console.post([&] { console.quitLoop(); });
    console.post([&] { ran = true; });
    console.runLoop();
    EXPECT_FALSE(ran);
    console.stop();
    console.runLoop();
    EXPECT_FALSE(ran) << "kept beyond the stop";
}

} // namespace

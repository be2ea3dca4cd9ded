// tests/platform/zapp/ZAppTest.cpp
#include "platform/zapp/ConsoleToolkit.h"
#include "tests/platform/zapp/Recorder.h"

#include <gmock/gmock.h>

#include <string>

namespace {

using testing::ElementsAre;

TEST(ApplicationObject, IsPublishedWhileItLives)
{
    EXPECT_EQ(_app, nullptr);
    {
        zApp app(nullptr, nullptr, nullptr, 0);
        EXPECT_EQ(_app, &app);
    }
    EXPECT_EQ(_app, nullptr);
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
    EXPECT_THAT(recorder.steps,
        ElementsAre("start", "prepare", "loop", "quit", "0 a", "16 b with a window", "stop"));
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
    EXPECT_THAT(first.steps, ElementsAre("start", "stop"));
    EXPECT_THAT(second.steps, ElementsAre("quit"));
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

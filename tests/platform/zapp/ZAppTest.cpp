// tests/platform/zapp/ZAppTest.cpp
#include "platform/zapp/ConsoleToolkit.h"
#include "tests/platform/zapp/Recorder.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST(ApplicationObject, HandsOverToItsToolkit)
{
    Recorder recorder;
    {
        zApp app(nullptr, nullptr, nullptr, 0);
        EXPECT_EQ(_app, &app);
        EXPECT_STREQ(app.commandLine(), "");
        app.initIntPack();
        app.initIntPack();
        app.go();
        app.quit();
        app.go();
        zMessage(app.rootWindow(), "a", "c", MB_OK);
        app.setRootWindow(reinterpret_cast<zWindow*>(&app));
        zMessage(app.rootWindow(), "b", "c", MB_ICONHAND);
    }
    EXPECT_EQ(_app, nullptr);
    EXPECT_THAT(recorder.steps,
        ElementsAre("start outside", "prepare", "loop", "quit", "a", "b with a parent of a window",
            "stop outside"));
}

TEST(ApplicationObject, StopsTheToolkitThatItStarted)
{
    Recorder first;
    {
        zApp app(nullptr, nullptr, "", 1);
        Recorder second;
        app.quit();
        EXPECT_EQ(zUseToolkit(&second), &second);
        EXPECT_THAT(second.steps, ElementsAre("quit"));
    }
    EXPECT_THAT(first.steps, ElementsAre("start outside", "stop outside"));
}

TEST(Console, ServesWithoutAChoice)
{
    testing::internal::CaptureStderr();
    zMessage(nullptr, "no such well", "Zonaris Error", MB_ICONHAND);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Zonaris Error: no such well\n");
}

TEST(Console, LoopEndsWhenNothingIsLeftToRun)
{
    ConsoleToolkit console;
    std::string ran;
    const auto task = [&](char name) { return [&ran, name] { ran += name; }; };
    console.runLoop();
    console.post([&] { console.post(task('b')); });
    console.post(task('a'));
    console.runLoop();
    EXPECT_EQ(ran, "ab");
    console.post([&] { console.quitLoop(); });
    console.post(task('c'));
    console.runLoop();
    EXPECT_EQ(ran, "ab") << "behind a quit";
    console.stop();
    console.runLoop();
    EXPECT_EQ(ran, "ab") << "kept beyond the stop";
}

} // namespace

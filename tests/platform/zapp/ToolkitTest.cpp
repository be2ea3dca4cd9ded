// tests/platform/zapp/ToolkitTest.cpp
#include "platform/zapp/ConsoleToolkit.h"
#include "platform/zapp/qt/QtToolkit.h"
#include "platform/zapp/qt/QtWindow.h"
#include "tests/platform/zapp/Recorder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

// Each toolkit with a user in front of it: `later` has the event loop run a task, `seen` shows a
// message, answers it and returns "caption: text".

struct ConsoleDesk {
    ConsoleToolkit toolkit;

    void later(std::function<void()> task) { toolkit.post(std::move(task)); }
    std::string seen(const char* text, const char* caption)
    {
        testing::internal::CaptureStderr();
        zMessage(nullptr, text, caption, MB_ICONHAND);
        const std::string line = testing::internal::GetCapturedStderr();
        return line.substr(0, line.rfind('\n'));
    }
};

constexpr const char* kArguments[] = {"zonaris", "-style", "fusion", "geo.dat"};

struct QtDesk {
    QtToolkit toolkit{4, kArguments};

    void later(std::function<void()> task) { QTimer::singleShot(0, std::move(task)); }
    std::string seen(const char* text, const char* caption)
    {
        std::string line;
        whileOpen(nullptr, text, caption, MB_ICONHAND, [&line](QMessageBox& box) {
            line = box.windowTitle().toStdString() + ": " + box.text().toStdString();
            box.accept();
        });
        return line;
    }
    /// Shows a message and gives the open box to `look`, which has to close it.
    void whileOpen(QWidget* parent, const char* text, const char* caption, long style,
        const std::function<void(QMessageBox&)>& look)
    {
        QTimer user;
        user.callOnTimeout([&look] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                look(*box);
        });
        user.start(0);
        zMessage(windowOf(parent), text, caption, style);
    }
};

/// A desk with its application object.
template <typename Desk> struct Running : Desk {
    Serving serving{&this->toolkit};
    zApp app{nullptr, nullptr, "", 1};
};

template <typename Desk> class Toolkit : public testing::Test {
};
using Desks = testing::Types<ConsoleDesk, QtDesk>;
TYPED_TEST_SUITE(Toolkit, Desks);

TYPED_TEST(Toolkit, RunsUntilQuitForGood)
{
    Running<TypeParam> desk;
    int ran = 0;
    desk.later([&] {
        ++ran;
        desk.later([&] {
            ++ran;
            desk.app.quit();
        });
    });
    desk.app.go();
    EXPECT_EQ(ran, 2);
}

TYPED_TEST(Toolkit, ShowsPlainTextAtEveryStageOfTheLoop)
{
    Running<TypeParam> desk;
    EXPECT_EQ(desk.seen("a < b <b>x</b>", "&a && b"), "&a && b: a < b <b>x</b>");
    EXPECT_EQ(desk.seen("Paläozän\ntwo", "Größe"), "Größe: Paläozän\ntwo");
    EXPECT_EQ(desk.seen(nullptr, nullptr), ": ");
    desk.later([&] {
        EXPECT_EQ(desk.seen("inside", "c"), "c: inside");
        desk.app.quit();
        EXPECT_EQ(desk.seen("told to quit", "c"), "c: told to quit");
    });
    desk.app.go();
    EXPECT_EQ(desk.seen("after", "c"), "c: after");
}

TEST(QtMessage, IsAModalPlainTextBoxOfTheRootWindow)
{
    Running<QtDesk> desk;
    QWidget window;
    std::vector<QMessageBox::Icon> icons;
    for (const long style : {MB_OK, 0x20L, 0x30L, MB_ICONHAND, MB_ICONHAND | 0x01}) {
        desk.whileOpen(&window, "t", "c", style, [&](QMessageBox& box) {
            icons.push_back(box.icon());
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            EXPECT_EQ(box.parentWidget(), &window);
            EXPECT_TRUE(box.isModal());
            box.accept();
        });
    }
    using enum QMessageBox::Icon;
    EXPECT_EQ(icons, (std::vector{NoIcon, NoIcon, NoIcon, Critical, Critical}));
    EXPECT_TRUE(window.children().isEmpty()) << "the box stayed";
}

TEST(QtMessage, GoesWithItsParentAndWithoutAnApplicationToTheConsole)
{
    Running<QtDesk> desk;
    auto window = std::make_unique<QWidget>();
    desk.whileOpen(window.get(), "t", "c", MB_OK, [&](QMessageBox&) { window.reset(); });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    desk.toolkit.stop();
    testing::internal::CaptureStderr();
    zMessage(nullptr, "t", "c", MB_OK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "c: t\n");
}

TEST(QtLoop, OutlivesTheLastWindowAndDeletesWhatWasLeftForLater)
{
    Running<QtDesk> desk;
    QWidget window;
    const QPointer<QObject> left = new QObject;
    bool alive = false;
    window.show();
    desk.later([&] {
        window.close();
        QTimer::singleShot(20, [&] {
            alive = true;
            desk.app.quit();
            left->deleteLater();
        });
    });
    desk.app.go();
    EXPECT_TRUE(alive);
    EXPECT_TRUE(left.isNull());
    delete left;
}

TEST(QtProcess, KeepsTheArgumentsAndHandsOverItsOwn)
{
    QtToolkit qt(4, kArguments);
    for (int start = 0; start < 2; ++start) {
        qt.start();
        EXPECT_EQ(QApplication::arguments(), (QStringList{"zonaris", "geo.dat"})) << start;
        qt.stop();
    }
}

void tellLocaleAndExitInsideTheLoop()
{
    ::setenv("LC_ALL", "C.UTF-8", 1);
    Running<QtDesk> desk;
    desk.later([&desk] {
        std::fprintf(stderr, "%s, texts %s, numbers %s\n", desk.seen("the end", "c").c_str(),
            std::setlocale(LC_CTYPE, nullptr), std::setlocale(LC_NUMERIC, nullptr));
        desk.app.quit();
        std::exit(1); // NOLINT(concurrency-mt-unsafe): as the reporter does
    });
    desk.app.go();
}

// A process of its own: Qt sets the locale once, and the exit is the real one.
TEST(QtProcessDeathTest, MayExitInsideTheLoopAndNumbersKeepTheirPoint)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(tellLocaleAndExitInsideTheLoop(), testing::ExitedWithCode(1),
        "c: the end, texts C.UTF-8, numbers C\n");
}

} // namespace

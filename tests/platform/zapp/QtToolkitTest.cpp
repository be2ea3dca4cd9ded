// tests/platform/zapp/QtToolkitTest.cpp
#include "platform/zapp/qt/QtToolkit.h"

#include "platform/zapp/qt/QtBoxes.h"
#include "platform/zapp/qt/QtWindow.h"
#include "tests/platform/zapp/Desk.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

/// Shows a message and gives the open box to `look`, which has to close it.
void whileOpen(
    QWidget* parent, const char* text, long style, const std::function<void(QMessageBox&)>& look)
{
    QTimer user;
    user.callOnTimeout([&look] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            look(*box);
    });
    user.start(0);
    zMessage(windowOf(parent), text, "Zonaris Error", style);
}

TEST(QtMessage, IsAModalPlainTextBoxOfTheRootWindow)
{
    const DeskWithApp with;
    QWidget window;
    int looks = 0;
    whileOpen(&window, "a < b <b>x</b>", MB_ICONHAND, [&](QMessageBox& box) {
        ++looks;
        EXPECT_EQ(box.text(), "a < b <b>x</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Zonaris Error");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box.parentWidget(), &window);
        EXPECT_TRUE(box.isModal());
        box.accept();
    });
    EXPECT_EQ(looks, 1);
    EXPECT_TRUE(window.children().isEmpty()) << "the box stayed";
}

TEST(QtMessage, HasTheErrorIconForItsStyleAlone)
{
    const DeskWithApp with;
    for (const long style : {0x00L, 0x20L, 0x30L, 0x40L}) {
        whileOpen(nullptr, "t", style, [&](QMessageBox& box) {
            EXPECT_EQ(box.icon(), QMessageBox::NoIcon) << style;
            box.accept();
        });
    }
    whileOpen(nullptr, "t", MB_ICONHAND | 0x01, [](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Critical) << "beside a button flag";
        box.accept();
    });
}

TEST(QtMessage, GoesWithItsParent)
{
    const DeskWithApp with;
    auto window = std::make_unique<QWidget>();
    whileOpen(window.get(), "t", MB_OK, [&](QMessageBox&) { window.reset(); });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(QtMessage, GoesToTheConsoleWithoutAnApplication)
{
    const auto desk = makeDesk();
    testing::internal::CaptureStderr();
    desk->toolkit().messageBox(nullptr, "t", "c", MB_OK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "c: t\n");
}

TEST(QtLoop, OutlivesTheLastWindow)
{
    DeskWithApp with;
    bool alive = false;
    QWidget window;
    window.show();
    with.desk->later([&] {
        window.close();
        QTimer::singleShot(20, [&] {
            alive = true;
            with.app->quit();
        });
    });
    with.app->go();
    EXPECT_TRUE(alive);
}

TEST(QtLoop, DeletesWhatWasLeftForLater)
{
    DeskWithApp with;
    const QPointer<QObject> left = new QObject;
    with.desk->later([&] {
        with.app->quit();
        left->deleteLater();
    });
    with.app->go();
    EXPECT_TRUE(left.isNull());
    delete left;
}

TEST(QtProcess, KeepsTheArgumentsAndHandsOverItsOwn)
{
    std::vector<std::string> arguments{"zonaris", "-style", "fusion", "geo.dat"};
    std::vector<const char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    QtToolkit qt(static_cast<int>(pointers.size()), pointers.data());
    arguments.assign(4, "overwritten");
    for (int start = 0; start < 2; ++start) {
        qt.start();
        EXPECT_EQ(QApplication::arguments(), (QStringList{"zonaris", "geo.dat"})) << start;
        qt.stop();
    }
}

class QtProcessDeath : public testing::Test {
protected:
    // A process of its own: Qt sets the locale once, and the exit is the real one.
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

void startAndTellNumericLocale()
{
    ::setenv("LC_ALL", "C.UTF-8", 1);
    const DeskWithApp with;
    std::fprintf(stderr, "texts %s, numbers %s\n", std::setlocale(LC_CTYPE, nullptr),
        std::setlocale(LC_NUMERIC, nullptr));
    std::_Exit(0);
}

TEST_F(QtProcessDeath, NumbersKeepTheirPoint)
{
    EXPECT_EXIT(
        startAndTellNumericLocale(), testing::ExitedWithCode(0), "texts C.UTF-8, numbers C\n");
}

void reportAndExitInsideTheLoop()
{
    DeskWithApp with;
    with.desk->later([&] {
        std::fprintf(stderr, "%s\n", with.desk->seen("the end", "c").c_str());
        with.app->quit();
        std::exit(1); // NOLINT(concurrency-mt-unsafe): as the reporter does
    });
    with.app->go();
}

TEST_F(QtProcessDeath, MayExitInsideTheLoop)
{
    EXPECT_EXIT(reportAndExitInsideTheLoop(), testing::ExitedWithCode(1), "c: the end");
}

TEST(QtListBox, FocusIsNoChoice)
{
    const DeskWithApp with;
    QListWidget list;
    QtListBox box(list);
    box.add("a");
    QFocusEvent focus(QEvent::FocusIn);
    QApplication::sendEvent(&list, &focus);
    ASSERT_EQ(list.currentRow(), 0) << "the widget no longer does what the box must not repeat";
    EXPECT_EQ(box.selection(), -1);
    box.selection(0);
    EXPECT_EQ(box.selection(), 0) << "the row that was current already";
}

TEST(QtListBox, TakesSortingFromTheWidget)
{
    const DeskWithApp with;
    QListWidget list;
    list.setSortingEnabled(true);
    QtListBox box(list);
    box.add("b");
    box.add("a");
    EXPECT_EQ(list.item(0)->text(), "b");
}

TEST(QtListBox, HoldsOneChoice)
{
    const DeskWithApp with;
    QListWidget list;
    list.setSelectionMode(QAbstractItemView::MultiSelection);
    QtListBox box(list);
    box.add("a");
    box.add("b");
    box.selection(0);
    const QPointF place = list.visualItemRect(list.item(1)).center();
    QMouseEvent click(
        QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &click);
    EXPECT_EQ(list.selectedItems().size(), 1);
    EXPECT_EQ(box.selection(), 1);
}

TEST(QtComboBox, FillingTellsNobodyOfAChoice)
{
    const DeskWithApp with;
    QComboBox combo;
    int choices = 0;
    QObject::connect(&combo, &QComboBox::currentIndexChanged, [&](int) { ++choices; });
    QtComboBox box(combo);
    box.add("a");
    box.add("b");
    EXPECT_EQ(choices, 0);
    box.selection(1);
    EXPECT_EQ(choices, 1);
}

TEST(QtComboBox, TypedTextBecomesNoRow)
{
    const DeskWithApp with;
    QComboBox combo;
    combo.setEditable(true);
    QtComboBox box(combo);
    box.add("a");
    combo.setEditText("b");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&combo, &enter);
    EXPECT_EQ(box.count(), 1);
}

TEST(QtBoxes, ReadTheChoiceOfTheUser)
{
    const DeskWithApp with;
    QListWidget list;
    QComboBox combo;
    QtListBox listBox(list);
    QtComboBox comboBox(combo);
    for (zBox* box : {static_cast<zBox*>(&listBox), static_cast<zBox*>(&comboBox)}) {
        box->add("a");
        box->add("b");
        box->selection(0);
    }
    for (QWidget* widget : {static_cast<QWidget*>(&list), static_cast<QWidget*>(&combo)}) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QApplication::sendEvent(widget, &down);
    }
    EXPECT_EQ(listBox.selection(), 1);
    EXPECT_EQ(comboBox.selection(), 1);
}

} // namespace

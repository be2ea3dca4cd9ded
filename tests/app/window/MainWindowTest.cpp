// tests/app/window/MainWindowTest.cpp
#include "app/shell/SettingsFile.h"
#include "app/window/RecentMenu.h"
#include "tests/app/window/Cells.h"
#include "tests/app/window/WindowDesk.h"

#include <cstdlib>
#include <fstream>

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MainWindowTest : public testing::Test {
protected:
    MainWindowTest()
    {
        desk.db.run("INSERT INTO WELLS (well_code, well_name) VALUES ('A1', 'One'), ('B2', 'Two')");
        desk.db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (1, 'A1'), (2, 'B2')");
        desk.db.run("INSERT INTO SAMPLES (samp_id, well_id, base_depth, type, label) VALUES"
                    " (1, 1, 10, 'CO', 'a \"b\"'), (2, 1, 20, 'CU', NULL)");
    }

    void activate()
    {
        desk.window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(desk.window.get()));
    }
    std::string fileName() const { return desk.db.file().substr(desk.db.file().rfind('/') + 1); }

    WindowDesk desk;
};

TEST_F(MainWindowTest, IsCalledAfterItsDatabase)
{
    EXPECT_EQ(desk.openEmpty().windowTitle(), "Zonaris");
    EXPECT_EQ(desk.openConnected().windowTitle().toStdString(), fileName() + " – Zonaris");
    EXPECT_EQ(desk.openConnected("DSN=wells;PWD=x").windowTitle().toStdString(),
        "DSN=wells;PWD=*** – Zonaris");
}

class ConnectedWindow : public MainWindowTest, public testing::WithParamInterface<const char*> {};

TEST_P(ConnectedWindow, OpensAnotherDatabaseInAnotherProcess)
{
    desk.openConnected(GetParam());
    desk.picked = "/data/a b.zdb";
    desk.act("Open database...");
    const std::string kind = std::to_string(testSettings().kind);
    QStringList expected{"--database", "/data/a b.zdb", "--kind", QString::fromStdString(kind)};
    if (!testSettings().prefix.empty())
        expected << "--owner" << QString::fromStdString(testSettings().prefix);
    EXPECT_THAT(desk.started, ElementsAre(expected));
    EXPECT_THAT(desk.messages.texts(), IsEmpty());
    EXPECT_EQ(desk.wells().model()->rowCount(), 2) << "this one stays";
}

INSTANTIATE_TEST_SUITE_P(ByFileAndByString, ConnectedWindow, testing::Values("", "DSN=wells"));

TEST_F(MainWindowTest, ReportsAProcessThatDoesNotStart)
{
    desk.openConnected();
    desk.starts = false;
    desk.picked = "other.zdb";
    desk.act("Open database...");
    EXPECT_THAT(desk.messages.texts(), ElementsAre("Zonaris could not be started for other.zdb"));
}

TEST_F(MainWindowTest, LeavesAllAsItIsWhenNoFileIsPicked)
{
    desk.openConnected();
    desk.act("Open database...");
    EXPECT_THAT(desk.started, IsEmpty());
}

TEST_F(MainWindowTest, AnEmptyWindowOpensInPlace)
{
    desk.openEmpty();
    EXPECT_EQ(desk.find<QLabel>("startState").text(), "No database is open.");
    desk.picked = "no such file.zdb";
    desk.act("Open database...");
    EXPECT_THAT(desk.messages.texts(), ElementsAre(HasSubstr("no such file.zdb")));
    desk.picked = QString::fromStdString(desk.db.file());
    desk.act("Open database...");
    EXPECT_THAT(shownRows(*desk.wells().model()), ElementsAre("One|A1", "Two|B2"));
    EXPECT_THAT(desk.started, IsEmpty());
    EXPECT_EQ(desk.window->windowTitle().toStdString(), fileName() + " – Zonaris");
}

TEST_F(MainWindowTest, OffersTheDatabasesThatWereUsedLast)
{
    const std::string settings = desk.db.file() + ".json", gone = desk.db.file() + ".gone";
    setenv("ZONARIS_SETTINGS", settings.c_str(), 1);
    desk.openEmpty();
    const auto recent = [this] {
        QMenu& menu = *desk.window->findChild<RecentMenu*>();
        emit menu.aboutToShow();
        return menu.actions();
    };
    EXPECT_EQ("None yet", recent().at(0)->text());
    EXPECT_FALSE(recent().at(0)->isEnabled());
    ConnectionSettings other;
    other.databaseFile = gone;
    rememberDatabase(other);
    desk.picked = QString::fromStdString(desk.db.file());
    desk.act("Open database...");
    ASSERT_EQ(1, recent().size()) << "the file that is gone is left out";
    recent().at(0)->trigger();
    ASSERT_EQ(1u, desk.started.size());
    EXPECT_EQ(desk.picked, desk.started[0][1]);
    std::ofstream(settings) << "{";
    EXPECT_THAT(recent().at(0)->text().toStdString(), HasSubstr(settings));
    setenv("ZONARIS_SETTINGS", "", 1);
}

TEST_F(MainWindowTest, SaysHowToFillADatabaseWithoutWells)
{
    desk.db.run("DELETE FROM WELL_IDENT");
    desk.openConnected().show();
    EXPECT_EQ(
        desk.find<QLabel>("startState").text().toStdString(), fileName() + " holds no wells yet.");
    EXPECT_THAT(desk.find<QLabel>("startCommands").text().toStdString(), HasSubstr(desk.db.file()));
    EXPECT_TRUE(desk.find<QLabel>("startState").isVisible());
    desk.db.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (1, 'A1')");
    desk.act("Read again");
    EXPECT_FALSE(desk.find<QLabel>("startState").isVisible());
    EXPECT_EQ(desk.samples().model()->rowCount(), 2);
    desk.db.run("DELETE FROM WELL_IDENT");
    desk.act("Read again");
    EXPECT_EQ(desk.samples().model()->rowCount(), 0);
    EXPECT_EQ(desk.find<QWidget>("wellHeader").accessibleDescription(), "");
}

TEST_F(MainWindowTest, CopiesTheSelectedCellsWithTheirHeadings)
{
    desk.openConnected();
    activate();
    QItemSelectionModel& selection = *desk.samples().selectionModel();
    const auto select = [&](int row, int column) {
        selection.select(desk.samples().model()->index(row, column), QItemSelectionModel::Select);
    };
    select(0, 0);
    select(0, 4);
    select(1, 3);
    desk.samples().setFocus();
    QTest::keyClick(&desk.samples(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
        "Depth (m), sample base\tType\tLabel\n"
        "10.00\t\t\"a \"\"b\"\"\"\n"
        "\tCU\t");
    selection.clear();
    QTest::keyClick(&desk.samples(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("CU"))
        << "nothing to copy, nothing lost";
}

TEST_F(MainWindowTest, CopiesWhatHasTheKeyboard)
{
    desk.openConnected();
    desk.wells().setFocus();
    desk.act("Copy");
    EXPECT_EQ(QApplication::clipboard()->text(), "Name\tCode\nOne\tA1");
    desk.act("Next pane");
    desk.act("Copy");
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(),
        testing::StartsWith("Name\tOne\nCode\tA1\n"));
    desk.act("Find");
    desk.find<QLineEdit>("wellSearch").setText("tw");
    desk.find<QLineEdit>("wellSearch").selectAll();
    desk.act("Copy");
    EXPECT_EQ(QApplication::clipboard()->text(), "tw");
}

TEST_F(MainWindowTest, KeysReachEveryPane)
{
    desk.openConnected();
    activate();
    std::vector<QWidget*> order;
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(desk.window.get(), key, with);
        order.push_back(desk.window->focusWidget());
    };
    QWidget* const header = desk.window->findChild<QWidget*>("wellHeader");
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_F6);
    press(Qt::Key_F6);
    press(Qt::Key_F6);
    press(Qt::Key_F6);
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_THAT(order,
        ElementsAre(&desk.find<QLineEdit>("wellSearch"), &desk.wells(), header, &desk.samples(),
            &desk.wells(), &desk.samples()));
}

TEST_F(MainWindowTest, EveryPlaceOfTheKeyboardHasAName)
{
    desk.openConnected();
    activate();
    QStringList names;
    desk.find<QLineEdit>("wellSearch").setFocus();
    for (int stop = 0; stop < 6; ++stop) {
        names += desk.window->focusWidget()->accessibleName();
        QTest::keyClick(desk.window->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(names,
        QStringList({"Find a well by name or code", "Wells", "Header of the well",
            "Views of the well", "Units of depths", "Samples of the well"}));
}

TEST_F(MainWindowTest, TheHeaderFoldsToItsTitleAndStaysSo)
{
    desk.openConnected();
    activate();
    QWidget& header = desk.find<QWidget>("wellHeader");
    const int whole = header.height();
    QTest::keyClick(desk.window.get(), Qt::Key_H, Qt::ControlModifier);
    desk.choose("B2");
    EXPECT_TRUE(QTest::qWaitFor([&] { return header.height() < whole / 2; })) << header.height();
    EXPECT_GT(header.height(), desk.find<QLabel>("wellTitle").height());
    desk.find<QAbstractButton>("headerArrow").click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return header.height() == whole; }));
}

TEST_F(MainWindowTest, TellsItsVersion)
{
    desk.openConnected();
    desk.act("About Zonaris");
    EXPECT_THAT(
        desk.messages.texts(), ElementsAre(testing::ContainsRegex("^Zonaris [0-9]+\\.[0-9]")));
    EXPECT_THAT(desk.messages.texts()[0],
        HasSubstr("International Chronostratigraphic Chart 2024-12, International Commission on"
                  " Stratigraphy, CC BY 4.0"));
}

} // namespace

// tests/app/window/LithologyTabTest.cpp
#include "app/window/WellsPage.h"
#include "tests/app/window/Cells.h"
#include "tests/app/window/WindowDesk.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kSand = "0.00|100.00|rock|SST|Sand'y";
const char* const kPyrite = "100.00|120.00|accessory|PYR|Pyrite";

class LithologyTab : public testing::Test {
protected:
    LithologyTab()
    {
        for (const char* row :
            {"INSERT INTO WELLS (well_code, well_name, type, units) VALUES ('W7', 'Seven', 'W',"
             " 'M'), ('W8', 'Eight', 'W', 'M')",
                "INSERT INTO WELL_IDENT (well_id, well_code) VALUES (7, 'W7'), (8, 'W8')",
                "INSERT INTO LITHDESC (lith_id, descr, abr, cmp) VALUES (1000, 'Sand`y', 'SST',"
                " 'N'), (1001, 'Clay', 'CL', 'N'), (1002, 'Pyrite', 'PYR', 'A')",
                "INSERT INTO ZRILITH VALUES (7, 0, 100, 1000)",
                "INSERT INTO ZRQLITH VALUES (7, 100, 120, 1002, 'A', 'R', 2, '')"})
            desk.db.run(row);
        desk.openConnected().show();
        desk.choose("W7");
        desk.window->wells().openView("Lithology");
        EXPECT_TRUE(QTest::qWaitForWindowActive(desk.window.get()));
    }

    QTableView& table() const { return desk.find<QTableView>("lithologyTable"); }
    std::vector<std::string> rows() const { return shownRows(*table().model()); }
    std::vector<std::string> stored()
    {
        return desk.db.rows("SELECT top_depth, base_depth, lith_id FROM ZRILITH ORDER BY 1");
    }
    bool isMarked() const
    {
        const auto tabs = desk.window->wells().findChild<QTabWidget*>();
        return tabs->tabText(tabs->currentIndex()) == "&Lithology *";
    }
    void press(const char* button) { desk.find<QPushButton>(button).click(); }
    void chooseRow(int row) { table().setCurrentIndex(table().model()->index(row, 0)); }
    QDialog* dialog() const { return desk.window->findChild<QDialog*>("lithologyDialog"); }
    /// Types into the dialog that is open and accepts it; null: as it is. What is told then.
    std::string enter(
        const char* top, const char* base, const char* rock, const char* kind = nullptr)
    {
        const auto choose = [](QComboBox* box, const char* text) {
            box->setCurrentIndex(box->findText(QLatin1String(text)));
            emit box->activated(box->currentIndex());
        };
        if (kind)
            choose(dialog()->findChild<QComboBox*>("lithologyKind"), kind);
        if (top)
            dialog()->findChild<QLineEdit*>("lithologyTop")->setText(top);
        if (base)
            dialog()->findChild<QLineEdit*>("lithologyBase")->setText(base);
        if (rock)
            choose(dialog()->findChild<QComboBox*>("lithologyRock"), rock);
        dialog()->accept();
        QStringList told;
        for (const char* label :
            {"lithologyTopFault", "lithologyBaseFault", "lithologyRockFault", "lithologyFault"}) {
            const auto* fault = dialog()->findChild<QLabel*>(label);
            if (fault->isVisible())
                told += fault->text();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return told.join('|').toStdString();
    }

    WindowDesk desk;
};

TEST_F(LithologyTab, IsEditedSavedAndReadBack)
{
    EXPECT_FALSE(desk.find<QPushButton>("lithologySave").isEnabled());
    table().setFocus();
    QTest::keyClick(&table(), Qt::Key_Insert);
    ASSERT_TRUE(dialog());
    EXPECT_EQ(
        "A depth is missing.|\"x\" is not a number.|Choose what it is.", enter("", "x", nullptr));
    EXPECT_EQ("It would overlap Sand'y, 0.00 to 100.00 m.", enter("90", "150", "Clay (CL)"));
    EXPECT_THAT(rows(), ElementsAre(kSand, kPyrite));
    EXPECT_FALSE(isMarked());
    EXPECT_EQ("", enter("100", nullptr, nullptr)) << "the rest is there still";
    EXPECT_FALSE(dialog());
    EXPECT_THAT(rows(), ElementsAre(kSand, "100.00|150.00|rock|CL|Clay", kPyrite));
    EXPECT_EQ(1, table().currentIndex().row());
    press("lithologyAdd");
    EXPECT_EQ("", enter("20", "20", "Pyrite (PYR)", "accessory"));
    EXPECT_TRUE(isMarked());

    desk.act("Depths in feet");
    chooseRow(0);
    QTest::keyClick(&table(), Qt::Key_Return);
    EXPECT_EQ("accessory Pyrite, 65.62 to 65.62 ft\naccessory Pyrite, 328.08 to 393.70 ft",
        dialog()->findChild<QLabel*>("lithologySaid")->text());
    EXPECT_EQ("", enter("32.81", nullptr, "Clay (CL)"));
    desk.act("Depths in metres");
    chooseRow(3);
    QTest::keyClick(&table(), Qt::Key_Delete);
    EXPECT_THAT(rows(),
        ElementsAre("10.00|100.00|rock|CL|Clay", "100.00|150.00|rock|CL|Clay",
            "20.00|20.00|accessory|PYR|Pyrite"));
    EXPECT_THAT(stored(), ElementsAre("0|100|1000"));

    const std::vector<std::string> edited = rows();
    QTest::keyClick(desk.window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(2U, stored().size());
    EXPECT_EQ("1", desk.db.value("SELECT count(*) FROM ZRQLITH"));
    desk.act("Read again");
    EXPECT_EQ(edited, rows());
    EXPECT_THAT(desk.asked, IsEmpty());
    EXPECT_THAT(desk.messages.texts(), IsEmpty());
}

TEST_F(LithologyTab, LeavingEditsAsks)
{
    const auto edit = [&] {
        chooseRow(0);
        press("lithologyDelete");
        EXPECT_THAT(rows(), ElementsAre(kPyrite));
    };
    const auto go = [&](const char* well, Unsaved wish) {
        desk.wish = wish;
        desk.choose(well);
        QCoreApplication::processEvents();
        return desk.wells().currentIndex().siblingAtColumn(1).data().toString().toStdString();
    };
    edit();
    desk.window->wells().openView("Samples");
    EXPECT_EQ("W7", go("W8", Unsaved::Stay));
    EXPECT_EQ("Lithology of Seven has edits that are not saved.", desk.asked.join('|'));
    EXPECT_TRUE(isMarked());
    EXPECT_FALSE(desk.window->close());
    EXPECT_TRUE(desk.window->isVisible());
    EXPECT_EQ("W8", go("W8", Unsaved::Discard));
    EXPECT_EQ("W7", go("W7", Unsaved::Stay)) << "nothing to ask about";
    EXPECT_THAT(rows(), ElementsAre(kSand, kPyrite));
    edit();
    press("lithologyRevert");
    EXPECT_THAT(rows(), ElementsAre(kSand, kPyrite));
    EXPECT_FALSE(isMarked());
    edit();
    EXPECT_EQ("W8", go("W8", Unsaved::Save));
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_EQ(4, desk.asked.size());
}

TEST_F(LithologyTab, WhatSavingWouldLoseKeepsItFromSaving)
{
    desk.db.run("INSERT INTO ZRQLITH VALUES (7, 50, 60, 0, 'Z', 'L', 0, 'ooids')");
    desk.act("Read again");
    chooseRow(2);
    press("lithologyDelete");
    press("lithologySave");
    EXPECT_THAT(desk.messages.texts(),
        ElementsAre("Saving would lose the text \"ooids\" of the interval 50.00 to 60.00 m, which"
                    " cannot be saved. Nothing was saved."));
    EXPECT_TRUE(isMarked());
    EXPECT_EQ("2", desk.db.value("SELECT count(*) FROM ZRQLITH"));
    desk.wish = Unsaved::Save;
    desk.choose("W8");
    QCoreApplication::processEvents();
    EXPECT_TRUE(isMarked()) << "and the well stays";
}

TEST_F(LithologyTab, NoTwoThingsInSightHaveOneKeyBehindAlt)
{
    const QStringList views = {"Samples", "Occurrences", "Events", "Cores", "Depth model", "Zones",
        "Lithology", "Environment", "Markers and picks"};
    for (const QString& view : views) {
        ASSERT_TRUE(desk.window->wells().openView(view)) << view.toStdString();
        QStringList texts;
        for (const QAction* menu : desk.window->menuBar()->actions())
            texts += menu->text();
        for (const auto* tabs : desk.window->wells().findChildren<QTabBar*>())
            for (int number = 0; number < tabs->count(); ++number)
                texts += tabs->tabText(number);
        for (const auto* button : desk.window->findChildren<QAbstractButton*>())
            if (button->isVisible())
                texts += button->text();
        for (const auto* label : desk.window->findChildren<QLabel*>())
            if (label->isVisible() && label->buddy())
                texts += label->text();
        QHash<QKeySequence, QString> taken;
        for (const QString& text : texts) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            EXPECT_FALSE(!key.isEmpty() && taken.contains(key))
                << view.toStdString() << ": " << text.toStdString() << " and "
                << taken[key].toStdString();
            taken[key] = text;
        }
        EXPECT_GE(taken.size(), 14);
    }
}

} // namespace

// tests/app/window/WellTabsTest.cpp
#include "app/window/ReportStrip.h"
#include "app/window/WellsPage.h"
#include "dict/EventLabels.h"
#include "tests/app/ImportRun.h"
#include "tests/app/window/Cells.h"
#include "tests/app/window/WindowDesk.h"
#include "tests/support/Restore.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <ostream>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class WellTabs : public testing::Test {
protected:
    WellTabs()
    {
        IssueLog issues;
        importFiles({{ZONARIS_SOURCE_DIR "/examples/synthetic"}}, issues);
    }

    /// The window in sight, with the well chosen and nothing but its samples loaded.
    void open(const char* view = "Samples")
    {
        desk.openConnected().show();
        desk.choose("SYN-1");
        desk.window->wells().openView(QLatin1String(view));
    }
    void openLoaded(const char* view)
    {
        open(view);
        finish();
    }
    void finish()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !reading(); }));
    }
    bool reading() const { return desk.window->wells().isReading(); }
    /// Goes on until that is what is read next.
    void readUpTo(const char* name)
    {
        const auto& next = desk.find<QLabel>("readingNext");
        const QString wanted = QLatin1String("Reading ") + QLatin1String(name);
        while (reading() && next.text() != wanted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ASSERT_TRUE(reading()) << name << " does not come";
    }
    void cancel() { desk.find<QPushButton>("cancelReading").click(); }
    void select(const char* combo, const char* text)
    {
        auto& box = desk.find<QComboBox>(combo);
        box.setCurrentIndex(box.findText(QLatin1String(text)));
        emit box.activated(box.currentIndex());
    }
    QAbstractItemModel& model(const char* table) const
    {
        return *desk.find<QTableView>(table).model();
    }
    std::string summary() const
    {
        return desk.window->findChild<ReportStrip*>()->summary().toStdString();
    }

    WindowDesk desk;
};

TEST_F(WellTabs, ModelsKeepTheirPromisesWhileAWellLoads)
{
    open("Occurrences");
    const auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> testers;
    for (const char* table : {"occurrenceTable", "eventTable", "coreTable", "surveyTable"})
        testers.push_back(std::make_unique<QAbstractItemModelTester>(&model(table), fatal));
    finish();
    desk.act("Depths in feet");
    desk.choose("SYN-2");
    finish();
    EXPECT_EQ(0, model("occurrenceTable").rowCount());
    EXPECT_EQ("No samples were examined", desk.find<QLabel>("occurrenceCount").text());
}

struct ShownCell {
    const char* rule;
    const char* discipline;
    const char* analyst;
    const char* taxon;
    const char* depth;
    const char* text;
    const char* words; ///< part of the tooltip
};

void PrintTo(const ShownCell& c, std::ostream* out) { *out << c.rule; }

const ShownCell kCells[] = {
    {"a count", "Discipline M", "all", "Fictina prima", "1020.00", "8", "AN1: count 8, in place"},
    {"reworked", "Discipline M", "all", "Imaginella (Subimaginella) lata", "1030.00", "2 R",
        "count 2, reworked, worn"},
    {"caved", "Discipline M", "all", "Fictina prima", "1120.00", "1 C", "count 1, caved"},
    {"questionable", "Discipline M", "all", "Fictina secunda", "1070.00", "?11",
        "count 11, questionable, in place"},
    {"a marker", "Discipline M", "all", "Imaginella (Subimaginella) lata", "1100.00", "2",
        "in place, marker"},
    {"a code", "Discipline N", "all", "Inventococcus parvus", "1030.00", "?F",
        "code F, questionable"},
    {"of two analyses", "Discipline P", "all", "Phantasmidinium elegans", "1050.00", "F, F",
        "AN3/2: code F"},
    {"of one of them", "Discipline P", "AN3/2", "Phantasmidinium elegans", "1050.00", "F",
        "AN3/2: code F"},
    {"a code is no mark", "Discipline P", "all", "Nonexistites simplex", "1020.00", "?P R",
        "code P, questionable, reworked"},
    {"absent", "Discipline M", "all", "Fictina prima", "1200.00", "", ""},
};

class Cell : public WellTabs, public testing::WithParamInterface<ShownCell> {};

TEST_P(Cell, SaysWhatWasFound)
{
    const ShownCell& wanted = GetParam();
    openLoaded("Occurrences");
    select("occurrenceDiscipline", wanted.discipline);
    select("occurrenceAnalyst", wanted.analyst);
    const QAbstractItemModel& matrix = model("occurrenceTable");
    int column = 4;
    while (column < matrix.columnCount()
        && matrix.headerData(column, Qt::Horizontal).toString() != QLatin1String(wanted.taxon))
        ++column;
    ASSERT_LT(column, matrix.columnCount());
    const auto rows =
        matrix.match(matrix.index(0, 0), Qt::DisplayRole, wanted.depth, 1, Qt::MatchExactly);
    ASSERT_EQ(1, rows.size());
    const QModelIndex cell = rows.front().siblingAtColumn(column);
    EXPECT_EQ(wanted.text, cell.data().toString().toStdString());
    EXPECT_THAT(cell.data(Qt::ToolTipRole).toString().toStdString(), HasSubstr(wanted.words));
}

INSTANTIATE_TEST_SUITE_P(Signs, Cell, testing::ValuesIn(kCells));

TEST_F(WellTabs, TaxaStandInTheOrderOfTheirTops)
{
    openLoaded("Occurrences");
    EXPECT_EQ("Depth (m),\nsample base|Type|Label|Taxa|Fictina prima|Imaginella spp.|"
              "Fictina secunda|Fictina cf. secunda|Imaginella (Subimaginella) lata",
        shownHeadings(model("occurrenceTable")));
    EXPECT_EQ("Imaginella (Subimaginella) lata\ntop at 1100.00 m (reworked in 2 samples beyond)"
              "\nbase at 1190.00 m",
        model("occurrenceTable").headerData(8, Qt::Horizontal, Qt::ToolTipRole).toString());
    select("occurrenceDiscipline", "Discipline P");
    EXPECT_THAT(
        shownRows(model("occurrenceTable"))[0], testing::StartsWith("1010.00|CU|–|barren|"));
}

TEST_F(WellTabs, APressOnTheColumnsThatStayMarksTheRow)
{
    openLoaded("Occurrences");
    auto& table = desk.find<QTableView>("occurrenceTable");
    for (int column = 4; column < 9; ++column)
        table.setColumnWidth(column, 400);
    QCoreApplication::processEvents(); // which lays the columns out
    table.horizontalScrollBar()->setValue(500);
    ASSERT_EQ(500, table.horizontalScrollBar()->value());
    auto& frozen = *table.parentWidget()->findChild<QTableView*>(
        QStringLiteral("samplesOfOccurrences"), Qt::FindDirectChildrenOnly);
    QTest::mouseClick(frozen.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(9, table.selectionModel()->selectedIndexes().size());
    EXPECT_EQ(500, table.horizontalScrollBar()->value()) << "the others stand where they stood";
}

TEST_F(WellTabs, TablesShowWhatTheDatabaseHasInEitherUnit)
{
    desk.db.run("UPDATE EVENTS SET samp_id=9999 WHERE well_id=1 AND ev_type='F' AND ev_id="
                "(SELECT ev_id FROM EVENTDIC WHERE name='Fictina secunda')");
    const Restore<FixedText<19>> top(eventTopPrefix);
    const Restore<FixedText<19>> base(eventBasePrefix);
    loadEventPrefixes();
    openLoaded("Events");
    EXPECT_EQ(31, model("sampleTable").rowCount()) << "none for the sample that is missing";
    const auto events = shownRows(model("eventTable"));
    ASSERT_EQ(12U, events.size());
    EXPECT_EQ("1010.00|Top of Fictina prima|M|AN1|–|0|–", events.front());
    EXPECT_EQ("no such sample|Top of Fictina secunda|M|AN1|–|0|–", events.back());
    EXPECT_THAT(shownRows(model("coreTable")),
        ElementsAre("1|1120.00|1126.50|yes|–|–", "2|1129.59|1135.99|yes|–|–"));
    desk.act("Depths in feet");
    EXPECT_EQ("3313.65|Top of Fictina prima|M|AN1|–|0|–", shownRows(model("eventTable"))[0]);
    EXPECT_EQ("2|3706.00|3727.00|yes|–|–", shownRows(model("coreTable"))[1]);
    EXPECT_EQ("0.00|0.00", shownRows(model("surveyTable"))[0]);
    EXPECT_EQ("1968.50|1968.50", shownRows(model("surveyTable"))[1]);
}

TEST_F(WellTabs, DepthsAreConvertedAsOneTypes)
{
    openLoaded("Depth model");
    auto& measured = desk.find<QLineEdit>("measuredDepth");
    auto& vertical = desk.find<QLineEdit>("verticalDepth");
    const auto note = [&] { return desk.find<QLabel>("conversionNote").text().toStdString(); };
    QTest::keyClicks(&measured, "700");
    EXPECT_EQ("697.75", vertical.text());
    EXPECT_EQ("m", note());
    desk.act("Depths in feet");
    EXPECT_EQ("2296.59", measured.text());
    EXPECT_EQ("2289.21", vertical.text());
    desk.act("Depths in metres");
    measured.clear();
    QTest::keyClicks(&measured, "2000");
    EXPECT_EQ("1160.25", vertical.text());
    EXPECT_THAT(note(), HasSubstr("beyond the survey"));
    vertical.clear();
    QTest::keyClicks(&vertical, "795,5");
    EXPECT_EQ("800.00", measured.text());
    QTest::keyClicks(&vertical, "x");
    EXPECT_EQ("not a number", note());
    EXPECT_EQ("", measured.text());
    desk.choose("SYN-2");
    finish();
    EXPECT_FALSE(measured.isEnabled());
}

TEST_F(WellTabs, SamplesComeAtOnceAndTheRestStepByStep)
{
    open("Occurrences");
    EXPECT_EQ(31, model("sampleTable").rowCount());
    EXPECT_TRUE(reading());
    EXPECT_EQ("No samples were examined", desk.find<QLabel>("occurrenceCount").text());
    readUpTo("discipline M occurrences");
    EXPECT_EQ("The occurrences are not loaded", desk.find<QLabel>("occurrenceCount").text());
    readUpTo("discipline N details");
    EXPECT_EQ(9, model("occurrenceTable").columnCount());
    EXPECT_EQ(0, model("eventTable").rowCount());
    finish();
    EXPECT_EQ(12, model("eventTable").rowCount());
    EXPECT_EQ("", summary());
}

TEST_F(WellTabs, CancellingKeepsWhatIsLoaded)
{
    open("Occurrences");
    readUpTo("events of interpretation 0");
    cancel();
    EXPECT_FALSE(reading());
    QCoreApplication::processEvents();
    EXPECT_EQ(9, model("occurrenceTable").columnCount());
    EXPECT_EQ(0, model("eventTable").rowCount());
    EXPECT_THAT(summary(), HasSubstr("from events of interpretation 0 on nothing is loaded"));
}

TEST_F(WellTabs, EscapeCancelsWhereverTheKeyboardIs)
{
    open("Occurrences");
    ASSERT_TRUE(QTest::qWaitForWindowActive(desk.window.get()));
    auto& search = desk.find<QLineEdit>("wellSearch");
    search.setText("SYN");
    for (const char* name : {"wellSearch", "occurrenceTable"}) {
        QWidget* const place = &desk.find<QWidget>(name);
        desk.act("Read again");
        ASSERT_TRUE(reading());
        place->setFocus();
        QTest::keyClick(place, Qt::Key_Escape);
        EXPECT_FALSE(reading());
    }
    EXPECT_EQ("SYN", search.text());
    search.setFocus();
    QTest::keyClick(&search, Qt::Key_Escape);
    EXPECT_EQ("", search.text());
}

TEST_F(WellTabs, AnotherChoiceStopsTheLoading)
{
    open("Occurrences");
    readUpTo("discipline N details");
    desk.choose("SYN-3");
    finish();
    EXPECT_EQ(0, model("occurrenceTable").columnCount() - 4);
    EXPECT_EQ(0, model("eventTable").rowCount());
    EXPECT_EQ("", summary());
}

TEST_F(WellTabs, WhatIsRefusedIsToldInOneLine)
{
    desk.db.run("INSERT INTO SMPDTL (well_id, samp_id, analy_id) SELECT 1, 9998, analy_id FROM"
                " ANALY_HDR WHERE well_id=1 AND disc_id='N'");
    desk.db.run("INSERT INTO SMPDTL (well_id, samp_id, analy_id) SELECT 1, 9999, analy_id FROM"
                " ANALY_HDR WHERE well_id=1 AND disc_id='N'");
    openLoaded("Samples");
    EXPECT_EQ("2 rows were refused: Unmatched sample details for sample: 9998", summary());
    EXPECT_THAT(desk.messages.texts(), testing::IsEmpty());
    desk.choose("SYN-2");
    EXPECT_EQ("", summary());
}

} // namespace

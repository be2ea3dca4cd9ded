// tests/app/window/InterpretationTabsTest.cpp
#include "app/window/WellsPage.h"
#include "tests/app/window/Cells.h"
#include "tests/app/window/WindowDesk.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QColor>
#include <QComboBox>

namespace {

using testing::ElementsAre;

// Periods, of which two overlap and two disagree about their boundary, and an age below them.
const char* const kRows[] = {
    "INSERT INTO WELLS (well_code, well_name, type, units) VALUES ('W7', 'Seven', 'W', 'M')",
    "INSERT INTO WELL_IDENT (well_id, well_code) VALUES (7, 'W7')",
    "INSERT INTO SAMPLES (samp_id, well_id, top_depth, base_depth, type) VALUES (1, 7, 100, 100,"
    " 'CO'), (2, 7, 150, 150, 'CU'), (3, 7, 200, 210, 'LOG'), (4, 7, 120, 120, 'CU')",
    "INSERT INTO IGD_SCH VALUES (1, 'The chart`s', 3, NULL, NULL)",
    "INSERT INTO IGD_DICT (igd_id, sch_id, igd_type, hier, name, red, green, blue) VALUES"
    " (10, 1, 3, 3, 'Light', 200, 255, 0), (11, 1, 3, 3, 'Dark', 255, 0, 255),"
    " (12, 1, 3, 7, 'Plain', 0, 0, 0)",
    "INSERT INTO IGD (well_id, igd_type, interp_id, hier, top_id, base_id, sch_id, upp_zone,"
    " upp_inf, q_uzone, top_bnd, base_bnd) VALUES (7, 3, 0, 3, 1, 2, 1, 10, 'L`ight', 'N', 3, 6),"
    " (7, 3, 0, 3, 2, 3, 1, 11, 'Dark', 'Y', 4, 3), (7, 3, 0, 7, 1, 4, 0, 12, 'Plain', 'N', 1, 2),"
    " (7, 4, 0, 3, 1, 2, 0, -1, 'NN4', 'N', 3, 3), (7, 4, 0, 3, 4, 3, 0, -1, 'NN5', 'N', 3, 3)",
    "INSERT INTO LITHDESC (lith_id, descr, abr, cmp) VALUES (1000, 'Sand`y', 'SST', 'N'),"
    " (1002, 'Pyrite', 'PYR', 'A')",
    "INSERT INTO ZRILITH VALUES (7, 0, 150, 1000)",
    "INSERT INTO ZRQLITH VALUES (7, 100, 120, 1002, 'A', 'R', 2, '')",
    "INSERT INTO ENV_SCH VALUES (1, 'marine')",
    "INSERT INTO ENVSCHMBR VALUES (1, 1, 'Coast', 1, 2, 3), (1, 2, 'Shelf', 0, 0, 0)",
    "INSERT INTO IGD_ENV VALUES (7, 0, 1, 2, 1, 2, 2, 2, 0, 1, NULL, '')",
    "INSERT INTO CASING VALUES (7, 500, '13 3/8')",
    "INSERT INTO WELLSMARK VALUES (7, 1000, 'red')",
    "INSERT INTO SURFACE VALUES (1, 1, 30.5, 'MFS', 3)",
    "INSERT INTO SQPICK VALUES (7, 0, 3, 1, 'd`eep', 5, 'Q')",
};

class InterpretationTabs : public testing::Test {
protected:
    InterpretationTabs()
    {
        for (const char* row : kRows)
            desk.db.run(row);
        desk.openConnected().show();
        desk.choose("W7");
    }

    const QAbstractItemModel& look(const char* view, const char* table)
    {
        EXPECT_TRUE(desk.window->wells().openView(QLatin1String(view)));
        return *desk.find<QTableView>(table).model();
    }
    void select(const char* combo, const char* text)
    {
        auto& box = desk.find<QComboBox>(combo);
        box.setCurrentIndex(box.findText(QLatin1String(text)));
        emit box.activated(box.currentIndex());
    }

    WindowDesk desk;
};

TEST_F(InterpretationTabs, ZonesAreThoseOfTheTypeAndRank)
{
    const QAbstractItemModelTester tester(desk.find<QTableView>("zoneTable").model(),
        QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto& zones = look("Zones", "zoneTable");
    const char* plain = "|100.00|120.00|Age|Plain|Possible|Probable|–";
    const char* light = "!|100.00|150.00|Period|L'ight|Confident|Fault|The chart's";
    const char* dark = "!|150.00|210.00|Period|?Dark|Unconformable|Confident|The chart's";
    EXPECT_THAT(shownRows(zones), testing::UnorderedElementsAre(plain, light, dark));
    select("zoneRank", "Period (3)");
    EXPECT_THAT(shownRows(zones), ElementsAre(light, dark));
    EXPECT_EQ("With ?Dark: meet at 150.00, which is Fault above and Unconformable below.",
        zones.index(0, 0).data(Qt::ToolTipRole).toString());
    EXPECT_EQ(QColor(200, 255, 0), zones.index(0, 4).data(Qt::BackgroundRole));
    EXPECT_EQ(QColor(Qt::black), zones.index(0, 4).data(Qt::ForegroundRole));
    EXPECT_EQ(QColor(Qt::white), zones.index(1, 4).data(Qt::ForegroundRole));
    desk.act("Depths in feet");
    EXPECT_EQ("!|328.08|492.13|Period|L'ight|Confident|Fault|The chart's", shownRows(zones)[0]);
    desk.act("Depths in metres");
    select("zoneRank", "Age (7)");
    EXPECT_THAT(shownRows(zones), ElementsAre(plain));
    EXPECT_FALSE(zones.index(0, 4).data(Qt::BackgroundRole).isValid()) << "never given a colour";
    select("zoneType", "Biozones");
    EXPECT_THAT(shownRows(zones),
        ElementsAre("!|100.00|150.00|Zone|NN4|Confident|Confident|–",
            "!|120.00|210.00|Zone|NN5|Confident|Confident|–"));
    EXPECT_EQ("With NN4: overlap from 120.00 to 150.00.",
        zones.index(1, 0).data(Qt::ToolTipRole).toString());
    select("zoneType", "Sequences");
    EXPECT_EQ(0, zones.rowCount());
}

TEST_F(InterpretationTabs, RocksEnvironmentsMarkersAndPicksAreShown)
{
    EXPECT_EQ(0, desk.find<QTableView>("lithologyTable").model()->rowCount()) << "nobody looks";
    EXPECT_THAT(shownRows(look("Lithology", "lithologyTable")),
        ElementsAre("0.00|150.00|rock|SST|Sand'y", "100.00|120.00|accessory|PYR|Pyrite"));
    EXPECT_THAT(shownRows(look("Environment", "environmentTable")),
        ElementsAre("100.00|150.00|(Coast, Shelf) - (Shelf, Shelf)"));
    const auto& markers = look("Markers and picks", "markerTable");
    EXPECT_THAT(shownRows(markers),
        ElementsAre("500.00|casing|13 3/8|–|–|–|–", "1000.00|seismic marker|red|–|–|–|–",
            "210.00|pick|MFS|30.500|?Unconformable|Q|d'eep"));
    desk.act("Depths in feet");
    EXPECT_EQ("1640.42|casing|13 3/8|–|–|–|–", shownRows(markers)[0]);
    EXPECT_EQ("492.13", shownRows(look("Lithology", "lithologyTable"))[0].substr(5, 6));
}

TEST_F(InterpretationTabs, AVersionIsChosenForAllTablesThatHaveVersions)
{
    desk.db.run("INSERT INTO IGD (well_id, igd_type, interp_id, hier, top_id, base_id, sch_id,"
                " upp_zone, upp_inf, q_uzone, top_bnd, base_bnd) VALUES (7, 3, 4, 7, 2, 3, 0, 12, "
                "'Other', 'N', 3, 3)");
    desk.db.run("INSERT INTO SQPICK VALUES (7, 4, 1, 1, 'higher', 5, 'Q')");
    look("Zones", "zoneTable");
    EXPECT_EQ(2, desk.find<QComboBox>("zoneTableVersion").count());
    select("zoneTableVersion", "4");
    EXPECT_THAT(shownRows(look("Zones", "zoneTable")),
        ElementsAre("|150.00|210.00|Age|Other|Confident|Confident|–"));
    EXPECT_EQ(0, look("Environment", "environmentTable").rowCount());
    EXPECT_EQ("100.00|pick|MFS|30.500|?Unconformable|Q|higher",
        shownRows(look("Markers and picks", "markerTable"))[2]);
    EXPECT_EQ("4", desk.find<QComboBox>("markerTableVersion").currentText());
    EXPECT_EQ(2, look("Lithology", "lithologyTable").rowCount()) << "in no version";
}

TEST_F(InterpretationTabs, DepthsOfASectionAreThoseOfItsSamples)
{
    desk.db.run("UPDATE WELLS SET type='O'");
    desk.act("Read again");
    look("Zones", "zoneTable");
    select("zoneRank", "Age (7)");
    EXPECT_THAT(shownRows(look("Zones", "zoneTable")),
        ElementsAre("|100.00|120.00|Age|Plain|Possible|Probable|–"));
}

} // namespace

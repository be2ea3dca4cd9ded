// tests/app/window/ShownDataTest.cpp
#include "db/Session.h"
#include "tests/app/window/Cells.h"
#include "tests/app/window/WindowDesk.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>

#include <cstdio>
#include <ostream>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr double kMetresInFoot = 0.3048;

// Three wells with all that a header and a sample can hold or lack, one without a header, one
// without a number.
const char* const kRows[] = {
    "INSERT INTO WELLS (well_code, well_name, operator, country, county, ocs, field, grid_x, "
    "grid_y,"
    " lat_dec, long_dec, geoDatum, spud_date, comp_date, td, sl, sb, rte, kicko, type, units)"
    " VALUES ('M1', 'Ørnefjell 1', 'Aker & <Sons>', 'NORWAY', 'Rogaland', 'OCS-7', 'D`Oro', 491689,"
    " 6269008, 56.564056, -2.5, 'ED50', '1972-11-28', '1973-01-12', 3383.25, 0, 69, 36.5, 1200,"
    " 'W', 'M')",
    "INSERT INTO WELLS (well_code, well_name, td, sb, long_dec, type, units)"
    " VALUES ('F2', 'O`Brien 2', 5460, 240.5, 12.25, 'W', 'F')",
    "INSERT INTO WELLS (well_code, well_name, td, lat_dec, type, units)"
    " VALUES ('O3', 'Quarry', 14, -33.5, 'O', 'M')",
    "INSERT INTO WELLS (well_code) VALUES ('N4')",
    "INSERT INTO WELLS (well_code, well_name) VALUES ('X5', 'without number')",
    "INSERT INTO WELL_IDENT (well_id, well_code, descrip) VALUES (11, 'M1', 'The operator`s last')",
    "INSERT INTO WELL_IDENT (well_id, well_code) VALUES (12, 'F2'), (13, 'O3'), (14, 'N4')",
    "INSERT INTO SAMPLES (samp_id, well_id, top_depth, base_depth, type, label, created, modified,"
    " creator, modifier) VALUES"
    " (1, 11, 1010, 1020, 'CU', NULL, '2024-02-29', '2024-03-01', 'ABC', 'XY'),"
    " (2, 11, 1000, 1010, 'CU', 'd`Orbigny', '2024-02-29', NULL, NULL, NULL),"
    " (3, 11, NULL, 1015.5, 'SC', '3-1 \"A\"', NULL, NULL, NULL, NULL),"
    " (4, 11, 1012.25, 0, 'CO', NULL, NULL, NULL, NULL, NULL),"
    " (5, 11, NULL, NULL, 'LOG', 'no depth', NULL, NULL, NULL, NULL),"
    " (6, 12, 1524, 1533.144, 'CU', NULL, NULL, NULL, NULL, NULL),"
    " (7, 12, 1514.856, 1524, 'CU', NULL, NULL, NULL, NULL, NULL),"
    " (8, 13, NULL, 2, 'OC', 'low', NULL, NULL, NULL, NULL),"
    " (9, 13, NULL, 10, 'OC', 'high', NULL, NULL, NULL, NULL),"
    " (10, 13, NULL, 2, 'OC', 'low again', NULL, NULL, NULL, NULL)",
};

std::string shown(std::string text)
{
    std::replace(text.begin(), text.end(), '`', '\'');
    return text == "NULL" || text.empty() ? "–" : text;
}

std::string number(const std::string& value, double factor, const char* format)
{
    if (value == "NULL" || std::stod(value) == 0)
        return "–";
    char out[40];
    std::snprintf(out, sizeof out, format, std::stod(value) * factor);
    return out;
}

/// The splitting of what `TestDatabase::rows` joined.
std::vector<std::string> columns(const std::string& row)
{
    std::vector<std::string> cells(1);
    for (const char c : row) {
        if (c == '|')
            cells.emplace_back();
        else
            cells.back() += c;
    }
    return cells;
}

struct ShownCase {
    const char* rule;
    const char* code;
    DepthUnits units;
    const char* unit;
    double factorOfWell; ///< from the units of the well to those shown
};

void PrintTo(const ShownCase& c, std::ostream* out) { *out << c.rule; }

const ShownCase kShown[] = {
    {"metres as the well has them", "M1", DepthUnits::OfWell, "m", 1},
    {"metres", "M1", DepthUnits::Metres, "m", 1},
    {"metres in feet", "M1", DepthUnits::Feet, "ft", 1 / kMetresInFoot},
    {"feet as the well has them", "F2", DepthUnits::OfWell, "ft", 1},
    {"feet in metres", "F2", DepthUnits::Metres, "m", kMetresInFoot},
    {"a section runs upwards", "O3", DepthUnits::OfWell, "m", 1},
    {"a section in feet", "O3", DepthUnits::Feet, "ft", 1 / kMetresInFoot},
    {"a well without a header", "N4", DepthUnits::OfWell, "m", 1},
};

class ShownData : public testing::Test {
protected:
    ShownData()
    {
        for (const char* row : kRows)
            desk.db.run(row);
    }

    std::vector<std::string> samples() const { return shownRows(*desk.samples().model()); }
    std::string value(const std::string& sql) { return desk.db.value(sql); }

    WindowDesk desk;
};

class ShownWell : public ShownData, public testing::WithParamInterface<ShownCase> {
protected:
    ShownWell()
    {
        desk.openConnected();
        desk.choose(GetParam().code);
        desk.window->setUnits(GetParam().units);
    }

    std::string ofWells(const char* column)
    {
        return value(std::string("SELECT ") + column + " FROM WELLS WHERE well_code='"
            + GetParam().code + "'");
    }
    std::string depthOfWells(const char* column)
    {
        std::string text = number(ofWells(column), GetParam().factorOfWell, "%.2f");
        if (text.find('.') == std::string::npos)
            return text;
        text.erase(text.find_last_not_of('0') + 1);
        return (text.back() == '.' ? text.substr(0, text.size() - 1) : text) + ' '
            + GetParam().unit;
    }
    std::string degrees(const char* column, const char* letters)
    {
        if (ofWells("lat_dec") == "NULL" && ofWells("long_dec") == "NULL")
            return "–";
        const std::string stored = ofWells(column);
        const double angle = stored == "NULL" ? 0 : std::stod(stored);
        char out[40];
        std::snprintf(out, sizeof out, "%.6f° %c", std::abs(angle), letters[angle < 0]);
        return out;
    }
    std::vector<std::string> expectedSamples()
    {
        const bool upwards = ofWells("type") == "O";
        std::vector<std::string> lines;
        for (const std::string& row : desk.db.rows(
                 "SELECT coalesce(nullif(base_depth,0),top_depth),"
                 " coalesce(nullif(top_depth,0),base_depth), type, label, created, creator,"
                 " modified, modifier FROM SAMPLES s, WELL_IDENT v WHERE s.well_id=v.well_id"
                 " AND v.well_code='"
                 + std::string(GetParam().code) + "' ORDER BY coalesce(nullif(base_depth,0),"
                 + "top_depth,0)" + (upwards ? " DESC" : "") + ", samp_id")) {
            const std::vector<std::string> stored = columns(row);
            const double factor = GetParam().unit == std::string("ft") ? 1 / kMetresInFoot : 1;
            const std::string base = number(stored[0], factor, "%.2f");
            std::string line = base + '|' + number(stored[1], factor, "%.2f") + '|' + base;
            for (std::size_t i = 2; i < stored.size(); ++i)
                line += '|' + shown(stored[i]);
            lines.push_back(line);
        }
        return lines;
    }
    std::string field(const char* caption) const
    {
        for (const QLabel* label : desk.find<QWidget>("wellHeader").findChildren<QLabel*>()) {
            if (label->accessibleName() == QLatin1String(caption))
                return label->text().toStdString();
        }
        return "no such field";
    }
};

TEST_P(ShownWell, SamplesAreThoseOfTheDatabase)
{
    EXPECT_THAT(samples(), ElementsAreArray(expectedSamples()));
    const std::string unit = GetParam().unit;
    EXPECT_EQ(shownHeadings(*desk.samples().model()),
        "Depth (" + unit + "), sample base|Top (" + unit + ")|Base (" + unit
            + ")|Type|Label|Created|Created by|Changed|Changed by");
}

TEST_P(ShownWell, HeaderIsThatOfTheDatabase)
{
    const std::string type = ofWells("type");
    const std::string grid = ofWells("grid_x || ', ' || grid_y");
    const std::pair<const char*, std::string> fields[] = {
        {"Code", ofWells("well_code")},
        {"Operator", shown(ofWells("operator"))},
        {"Country", shown(ofWells("country"))},
        {"County", shown(ofWells("county"))},
        {"Field", shown(ofWells("field"))},
        {"OCS number", shown(ofWells("ocs"))},
        {"Type",
            type == "NULL"    ? "–"
                : type == "O" ? "outcrop section"
                              : "well"},
        {"Units", ofWells("units") == "F" ? "feet" : "metres"},
        {"Spudded", shown(ofWells("spud_date"))},
        {"Completed", shown(ofWells("comp_date"))},
        {"Latitude", degrees("lat_dec", "NS")},
        {"Longitude", degrees("long_dec", "EW")},
        {"Geodetic datum", shown(ofWells("geoDatum"))},
        {"Grid (x, y)", shown(grid)},
        {"Total depth", depthOfWells("td")},
        {"Rotary table elevation", depthOfWells("rte")},
        {"Sea level", depthOfWells("sl")},
        {"Sea bed", depthOfWells("sb")},
        {"Kick-off depth", depthOfWells("kicko")},
        {"Description",
            shown(value(std::string("SELECT descrip FROM WELL_IDENT WHERE well_code='")
                + GetParam().code + "'"))},
    };
    for (const auto& [caption, expected] : fields)
        EXPECT_EQ(field(caption), expected) << caption;
    EXPECT_EQ(desk.find<QLabel>("wellTitle").text().toStdString(), shown(ofWells("well_name")));
    EXPECT_EQ(std::size(fields), 20U);
}

INSTANTIATE_TEST_SUITE_P(Wells, ShownWell, testing::ValuesIn(kShown));

TEST_F(ShownData, WellsAreThoseWithANumber)
{
    desk.openConnected();
    std::vector<std::string> expected;
    for (const std::string& row : desk.db.rows("SELECT w.well_name, w.well_code FROM WELLS w,"
                                               " WELL_IDENT v WHERE w.well_code=v.well_code")) {
        const std::vector<std::string> cells = columns(row);
        expected.push_back(shown(cells[0]) + '|' + cells[1]);
    }
    EXPECT_THAT(shownRows(*desk.wells().model()), testing::UnorderedElementsAreArray(expected));
    EXPECT_EQ(expected.size(), 4U);
}

TEST_F(ShownData, TypesAreExplained)
{
    desk.openConnected();
    desk.choose("M1");
    std::vector<std::string> words;
    const QAbstractItemModel& model = *desk.samples().model();
    for (int row = 0; row < model.rowCount(); ++row)
        words.push_back(model.index(row, 3).data().toString().toStdString() + ' '
            + model.index(row, 3).data(Qt::ToolTipRole).toString().toStdString());
    EXPECT_THAT(
        words, ElementsAre("LOG log", "CU cuttings", "CO core", "SC sidewall core", "CU cuttings"));
}

TEST_F(ShownData, TheUnitsStayWhenTheWellChanges)
{
    desk.openConnected();
    QAbstractItemModelTester tester(
        desk.samples().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy headings(desk.samples().model(), &QAbstractItemModel::headerDataChanged);
    const QSignalSpy cells(desk.samples().model(), &QAbstractItemModel::dataChanged);
    desk.choose("M1");
    desk.act("Depths in metres");
    EXPECT_EQ(headings.count(), 1) << "the view keeps the old ones otherwise";
    EXPECT_EQ(cells.count(), 1);
    EXPECT_EQ(desk.find<QComboBox>("depthUnits").currentText(), "metres");
    desk.choose("F2");
    EXPECT_EQ(samples().front().substr(0, 8), "1524.00|");
    desk.act("Depths as the well has them");
    EXPECT_EQ(samples().front().substr(0, 8), "5000.00|");
    desk.choose("M1");
    EXPECT_EQ(samples()[1].substr(0, 8), "1010.00|");
}

TEST_F(ShownData, ReadingAgainShowsWhatOthersChanged)
{
    desk.openConnected();
    desk.choose("F2");
    desk.db.run("UPDATE SAMPLES SET label='new' WHERE samp_id=7");
    desk.db.run("DELETE FROM WELL_IDENT WHERE well_code='N4'");
    desk.act("Read again");
    EXPECT_THAT(samples().front(), testing::HasSubstr("|new|"));
    EXPECT_EQ(desk.wells().model()->rowCount(), 3);
}

TEST_F(ShownData, NoStatementStaysOpen)
{
    desk.openConnected();
    for (const char* code : {"M1", "F2", "O3"})
        desk.choose(code);
    dbCommit(); // refused with a message while one is open
    EXPECT_THAT(desk.messages.texts(), IsEmpty());
}

TEST_F(ShownData, AFailedReadingKeepsTheWells)
{
    desk.openConnected();
    const std::vector<std::string> before = shownRows(*desk.wells().model());
    {
        const DriverFault fault(1, "SQLExecDirect");
        desk.act("Read again");
        EXPECT_TRUE(fault.fired());
    }
    ASSERT_EQ(desk.messages.boxes().size(), 2U);
    EXPECT_THAT(desk.messages.texts()[1], testing::HasSubstr("injected fault"));
    EXPECT_EQ(shownRows(*desk.wells().model()), before);
}

} // namespace

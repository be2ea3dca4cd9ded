#include "tests/well/WellTest.h"

#include <limits>

namespace {

constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();

TVDepth tableOf(const std::vector<std::pair<float, float>>& points)
{
    TVDepth table(4);
    for (const auto& [md, tvd] : points)
        table.AddPoint(md, tvd, 'M');
    return table;
}

TEST(TVDepth, ConvertsAlongTheWayOfTheWell)
{
    const TVDepth bent = tableOf({{3000, 2700}, {1000, 1000}, {2000, 1900}});
    const TVDepth flat = tableOf({{1000, 900}, {2000, 900}, {2500, 900}, {3000, 1000}});
    const TVDepth rising = tableOf({{100, 100}, {200, 80}, {300, 150}});
    const TVDepth surface = tableOf({{0, 0}, {100, 90}}), single = tableOf({{1000, 900}});
    const struct {
        const char* rule;
        const TVDepth& table;
        float depth, vertical, measured;
    } kCases[] = {
        {"in proportion", bent, 2300, 2140, 2500},
        {"above, from the surface", bent, 500, 500, 500},
        {"below, the last point", bent, 3500, 2700, 3000},
        {"a single point says nothing", single, 1234, 1234, 1234},
        {"the last of equal depths", flat, 900, 810, 2500},
        {"the way up", rising, 90, 90, 214.2857f},
        {"above the surface", surface, -5, -5, -5},
        {"no number", single, kNoNumber, 0, 0},
        {"no end", surface, -std::numeric_limits<float>::infinity(), 0, 0},
    };
    for (const auto& c : kCases) {
        EXPECT_FLOAT_EQ(c.vertical, c.table.MDtoTVD(c.depth)) << c.rule;
        EXPECT_FLOAT_EQ(c.measured, c.table.TVDtoMD(c.depth)) << c.rule;
    }
}

TEST(TVDepth, TakesPointsApartFromEachOtherAsLongAsThereIsRoom)
{
    TVDepth table = tableOf({{100, 90}, {100.005f, 95}, {99.995f, 95}, {200, kNoNumber}});
    for (const float feet : {1000.0f, 10.0f, 20.0f, 30.0f})
        table.AddPoint(feet, feet, 'F');
    float md = 0, beyond = 1, tvd = 0;
    table.GetPoint(3, &md, &tvd, 'F');
    table.GetPoint(4, &beyond, &tvd, 'M');
    EXPECT_EQ(
        "4|3.048|100|1000|0|", joined(table.count, table.ddepth[0], table.ddepth[2], md, beyond));
}

TEST(CoredInt, ShiftsDepthsInProportion)
{
    const struct {
        float shiftTop, shiftBase, depth, shifted;
    } kCases[] = {{2, 4, 105, 108}, {2, 4, 90, 92}, {2, 4, 120, 124}, {0, 3, 105, 105},
        {2, 0, 105, 107}, {2, 2, 120, 122}};
    for (const auto& c : kCases) {
        CoredInt core(100, 110, "1", 'Y');
        core.shiftTop = c.shiftTop;
        core.SetBaseShift(c.shiftBase);
        EXPECT_FLOAT_EQ(c.shifted, core.ShiftDepth(c.depth, 'M'));
        EXPECT_FLOAT_EQ(c.shifted / 0.3048f, core.ShiftDepth(c.depth / 0.3048f, 'F'));
        EXPECT_EQ('Y', core.IsShifted());
        core.ConvertUnits('F');
        EXPECT_FLOAT_EQ(110 * 0.3048f, core.base);
    }
}

using DepthModel = WellTest;

TEST_F(DepthModel, IsReadInOrderOfDepths)
{
    db.run("INSERT INTO WELLTVD VALUES (7, 30, 3), (7, 10, 1), (7, 20, 9e999), (7, 20, 2), "
           "(7, 40, 4), (8, 1, 1)");
    db.run("INSERT INTO CORES VALUES (7, 300, 310, '.0', 'N'), (7, 100, 110, '7.0', 'Y'),"
           " (7, 200, 210, '1.0.0', NULL), (7, 110, 120, '7', 'Y'), (8, 1, 2, '8', 'Y')");
    db.run("INSERT INTO CORESHIFT VALUES (7, 110, 0), (7, 100, 2), (7, 310, 3), (7, 150, 4)");
    const StatementLog log;
    TVDepth way(3);
    way.Load(0);
    way.Load(7);
    EXPECT_EQ("3|10|20|30|2|",
        joined(way.count, way.ddepth[0], way.ddepth[1], way.ddepth[2], way.tvdepth[1]));
    way.AddPoint(10, 10, 'M');
    way.Load(7);
    EXPECT_EQ(Statements{"Attempt to load tvd data over unsaved data"}, boxes.texts());
    Well well;
    well.well_id = 7;
    well.AddCore(new CoredInt(110, 115, "new", 'Y'));
    std::string cores = joined(well.coresState);
    well.LoadCores(0);
    for (const CoredInt* c : well.cores)
        cores += joined(c->top, c->corenum, c->shifted == 'Y', c->shiftTop, c->shiftBase);
    EXPECT_EQ("2|100|7|1|2|2|110|7|1|0|0|110|new|0|0|0|200|1.0.0|0|0|0|300|.0|1|0|3|", cores);
    well.LoadCores(1);
    EXPECT_EQ("4|1|", joined(well.cores.count(), well.coresState));
    EXPECT_EQ("SELECT top_depth, base_depth, corenum, recovered  FROM " + table("CORES")
            + " WHERE well_id=7 ORDER BY top_depth",
        log.statements()[1]);
}

} // namespace

// tests/app/RealSetsTest.cpp
#include "tests/app/ImportRun.h"
#include "tests/app/RealData.h"

#include "util/TextUtil.h"

#include <cmath>
#include <ostream>
#include <sstream>

#include <gmock/gmock.h>

namespace {

std::vector<std::string> cellsOf(const std::string& row)
{
    std::vector<std::string> cells;
    std::istringstream stream(row);
    for (std::string cell; std::getline(stream, cell, '|');)
        cells.push_back(cell == "NULL" ? "" : cell);
    return cells;
}

void expectNumber(
    const std::string& expected, double factor, const std::string& stored, const std::string& where)
{
    if (expected.empty())
        EXPECT_EQ("", stored) << where;
    else
        EXPECT_NEAR(
            std::stod(expected) * factor, std::stod(stored), 1e-9 * std::abs(std::stod(stored)))
            << where;
}

struct RealSet {
    const char* folder;
    long wells;
    long samples;
    const char* depth; // columns that differ between the sets
    const char* begin;
    const char* end;
};
void PrintTo(const RealSet& s, std::ostream* out) { *out << s.folder; }

const RealSet kSets[] = {
    {"npd_wells", 159, 0, "total_depth_md_m", "spud_date", "comp_date"},
    {"dsdp_biostrat", 4, 905, "total_penetration_m", "arrival_date", "departure_date"},
    {"odp_biostrat", 4, 788, "total_penetration_m", "arrival_date", "departure_date"},
};

class Real : public testing::TestWithParam<RealSet> {
protected:
    void SetUp() override
    {
        if (!std::filesystem::is_directory(kData / GetParam().folder))
            GTEST_SKIP() << "the real data sets are not beside the repository";
    }

    void expectWells(const std::filesystem::path& file)
    {
        const RealSet& set = GetParam();
        for (Record record : recordsOf(file)) {
            const std::string code = record["well_code"];
            const auto rows = db.rows(
                "SELECT well_name, operator, country, field, spud_date, comp_date, geoDatum, units,"
                " type, td, rte, sb, lat_dec, long_dec, grid_x, grid_y FROM WELLS w"
                " JOIN WELL_IDENT i ON i.well_code = w.well_code WHERE w.well_code = '"
                + code + "'");
            ASSERT_EQ(1u, rows.size()) << code;
            auto cells = cellsOf(rows.front());
            cells.resize(16);
            const char* texts[] = {"well_name", "operator", "country", "field", set.begin, set.end,
                "geodetic_datum", "units"};
            for (std::size_t i = 0; i < std::size(texts); ++i)
                EXPECT_EQ(std::string(trimmedRight(record[texts[i]])), cells[i]) << code;
            EXPECT_EQ("W", cells[8]);
            const double unit = record["units"] == "F" ? 1 / 0.3048 : 1;
            expectNumber(record[set.depth], unit, cells[9], code);
            expectNumber(record["kb_elevation_m"], unit, cells[10], code);
            expectNumber(record["water_depth_m"], unit, cells[11], code);
            expectNumber(record["lat_dec"], 1, cells[12], code);
            expectNumber(record["long_dec"], 1, cells[13], code);
            for (const auto& [column, cell] :
                {std::pair("grid_x", cells[14]), {"grid_y", cells[15]}})
                EXPECT_EQ(record[column].empty()
                        ? ""
                        : std::to_string(std::lround(std::stod(record[column]))),
                    cell)
                    << code;
        }
    }

    void expectSamples(const std::filesystem::path& file)
    {
        // In the order of the file, as identifiers are given in it.
        const auto rows =
            db.rows("SELECT well_code, type, label, top_depth, base_depth FROM SAMPLES s"
                    " JOIN WELL_IDENT i ON i.well_id = s.well_id ORDER BY samp_id");
        const auto records = recordsOf(file);
        ASSERT_EQ(records.size(), rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            Record record = records[i];
            auto cells = cellsOf(rows[i]);
            cells.resize(5);
            const std::string id = record["samp_id"];
            EXPECT_EQ(record["well_code"], cells[0]) << id;
            EXPECT_EQ(record["type"], cells[1]) << id;
            EXPECT_EQ(record["label"], cells[2]) << id;
            expectNumber(record["top_depth_m"], 1, cells[3], id);
            expectNumber(record["base_depth_m"], 1, cells[4], id);
        }
    }

    TestDatabase db;
};

TEST_P(Real, IsStoredWholeAndOnce)
{
    const RealSet& set = GetParam();
    const auto folder = kData / set.folder;
    // Other files of the sets make samples of their own.
    const std::vector<std::filesystem::path> files = set.samples > 0
        ? std::vector{folder / "wells.csv", folder / "samples.csv"}
        : std::vector{folder / "wells.csv"};
    IssueLog log;
    const ImportResult first = importFiles({files, false}, log);
    ASSERT_EQ("", first.failure);
    EXPECT_EQ(0, first.refused());
    EXPECT_EQ(set.wells, first.files.at(0).added);
    EXPECT_EQ(set.wells, first.files.at(0).read);
    EXPECT_EQ(std::to_string(set.wells), db.value("SELECT count(*) FROM WELLS"));
    EXPECT_EQ(std::to_string(set.samples), db.value("SELECT count(*) FROM SAMPLES"));
    expectWells(folder / "wells.csv");
    if (set.samples > 0)
        expectSamples(folder / "samples.csv");
    const auto before = contentsOf(db);
    EXPECT_EQ(0, importFiles({files, false}, log).stored());
    EXPECT_EQ(before, contentsOf(db));
}
INSTANTIATE_TEST_SUITE_P(Sets, Real, testing::ValuesIn(kSets));

} // namespace

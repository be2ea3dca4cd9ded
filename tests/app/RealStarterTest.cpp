// tests/app/RealStarterTest.cpp
#include "tests/app/ImportRun.h"
#include "tests/app/RealData.h"

#include <map>

#include <gmock/gmock.h>

namespace {

const std::filesystem::path kStarter = ZONARIS_SOURCE_DIR "/schema/starter";

// The chart's data let the Ludlow reach over the Pridoli; the figure that is printed does not.
const std::map<std::string, std::string> kOtherTops{{"Ludlow", "422.7"}};

TEST(RealStarter, HasTheUnitsOfTheChart)
{
    const auto chart = recordsOf(kData / "ics_chronostrat/chronostrat_2024-12.csv");
    if (chart.empty())
        GTEST_SKIP() << "the real data sets are not beside the repository";
    std::map<std::pair<std::string, std::string>, Record> units;
    for (const Record& unit : recordsOf(kStarter / "chronostrat_ics.csv"))
        units[{unit.at("rank"), unit.at("name")}] = unit;
    EXPECT_EQ(chart.size(), units.size());
    for (Record real : chart) {
        const std::string rank = real["rank"] == "Sub-Period" ? "Sub Period"
            : real["rank"] == "Super-Eon"                     ? "Eon"
                                                              : real["rank"];
        ASSERT_TRUE(units.contains({rank, real["name"]})) << rank << ' ' << real["name"];
        Record& unit = units[{rank, real["name"]}];
        const auto other = kOtherTops.find(real["name"]);
        const std::string top = other == kOtherTops.end() ? real["top_ma"] : other->second;
        EXPECT_EQ(std::stod(top), std::stod(unit["top_ma"])) << real["name"];
        EXPECT_EQ(std::stod(real["base_ma"]), std::stod(unit["base_ma"])) << real["name"];
        for (const auto& [column, ours] : {std::pair("r", "red"), {"g", "green"}, {"b", "blue"}})
            EXPECT_EQ(real[column], unit[ours]) << real["name"];
        EXPECT_EQ(real["abbr"] == "C2c6c7" ? "C2c67" : real["abbr"], unit["abr"]) << real["name"];
    }
}

// What is refused and adjusted on a database is the same with the starter dictionaries in it.
class RealOnStarter : public testing::TestWithParam<const char*> {};

TEST_P(RealOnStarter, RefusesNothingMore)
{
    if (!std::filesystem::is_directory(kData / GetParam()))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    const auto refusals = [](bool onStarter) {
        const TestDatabase db;
        IssueLog log;
        if (onStarter) {
            EXPECT_EQ("", importFiles({{kStarter}, false}, log).failure);
        }
        const ImportResult result = importFiles({{kData / GetParam()}, !onStarter}, log);
        EXPECT_EQ("", result.failure);
        std::erase_if(log.texts,
            [](const std::string& text) { return text.find(": refused: ") == std::string::npos; });
        return log.texts;
    };
    EXPECT_EQ(refusals(false), refusals(true));
}
INSTANTIATE_TEST_SUITE_P(Sets, RealOnStarter,
    testing::Values("ics_chronostrat", "biozones", "npd_wells", "dsdp_biostrat", "odp_biostrat",
        "taxon_dictionary", "abundance_schemes", "palaeoenvironment", "lithology_dictionary",
        "force_lithology"));

} // namespace

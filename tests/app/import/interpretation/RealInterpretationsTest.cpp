// tests/app/import/interpretation/RealInterpretationsTest.cpp
#include "tests/app/ImportRun.h"
#include "tests/app/RealData.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

using Lines = std::vector<std::string>;

struct RealSet {
    const char* name;
    Lines folders;
    Lines counts;    ///< of the files, as `countsText` has them
    const char* sql; ///< asks for the rows stored
    std::string expected;
};
void PrintTo(const RealSet& s, std::ostream* out) { *out << s.name; }

class RealInterpretations : public testing::TestWithParam<RealSet> {};

TEST_P(RealInterpretations, AreStoredOnce)
{
    TestDatabase db;
    std::vector<std::filesystem::path> inputs;
    for (const std::string& folder : GetParam().folders)
        inputs.push_back(kData / folder);
    if (!std::filesystem::is_directory(inputs.front()))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    IssueLog log;
    const ImportResult dry = importFiles({{inputs}, true}, log);
    const ImportResult first = importFiles({{inputs}, false}, log);
    ASSERT_EQ("", first.failure);
    EXPECT_EQ(countsOf(dry), countsOf(first));
    EXPECT_THAT(countsOf(first), testing::IsSupersetOf(GetParam().counts));
    EXPECT_EQ(GetParam().expected, db.value(GetParam().sql));
    EXPECT_EQ(0, importFiles({{inputs}, false}, log).stored());
}

INSTANTIATE_TEST_SUITE_P(Sets, RealInterpretations,
    testing::Values(
        RealSet{"time scale", {"ics_chronostrat"}, {"chronostrat_2024-12.csv 179/179/0/0/6/0"},
            "SELECT l_age || ' ' || red FROM IGD_DICT WHERE name = 'Jurassic'", "201.4 52"},
        RealSet{"biozones", {"biozones"},
            {"schemes.csv 10/10/0/0/0/0", "zones.csv 676/673/0/0/228/3"},
            "SELECT count(*) FROM IGD_DICT t JOIN IGD_SCH s ON s.sch_id = t.sch_id WHERE"
            " s.igd_type = 44",
            "202"},
        RealSet{"tops and casing", {"npd_wells"},
            {"lithostrat_units.csv 141/141/0/0/0/0", "formation_tops.csv 3381/3380/0/0/0/1",
                "casing.csv 663/579/0/0/6/84"},
            "SELECT group_concat(n, ' ') FROM (SELECT count(*) AS n FROM IGD z JOIN SAMPLES a ON"
            " a.samp_id = z.top_id JOIN SAMPLES b ON b.samp_id = z.base_id WHERE a.type = 'LOG' AND"
            " b.base_depth > a.base_depth GROUP BY hier ORDER BY hier)",
            "1059 2316 5"},
        RealSet{"rocks", {"npd_wells", "backtrack_wells", "force_lithology"}, {},
            "SELECT group_concat(n, ' ') FROM (SELECT count(*) AS n FROM ZRILITH UNION ALL SELECT"
            " count(*) FROM ZRQLITH)",
            "5285 44"},
        RealSet{"ages and layers", {"dsdp_biostrat"},
            {"age_intervals.csv 60/60/0/0/0/0", "lithology_layers.csv 1131/1080/0/0/33/51"},
            "SELECT count(*) FROM IGD WHERE igd_type = 3 AND low_zone > 0", "17"},
        RealSet{"biozones of details", {"odp_biostrat"}, {"sample_details.csv 1297/1296/0/0/0/1"},
            "SELECT count(*) FROM IGD WHERE igd_type = 4", "125"}));

} // namespace

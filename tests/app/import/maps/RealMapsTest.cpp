// tests/app/import/maps/RealMapsTest.cpp
#include "db/CurrentUser.h"
#include "tests/app/ImportRun.h"
#include "tests/app/RealData.h"
#include "tests/support/Restore.h"

#include <cstdio>
#include <ostream>

#include <gmock/gmock.h>

namespace {

struct MappedSet {
    const char* set; ///< folder of the set, and name of the map
    const char* file;
    const char* awk; ///< counts in the file what `sql` counts in the database
    const char* sql;
};
void PrintTo(const MappedSet& s, std::ostream* out) { *out << s.set << ' ' << s.file; }

std::string outputOf(const std::string& command)
{
    char text[256] = "";
    FILE* pipe = popen(command.c_str(), "r");
    EXPECT_TRUE(pipe && fgets(text, sizeof text, pipe) && pclose(pipe) == 0) << command;
    return text;
}

class RealMaps : public testing::TestWithParam<MappedSet> {};

TEST_P(RealMaps, BringInWhatTheFilesHold)
{
    const MappedSet& set = GetParam();
    const auto folder = kData / set.set;
    if (!std::filesystem::is_directory(folder))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    const std::filesystem::path map =
        std::string(ZONARIS_SOURCE_DIR "/examples/maps/") + set.set + ".csv";
    TestDatabase db;
    const Restore user(currentUserAbr);
    currentUserAbr = "ME";
    IssueLog log;
    ASSERT_EQ("", importFiles({{folder}, false, map}, log).failure);
    EXPECT_EQ(outputOf(std::string("awk -F, 'NR > 1 { ") + set.awk + " }' "
                  + (folder / set.file).string()),
        db.rows(set.sql).front());
    EXPECT_EQ(0, importFiles({{folder}, false, map}, log).stored());
}
INSTANTIATE_TEST_SUITE_P(Sets, RealMaps,
    testing::Values(MappedSet{"riley_sections", "levels.csv",
                        "s += $3 * 0.3048 } END { printf \"OC|%d|%.3f\", NR - 1, s",
                        "SELECT max(type),count(*),printf('%.3f',sum(top_depth)) FROM SAMPLES"},
        MappedSet{"riley_sections", "events.csv",
            "n[$2]++ } END { printf \"%d|%d\", NR - 1, length(n)",
            "SELECT count(*),count(DISTINCT samp_id) FROM EVENTS"},
        MappedSet{"lake_counts", "diatoms_keji.csv",
            "n[$1]++; d[$1,$2]++; t[$3]++; c += $4 > 0 } END { printf \"%d|%d|%d|%d\", length(n),"
            " length(d), length(t), c",
            "SELECT (SELECT count(*) FROM WELLS),(SELECT count(*) FROM SAMPLES),"
            "(SELECT count(*) FROM SPECIES),count(*) FROM TAXONOCC"},
        MappedSet{"lake_counts", "diatoms_keji.csv",
            "if (!d[$1,$2]++) s += $2 / 100 } END { printf \"%.3f\", s",
            "SELECT printf('%.3f',sum(top_depth)) FROM SAMPLES"},
        MappedSet{"goa_foram_counts", "counts.csv",
            "n[$1]++; s += $3 } END { printf \"%d|%d\", length(n), s",
            "SELECT count(DISTINCT samp_id),sum(medium) FROM TAXONOCC"},
        MappedSet{"backtrack_wells", "nw_shelf_wells.csv",
            "s += $4 } END { printf \"%d|%.4f\", NR - 1, s",
            "SELECT count(*),printf('%.4f',sum(lat_dec)) FROM WELLS WHERE well_name IS NOT NULL"},
        MappedSet{"npd_wells", "shallow_boreholes.csv",
            "s += $7 } END { printf \"%d|%.1f\", NR - 1, s",
            "SELECT count(*),printf('%.1f',sum(td)) FROM WELLS WHERE instr(well_name,'-U-') > 0"}));

} // namespace

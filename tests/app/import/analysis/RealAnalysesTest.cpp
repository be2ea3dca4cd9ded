// tests/app/import/analysis/RealAnalysesTest.cpp
#include "db/CurrentUser.h"
#include "tests/app/ImportRun.h"
#include "tests/app/RealData.h"
#include "tests/support/Restore.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <ostream>
#include <sstream>

#include <gmock/gmock.h>

namespace {

using Lines = std::vector<std::string>;

Lines outputOf(const std::string& command)
{
    std::string text;
    std::array<char, 4096> buffer;
    FILE* pipe = popen(command.c_str(), "r");
    while (pipe && fgets(buffer.data(), static_cast<int>(buffer.size()), pipe))
        text += buffer.data();
    EXPECT_EQ(0, pipe ? pclose(pipe) : -1) << command;
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

struct RealSet {
    const char* folder;
    Lines counts; ///< of the files, as `countsText` has them
};
void PrintTo(const RealSet& s, std::ostream* out) { *out << s.folder; }

class RealAnalyses : public testing::TestWithParam<RealSet> {
protected:
    void SetUp() override
    {
        if (!std::filesystem::is_directory(kData / GetParam().folder))
            GTEST_SKIP() << "the real data sets are not beside the repository";
    }
    TestDatabase db;
};

TEST_P(RealAnalyses, AreStoredLessWhatIsReported)
{
    const auto folder = kData / GetParam().folder;
    IssueLog log;
    const auto start = std::chrono::steady_clock::now();
    const ImportResult first = importFiles({{folder}, false}, log);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::cout << GetParam().folder << ": " << took.count() << " s\n";
    ASSERT_EQ("", first.failure);
    EXPECT_THAT(countsOf(first), testing::IsSupersetOf(GetParam().counts));
    std::string command = std::string(ZONARIS_SOURCE_DIR)
        + "/tests/app/import/analysis/count_occurrences.py " + folder.string();
    const std::string refused = "occurrences.csv:";
    for (const std::string& text : log.texts)
        if (text.starts_with(refused) && text.find(": refused: ") != std::string::npos)
            command += ' ' + std::to_string(std::stol(text.substr(refused.size())));
    EXPECT_EQ(outputOf("python3 " + command),
        db.rows("SELECT i.well_code, o.disc_id, count(*) FROM TAXONOCC o JOIN WELL_IDENT i"
                " ON i.well_id = o.well_id GROUP BY 1, 2 ORDER BY 1, 2"));
    EXPECT_EQ("0",
        db.value("SELECT count(*) FROM TAXONOCC o LEFT JOIN SMPDTL d ON d.samp_id ="
                 " o.samp_id AND d.analy_id = o.analy_id WHERE d.samp_id IS NULL"))
        << "occurrences without details cannot be loaded";
    EXPECT_EQ(0, importFiles({{folder}, false}, log).stored());
}
INSTANTIATE_TEST_SUITE_P(Sets, RealAnalyses,
    testing::Values(
        RealSet{"dsdp_biostrat",
            {"abundance_codes.csv 7/7/0/0/0/0", "analysts.csv 22/22/0/0/0/0",
                "sample_details.csv 1113/1113/0/0/0/0", "occurrences.csv 15419/15196/0/0/0/223"}},
        RealSet{"odp_biostrat",
            {"analysts.csv 16/16/0/0/0/0", "sample_details.csv 1297/1296/0/0/0/1",
                "occurrences.csv 9639/9637/0/0/0/2"}}));

// What else stands in a well, and counts without analysts.
struct OtherSet {
    const char* name;
    Lines folders;
    Lines counts;
    const char* sql; ///< asks for what the files say, as their own words count it
    std::string expected;
};
void PrintTo(const OtherSet& s, std::ostream* out) { *out << s.name; }

class OtherAnalyses : public testing::TestWithParam<OtherSet> {};

TEST_P(OtherAnalyses, AreStoredOnce)
{
    TestDatabase db;
    std::vector<std::filesystem::path> inputs;
    for (const std::string& folder : GetParam().folders)
        inputs.push_back(kData / folder);
    if (!std::filesystem::is_directory(inputs.front()))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    IssueLog log;
    const ImportResult first = importFiles({inputs, false}, log);
    ASSERT_EQ("", first.failure);
    EXPECT_THAT(countsOf(first), testing::IsSupersetOf(GetParam().counts));
    EXPECT_EQ(GetParam().expected, db.value(GetParam().sql));
    EXPECT_EQ(0, importFiles({inputs, false}, log).stored());
}
INSTANTIATE_TEST_SUITE_P(Sets, OtherAnalyses,
    testing::Values(
        OtherSet{"sections", {"riley_sections"},
            {"sections.csv 5/5/0/0/0/0", "event_dictionary.csv 58/58/0/0/0/0",
                "events.csv 302/302/0/0/0/0", "composite_standard.csv 116/116/0/0/0/0"},
            "SELECT group_concat(x, ' ') FROM (SELECT topcsu > basecsu AS x FROM CMPSTD UNION ALL"
            " SELECT count(DISTINCT samp_id) FROM EVENTS)",
            "1 83"},
        OtherSet{"events", {"odp_biostrat"},
            {"event_dictionary.csv 171/140/0/31/11/0", "events.csv 182/182/0/0/0/0",
                "composite_standard.csv 169/169/0/0/0/0"},
            "SELECT group_concat(x, ' ') FROM (SELECT topcsu > basecsu AS x FROM CMPSTD UNION ALL"
            " SELECT count(*) FROM EVENTS WHERE ev_type = 'F')",
            "0 90"},
        OtherSet{"cores", {"npd_wells"}, {"cores.csv 906/895/0/0/0/11"},
            "SELECT round(top_depth, 4) FROM CORES c JOIN WELL_IDENT i ON i.well_id = c.well_id"
            " WHERE i.well_code = '240'",
            "3226.247"}, // 10584.8 ft
        OtherSet{"surveys", {"force_lithology"}, {"tvd_points.csv 992/956/0/0/0/36"},
            "SELECT tvdepth FROM WELLTVD ORDER BY abs(ddepth - 245.44) LIMIT 1", "245.43"}));

// The set names neither well nor discipline; whoever brings it in adds them.
TEST(RealCounts, NeedWellAndDiscipline)
{
    const auto set = kData / "goa_foram_counts";
    if (!std::filesystem::is_directory(set))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    const Folder folder;
    folder.write("wells.csv", "well_code,units\nIODP 341-U1419,M\n");
    for (const char* file : {"samples.csv", "taxa.csv"})
        std::filesystem::copy_file(set / file, folder.path() / file);
    std::string counts = "samp_id,spec_id,count,disc_id\n";
    long sum = 0;
    for (Record& record : recordsOf(set / "counts.csv")) {
        counts += record["samp_id"] + ',' + record["spec_id"] + ',' + record["count"] + ",M\n";
        sum += std::stol(record["count"]);
    }
    folder.write("counts.csv", counts);
    TestDatabase db;
    const Restore user(currentUserAbr);
    currentUserAbr = "ME";
    IssueLog log;
    const ImportResult first = importFiles({{folder.path()}, false}, log);
    EXPECT_THAT(countsOf(first), testing::Contains("counts.csv 3587/3587/0/0/0/0"));
    EXPECT_EQ(std::to_string(sum), db.value("SELECT sum(medium) FROM TAXONOCC"));
}

} // namespace

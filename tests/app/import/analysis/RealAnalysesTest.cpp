// tests/app/import/analysis/RealAnalysesTest.cpp
#include "tests/app/ImportRun.h"
#include "tests/app/RealData.h"

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

} // namespace

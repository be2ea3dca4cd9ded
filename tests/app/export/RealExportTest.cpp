// tests/app/export/RealExportTest.cpp
#include "tests/app/RealData.h"
#include "tests/app/export/RoundTrip.h"

#include <cstdlib>
#include <ostream>

namespace {

struct RealSet {
    const char* folder;
    const char* compared; ///< rows compared, lost and made up, per file
};
void PrintTo(const RealSet& set, std::ostream* out) { *out << set.folder; }

class RealExport : public testing::TestWithParam<RealSet> {};

// The first export against the source, by a script that knows nothing of the program.
TEST_P(RealExport, LosesNothing)
{
    const auto source = kData / GetParam().folder;
    if (!std::filesystem::is_directory(source))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    const Folder folder;
    std::string refused;
    expectRoundTrip(folder.path(), [&](TestDatabase&) {
        IssueLog log;
        ASSERT_EQ("", importFiles({{source}, false}, log).failure);
        for (const std::string& text : log.texts)
            if (const auto end = text.find(": refused: "); end != std::string::npos)
                refused += ' ' + text.substr(0, end);
    });
    const Folder said;
    const auto output = said.path() / "said.txt";
    const std::string command = "python3 " ZONARIS_SOURCE_DIR "/tests/app/export/compare_export.py "
        + folder.path().string() + ' ' + source.string() + refused + " >" + output.string();
    EXPECT_EQ(0, std::system(command.c_str()));
    EXPECT_EQ(GetParam().compared, contentOf(output));
}
INSTANTIATE_TEST_SUITE_P(Sets, RealExport,
    testing::Values(RealSet{"dsdp_biostrat", "samples 905 0 0\noccurrences 15196 0 0\n"},
        RealSet{"odp_biostrat", "samples 788 0 0\noccurrences 9637 0 0\n"},
        RealSet{"npd_wells", "formation_tops 3380 0 0\ncores 895 0 0\n"}));

} // namespace

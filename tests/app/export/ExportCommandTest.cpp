// tests/app/export/ExportCommandTest.cpp
#include "tests/app/Program.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

using ExportCommand = Program;

TEST_F(ExportCommand, WritesWhatImportReads)
{
    ASSERT_EQ(0, run("create a.zdb"));
    ASSERT_EQ(0, run("--database a.zdb import " ZONARIS_SOURCE_DIR "/examples/synthetic"));
    EXPECT_EQ(0, run("--database a.zdb export --all out")) << err;
    EXPECT_THAT(out, testing::ContainsRegex("\nwells.csv +3\n"));
    EXPECT_EQ(1, run("--database a.zdb export --all out"));
    EXPECT_THAT(err, HasSubstr("out: holds files already"));
    EXPECT_EQ(0, run("--database a.zdb export SYN-2 out --force")) << err;
    EXPECT_THAT(out, testing::ContainsRegex("\nwells.csv +1\n"));
    EXPECT_EQ(0, run("--database a.zdb import out"));
    EXPECT_THAT(out, HasSubstr("Nothing changed"));
    EXPECT_EQ(1, run("--database a.zdb export NOWELL other"));
    EXPECT_EQ(2, run("--database a.zdb export SYN-2"));
}

} // namespace

#include "tests/app/Program.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

TEST_F(Program, WritesAWellAsALasFile)
{
    ASSERT_EQ(0, run("create a.zdb"));
    ASSERT_EQ(0, run("--database a.zdb import " ZONARIS_SOURCE_DIR "/examples/synthetic"));
    const auto file = folder.path() / "out/one.las";
    EXPECT_EQ(0, run("--database a.zdb export --las out/one.las SYN-1")) << err;
    EXPECT_EQ("", err);
    const std::string content = contentOf(file);
    EXPECT_THAT(content, HasSubstr("\n1120.0000,1126.5000,1,Y,0.0000,0.0000\n"));
    EXPECT_THAT(content, HasSubstr("\n800.0000,795.5000\n"));

    folder.write("out/one.las", "mine");
    EXPECT_EQ(1, run("--database a.zdb export --las out/one.las SYN-1"));
    EXPECT_THAT(err, HasSubstr("out/one.las is there already"));
    EXPECT_EQ("mine", contentOf(file));
    EXPECT_EQ(1, run("--database a.zdb export --las out/one.las --force NO-1"));
    EXPECT_EQ("mine", contentOf(file));
    EXPECT_EQ(0, run("--database a.zdb export --las out/one.las SYN-1 --force"));
    EXPECT_EQ(content, contentOf(file));
    EXPECT_EQ(2, run("--database a.zdb export --las two.las SYN-1 out"));
    EXPECT_EQ(2, run("--database a.zdb export --las two.las --all out"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "two.las"));
}

} // namespace

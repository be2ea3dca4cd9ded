// tests/platform/desktopdb/ConnectStringTest.cpp
#include "platform/desktopdb/ConnectString.h"

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

struct ReadCase {
    const char* rule;
    const char* text;
    const char* expected; ///< file|create|dialect|owner|timeout, or "!" when refused
};

void PrintTo(const ReadCase& c, std::ostream* out) { *out << c.rule; }

std::string read(const char* text)
{
    ConnectSettings settings;
    Failure failure;
    if (!readConnectString(text, settings, failure))
        return failure.text.empty() ? "!no reason" : "!";
    const char* const dialects[] = {"auto", "access", "oracle"};
    return settings.open.file + "|" + (settings.open.create ? "1" : "0") + "|"
        + dialects[static_cast<int>(settings.dialect)] + "|" + settings.owner + "|"
        + std::to_string(settings.open.busyTimeout);
}

const ReadCase kReads[] = {
    {"the file alone", "Driver=/x.so;Database=/a.db", "/a.db|0|auto||5000"},
    {"everything", "Driver=x;Database=a;Create=1;Dialect=Oracle;Owner=GEO;Timeout=20",
        "a|1|oracle|GEO|20"},
    {"keywords in any case", "DRIVER=x;database=a;CREATE=Yes;dialect=ACCESS", "a|1|access||5000"},
    {"blanks around", " Database = a b.db ; Owner= GEO ;", "a b.db|0|auto|GEO|5000"},
    {"braces", "Driver={x;y};Database={a;b=c.db};Create=0", "a;b=c.db|0|auto||5000"},
    {"a doubled brace", "Database={a}}b}", "a}b|0|auto||5000"},
    {"the first of two counts", "Database=a;Database=b", "a|0|auto||5000"},
    {"unknown keywords are passed over", "UID=me;Database=a;PWD=", "a|0|auto||5000"},
    {"nothing", "", "|0|auto||5000"},
    {"a brace left open", "Database={a", "!"},
    {"no equals sign", "Database", "!"},
    {"a dialect unknown", "Database=a;Dialect=Klingon", "!"},
    {"a flag unknown", "Database=a;Create=maybe", "!"},
    {"a timeout that is none", "Database=a;Timeout=5s", "!"},
    {"a negative timeout", "Database=a;Timeout=-1", "!"},
};

class ReadConnectString : public testing::TestWithParam<ReadCase> {};

TEST_P(ReadConnectString, Settings) { EXPECT_EQ(read(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Rules, ReadConnectString, testing::ValuesIn(kReads));

} // namespace

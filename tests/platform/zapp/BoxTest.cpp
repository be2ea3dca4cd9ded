// tests/platform/zapp/BoxTest.cpp
#include "tests/platform/zapp/Desk.h"

#include <gtest/gtest.h>

#include <ostream>
#include <tuple>

namespace {

using Step = std::function<void(DeskBox&)>;

Step add(const char* text)
{
    return [text](DeskBox& b) { b.box->add(text); };
}

Step select(int row)
{
    return [row](DeskBox& b) { b.box->selection(row); };
}

const Step empty = [](DeskBox& b) { b.empty(); };

struct BoxCase {
    const char* rule;
    std::vector<Step> steps;
    std::vector<std::string> rows;
    int selection;
};

void PrintTo(const BoxCase& c, std::ostream* out) { *out << c.rule; }

const BoxCase kCases[] = {
    {"nothing is selected in an empty box", {}, {}, -1},
    {"nor by filling it", {add("a"), add("b")}, {"a", "b"}, -1},
    {"rows stay in order of arrival", {add("b"), add("A"), add("a"), add("b")},
        {"b", "A", "a", "b"}, -1},
    {"the first row reads back", {add("a"), add("b"), select(0)}, {"a", "b"}, 0},
    {"the last row reads back", {add("a"), add("b"), select(1)}, {"a", "b"}, 1},
    {"the later choice counts", {add("a"), add("b"), select(1), select(0)}, {"a", "b"}, 0},
    {"-1 clears", {add("a"), add("b"), select(1), select(-1)}, {"a", "b"}, -1},
    {"one behind the last is ignored", {add("a"), select(0), select(1)}, {"a"}, 0},
    {"one below -1 is ignored", {add("a"), select(0), select(-2)}, {"a"}, 0},
    {"row 0 of an empty box is ignored", {select(0)}, {}, -1},
    {"and does not wait for a row", {select(0), add("a")}, {"a"}, -1},
    {"adding keeps the selection", {add("a"), add("b"), select(1), add("c")}, {"a", "b", "c"}, 1},
    {"adding keeps a cleared selection", {add("a"), select(0), select(-1), add("b")}, {"a", "b"},
        -1},
    {"an emptied box has no selection", {add("a"), select(0), empty}, {}, -1},
    {"nor after it is filled again", {add("a"), select(0), empty, add("b")}, {"b"}, -1},
    {"texts are no markup", {add("a < b <b>x</b>"), add("&c && d")}, {"a < b <b>x</b>", "&c && d"},
        -1},
    {"texts are UTF-8", {add("Paläozän \xCE\xB1")}, {"Paläozän \xCE\xB1"}, -1},
    {"null is an empty text", {add(nullptr), add("")}, {"", ""}, -1},
};

class BoxRules : public testing::TestWithParam<std::tuple<BoxKind, BoxCase>> {};

TEST_P(BoxRules, Hold)
{
    const auto& [kind, rule] = GetParam();
    DeskWithApp with;
    DeskBox box = with.desk->makeBox(kind);
    for (const Step& step : rule.steps)
        step(box);
    EXPECT_EQ(box.rows(), rule.rows);
    EXPECT_EQ(box.box->count(), static_cast<int>(rule.rows.size()));
    EXPECT_EQ(box.box->selection(), rule.selection);
}

INSTANTIATE_TEST_SUITE_P(
    List, BoxRules, testing::Combine(testing::Values(BoxKind::List), testing::ValuesIn(kCases)));
INSTANTIATE_TEST_SUITE_P(
    Combo, BoxRules, testing::Combine(testing::Values(BoxKind::Combo), testing::ValuesIn(kCases)));

} // namespace

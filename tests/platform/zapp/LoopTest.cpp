// tests/platform/zapp/LoopTest.cpp
#include "tests/platform/zapp/Desk.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

TEST(Loop, RunsUntilQuit)
{
    DeskWithApp with;
    int ran = 0;
    with.desk->later([&] {
        ++ran;
        with.desk->later([&] {
            ++ran;
            with.app->quit();
        });
    });
    with.app->go();
    EXPECT_EQ(ran, 2);
}

TEST(Loop, DoesNotStartAfterQuit)
{
    for (const bool ranBefore : {false, true}) {
        DeskWithApp with;
        if (ranBefore) {
            with.desk->later([&] { with.app->quit(); });
            with.app->go();
        } else {
            with.app->quit();
        }
        bool ran = false;
        with.desk->later([&] {
            ran = true;
            with.desk->toolkit().quitLoop();
        });
        with.app->go();
        EXPECT_FALSE(ran) << "a loop " << (ranBefore ? "had" : "had not") << " run before";
    }
}

struct MessageCase {
    const char* rule;
    const char* text;
    const char* caption;
    const char* seen;
};

void PrintTo(const MessageCase& c, std::ostream* out) { *out << c.rule; }

const MessageCase kMessages[] = {
    {"caption and text", "no such well", "Zonaris Error", "Zonaris Error: no such well"},
    {"markup is text", "a < b <b>x</b>", "c", "c: a < b <b>x</b>"},
    {"an ampersand is text", "&a && b", "c", "c: &a && b"},
    {"several lines", "one\ntwo", "c", "c: one\ntwo"},
    {"UTF-8", "Paläozän", "Größe", "Größe: Paläozän"},
    {"null is empty", nullptr, nullptr, ": "},
};

class Messages : public testing::TestWithParam<MessageCase> {};

TEST_P(Messages, AreSeen)
{
    const MessageCase& message = GetParam();
    DeskWithApp with;
    EXPECT_EQ(with.desk->seen(message.text, message.caption), message.seen);
}

INSTANTIATE_TEST_SUITE_P(Texts, Messages, testing::ValuesIn(kMessages));

TEST(Messages, AreSeenAtEveryStageOfTheLoop)
{
    DeskWithApp with;
    std::vector<std::string> seen;
    const auto show = [&](const char* text) { seen.push_back(with.desk->seen(text, "c")); };
    show("before");
    with.desk->later([&] {
        show("inside");
        with.app->quit();
        show("told to quit");
    });
    with.app->go();
    show("after");
    EXPECT_EQ(
        seen, (std::vector<std::string>{"c: before", "c: inside", "c: told to quit", "c: after"}));
}

} // namespace

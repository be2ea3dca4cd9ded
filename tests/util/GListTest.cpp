// tests/util/GListTest.cpp
#include "util/GList.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Items that outlive every list; each is its own letter.
char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
char* item(char letter) { return &alphabet[letter - 'A']; }

using Letters = TypedList<char>;

void fill(Letters& list, const char* letters)
{
    for (; *letters; ++letters)
        list.push(item(*letters));
}

/// Resets and calls `next` until it returns `letter`.
void stepTo(Letters& list, char letter)
{
    list.reset();
    while (*list.next() != letter) {}
}

std::string walked(const Letters& list, GList::Order order)
{
    std::string letters;
    Letters::Walk walk(list, order);
    while (const char* letter = walk.next())
        letters += *letter;
    return letters;
}

std::string restByNext(Letters& list)
{
    std::string letters;
    while (const char* letter = list.next())
        letters += *letter;
    return letters;
}

struct ListCase {
    const char* name;
    const char* start;
    void (*change)(Letters&);
    const char* order; // front to back afterwards
    const char* rest;  // what `next` gives afterwards
};
void PrintTo(const ListCase& c, std::ostream* out) { *out << c.name; }

const ListCase kCases[] = {
    {"a new list has nothing", "", [](Letters&) {}, "", ""},
    {"reset on an empty list", "", [](Letters& l) { l.reset(); }, "", ""},
    {"first push needs no reset", "A", [](Letters&) {}, "A", "A"},
    {"push leaves the cursor", "ABC", [](Letters& l) { stepTo(l, 'A'), l.push(item('D')); }, "ABCD",
        "BCD"},
    {"push behind the end stays unseen", "A", [](Letters& l) { stepTo(l, 'A'), l.push(item('B')); },
        "AB", ""},
    {"push after the list was emptied", "A", [](Letters& l) { l.pop(), l.push(item('B')); }, "B",
        "B"},
    {"insert in the middle", "ABC", [](Letters& l) { l.insert(item('B'), item('X')); }, "AXBC",
        "XBC"},
    {"insert before the first", "AB", [](Letters& l) { l.insert(item('A'), item('X')); }, "XAB",
        "XAB"},
    {"insert before nothing appends", "AB",
        [](Letters& l) { stepTo(l, 'A'), l.insert(nullptr, item('X')); }, "ABX", "BX"},
    {"insert before a stranger appends", "AB", [](Letters& l) { l.insert(item('Z'), item('X')); },
        "ABX", "ABX"},
    {"insert before the last of equal items", "ABA",
        [](Letters& l) { l.insert(item('A'), item('X')); }, "ABXA", "XA"},
    {"insertAt the node of a walk", "ABC",
        [](Letters& l) {
            Letters::Walk walk(l, GList::Order::BackToFront);
            while (*walk.next() != 'B') {}
            l.insertAt(walk.node(), item('X'));
        },
        "AXBC", "XBC"},
    {"insertAt the end of a walk appends", "AB",
        [](Letters& l) {
            Letters::Walk walk(l);
            while (walk.next()) {}
            l.insertAt(walk.node(), item('X'));
        },
        "ABX", "ABX"},
    {"pop off the back", "ABC", [](Letters& l) { EXPECT_EQ(item('C'), l.pop()); }, "AB", "AB"},
    {"pop of an empty list", "", [](Letters& l) { EXPECT_EQ(nullptr, l.pop()); }, "", ""},
    {"pop under the cursor ends iteration", "AB", [](Letters& l) { stepTo(l, 'A'), l.pop(); }, "A",
        ""},
    {"remove after pop of the same item", "AB",
        [](Letters& l) { stepTo(l, 'B'), l.pop(), l.remove(); }, "A", ""},
    {"remove goes on behind the item", "ABC", [](Letters& l) { stepTo(l, 'B'), l.remove(); }, "AC",
        "C"},
    {"remove of the first", "ABC", [](Letters& l) { stepTo(l, 'A'), l.remove(); }, "BC", "BC"},
    {"remove of the last", "ABC", [](Letters& l) { stepTo(l, 'C'), l.remove(), l.push(item('D')); },
        "ABD", ""},
    {"remove without an item", "AB", [](Letters& l) { l.remove(); }, "AB", "AB"},
    {"second remove has no item", "ABC", [](Letters& l) { stepTo(l, 'B'), l.remove(), l.remove(); },
        "AC", "C"},
    {"remove under a reset cursor", "ABC",
        [](Letters& l) { stepTo(l, 'A'), l.reset(), l.remove(); }, "BC", "BC"},
    {"moveUp in the middle", "ABC", [](Letters& l) { stepTo(l, 'B'), l.moveUp(); }, "BAC", "AC"},
    {"moveUp of the last", "ABC", [](Letters& l) { stepTo(l, 'C'), l.moveUp(); }, "ACB", "B"},
    {"moveUp of the first stays", "AB", [](Letters& l) { stepTo(l, 'A'), l.moveUp(); }, "AB", "AB"},
    {"moveUp of nothing", "", [](Letters& l) { l.moveUp(); }, "", ""},
    {"moveUp before any next", "AB", [](Letters& l) { l.moveUp(); }, "AB", ""},
    {"moveUp after remove takes the older neighbour", "ABCD",
        [](Letters& l) { stepTo(l, 'C'), l.remove(), l.moveUp(); }, "BAD", "AD"},
    {"swapUp at the back", "AB", [](Letters& l) { stepTo(l, 'A'), l.swapUp(), l.push(item('C')); },
        "BAC", "AC"},
    {"swapUp at the front", "AB", [](Letters& l) { l.swapUp(); }, "AB", "AB"},
};

class GListOperation : public testing::TestWithParam<ListCase> {};

TEST_P(GListOperation, LeavesOrderAndCursor)
{
    const ListCase& row = GetParam();
    Letters list;
    fill(list, row.start);
    const auto revision = list.revision();
    row.change(list);
    const std::string order = row.order;
    EXPECT_EQ(order != row.start, list.revision() != revision);
    EXPECT_EQ(order, walked(list, GList::Order::FrontToBack));
    EXPECT_EQ(std::string(order.rbegin(), order.rend()), walked(list, GList::Order::BackToFront));
    EXPECT_EQ(static_cast<int>(order.size()), list.count());
    EXPECT_EQ(order.empty(), list.isEmpty());
    EXPECT_EQ(row.rest, restByNext(list));
}
INSTANTIATE_TEST_SUITE_P(Rules, GListOperation, testing::ValuesIn(kCases));

TEST(GList, BubblePassesSort)
{
    Letters list;
    fill(list, "DBCA");
    const char* last = nullptr;
    list.reset();
    while (const char* letter = list.next()) {
        if (last && *letter < *last) {
            list.moveUp();
            list.reset();
            last = nullptr;
        } else {
            last = letter;
        }
    }
    EXPECT_EQ("ABCD", walked(list, GList::Order::FrontToBack));
}

TEST(GList, WalkKeepsTheCursorAndSurvivesRemovalBehindIt)
{
    Letters list;
    fill(list, "ABC");
    stepTo(list, 'A');
    Letters::Walk walk(list);
    walk.next();
    list.remove();
    EXPECT_EQ(item('B'), walk.next());
    EXPECT_EQ(item('B'), list.next());
}

TEST(GList, IteratorSurvivesRemovalOfItsNeighbours)
{
    Letters list;
    fill(list, "ABC");
    auto at = list.begin();
    stepTo(list, 'B');
    list.remove();
    EXPECT_EQ('C', **++at);
    EXPECT_EQ(list.end(), ++at);
}

TEST(GList, IteratorServesTheStandardAlgorithms)
{
    static_assert(std::forward_iterator<Letters::iterator>);
    Letters list;
    fill(list, "ABC");
    const auto found = std::ranges::find(list, item('B'));
    list.insertAt(found.node(), item('X'));
    EXPECT_EQ((std::vector<char*>{item('A'), item('X'), item('B'), item('C')}),
        std::vector<char*>(list.begin(), list.end()));
}

} // namespace

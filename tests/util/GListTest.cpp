// tests/util/GListTest.cpp
#include "util/GList.h"

#include <algorithm>
#include <new>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {
bool memoryIsUsedUp = false;
}

// The allocation that reports failure by null, switched off on demand for the whole program. It
// hands on to the throwing one, so that a sanitizer sees each block come and go through the same
// pair.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return memoryIsUsedUp ? nullptr : ::operator new(size);
}

namespace {

// Items that outlive every list; each is its own letter.
char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
char* item(char letter) { return &alphabet[letter - 'A']; }

struct Letters : TypedList<char> {
    explicit Letters(const std::string& letters)
    {
        for (const char letter : letters)
            put(letter);
    }
    void put(char letter) { push(item(letter)); }
    void putBefore(char reference, char letter) { insert(item(reference), item(letter)); }
    /// Resets and calls `next` until it returns `letter`.
    Letters& to(char letter)
    {
        reset();
        while (*next() != letter) {}
        return *this;
    }
};

template <typename Source> std::string lettersOf(Source&& source)
{
    std::string letters;
    while (const char* letter = source.next())
        letters += *letter;
    return letters;
}

struct ListCase {
    const char* rule;
    std::string start;
    void (*change)(Letters&);
    std::string order; // front to back afterwards
    std::string rest;  // what `next` gives afterwards
};

const ListCase kCases[] = {
    {"first push needs no reset", "A", [](Letters&) {}, "A", "A"},
    {"push leaves the cursor", "ABC", [](Letters& l) { l.to('A').put('D'); }, "ABCD", "BCD"},
    {"push behind the end stays unseen", "A", [](Letters& l) { l.to('A').put('B'); }, "AB", ""},
    {"push after the list was emptied", "A", [](Letters& l) { l.pop(), l.put('B'); }, "B", "B"},
    {"insert before the first", "AB", [](Letters& l) { l.putBefore('A', 'X'); }, "XAB", "XAB"},
    {"insert before a stranger", "AB", [](Letters& l) { l.putBefore('Z', 'X'); }, "ABX", "ABX"},
    {"insert before equals", "ABA", [](Letters& l) { l.putBefore('A', 'X'); }, "ABXA", "XA"},
    {"pop", "AB", [](Letters& l) { EXPECT_EQ(item('B'), l.pop()); }, "A", "A"},
    {"pop of an empty list", "", [](Letters& l) { EXPECT_EQ(nullptr, l.pop()); }, "", ""},
    {"pop under the cursor", "AB", [](Letters& l) { l.to('A').pop(); }, "A", ""},
    {"remove after pop", "AB", [](Letters& l) { l.to('B').pop(), l.remove(); }, "A", ""},
    {"remove goes on behind", "ABC", [](Letters& l) { l.to('B').remove(); }, "AC", "C"},
    {"remove of the first", "ABC", [](Letters& l) { l.to('A').remove(); }, "BC", "BC"},
    {"remove twice", "ABC", [](Letters& l) { l.to('B').remove(), l.remove(); }, "AC", "C"},
    {"remove after reset", "ABC", [](Letters& l) { l.to('A').reset()->remove(); }, "BC", "BC"},
    {"moveUp in the middle", "ABC", [](Letters& l) { l.to('B').moveUp(); }, "BAC", "AC"},
    {"moveUp of the last", "ABC", [](Letters& l) { l.to('C').moveUp(); }, "ACB", "B"},
    {"moveUp of the first stays", "AB", [](Letters& l) { l.to('A').moveUp(); }, "AB", "AB"},
    {"moveUp before any next", "AB", [](Letters& l) { l.moveUp(); }, "AB", ""},
    {"moveUp after remove takes the older neighbour", "ABCD",
        [](Letters& l) { l.to('C').remove(), l.moveUp(); }, "BAD", "AD"},
    {"swapUp at the back", "AB", [](Letters& l) { l.to('A').swapUp(), l.put('C'); }, "BAC", "AC"},
};

TEST(GList, OperationsLeaveOrderAndCursor)
{
    for (const auto& [rule, start, change, order, rest] : kCases) {
        SCOPED_TRACE(rule);
        Letters list(start);
        const auto revision = list.revision();
        change(list);
        EXPECT_EQ(order != start, list.revision() != revision);
        EXPECT_EQ(order, lettersOf(Letters::Walk(list)));
        EXPECT_EQ(std::string(order.rbegin(), order.rend()),
            lettersOf(Letters::Walk(list, GList::Order::BackToFront)));
        EXPECT_EQ(static_cast<int>(order.size()), list.count());
        EXPECT_EQ(order.empty(), list.isEmpty());
        EXPECT_EQ(rest, lettersOf(list));
    }
}

TEST(GList, WalkKeepsTheCursorAndSurvivesRemovalBehindIt)
{
    Letters list("ABC");
    Letters::Walk walk(list);
    walk.next();
    list.to('A').remove();
    EXPECT_EQ(item('B'), walk.next());
    list.insertAt(walk.node(), item('X'));
    EXPECT_EQ("XBC", lettersOf(list));
    EXPECT_EQ("C", lettersOf(walk));
    EXPECT_EQ(nullptr, walk.node());
}

TEST(GList, IteratorServesTheStandardAlgorithms)
{
    static_assert(std::forward_iterator<Letters::iterator>);
    Letters list("ABC");
    auto at = std::ranges::find(list, item('B'));
    list.insertAt(at.node(), item('X'));
    list.to('C').remove();
    EXPECT_EQ(list.end(), ++at);
    EXPECT_EQ((std::vector<char*>{item('A'), item('X'), item('B')}),
        std::vector<char*>(list.begin(), list.end()));
}

TEST(GListDeathTest, EndsTheProcessWithoutMemory)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Letters list("A");
    const auto insertWithoutMemory = [&list](char* reference) {
        memoryIsUsedUp = true;
        list.insert(reference, item('B'));
    };
    EXPECT_EXIT(insertWithoutMemory(nullptr), testing::ExitedWithCode(1),
        testing::Eq("\n Out of memory in GList::push"));
    EXPECT_EXIT(insertWithoutMemory(item('A')), testing::ExitedWithCode(1),
        testing::Eq("\n Out of memory in GList::insert"));
}

} // namespace

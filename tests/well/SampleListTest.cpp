// tests/well/SampleListTest.cpp
#include "well/SampleList.h"
#include "well/Sample.h"

#include <memory>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

/// A list with its owner.
struct OwnedList {
    SampleList list;
    ~OwnedList()
    {
        while (const Sample* s = list.pop())
            delete s;
    }
};

Sample* sampleOf(long samp_id, float depth, const char* type = "CO")
{
    return new Sample(1, samp_id, depth, type, 0, 0, depth);
}

// Few enough of each that they repeat.
float depthOf(int random) { return static_cast<float>(random % 50); }
long idOf(int random) { return random % 90; }

std::vector<long> idsOf(const SampleList& list)
{
    std::vector<long> ids;
    for (const Sample* s : list)
        ids.push_back(s->samp_id);
    return ids;
}

struct OrderCase {
    const char* name;
    char wellType;
    std::vector<std::pair<float, long>> arriving; // depth, identifier
    std::vector<long> ids;
};
void PrintTo(const OrderCase& c, std::ostream* out) { *out << c.name; }

const OrderCase kOrder[] = {
    {"shallowest first", 'W', {{10, 1}, {30, 2}, {20, 3}}, {1, 3, 2}},
    {"outcrop is reversed", 'O', {{10, 1}, {30, 2}, {20, 3}}, {2, 3, 1}},
    {"other letters as well", 'x', {{20, 1}, {10, 2}}, {2, 1}},
    {"lower-case o is another letter", 'o', {{20, 1}, {10, 2}}, {2, 1}},
    {"equals keep arrival", 'W', {{20, 1}, {10, 2}, {20, 3}, {20, 4}}, {2, 1, 3, 4}},
    {"equals keep arrival in an outcrop", 'O', {{20, 1}, {30, 2}, {20, 3}}, {2, 1, 3}},
    {"above the datum", 'W', {{0, 1}, {-5, 2}, {5, 3}}, {2, 1, 3}},
};

class SampleListOrder : public testing::TestWithParam<OrderCase> {};

TEST_P(SampleListOrder, InsertOrdered)
{
    OwnedList owned;
    for (const auto& [depth, id] : GetParam().arriving)
        owned.list.InsertOrdered(sampleOf(id, depth), GetParam().wellType);
    EXPECT_EQ(GetParam().ids, idsOf(owned.list));
}

INSTANTIATE_TEST_SUITE_P(Rules, SampleListOrder, testing::ValuesIn(kOrder));

/// Where a walk from the front would put `s`.
std::vector<long> idsWith(const SampleList& list, const Sample* s, char wellType)
{
    std::vector<long> ids = idsOf(list);
    std::size_t place = 0;
    for (const Sample* at : list) {
        const float here = at->GetDepth('M', 0, 0), depth = s->GetDepth('M', 0, 0);
        if (wellType == 'O' ? here < depth : here > depth)
            break;
        ++place;
    }
    ids.insert(ids.begin() + static_cast<std::ptrdiff_t>(place), s->samp_id);
    return ids;
}

const Sample* firstWith(const SampleList& list, long samp_id)
{
    for (const Sample* s : list) {
        if (s->samp_id == samp_id)
            return s;
    }
    return nullptr;
}

/// Changes of a list behind its back, each of which makes what it keeps of itself stale.
constexpr void (*kChanges[])(SampleList&, int random) = {
    [](SampleList& list, int random) { list.push(sampleOf(idOf(random), depthOf(random))); },
    [](SampleList& list, int random) {
        GList& plain = list;
        plain.insert(*list.begin(), sampleOf(idOf(random), depthOf(random)));
    },
    [](SampleList& list, int) { delete list.pop(); },
    [](SampleList& list, int) {
        list.reset();
        const std::unique_ptr<Sample> taken(list.next());
        list.remove();
    },
    [](SampleList& list, int) { list.reset(), list.next(), list.next(), list.moveUp(); },
    [](SampleList& list, int) { list.reset(), list.next(), list.swapUp(); },
    [](SampleList& list, int random) { (*list.begin())->samp_id = idOf(random); },
    [](SampleList& list, int random) {
        (*list.begin())->top = (*list.begin())->base = depthOf(random);
    },
    [](SampleList& list, int random) { (*list.begin())->SetBase(depthOf(random), 'F'); },
    [](SampleList& list, int) {
        const std::unique_ptr<Sample> taken(*list.begin());
        list.TakeOut(taken.get());
    },
    [](SampleList& list, int random) { list.FindOrAdd(depthOf(random), "SC", nullptr); },
};

TEST(SampleListIndices, FollowWhatAWalkWouldFind)
{
    std::mt19937 random(7);
    const auto next = [&random] { return static_cast<int>(random() & 0xffff); };
    OwnedList owned;
    SampleList& list = owned.list;
    for (int round = 0; round < 3000; ++round) {
        if (list.count() > 2 && next() % 3 == 0)
            kChanges[next() % std::size(kChanges)](list, next());
        const char wellType = next() % 50 == 0 ? 'O' : 'W';
        Sample* s = sampleOf(idOf(next()), depthOf(next()));
        const std::vector<long> expected = idsWith(list, s, wellType);
        list.InsertOrdered(s, wellType);
        ASSERT_EQ(expected, idsOf(list)) << round;
        const long sought = idOf(next());
        ASSERT_EQ(firstWith(list, sought), list.FindById(sought)) << round;
        if (list.count() > 60)
            delete list.pop();
    }
}

TEST(SampleListIndices, LeaveTheCursorToTheCaller)
{
    OwnedList owned;
    for (const int id : {1, 2, 3})
        owned.list.InsertOrdered(sampleOf(id, depthOf(id)), 'W');
    owned.list.reset();
    EXPECT_EQ(1, owned.list.next()->samp_id);
    owned.list.FindById(3), owned.list.FindAtDepth(3, nullptr),
        owned.list.Next(*owned.list.begin());
    owned.list.DepthLabelOf(2, 'M'), owned.list.FindOrAdd(2, nullptr, nullptr);
    EXPECT_EQ(2, owned.list.next()->samp_id);
}

class SampleListFinds : public testing::Test {
protected:
    OwnedList owned;
    SampleList& list = owned.list;

    SampleListFinds()
    {
        list.push(sampleOf(1, 10, "CO"));
        list.push(sampleOf(2, 20, "SC"));
        list.push(sampleOf(3, 20, "CO"));
        list.push(sampleOf(4, 20.0005F, "CO"));
    }
    static long id(const Sample* s) { return s ? long(s->samp_id) : -1; }
};

TEST_F(SampleListFinds, NeighboursAndTypes)
{
    const Sample stranger(5, 5, "CU", 'M');
    EXPECT_EQ(2, id(list.Next(list.FindById(1))));
    EXPECT_EQ(-1, id(list.Next(list.FindById(4))));
    EXPECT_EQ(3, id(list.Previous(list.FindById(4))));
    EXPECT_EQ(-1, id(list.Previous(list.FindById(1))));
    EXPECT_EQ(-1, id(list.Next(&stranger)));
    EXPECT_STREQ("SC", list.TypeOf(2));
    EXPECT_STREQ("", list.TypeOf(9));
    EXPECT_STREQ("no sample", list.DepthLabelOf(9, 'M'));
    EXPECT_STREQ("20.00m SC", list.DepthLabelOf(2, 'M'));
}

TEST_F(SampleListFinds, ByDepth)
{
    EXPECT_EQ(2, id(list.FindAtDepth(20.009F, nullptr)));
    EXPECT_EQ(2, id(list.FindAtDepth(19.991F, "")));
    EXPECT_EQ(3, id(list.FindAtDepth(20.009F, "CO")));
    EXPECT_EQ(-1, id(list.FindAtDepth(20.009F, "co")));
    EXPECT_EQ(-1, id(list.FindAtDepth(20.02F, nullptr)));
    EXPECT_EQ(3, id(list.FindSameDepth(list.FindById(4))));
    EXPECT_EQ(2, id(list.FindSameDepth(list.FindById(2))));
    const Sample deeper(20.002F, 20.002F, "CO", 'M');
    EXPECT_EQ(-1, id(list.FindSameDepth(&deeper)));
}

TEST_F(SampleListFinds, OrAdds)
{
    EXPECT_EQ(3, id(list.FindOrAdd(20.0004F, "CO", nullptr)));
    EXPECT_EQ(4, id(list.FindOrAdd(20.0004F, nullptr, "LOG"))); // the last one
    EXPECT_EQ(4, list.count());
    const Sample* typed = list.FindOrAdd(20, "swc", "LOG"); // as entered, so no "SC"
    EXPECT_STREQ("SC", typed->GetType());
    const Sample* untyped = list.FindOrAdd(15, "", "LOG");
    EXPECT_STREQ("LOG", untyped->GetType());
    EXPECT_EQ(15, untyped->top);
    EXPECT_EQ(0, untyped->saved);
    EXPECT_EQ((std::vector<long>{1, 2, 3, 4, 0, 0}), idsOf(list)); // at the end, out of order
    EXPECT_EQ(typed, list.FindById(0));
}

} // namespace

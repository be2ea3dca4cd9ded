// tests/well/SampleListTest.cpp
#include "tests/well/WellTest.h"

#include <memory>
#include <random>

namespace {

Sample* sampleOf(long samp_id, float depth, const char* type = "CO")
{
    return new Sample(1, samp_id, depth, type, 0, 0, depth);
}

/// A list with its owner.
struct OwnedList {
    SampleList list;
    ~OwnedList()
    {
        while (const Sample* s = list.pop())
            delete s;
    }
};

TEST(SampleListOrder, IsByDepthThenArrival)
{
    const struct {
        const char* name;
        char wellType;
        std::vector<std::pair<float, long>> arriving; // depth, identifier
        Ids ids;
    } kCases[] = {
        {"shallowest first", 'W', {{10, 1}, {30, 2}, {20, 3}}, {1, 3, 2}},
        {"outcrop is reversed", 'O', {{10, 1}, {30, 2}, {20, 3}}, {2, 3, 1}},
        {"lower-case o is another letter", 'o', {{20, 1}, {10, 2}}, {2, 1}},
        {"in an outcrop too", 'O', {{20, 1}, {30, 2}, {20, 3}}, {2, 1, 3}},
    };
    for (const auto& c : kCases) {
        OwnedList owned;
        for (const auto& [depth, id] : c.arriving)
            owned.list.InsertOrdered(sampleOf(id, depth), c.wellType);
        EXPECT_EQ(c.ids, idsOf(owned.list)) << c.name;
    }
}

// Few enough of each that they repeat.
float depthOf(int random) { return static_cast<float>(random % 50); }
long idOf(int random) { return random % 600; }

/// The identifiers with that of `s` where a walk from the front would put it.
Ids idsWith(const SampleList& list, const Sample* s, char wellType)
{
    Ids ids = idsOf(list);
    auto place = ids.begin();
    for (const Sample* at : list) {
        const float here = at->GetDepth('M', 0, 0), depth = s->GetDepth('M', 0, 0);
        if (wellType == 'O' ? here < depth : here > depth)
            break;
        ++place;
    }
    ids.insert(place, s->samp_id);
    return ids;
}

const Sample* firstWith(const SampleList& list, long samp_id)
{
    SampleList::Walk walk(list);
    const Sample* s = walk.next();
    while (s && s->samp_id != samp_id)
        s = walk.next();
    return s;
}

/// Changes behind the list's back, each of which makes what it keeps of itself stale.
constexpr void (*kChanges[])(SampleList&, Sample* front, int random) = {
    [](SampleList& l, Sample*, int random) { l.push(sampleOf(idOf(random), depthOf(random))); },
    [](SampleList& l, Sample* front, int random) {
        static_cast<GList&>(l).insert(front, sampleOf(idOf(random), depthOf(random)));
    },
    [](SampleList& l, Sample*, int) { delete l.pop(); },
    [](SampleList& l, Sample* front, int) { l.reset()->next(), l.remove(), delete front; },
    [](SampleList& l, Sample*, int) { l.reset()->next(), l.next(), l.moveUp(); },
    [](SampleList& l, Sample*, int) { l.reset()->next(), l.swapUp(); },
    [](SampleList&, Sample* front, int random) { front->samp_id = idOf(random); },
    [](SampleList&, Sample* front, int random) { front->base = depthOf(random); },
    [](SampleList&, Sample* front, int random) { front->SetBase(depthOf(random), 'F'); },
    [](SampleList& l, Sample* front, int) { l.TakeOut(front), delete front; },
    [](SampleList& l, Sample*, int random) { l.FindOrAdd(depthOf(random), "SC", nullptr); },
};

TEST(SampleListIndices, GiveWhatAWalkWouldFind)
{
    std::mt19937 random(7);
    const auto next = [&random] { return static_cast<int>(random() & 0xffff); };
    OwnedList owned;
    SampleList& list = owned.list;
    for (int round = 0; round < 2000; ++round) {
        for (int changes = next() % 4 - 1; changes > 0 && list.count() > 2; --changes)
            kChanges[next() % std::size(kChanges)](list, *list.begin(), next());
        const char wellType = next() % 50 == 0 ? 'O' : 'W';
        Sample* s = sampleOf(idOf(next()), depthOf(next()));
        const Ids expected = idsWith(list, s, wellType);
        list.InsertOrdered(s, wellType);
        ASSERT_EQ(expected, idsOf(list)) << round;
        for (const long sought : idsOf(list))
            ASSERT_EQ(firstWith(list, sought), list.FindById(sought)) << round;
        const long any = idOf(next());
        ASSERT_EQ(firstWith(list, any), list.FindById(any)) << round;
        while (round % 50 == 0 && list.count() > 10)
            delete list.pop();
    }
}

TEST(SampleListFinds, NeighboursDepthsAndNewSamples)
{
    OwnedList owned;
    SampleList& list = owned.list;
    Sample* const s[] = {
        sampleOf(1, 10), sampleOf(2, 20, "SC"), sampleOf(3, 20), sampleOf(4, 20.0005F)};
    for (Sample* each : s)
        list.push(each);
    list.reset()->next();
    const Sample stranger(20.002F, 20.002F, "CO", 'M');
    const struct {
        const char* name;
        const Sample *expected, *found;
    } kCases[] = {
        {"next", s[1], list.Next(s[0])},
        {"next of a stranger", nullptr, list.Next(&stranger)},
        {"previous", s[2], list.Previous(s[3])},
        {"within a centimetre", s[1], list.FindAtDepth(20.009F, nullptr)},
        {"without one", nullptr, list.FindAtDepth(20.011F, nullptr)},
        {"of a type", s[2], list.FindAtDepth(19.991F, "CO")},
        {"in its letter case", nullptr, list.FindAtDepth(20, "co")},
        {"same depth and type", s[2], list.FindSameDepth(s[3])},
        {"two millimetres are another", nullptr, list.FindSameDepth(&stranger)},
        {"first of a type", s[2], list.FindOrAdd(20.0004F, "CO", nullptr)},
        {"last of any", s[3], list.FindOrAdd(20.0004F, "", "LOG")},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(c.expected, c.found) << c.name;
    EXPECT_EQ(s[1], list.next()) << "the cursor is the caller's";

    const Sample* typed = list.FindOrAdd(20, "swc", "LOG"); // as entered no type of the list
    EXPECT_EQ("0|20|20|SC|0|0||||||0|", textOf(*typed));
    EXPECT_STREQ("LOG", list.FindOrAdd(15, nullptr, "LOG")->GetType());
    EXPECT_EQ((Ids{1, 2, 3, 4, 0, 0}), idsOf(list)) << "at the end, out of order";
    EXPECT_EQ(typed, list.FindById(0));
    EXPECT_STREQ("SC", list.TypeOf(2));
    EXPECT_STREQ("", list.TypeOf(9));
    EXPECT_STREQ("20.00m SC", list.DepthLabelOf(2, 'M'));
    EXPECT_STREQ("no sample", list.DepthLabelOf(9, 'M'));
}

} // namespace

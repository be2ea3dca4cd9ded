#include "dict/EVdictList.h"
#include "tests/well/WellTest.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

/// Whether an event goes before a listed one, told as people would tell it.
bool goesBefore(const EVt& added, const EVt& listed, bool byName, char wellType, int reverse)
{
    const int names = compareIgnoringCase(added.entry->name(), listed.entry->name());
    if (byName && names != 0)
        return names < 0;
    const float a = added.sample->GetDepth('M', 0, 0), b = listed.sample->GetDepth('M', 0, 0);
    if (wellType == 'O' ? b < a : a < b)
        return true;
    if (std::abs(double(a) - double(b)) >= 0.0001)
        return false;
    if (added.kind == 'F' || added.kind == 'L')
        return reverse ? listed.kind < added.kind : added.kind < listed.kind;
    return listed.kind == (reverse ? 'F' : 'L');
}

struct OrderCase {
    int mode;
    char wellType;
    int reverse;
    std::string_view kinds;
    std::vector<float> depths;
};

const float kNear = std::nextafter(100.0f, 101.0f); // 0.000008 m deeper
const OrderCase kOrders[] = {
    {0, 'W', 0, "FLSA", {100, kNear, 90, 110}}, // tops before bases, others anywhere
    {0, 'O', 1, "FLSA", {100, 90, 110}},        // bases before tops, deepest first
    {1, 'W', 0, "FLSA", {100, kNear, 90}},      // grouped by names
    {1, 'O', 0, "FL", {100, 90, 110}},          // a plain order
    {0, 'W', 1, "FL", {100, 90, 110}},          // a plain order, reversed
    {0, 'W', 0, "FL", {100, kNear, 90}},        // blurred depths alone
};

struct EVtLists : WellTest {
    EVtLists() { db.run("INSERT INTO EVENTDIC (ev_id, name) VALUES (1,'a'), (2,'A'), (3,'b')"); }
    Well well;
    SampleList& samples = well.samples;
    EVdictList dictionary;
};

TEST_F(EVtLists, EveryEventGoesWhereAWalkPutsIt)
{
    long samp_id = 100;
    for (const OrderCase& c : kOrders) {
        SCOPED_TRACE(&c - kOrders);
        std::mt19937 random(7);
        EVtList list;
        std::vector<EVt*> plain;
        const auto insertPlain = [&plain, &c](EVt* evt, int mode) {
            const auto place = std::find_if(plain.begin(), plain.end(), [&c, evt, mode](EVt* e) {
                return goesBefore(*evt, *e, mode != 0, c.wellType, c.reverse);
            });
            const auto examined = place - plain.begin() + (place != plain.end());
            plain.insert(place, evt);
            return examined;
        };
        list.sortBy(c.mode, c.wellType, c.reverse);
        for (int i = 0; i < 400; ++i) {
            const float depth = c.depths[random() % c.depths.size()];
            well.AddSample(new Sample(7, ++samp_id, depth, "CU", 0, 0, depth));
            auto* evt = new EVt(7, 0, static_cast<long>(1 + random() % 4),
                c.kinds[random() % c.kinds.size()], samp_id, samples, dictionary);
            if (i == 300)
                plain[3]->sample->SetBase(70, 'M');
            EXPECT_EQ(insertPlain(evt, c.mode), list.insertSorted(evt, c.wellType, c.reverse)) << i;
        }
        EXPECT_EQ(plain, std::vector<EVt*>(list.begin(), list.end()));
        for (EVt* evt : std::exchange(plain, {}))
            insertPlain(evt, 1 - c.mode);
        list.sortBy(1 - c.mode, c.wellType, c.reverse);
        list.sortBy(1 - c.mode, c.wellType, 1 - c.reverse); // the mode already
        EXPECT_EQ(plain, std::vector<EVt*>(list.begin(), list.end()));
    }
}

TEST_F(EVtLists, ShareSamplesAndEntries)
{
    const EVt read(7, 5, 3, 'L', 1, samples, dictionary),
        again(7, 5, 3, 'F', 1, samples, dictionary);
    EXPECT_EQ(read.sample, again.sample);
    EXPECT_EQ(read.entry, again.entry);
    const EVt elsewhere(7, 5, 9, 'F', 9, samples, dictionary); // in another well
    EXPECT_EQ((Ids{0, 1}), idsOf(samples));
    EXPECT_STREQ("", elsewhere.entry->name());
}

} // namespace

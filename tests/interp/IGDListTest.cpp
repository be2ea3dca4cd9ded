// tests/interp/IGDListTest.cpp
#include "tests/interp/InterpTest.h"

#include <algorithm>
#include <memory>
#include <random>

namespace {

/// A list of no well, with zones in it.
struct MadeList : IGDList {
    struct Interval {
        float top, base;
        int rank = 0;
    };

    explicit MadeList(int type, const std::vector<Interval>& intervals = {}, char unit = 'M')
        : IGDList(type, 0, 9, nullptr, unit, 0, 0, nullptr)
    {
        for (const Interval& i : intervals)
            insert(zoneOf(type, i.top, i.base, i.rank));
    }
};

std::string depthsOf(const IGDList& list)
{
    std::string text;
    for (const IGDBase* record : list)
        text += joined(record->getTop(0), record->getBase(0));
    return text;
}

TEST(IGDListOrder, IsByTopThenByThicknessAsTheTypeSays)
{
    const struct {
        const char* name;
        int type;
        std::vector<MadeList::Interval> arriving;
        std::string depths;
    } kCases[] = {
        {"the thinnest of zones first", 3, {{100, 200}, {100, 150}}, "100|150|100|200|"},
        {"the thickest of others first", 12, {{100, 200}, {100, 150}}, "100|200|100|150|"},
        {"of equals the later one first", 12, {{100, 150}, {100, 150}}, "100|150|100|150|"},
        {"sequences of one rank", 10, {{1, 3, 2}, {1, 2, 2}}, "1|2|1|3|"},
        {"sequences of two ranks", 10, {{1, 3, 2}, {1, 2, 1}}, "1|3|1|2|"},
        {"tops of one place", 3, {{100, 200}, {100.00005f, 150}}, "100|150|100|200|"},
        {"tops of two places", 3, {{100, 200}, {100.0003f, 150}}, "100|200|100|150|"},
        {"less is less, however little", 12, {{100.00005f, 200}, {100, 150}}, "100|150|100|200|"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(c.depths, depthsOf(MadeList(c.type, c.arriving))) << c.name;
}

TEST(IGDListOrder, IsWhereAWalkWouldPutARecordWhateverHappenedToTheList)
{
    std::mt19937 random(7);
    const auto depth = [&random] {
        return static_cast<float>(random() % 20) + 0.00004f * float(random() % 3);
    };
    for (const int type : {3, 10, 12}) {
        const DepthOrder rule(igdKindOf(type).sameTop);
        MadeList list(type);
        for (int i = 0; i < 700; ++i) {
            IGDZone* added = zoneOf(type, depth(), depth(), static_cast<int>(random() % 3));
            std::vector<const IGDBase*> expected(list.begin(), list.end());
            const auto before = std::find_if(expected.begin(), expected.end(),
                [&](const IGDBase* at) { return rule.stops(*at, *added); });
            expected.insert(before, added);
            list.insert(added);
            ASSERT_TRUE(std::equal(expected.begin(), expected.end(), list.begin(), list.end()))
                << type << " " << i;
            const auto place = random() % unsigned(list.count());
            auto* changed = dynamic_cast<IGDZone*>(list.at(static_cast<int>(place)));
            ASSERT_EQ(expected[place], changed);
            if (i % 5 == 0)
                changed->setTop(depth()), changed->setHier(i % 3);
            if (i % 50 == 0)
                delete list.pop();
        }
        EXPECT_EQ(nullptr, list.at(list.count()));
    }
}

TEST(IGDListConflict, IsAnOverlapOrTwoQualitiesOfOneBoundary)
{
    struct Zone {
        float top, base;
        int topQuality = 3, baseQuality = 3;
    };
    const auto made = [](int type, const Zone& z) {
        IGDZone* zone = zoneOf(type, z.top, z.base);
        zone->top_bnd = z.topQuality, zone->base_bnd = z.baseQuality;
        return zone;
    };
    const struct {
        const char* name;
        int type;
        Zone member, asked;
        int kind;
    } kCases[] = {
        {"the same but for a thousandth", 3, {100.001f, 200}, {100.004f, 200}, -1},
        {"a hundredth as it was meant", 3, {1.15f, 2}, {1, 1.15f}, 0},
        {"its top inside", 3, {150, 250}, {100, 200}, -1},
        {"its base inside", 3, {50, 150}, {100, 200}, -1},
        {"around", 3, {50, 250}, {100, 200}, -1},
        {"within", 12, {120, 130}, {100, 200}, -1},
        {"a point within", 12, {120, 120}, {100, 200}, -1},
        {"within, asked for a point", 12, {100, 200}, {120, 120}, 0},
        {"one point", 12, {120, 120}, {120.001f, 120.001f}, -1},
        {"sharing a boundary", 3, {100, 150}, {150, 200}, 0},
        {"differing above", 3, {100, 150, 3, 3}, {150, 200, 6, 3}, -2},
        {"differing below", 44, {150, 200, 6, 3}, {100, 150, 3, 3}, -2},
        {"differing, loaded biozones", 4, {100, 150, 3, 3}, {150, 200, 6, 3}, 0},
    };
    for (const auto& c : kCases) {
        MadeList list(c.type);
        list.insert(made(c.type, c.member));
        const std::unique_ptr<IGDZone> asked(made(c.type, c.asked));
        int kind = 99;
        EXPECT_EQ(c.kind ? list.at(0) : nullptr, list.findConflict(asked.get(), &kind, nullptr))
            << c.name;
        EXPECT_EQ(c.kind, kind) << c.name;
        EXPECT_EQ(nullptr, list.findConflict(asked.get(), &kind, list.at(0))) << c.name;
    }
}

TEST(IGDListDepth, IsFoundBetweenTheBoundaries)
{
    const struct {
        const char* name;
        int type;
        MadeList::Interval member;
        char unit;
        float depth;
        char depthUnit;
        int hier, negate;
        bool found;
    } kCases[] = {
        {"on a boundary", 12, {100, 150}, 'M', 150, 'M', 0, 0, false},
        {"within", 12, {100, 150}, 'M', 149.99f, 'M', 0, 0, true},
        {"feet in a list of metres", 12, {90, 110}, 'M', 330, 'F', 0, 0, true},
        {"metres in a list of feet", 12, {90, 110}, 'F', 30, 'M', 0, 0, true},
        {"another rank of zones", 41, {100, 150, 2}, 'M', 120, 'M', 1, 0, false},
        {"of that rank", 41, {100, 150, 2}, 'M', 120, 'M', 2, 0, true},
        {"of any rank where there are none", 4, {100, 150, 2}, 'M', 120, 'M', 1, 0, true},
        {"negated", 12, {100, 150}, 'M', -120, 'M', 0, 1, true},
        {"upside down", 12, {150, 100}, 'M', 120, 'M', 0, 0, false},
    };
    for (const auto& c : kCases) {
        const MadeList list(c.type, {c.member}, c.unit);
        EXPECT_EQ(c.found ? list.at(0) : nullptr,
            list.findAt(c.depth, c.depthUnit, nullptr, c.hier, c.negate))
            << c.name;
        EXPECT_EQ(nullptr, list.findAt(c.depth, c.depthUnit, list.at(0), c.hier, c.negate));
    }
}

TEST(IGDList, OperationsLeaveTheCursorAndRecordsGoThroughTheirBase)
{
    struct Heir : IGDBase {
        explicit Heir(bool& flag)
            : IGDBase(12, 5, 6)
            , gone(flag)
        {
        }
        ~Heir() override { gone = true; }
        bool& gone;
    };
    bool gone = false;
    {
        MadeList list(3, {{1, 2}, {3, 4}});
        auto* heir = new Heir(gone);
        list.insert(heir);
        EXPECT_EQ("0|0| |0|1|",
            joined(heir->topBoundary(), heir->baseBoundary(), heir->label(), heir->value(),
                list.changed()));
        list.reset()->next();
        int kind = 0;
        EXPECT_TRUE(list.contains(heir) && list.at(2) == heir);
        list.findConflict(heir, &kind, nullptr);
        list.findAt(1, 'M', nullptr, 0, 0);
        EXPECT_EQ(3, list.next()->getTop(0));
        list.save('F', 0);
        EXPECT_EQ(1, list.changed()) << "such lists are not saved";
    }
    EXPECT_TRUE(gone);
}

} // namespace

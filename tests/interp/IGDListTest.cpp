// tests/interp/IGDListTest.cpp
#include "tests/interp/InterpTest.h"

#include <algorithm>
#include <random>

namespace {

struct Zone {
    float top, base;
    int topQuality = 3;
};

TEST(IGDListOrder, IsByTopThenByThicknessAsTheTypeSays)
{
    using std::tuple;
    for (const auto& [rule, type, top, base, laterTop, laterBase, laterRank, laterFirst] :
        {tuple{"the thinnest of zones first", 3, 100.f, 200.f, 100.f, 150.f, 1, true},
            {"the thickest of others first", 12, 100.f, 200.f, 100.f, 150.f, 1, false},
            {"of equals the later one first", 12, 100.f, 150.f, 100.f, 150.f, 1, true},
            {"of equal zones the earlier one", 2, 100.f, 150.f, 100.f, 150.f, 1, false},
            {"sequences of one rank", 10, 100.f, 200.f, 100.f, 150.f, 1, true},
            {"sequences of two ranks", 10, 100.f, 200.f, 100.f, 150.f, 2, false},
            {"tops of one place", 3, 100.f, 200.f, 100.00005f, 150.f, 1, true},
            {"tops of two places", 3, 100.f, 200.f, 100.0003f, 150.f, 1, false},
            {"less is less, however little", 12, 100.00005f, 200.f, 100.f, 150.f, 1, true}}) {
        MadeList list(type);
        list.add(top, base, 1);
        const IGDBase* later = &list.add(laterTop, laterBase, laterRank);
        EXPECT_EQ(later, list.at(laterFirst ? 0 : 1)) << rule;
    }
}

TEST(IGDListOrder, IsWhereAWalkWouldPutARecordWhateverHappenedToTheList)
{
    std::mt19937 random(7);
    const auto depth = [&] { return float(random() % 20) + 0.00004f * float(random() % 3); };
    for (const int type : {3, 10, 12}) {
        const DepthOrder rule(igdKindOf(type).sameTop);
        MadeList list(type);
        for (int i = 0; i < 1500; ++i) {
            std::vector<IGDBase*> expected(list.begin(), list.end());
            IGDBase* added = &list.add(depth(), depth(), int(random() % 3));
            const auto before = std::find_if(expected.begin(), expected.end(),
                [&](const IGDBase* at) { return rule.stops(*at, *added); });
            expected.insert(before, added);
            ASSERT_TRUE(std::equal(expected.begin(), expected.end(), list.begin(), list.end()));
            const auto place = random() % expected.size();
            ASSERT_EQ(expected[place], list.at(int(place)));
            if (i % 50 == 0) {
                expected[place]->setTop(depth());
                dynamic_cast<IGDZone*>(expected[place])->setHier(i % 3);
                delete list.pop();
            }
        }
        EXPECT_EQ(nullptr, list.at(list.count()));
    }
}

TEST(IGDListConflict, IsAnOverlapOrTwoQualitiesOfOneBoundary)
{
    for (const auto& [rule, type, member, asked, expected] :
        {std::tuple{
             "the same but for a thousandth", 3, Zone{100.001f, 200}, Zone{100.004f, 200}, -1},
            {"its top inside", 3, Zone{150, 250}, Zone{100, 200}, -1},
            {"its base inside", 3, Zone{50, 150}, Zone{100, 200}, -1},
            {"around", 3, Zone{50, 250}, Zone{100, 200}, -1},
            {"a point within", 12, Zone{120, 120}, Zone{100, 200}, -1},
            {"within, asked for a point", 12, Zone{100, 200}, Zone{120, 120}, 0},
            {"one point", 12, Zone{120, 120}, Zone{120.001f, 120.001f}, -1},
            {"sharing a boundary", 3, Zone{100, 150}, Zone{150, 200}, 0},
            {"differing above", 3, Zone{100, 150}, Zone{150, 200, 6}, -2},
            {"differing below", 44, Zone{150, 200, 6}, Zone{100, 150}, -2},
            {"differing, loaded biozones", 4, Zone{100, 150}, Zone{150, 200, 6}, 0}}) {
        MadeList list(type), others(type);
        IGDZone *in = &list.add(member.top, member.base), *out = &others.add(asked.top, asked.base);
        in->top_bnd = member.topQuality, out->top_bnd = asked.topQuality;
        int kind = 99;
        EXPECT_EQ(expected ? in : nullptr, list.findConflict(out, &kind, nullptr)) << rule;
        EXPECT_EQ(expected, kind) << rule;
        EXPECT_EQ(nullptr, list.findConflict(out, &kind, in)) << rule;
    }
}

TEST(IGDListDepth, IsFoundBetweenTheBoundaries)
{
    for (const auto& [rule, type, top, base, unit, depth, depthUnit, rank, negate, found] :
        {std::tuple{"on a boundary", 12, 100.f, 150.f, 'M', 150.f, 'M', 0, 0, false},
            {"the hundredth that was meant", 12, 1.f, 1.15f, 'M', 1.1499f, 'M', 0, 0, true},
            {"feet in a list of metres", 12, 90.f, 110.f, 'M', 330.f, 'F', 0, 0, true},
            {"metres in a list of feet", 12, 90.f, 110.f, 'F', 30.f, 'M', 0, 0, true},
            {"another rank of zones", 41, 100.f, 150.f, 'M', 120.f, 'M', 1, 0, false},
            {"any rank where there are none", 4, 100.f, 150.f, 'M', 120.f, 'M', 1, 0, true},
            {"negated", 12, 100.f, 150.f, 'M', -120.f, 'M', 0, 1, true},
            {"upside down", 12, 150.f, 100.f, 'M', 120.f, 'M', 0, 0, false}}) {
        MadeList list(type, unit);
        IGDBase* member = &list.add(top, base, 2);
        const IGDBase* at = list.findAt(depth, depthUnit, nullptr, rank, negate);
        EXPECT_EQ(found ? member : nullptr, at) << rule;
        EXPECT_EQ(nullptr, list.findAt(depth, depthUnit, member, rank, negate));
    }
}

TEST(IGDList, OperationsLeaveTheCursor)
{
    MadeList list(3);
    list.add(1, 2);
    list.add(3, 4);
    const IGDBase other(12, 8, 9);
    int kind = other.topBoundary() + other.baseBoundary() + int(other.value());
    list.reset()->next();
    EXPECT_FALSE(list.contains(&other) || list.findConflict(&other, &kind, nullptr));
    EXPECT_FALSE(list.at(2) || list.findAt(9, 'M', nullptr, 0, 0));
    EXPECT_EQ(3, list.next()->getTop(0));
    list.save('F', 0);
    EXPECT_EQ("1|0| |", joined(list.changed(), kind, other.label())) << "zones are not saved";
}

} // namespace

// tests/well/FssabndTest.cpp
#include "tests/well/WellTest.h"

namespace {

Fssabnd counted(long coarse, long medium, long fine, const char* abund = "")
{
    Fssabnd o(1, 2, 'I', 'P', abund, medium, ' ', 0, 'C', 'A');
    o.SetCounts(coarse, fine);
    return o;
}

TEST(Occurrence, TakesKnownCodesOnly)
{
    const std::pair<Fssabnd, const char*> kCases[] = {
        {{1, 2, 'x', 'Q', "", 0, 'N', 0, 'x', 'x'}, "I|P|| |Component|Adult|"},
        {{1, 2, 'R', '?', "ABC", 0, 'y', 0, 'E', 'J'}, "R|?|AB|C|Entire|Juvenile|"},
        {{1, 2, 'r', 'p', nullptr, 0, 'c', 0, 'B', 'A'}, "I|P||C|Broken|Adult|"},
    };
    for (const auto& [o, expected] : kCases)
        EXPECT_EQ(expected,
            joined(o.status, o.ident_type, o.abund, o.caved, o.ConditionText(), o.MaturityText()));
}

TEST(Occurrence, WeighsAndMergesCounts)
{
    Fssabnd o = counted(10, 3, 4), from = counted(10, 20, 30, "C");
    EXPECT_EQ(16, o.Count(0, 0.5f, 0.00001f, 2)) << "an unset factor counts as 1";
    EXPECT_EQ(17, o.Count(0, -3, 0.0001f, 1)) << "so does a negative one";
    EXPECT_EQ(7, o.Count(0, 0.0002f, 1, 1)) << "a small one is used";
    EXPECT_EQ(16, o.Count(0, 0.99f, 1, 1)) << "the sum is cut";
    from.caved = 'C';
    from.marker = 7;
    o.Merge(from);
    o.Merge(counted(0, 0, 0, "A"));
    EXPECT_EQ("20|23|34|C|1|C|", joined(o.coarse, o.medium, o.fine, o.caved, o.marker, o.abund));
}

using OccurrenceScheme = WellTest;

TEST_F(OccurrenceScheme, TranslatesCodesAndCounts)
{
    db.run("INSERT INTO ABNSCHME VALUES (5, 'Five')");
    db.run("INSERT INTO ABNSCHMBR VALUES (5, 1, 'Rare', 'R', 1, 2), (5, 2, 'Common', 'C', 10, 20)");
    const Fssabnd coded = counted(0, 0, 0, "C"), many = counted(0, 15, 0);
    EXPECT_EQ("20|20|6|0|",
        joined(coded.CountValue(5), coded.Count(5, 9, 9, 9), counted(1, 2, 3, "C").CountValue(5),
            counted(0, 0, 0).CountValue(5)));
    EXPECT_STREQ("A", counted(0, 15, 0, "A").AbundanceText(5, 1));
    EXPECT_STREQ("C", many.AbundanceText(5, 1));
    EXPECT_STREQ("", many.AbundanceText(5, 0));
}

} // namespace

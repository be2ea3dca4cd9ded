// tests/interp/ZoneLoadTest.cpp
#include "db/CurrentUser.h"
#include "db/ItemList.h"
#include "tests/interp/InterpTest.h"
#include "tests/support/Restore.h"

namespace {

std::string textOf(const IGDBase& record)
{
    const auto& z = dynamic_cast<const IGDZone&>(record);
    return joined(z.top_id, z.base_id, z.getTop(0), z.getBase(0), z.topSampleType.view(),
        z.baseSampleType.view(), z.hier(), z.sch_id, z.upp_zone, z.low_zone, z.top_bnd, z.base_bnd,
        z.label(), z.modified.isoText(), z.modifier);
}

TEST_F(InterpTest, ZonesTakeTheirDepthsFromTheSamples)
{
    well.AddSample(new Sample(7, 1, 99, "CO", 0, 0, 99)); // as edited since, not read again
    const std::string upper = "CO|CU|7|1|11|11|3|3|Upper|||",
                      lower = "CU|LOG|7|1|12|-1|1|2|?Lower / x|1998-03-05|AB|";
    for (const auto& [wellType, unit, rank, expected] :
        {std::tuple{'W', 'M', 7, "1|2|99|150|" + upper + "2|3|150|210|" + lower},
            {'O', 'F', 7, "2|3|-492.126|-688.976|" + lower + "1|2|-324.803|-492.126|" + upper},
            {'W', 'M', 8, "1|9|99|0|CO||8|0|-1|-1|3|3|Lost|||"}}) {
        well.type = wellType;
        const IGDList list(3, rank, rank, &well, unit, 0, 0, nullptr);
        std::string zones;
        for (const IGDBase* record : list)
            zones += textOf(*record);
        EXPECT_EQ(expected, zones);
        EXPECT_EQ("Age|0|1|", joined(list.title(), list.changed(), list.isComplete()));
    }
}

TEST_F(InterpTest, WhatIsAskedForDependsOnTheType)
{
    const std::string start = "SELECT top_id, base_id, sch_id, q_uzone, q_lzone, upp_inf, low_inf,"
                              " top_bnd, base_bnd, hier, upp_zone, low_zone ,sep,modified,modifier"
                              " FROM "
        + table("IGD") + " WHERE well_id=7 AND igd_type=";
    const std::string ranks = " AND hier >=1 AND hier <=4 AND interp_id=6";
    const long none[] = {0, 0, 0, 0}, one[] = {12, 0, 7, 0}, four[] = {0, 2, 3, 4, 5};
    for (const auto& [type, schemeIds, rest] :
        {std::tuple{10, none, ""}, {4, one, " AND ( sch_id=12 )"},
            {4, four, " AND ( sch_id=0 OR  sch_id=2 OR  sch_id=3 OR  sch_id=4 )"}}) {
        const StatementLog log;
        IGDList(type, 1, 4, &well, 'M', 0, 6, schemeIds);
        IGDList(41, 1, 4, &well, 'M', 0, 6, schemeIds); // has no loader
        EXPECT_EQ(Statements{start + std::to_string(type) + ranks + rest}, log.statements());
    }
}

TEST(Zone, LabelShowsBothNamesAndTheirDoubts)
{
    for (const auto& [upper, q_uzone, sep, q_lzone, lower, label] :
        {std::tuple{"A", 'N', "-", 'N', "B", "A - B"}, {"A", 'Y', "-", 'Y', "", "?A"},
            {"A", 'N', "-", 'Y', "B", "A - ?B"}, {"A", 'N', "/", 'N', "", "A / "},
            {"A", 'N', "", 'N', "B", "A - B"}, {"", 'Y', "/", 'N', "B", "B"}}) {
        IGDZone zone(3, 1.0f, 2.0f, q_uzone, upper, q_lzone, lower);
        zone.sep = sep;
        EXPECT_EQ(label, zone.label());
    }
}

TEST_F(InterpTest, NamesAndColoursOfTermsAreFetchedOnce)
{
    const Restore<FixedText<5>> user(currentUserAbr, "ME");
    IGDZone zone(3, 1L, 2L, 'N', "Upper", 'N', "Was period");
    EXPECT_EQ(kWhite, zone.getLowerColour()) << "no term yet";
    zone.upp_zone = 11, zone.low_zone = 10, zone.topSampleType = "CO";
    const StatementLog log;
    for (int i = 0; i < 2; ++i) {
        EXPECT_STREQ("U", zone.upperName(1));
        EXPECT_EQ((Colour{1, 2, 3}), zone.getLowerColour());
    }
    EXPECT_STREQ("Was period", zone.lowerName(1)) << "the term is called otherwise";
    const std::string from = " FROM " + table("IGD_DICT") + " WHERE igd_id=";
    EXPECT_EQ((Statements{"SELECT name, abr" + from + "11", "SELECT red,green,blue" + from + "10",
                  "SELECT name,abr" + from + "10"}),
        log.statements());
    IGDZone copy(4, 5.0f, 6.0f, 'Y', "", 'Y', "");
    copy.upp_zone = 10;
    EXPECT_STREQ("P", copy.upperName(1));
    EXPECT_EQ((Colour{1, 2, 3}), copy.getUpperColour());
    copy.copyFrom(zone);
    EXPECT_EQ("1|2|0|0|||0|0|11|10|3|3|Upper - Was period||ME|", textOf(copy));
    EXPECT_STREQ("U", copy.upperName(1)) << "asked again";
    copy.upp_zone = 10;
    EXPECT_EQ((Colour{1, 2, 3}), copy.getUpperColour()) << "asked again";
    char name[81] = "before";
    EXPECT_EQ(10, copy.lowerNameFromDictionary(name));
    EXPECT_EQ("||", joined(name, copy.lowerName(1))) << "one term";
    EXPECT_EQ(10, copy.upperNameFromDictionary(name));
    EXPECT_STREQ("Period", name);
}

TEST_F(InterpTest, SamplesAndSchemesAreCollectedOnceAndMissingSamplesReported)
{
    IGDList list(3, 7, 8, &well, 'M', 0, 0, nullptr);
    well.samples.FindById(2)->SetShift(0.5f);
    well.samples.FindById(2)->SetLabel("label");
    ItemList samples, schemes;
    samples.addNew(1, "there");
    list.collectReferences(well, samples, schemes);
    std::string text;
    for (const ItemList* items : {&samples, &schemes})
        for (const Item* item : *items)
            text += joined(item->id, item->text.view());
    EXPECT_EQ("1|there|9|no sample|2|150.50m CU|3|  200.00-210.00m LOG|1|I|", text);
    list.removeMissingSamples(&well);
    list.removeMissingSamples(&well); // nothing left to report
    EXPECT_EQ(2, list.count());
    EXPECT_EQ((Statements{"Warning: interval(s) with missing sample(s) were removed, for well "
                          ":Seven\nZone: Lost\nCheck and fix data using IGD"}),
        boxes.texts());
}

TEST_F(InterpTest, TermsBelongToTheirScheme)
{
    const IGDSchemeList schemes;
    IGDZone zone(3, 1L, 2L, 'N', "", 'N', "");
    zone.upp_zone = 12, zone.low_zone = 99, zone.sch_id = 1;
    EXPECT_TRUE(IGDList::termInScheme(zone, 1, &schemes));
    EXPECT_FALSE(IGDList::termInScheme(zone, 0, &schemes));
    EXPECT_TRUE(IGDList::termInScheme(zone, 0, nullptr));
    zone.sch_id = 99;
    EXPECT_FALSE(IGDList::termInScheme(zone, 1, &schemes));
}

TEST_F(InterpTest, CoverageJoinsWhatOneSchemeCovers)
{
    struct Zone {
        float top, base;
        long sch_id, base_id;
    };
    using Zones = std::vector<Zone>;
    for (const auto& [rule, first, second, expected] :
        {std::tuple{"several in a row",
             Zones{{1, 2, 1, 5}, {2, 3, 1, 6}, {3, 4, 1, 7}, {4, 5, 2, 8}}, Zones{},
             "1|4|beta|7|4|5|Zeta|8|"},
            {"what is covered already", {{1, 9, 1, 5}}, {{2, 9, 2, 6}}, "1|9|beta|5|"},
            {"what reaches further", {{1, 9, 1, 5}}, {{2, 10, 2, 6}}, "1|9|beta|5|2|10|Zeta|6|"},
            {"the deeper base stays", {{2, 5, 1, 6}}, {{1, 9, 1, 5}}, "1|9|beta|5|"}}) {
        MadeList upper(4, 'F'), lower(4);
        for (const auto& [list, zones] : {std::pair{&upper, first}, {&lower, second}}) {
            for (const Zone& z : zones) {
                IGDZone& zone = list->add(z.top, z.base);
                zone.sch_id = z.sch_id, zone.base_id = z.base_id;
            }
        }
        const IGDList* lists[] = {nullptr, &upper, &lower};
        const IGDList coverage(lists, 3);
        std::string covered;
        for (const IGDBase* at : coverage)
            covered += joined(at->getTop(0), at->getBase(0), at->label(),
                dynamic_cast<const IGDZone*>(at)->base_id);
        EXPECT_EQ(expected, covered) << rule;
        EXPECT_EQ("4|0|F|", joined(coverage.igd_type(), coverage.changed(), coverage.unit()));
    }
}

} // namespace

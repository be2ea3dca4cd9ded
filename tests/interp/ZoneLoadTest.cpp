// tests/interp/ZoneLoadTest.cpp
#include "db/CurrentUser.h"
#include "db/ItemList.h"
#include "interp/IGDSchemeList.h"
#include "tests/interp/InterpTest.h"
#include "tests/support/Restore.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

std::string zonesSql(const std::string& condition)
{
    return "SELECT top_id, base_id, sch_id, q_uzone, q_lzone, upp_inf, low_inf, top_bnd, base_bnd,"
           " hier, upp_zone, low_zone ,sep,modified,modifier FROM "
        + table("IGD") + " WHERE well_id=7 AND " + condition;
}

TEST_F(InterpTest, ZonesTakeTheirDepthsFromTheSamples)
{
    well.AddSample(new Sample(7, 1, 99, "CO", 0, 0, 99)); // as edited since, not read again
    const std::string upper = "CO|CU|7|1|11|11|3|3|Upper|||",
                      lower = "CU|LOG|7|1|12|-1|1|2|?Lower / x|1998-03-05|AB|";
    const struct {
        char wellType, unit;
        int rank;
        Statements zones;
    } kCases[] = {
        {'W', 'M', 7, {"3|1|2|99|150|" + upper, "3|2|3|150|210|" + lower}},
        {'O', 'F', 7, {"3|2|3|-492.126|-688.976|" + lower, "3|1|2|-324.803|-492.126|" + upper}},
        {'W', 'M', 8, {"3|1|9|99|0|CO||8|0|-1|-1|3|3|Lost|||"}},
    };
    for (const auto& c : kCases) {
        well.type = c.wellType;
        const IGDList list(3, c.rank, c.rank, &well, c.unit, 0, 0, nullptr);
        Statements zones;
        for (const IGDBase* record : list)
            zones.push_back(textOf(*record));
        EXPECT_EQ(c.zones, zones);
        EXPECT_EQ("7|3|Age|0|1|",
            joined(
                list.well_id(), list.igd_type(), list.title(), list.changed(), list.isComplete()));
    }
}

TEST_F(InterpTest, WhatIsAskedForDependsOnTheType)
{
    const long schemes[] = {12, 0, 7, 0}, four[] = {0, 2, 3, 4, 5};
    const struct {
        int type;
        const long* schemeIds;
        std::string schemes; ///< null: no statement at all
    } kCases[] = {
        {4, nullptr, ""},
        {4, schemes, " AND ( sch_id=12 )"},
        {4, four, " AND ( sch_id=0 OR  sch_id=2 OR  sch_id=3 OR  sch_id=4 )"},
        {10, schemes, ""},
        {41, schemes, "-"},
        {24, nullptr, "-"},
    };
    for (const auto& c : kCases) {
        const StatementLog log;
        IGDList(c.type, 1, 4, &well, 'M', 0, 6, c.schemeIds);
        Statements expected;
        if (c.schemes != "-")
            expected = {zonesSql("igd_type=" + std::to_string(c.type)
                + " AND hier >=1 AND hier <=4 AND interp_id=6" + c.schemes)};
        EXPECT_EQ(expected, log.statements()) << c.type;
    }
    EXPECT_EQ(0, IGDList(3, 1, 9, nullptr, 'M', 0, 0, nullptr).count());
}

TEST(Zone, LabelShowsBothNamesAndTheirDoubts)
{
    const struct {
        const char *upper, *lower, *sep;
        char q_uzone, q_lzone;
        std::string label;
    } kCases[] = {{"A", "B", "-", 'N', 'N', "A - B"}, {"A", "", "-", 'Y', 'Y', "?A"},
        {"A", "B", "-", 'N', 'Y', "A - ?B"}, {"A", "", "/", 'N', 'N', "A / "},
        {"A", "B", "", 'N', 'N', "A - B"}, {"", "B", "/", 'Y', 'N', "B"}};
    for (const auto& c : kCases) {
        IGDZone zone(3, 1.0f, 2.0f, c.q_uzone, c.upper, c.q_lzone, c.lower);
        zone.sep = c.sep;
        EXPECT_EQ(c.label, zone.label());
        EXPECT_EQ(std::string(" ") + c.sep + " ", zone.separatorText(1));
    }
}

TEST_F(InterpTest, NamesAndColoursOfTermsAreFetchedOnce)
{
    const Restore<FixedText<5>> user(currentUserAbr, "ME");
    IGDZone zone(3, 1L, 2L, 'N', "Upper", 'N', "Was period");
    EXPECT_EQ(kWhite, zone.getLowerColour()) << "no term yet";
    zone.upp_zone = 11;
    zone.low_zone = 10;
    zone.topSampleType = "CO";
    const StatementLog log;
    for (int i = 0; i < 2; ++i) {
        EXPECT_STREQ("Upper", zone.upperName(0));
        EXPECT_STREQ("U", zone.upperName(1));
        EXPECT_EQ(kWhite, zone.getUpperColour());
        EXPECT_EQ((Colour{1, 2, 3}), zone.getLowerColour());
    }
    EXPECT_STREQ("Was period", zone.lowerName(1)) << "the term is called otherwise";
    const std::string from = " FROM " + table("IGD_DICT") + " WHERE igd_id=";
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT name, abr" + from + "11", "SELECT red,green,blue" + from + "11",
            "SELECT red,green,blue" + from + "10", "SELECT name,abr" + from + "10"));

    IGDZone copy(4, 5.0f, 6.0f, 'Y', "", 'Y', "");
    copy.upp_zone = 10;
    EXPECT_STREQ("P", copy.upperName(1));
    EXPECT_EQ((Colour{1, 2, 3}), copy.getUpperColour());
    copy.copyFrom(zone);
    EXPECT_EQ("3|1|2|0|0|||0|0|11|10|3|3|Upper - Was period||ME|", textOf(copy));
    EXPECT_STREQ("U", copy.upperName(1)) << "asked again";
    copy.low_zone = 11;
    char name[81] = "before";
    EXPECT_EQ(11, copy.lowerNameFromDictionary(name));
    EXPECT_EQ("||", joined(name, copy.lowerName(1))) << "one term";
    EXPECT_EQ(11, copy.upperNameFromDictionary(name));
    EXPECT_STREQ("Upper", name);
    copy.upp_zone = 10;
    EXPECT_EQ((Colour{1, 2, 3}), copy.getUpperColour()) << "asked again";
}

TEST_F(InterpTest, ZonesWithoutTheirSamplesAreRemoved)
{
    for (const auto& [type, rank, left, text] : {std::tuple{3, 7, 2, ""},
             {3, 8, 0,
                 "Warning: interval(s) with missing sample(s) were removed, for well :Seven\n"
                 "Zone: Lost\nCheck and fix data using IGD"}}) {
        IGDList list(type, rank, rank, &well, 'M', 0, 0, nullptr);
        list.removeMissingSamples(nullptr);
        list.removeMissingSamples(&well);
        EXPECT_EQ(left, list.count());
        EXPECT_EQ(*text ? Statements{text} : Statements{}, boxes.texts());
    }
}

TEST_F(InterpTest, SamplesAndSchemesAreCollectedOnce)
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
}

TEST_F(InterpTest, TermsBelongToTheirScheme)
{
    const IGDSchemeList schemes;
    IGDZone zone(3, 1L, 2L, 'N', "", 'N', "");
    zone.sch_id = 1;
    zone.upp_zone = 12;
    zone.low_zone = 99;
    EXPECT_TRUE(IGDList::termInScheme(zone, 1, &schemes));
    EXPECT_FALSE(IGDList::termInScheme(zone, 0, &schemes));
    EXPECT_TRUE(IGDList::termInScheme(zone, 0, nullptr));
    zone.sch_id = 99;
    EXPECT_FALSE(IGDList::termInScheme(zone, 1, &schemes));
    zone.upp_zone = -1;
    EXPECT_TRUE(IGDList::termInScheme(zone, 1, &schemes));
}

TEST_F(InterpTest, CoverageJoinsWhatOneSchemeCovers)
{
    struct Zone {
        float top, base;
        long sch_id, base_id;
    };
    const struct {
        const char* name;
        std::vector<std::vector<Zone>> lists;
        std::string covered; ///< top, base, scheme, base's sample
    } kCases[] = {
        {"neighbours of one scheme", {{{100, 150, 1, 5}, {150, 200, 1, 6}}}, "100|200|1|6|"},
        {"of several in a row", {{{1, 2, 1, 5}, {2, 3, 1, 6}, {3, 4, 1, 7}, {4, 5, 2, 8}}},
            "1|4|1|7|4|5|2|8|"},
        {"what is covered already", {{{100, 200, 1, 5}}, {{120, 200, 2, 6}}}, "100|200|1|5|"},
        {"what reaches further", {{{100, 200, 1, 5}}, {{120, 201, 2, 6}}},
            "100|200|1|5|120|201|2|6|"},
        {"the deeper base stays", {{{100, 201, 1, 5}, {99, 150, 1, 6}}}, "99|201|1|5|"},
    };
    for (const auto& c : kCases) {
        std::vector<std::unique_ptr<IGDList>> lists;
        std::vector<const IGDList*> pointers{nullptr};
        for (const auto& zones : c.lists) {
            lists.push_back(std::make_unique<IGDList>(4, 0, 9, nullptr, 'F', 0, 0, nullptr));
            for (const Zone& z : zones) {
                IGDZone* zone = zoneOf(4, z.top, z.base);
                zone->sch_id = z.sch_id;
                zone->base_id = z.base_id;
                lists.back()->insert(zone);
            }
            pointers.push_back(lists.back().get());
        }
        const IGDList coverage(pointers.data(), static_cast<int>(pointers.size()));
        std::string covered;
        for (const IGDBase* record : coverage) {
            const auto& z = dynamic_cast<const IGDZone&>(*record);
            covered += joined(z.getTop(0), z.getBase(0), z.sch_id, z.base_id);
            EXPECT_EQ(z.sch_id == 1 ? "beta" : "Alpha", z.label());
        }
        EXPECT_EQ(c.covered, covered) << c.name;
        EXPECT_EQ("4|0|F|", joined(coverage.igd_type(), coverage.changed(), coverage.unit()));
    }
}

} // namespace

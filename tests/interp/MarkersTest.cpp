// tests/interp/MarkersTest.cpp
#include "interp/Casing.h"
#include "interp/Intcom.h"
#include "interp/SQPick.h"
#include "interp/Smark.h"
#include "tests/interp/InterpTest.h"

namespace {

TEST_F(InterpTest, CasingAndMarkersStandAtDepthsThatAreNotNegated)
{
    for (const auto& [wellType, unit, deep, shallow] :
        {std::tuple{'W', 'M', "1000", "500"}, {'O', 'F', "3280.84", "1640.42"}}) {
        well.type = wellType;
        const IGDList casings(11, 0, 0, &well, unit, 0, 0, nullptr),
            markers(14, 0, 0, &well, unit, 0, 0, nullptr);
        std::string text = joined(casings.title(), markers.title(), markers.isComplete());
        for (const IGDBase* at : casings) {
            const auto& casing = dynamic_cast<const Casing&>(*at);
            text += joined(casing.value(), casing.getBase(0), casing.label(),
                casing.wellCode.view(), casing.diam.view());
        }
        const auto& marker = dynamic_cast<const Smark&>(*markers.at(0));
        text += joined(marker.value(), marker.wellCode.view(), marker.colour.view(), marker.flag);
        EXPECT_EQ(joined("Casing", "Seismic Marker", 1, shallow, "0| |C-7|20", deep,
                      "0| |C-7|13 3/8", deep, "C-7|red|0"),
            text);
    }
}

TEST_F(InterpTest, PicksAndCommentsKeepTheirOrderAtEqualDepths)
{
    well.LoadSamples(0);
    well.samples.FindById(1)->SetShift(900);
    SQPickList picks;
    IntcomList comments;
    picks.push(new SQPick);
    comments.push(new Intcom(1, 2, "there before"));
    EXPECT_TRUE(loadPicks(picks, well, 0) && loadComments(comments, well, 0));
    std::string text;
    for (const SQPick* p : picks)
        text += joined(p->samp_id, p->sample ? p->depth() : -1, p->surface_id, p->inf, p->bnd,
            int(p->qualifier), p->surface.surface_id, p->surface.name, p->surface.sch_id,
            p->surface.type);
    EXPECT_EQ("1|100|1|x|4|0|1|MFS|1|3|1|100|8|y|3|0|0||0|0|3|210|2|deep|5|81|2|SB|1|4|"
              "9|-1|1||3|0|1|MFS|1|3|",
        text);
    text.clear();
    for (const Intcom* at : comments)
        text += joined(at->getTop(0), at->getBase(0), at->comments, at->type());
    EXPECT_EQ("10|15|one|24|10|12|two|24|20|30|later|24|", text);
}

TEST_F(InterpTest, SequencesStandBetweenTheFirstPicksOfTheirAges)
{
    well.LoadSamples(0);
    struct Pick {
        long samp_id, sch_id;
        float age;
    };
    for (const auto& [rule, rank, picked, expected] :
        {std::tuple{"both boundaries", 7, std::vector<Pick>{{1, 1, 30.00005f}, {3, 1, 66.00005f}},
             "1|100|3|210|"},
            {"almost its age", 7, {{1, 1, 30.00015f}, {3, 1, 66}}, ""},
            {"only one boundary", 7, {{1, 1, 30}}, ""},
            {"no age, as the term", 3, {{1, 1, 0}, {3, 1, 66}}, ""},
            {"a boundary of another scheme", 7, {{1, 1, 30}, {3, 2, 66}}, ""},
            {"the first of several bases", 7, {{1, 1, 30}, {3, 1, 66.00005f}, {2, 1, 66}},
                "1|100|3|210|"},
            {"each of several tops, thinnest first", 7,
                {{1, 1, 30}, {1, 1, 30}, {2, 2, 5}, {2, 1, 30}, {3, 1, 66}},
                "1|100|3|210|1|100|3|210|2|150|3|210|"},
            {"upside down", 7, {{1, 1, 66}, {3, 1, 30}}, "3|210|1|100|"},
            {"a pick without sample", 7, {{9, 1, 66}, {1, 1, 30}, {3, 1, 66}}, "1|100|3|210|"},
            {"the rank above", 8, {{1, 1, 30}, {3, 1, 66}}, ""},
            {"a rank that no list has", 9, {{1, 1, 1}, {3, 1, 2}}, ""}}) {
        SQPickList picks;
        for (const Pick& p : picked) {
            auto* pick = new SQPick;
            pick->samp_id = p.samp_id, pick->sample = well.samples.FindById(p.samp_id);
            pick->surface.sch_id = p.sch_id, pick->surface.age = p.age;
            pick->bnd = int(p.samp_id) + 3;
            picks.push(pick);
        }
        const IGDList list(picks, well, rank);
        std::string zones;
        for (const IGDBase* at : list) {
            const auto& zone = dynamic_cast<const IGDZone&>(*at);
            zones += joined(zone.top_id, zone.getTop(0), zone.base_id, zone.getBase(0));
            EXPECT_EQ(joined(zone.top_id + 3, zone.base_id + 3, "Lower", 1, 0),
                joined(zone.top_bnd, zone.base_bnd, zone.label(), zone.sch_id, zone.hier()));
            EXPECT_STREQ(well.samples.TypeOf(zone.base_id), zone.baseSampleType);
        }
        EXPECT_EQ(expected, zones) << rule;
        EXPECT_EQ(
            "10|7|M|0|", joined(list.igd_type(), list.well_id(), list.unit(), list.changed()));
    }
}

} // namespace

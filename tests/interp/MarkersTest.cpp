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
        const IGDList casings(11, 0, 0, &well, unit, 0, 0, nullptr);
        const IGDList markers(14, 0, 0, &well, unit, 0, 0, nullptr);
        std::string text;
        for (const IGDBase* at : casings) {
            const auto& casing = dynamic_cast<const Casing&>(*at);
            text += joined(casing.value(), casing.wellCode, casing.diam, casing.label());
        }
        const auto& marker = dynamic_cast<const Smark&>(*markers.at(0));
        EXPECT_EQ(joined(shallow, "C-7|20| ", deep, "C-7|13 3/8| ", deep, "C-7|red|0"),
            text + joined(marker.value(), marker.wellCode, marker.colour, marker.flag));
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
        text += joined(p->samp_id, p->sample != nullptr, p->surface_id, p->inf, p->bnd,
            int(p->qualifier), p->surface.surface_id, p->surface.name, p->surface.type);
    for (const Intcom* at : comments)
        text += joined(at->getTop(0), at->getBase(0), at->comments);
    EXPECT_EQ("1|1|1|x|4|0|1|MFS|3|1|1|8|y|3|0|0||0|3|1|2|deep|5|81|2|SB|4|9|0|1||3|0|1|MFS|3|"
              "10|15|one|10|12|two|20|30|later|",
        text);
}

TEST_F(InterpTest, SequencesStandBetweenTheFirstPicksOfTheirAges)
{
    well.LoadSamples(0);
    using Picks = std::vector<std::tuple<long, long, float>>; // sample, scheme, age
    for (const auto& [rule, rank, picked, expected] :
        {std::tuple{"both boundaries", 7, Picks{{1, 1, 30.00005f}, {3, 1, 66}}, "1|100|3|210|"},
            {"almost its age", 7, {{1, 1, 30.00015f}, {3, 1, 66}}, ""},
            {"no age, as the term", 3, {{1, 1, 0}, {3, 1, 66}}, ""},
            {"a boundary of another scheme", 7, {{1, 1, 30}, {3, 2, 66}}, ""},
            {"the first of several bases", 7, {{1, 1, 30}, {3, 1, 66.00005f}, {2, 1, 66}},
                "1|100|3|210|"},
            {"each of several tops, thinnest first", 7,
                {{1, 1, 30}, {1, 1, 30}, {2, 2, 5}, {2, 1, 30}, {3, 1, 66}},
                "1|100|3|210|1|100|3|210|2|150|3|210|"},
            {"a pick without sample", 7, {{9, 1, 66}, {1, 1, 30}, {3, 1, 66}}, "1|100|3|210|"},
            {"a rank that no list has", 9, {{1, 1, 1}, {3, 1, 2}}, ""}}) {
        SQPickList picks;
        for (const auto& [samp_id, sch_id, age] : picked) {
            auto* pick = new SQPick;
            pick->samp_id = samp_id, pick->sample = well.samples.FindById(samp_id);
            pick->surface.sch_id = sch_id, pick->surface.age = age, pick->bnd = int(samp_id) + 3;
            picks.push(pick);
        }
        const IGDList list(picks, well, rank);
        std::string zones;
        for (const IGDBase* at : list) {
            const auto& zone = dynamic_cast<const IGDZone&>(*at);
            zones += joined(zone.top_id, zone.getTop(0), zone.base_id, zone.getBase(0));
            EXPECT_EQ(joined(zone.top_id + 3, zone.base_id + 3, "Lower|1"),
                joined(zone.top_bnd, zone.base_bnd, zone.label(), zone.sch_id));
        }
        EXPECT_EQ(expected, zones) << rule;
        EXPECT_EQ(0, list.changed());
    }
}

} // namespace

// tests/well/SampleStoreTest.cpp
#include "db/CurrentUser.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "tests/support/Restore.h"
#include "tests/well/WellTest.h"

namespace {

constexpr const char* kOne = "1|30|31|SC|3|4|1998-03-05|1998-04-06|AB|CD|one|1|";

using SampleStore = WellTest;

TEST_F(SampleStore, ReadsOneSampleAndItsLabel)
{
    const StatementLog log;
    Sample s(7, 1);
    EXPECT_EQ(kOne, textOf(s));
    EXPECT_EQ("2|20|20|CU|0|0||||||1|", textOf(Sample(7, 2))) << "no code as it stands";
    EXPECT_EQ("0|0|0|CU|0|0||||||0|", textOf(Sample(7, 9))) << "another well's";
    db.run("UPDATE SAMPLES SET label='new' WHERE samp_id=1");
    s.ReloadLabel();
    EXPECT_EQ("new", s.label);
    db.run("DELETE FROM SAMPLES WHERE samp_id=1");
    s.ReloadLabel();
    EXPECT_EQ("", s.label);
    const std::string from = " FROM " + table("SAMPLES") + " s  WHERE s.samp_id=1";
    EXPECT_EQ("SELECT s.top_depth, s.base_depth, s.type, s.grid_x, s.grid_y, s.created, s.modified,"
              " s.creator, s.modifier, s.label"
            + from + " AND s.well_id=7",
        log.statements().front());
    EXPECT_EQ("SELECT s.label" + from, log.statements().back());
}

TEST_F(SampleStore, WritesAChangedSample)
{
    const Restore<FixedText<5>> user(currentUserAbr, "XYZ");
    Sample s(7, 1);
    const StatementLog log;
    s.Update();
    s.SetTop(1000, 'F');
    s.SetBase(0, 'M');
    s.SetLabel("");
    s.Update();
    const std::string metres = sql::number(s.top), today = dateLiteral(Date::Today());
    EXPECT_EQ((Statements{"UPDATE " + table("SAMPLES") + " SET depth=" + metres + ",bot_depth="
                  + metres + ", type='SC',grid_x=3,grid_y=4,label=NULL, modified=" + today
                  + ", modifier='XYZ' WHERE samp_id=1"}),
        log.statements());
    EXPECT_EQ(0, s.saved);
    dbCommit();
    EXPECT_EQ("1|304.8|304.8|SC|3|4|1998-03-05|" + Date::Today().isoText() + "|AB|XYZ||1|",
        textOf(Sample(7, 1)));
}

TEST_F(SampleStore, ReadsMissingSamplesIntoTheirPlace)
{
    Well well;
    well.AddSample(new Sample(7, 3, 25, "CU", 0, 0, 25));
    EXPECT_EQ(-31, well.samples.DepthOf(7, 1, 'M', 1, 0)); // as in an outcrop: before 25
    EXPECT_EQ(20, well.samples.DepthOf(7, 2, 'M', 0, 0));  // before 31
    const StatementLog log;
    EXPECT_NEAR(31 / 0.3048, well.samples.DepthOf(7, 1, 'F', 0, 0), 1e-3);
    EXPECT_EQ(Statements{}, log.statements());
    EXPECT_EQ(0, well.samples.DepthOf(7, 9, 'M', 0, 0));
    EXPECT_EQ((Ids{2, 1, 3}), idsOf(well.samples));
}

class LoadSamples : public WellTest {
protected:
    Well well;
    LoadSamples() { well.well_id = 7; }

    std::string loaded(int reload)
    {
        well.LoadSamples(reload);
        std::string text;
        for (const Sample* s : well.samples)
            text += textOf(*s);
        return text;
    }
};

TEST_F(LoadSamples, ReadsTheListOnceInDepthOrder)
{
    const StatementLog log;
    EXPECT_EQ(std::string("2|20|20|LOG|0|0||||||1|") + kOne, loaded(0));
    loaded(0);
    EXPECT_EQ((Statements{"SELECT samp_id, top_depth, base_depth, type, grid_x, grid_y, created, "
                          "modified, creator, modifier,label FROM "
                  + table("SAMPLES") + " WHERE well_id=7 ORDER BY samp_id"}),
        log.statements());
    Well outcrop;
    outcrop.well_id = 7;
    outcrop.type = 'O';
    outcrop.LoadSamples(0);
    EXPECT_EQ((Ids{1, 2}), idsOf(outcrop.samples));
}

TEST_F(LoadSamples, AgainTakesOverWhatChanged)
{
    loaded(0);
    const std::string before = std::string(kOne) + "3|35|35|SC|0|0|||||x|0|2|0|40|LOG|0|0||||||0|";
    const struct {
        const char* name;
        const char* change;
        std::string samples;
    } kCases[] = {
        {"what is not taken over", "UPDATE SAMPLES SET grid_x=9, creator='ZZ'",
            std::string("2|20|20|LOG|0|0||||||1|") + kOne},
        {"half a millimetre", "UPDATE SAMPLES SET top_depth=30.0005 WHERE samp_id=1",
            std::string("2|20|20|LOG|0|0||||||1|") + kOne},
        {"no base", "UPDATE SAMPLES SET base_depth=0 WHERE samp_id=1",
            std::string("2|20|20|LOG|0|0||||||1|") + kOne},
        {"a deeper one moves", "UPDATE SAMPLES SET base_depth=40 WHERE samp_id=2",
            std::string(kOne) + "2|20|40|LOG|0|0||||||0|"},
        {"no top", "UPDATE SAMPLES SET top_depth=0 WHERE samp_id=2",
            std::string(kOne) + "2|0|40|LOG|0|0||||||0|"},
        {"a new one among them",
            "INSERT INTO SAMPLES (samp_id, well_id, top_depth, type) VALUES (3, 7, 35, 'OC')",
            std::string(kOne) + "3|35|35|OC|0|0||||||1|2|0|40|LOG|0|0||||||0|"},
        {"type and label", "UPDATE SAMPLES SET type='sc ', label='x' WHERE samp_id=3", before},
        {"one without a depth", "INSERT INTO SAMPLES (samp_id, well_id) VALUES (4, 7)",
            "4|0|0|CU|0|0||||||1|" + before},
        {"gets a top", "UPDATE SAMPLES SET top_depth=50 WHERE samp_id=4",
            before + "4|50|0|CU|0|0||||||0|"},
        {"gone rows stay", "DELETE FROM SAMPLES", before + "4|50|0|CU|0|0||||||0|"},
    };
    for (const auto& c : kCases) {
        db.run(c.change);
        EXPECT_EQ(c.samples, loaded(1)) << c.name;
    }
}

TEST(WellSamples, AreAddedOnceAndConverted)
{
    Well well;
    well.AddSample(new Sample(1, 5, 100, "CU", 0, 0, 200));
    Sample same(1, 5, 50, "CU", 0, 0, 50);
    well.AddSample(&same);
    well.AddSample(new Sample(50, 50, "CU", 'M'));
    well.AddSample(new Sample(50, 50, "CU", 'M'));
    EXPECT_EQ((Ids{0, 0, 5}), idsOf(well.samples));
    well.ConvertSampleDepths('M');
    const Sample* deep = well.samples.FindById(5);
    EXPECT_EQ("328.084|656.168|0|", joined(deep->top, deep->base, int(deep->saved)));
    well.ConvertSampleDepths('F');
    EXPECT_NEAR(200, deep->base, 1e-4);
}

} // namespace

// tests/well/SampleDetailsTest.cpp
#include "db/CurrentUser.h"
#include "tests/support/Restore.h"
#include "tests/well/AnalysisData.h"

namespace {

/// Records (M, ABC), (M, XYZ) and (N, ABC), as a user makes them.
struct Details : AnalysisTest {
    Details()
    {
        for (const auto& [disc, analyst] : {std::pair('M', "ABC"), {'M', "XYZ"}, {'N', "ABC"}})
            s.AddDetails(disc, analyst, "pick", "src", "note", 'N');
        s.saved = 1;
    }
    Sample s{100, 110, "SC", 'M'};
};

TEST_F(Details, AreReplacedAndRemovedWithTheirOccurrences)
{
    EXPECT_EQ("ABC|ABC/3|ABCDE/1|",
        joined(analystKey("ABC", 1), analystKey("ABC", 3), analystKey("ABCDE", 19)));
    Smpdtl* old = s.FindDetails('M', "");
    s.AddOccurrence(new Fssabnd(1, 5, 'I', 'P', "", 1, ' ', 0, 'C', 'A'), 'M', "ABC", 1);
    EXPECT_EQ(0, s.occSaved[0]);
    s.AddDetails('M', "ABC", old->picker, old->source, "new", 'Y');
    EXPECT_EQ(
        "M,XYZ,pick,src,note,N,0 N,ABC,pick,src,note,N,0 M,ABC,pick,src,new,Y,0 ", detailsOf(s));
    EXPECT_EQ("0|0|1|0|1|0|",
        joined(int(s.saved), s.CountOccurrences('M', ""), s.IsDisciplineBarren('M'),
            s.IsDisciplineBarren('N'), s.HasAnalyst("XYZ"), s.HasAnalyst("XY")));
    s.AddDetailsFromDb('N', "ABC", "p", "s", 'N', Date(5, 3, 1998), "MOD");
    s.RemoveDetails('M', s.FindDetails('M', "XYZ")->analyst);
    EXPECT_EQ("M,ABC,pick,src,new,Y,0 N,ABC,p,s,,N,1 ", detailsOf(s));
    EXPECT_EQ("0|1|1|", joined(s.detailsLoaded[0], s.detailsLoaded[1], int(s.occSaved[0])));
    s.RemoveDetails('M', "");
    EXPECT_EQ("N,ABC,p,s,,N,1 ", detailsOf(s));
}

TEST_F(Details, ChangeInMemory)
{
    Smpdtl& d = *s.FindDetails('M', "XYZ");
    const auto text = [&d] {
        return joined(d.disc, d.picker, d.notes, d.modifier, d.modified.isoText(), d.barren, d.inDb,
            d.weight, d.coarse, d.medium, d.fine);
    };
    const std::string today = Date::Today().isoText();
    d.inDb = 1;
    d.modifier = "OLD";
    s.SetDetailsModified('M', "XYZ", Date(5, 3, 1998), "NEW", 0);
    s.SetWeight('M', "XYZ", 2);
    s.SetSplitFactors('M', "XYZ", 3, 4, 5);
    s.SetSplitFactors('P', "", 3, 4, 5);
    EXPECT_EQ((Statements{"Attempt to add split factors when no details present"}), boxes.texts());
    EXPECT_EQ("M|pick|note|OLD|" + today + "|N|0|2|3|4|5|", text());
    d.modified = Date();
    s.SetDetailsModified('M', "XYZ", Date(5, 3, 1998), "NEW", 0);
    EXPECT_EQ("M|pick|note|OLD|1998-03-05|N|0|2|3|4|5|", text());
    s.SetDetailsModified('M', "XYZ", Date(6, 3, 1998), "NEW", 1);
    s.SetCreated(Date(), "", 'N');
    EXPECT_EQ("M|pick|note|NEW|1998-03-06|N|0|2|3|4|5|", text());
    s.UpdDtl('M', "XYZ", "P", "S", 'Y', Date(), "UPD");
    s.ChangeDiscipline('M', 'A', "XYZ");
    EXPECT_EQ("A|P||UPD||Y|0|0|0|0|0|", text());
    EXPECT_EQ("0|1|0|", joined(int(s.occSaved[0]), int(s.occSaved[1]), int(s.occSaved[3])));
    d.proximal = 4, s.FindDetails('M', "")->proximal = 3, d.distal = -2;
    long least, most;
    s.ProximalDistal(&least, &most);
    EXPECT_EQ("3|0|", joined(least, most));
}

TEST_F(Details, NotesGrowToTheirField)
{
    const struct {
        std::size_t before;
        const char *text, *after;
    } kCases[] = {
        {237, "abc", " ab"}, {238, "abc", " a"}, {239, "abc", ""}, {237, "a\u00e9", " a"}};
    for (const auto& c : kCases) {
        const std::string before(c.before, 'x');
        s.SetNotes('M', "XYZ", before.c_str());
        s.AppendNotes('M', "XYZ", c.text);
        EXPECT_EQ(before + c.after, s.FindDetails('M', "XYZ")->notes.view()) << c.before;
    }
    s.SetNotes('P', "ABC", "first");
    EXPECT_EQ("|first|1|1|",
        joined(s.FindDetails('P', "")->analyst, s.FindDetails('P', "")->notes,
            s.FindDetails('P', "")->inDb, s.detailsLoaded[2]));
}

TEST_F(Details, ScaleCountsByWeightAndSwitch)
{
    const Restore<std::array<int, 4>> switches(splitSwitches, {7, 7, 7, 7});
    const Restore<int> user(currentUserId, 3);
    db.run("INSERT INTO PREF_USER VALUES (3, 'MFSPLIT', '0'), (3, 'PFSPLIT', '2')");
    Sample::LoadSplitSwitches();
    EXPECT_EQ(
        "0|1|2|1|", joined(splitSwitches[0], splitSwitches[1], splitSwitches[2], splitSwitches[3]));
    for (const char disc : {'M', 'N'})
        s.SetWeight(disc, "", 0.25f);
    EXPECT_EQ("40|10|10|10|",
        joined(s.ScaledCount('N', "", 1, 1, 10), s.ScaledCount('N', "", 0, 1, 10),
            s.ScaledCount('M', "", 1, 1, 10), s.ScaledCount('P', "", 1, 1, 10)));
    s.SetWeight('N', "", 0.00005f);
    EXPECT_EQ(10, s.ScaledCount('N', "", 1, 1, 10));
}

TEST_F(Details, AreReadAndListedByAnalyst)
{
    Sample stored(7, 1);
    stored.LoadDetails('M', "ABC/2");
    stored.LoadDetails('M', "ABC/2");
    stored.LoadDetails('N', "");
    EXPECT_EQ("M,ABC/2,pk,sr,second,Y,1 N,,,,,N,1 ", detailsOf(stored));
    const Smpdtl& d = *stored.FindDetails('M', "");
    EXPECT_EQ("1998-03-05|MO|0.5|2|3|4|6|7|",
        joined(d.modified.isoText(), d.modifier, d.weight, d.coarse, d.medium, d.fine, d.proximal,
            d.distal));
    std::vector<std::string> analysts{"old"};
    stored.ListAnalysts('M', analysts);
    std::ranges::sort(analysts);
    EXPECT_EQ((Statements{"ABC", "ABC/2"}), analysts);
    stored.ListAnalysts(0, analysts);
    EXPECT_EQ(3u, analysts.size());
}

TEST_F(Details, EndTheProcessWhenMissing)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    boxes.echo();
    EXPECT_EXIT(s.UpdDtl('P', "", "", "", 'N', Date(), ""), testing::ExitedWithCode(1),
        "Cannot find sample details in Sample::UpdDtl, sample=  100.00-110.00m SC");
}

} // namespace

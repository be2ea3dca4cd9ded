#include "db/Session.h"
#include "tests/well/WellTest.h"

namespace {

struct SampleData : WellTest {
    Sample one{7, 1, 30, "CU", 0, 0, 31};
};

TEST_F(SampleData, LithologyIsReadWhenAskedFor)
{
    db.run("INSERT INTO LITHDESC (lith_id, descr, abr) VALUES (5, 'Chalk', 'chk'), (3, 'x', NULL)");
    db.run("INSERT INTO ZRSLITH (well_id, samp_id, lith_id, percnt) VALUES (7, 1, 5, 70),"
           " (7, 1, 3, 30), (7, 1, 4, 1), (7, 2, 5, 100), (8, 1, 5, 100)");
    EXPECT_EQ(1, one.HasLithology());
    std::string text;
    for (const Slith* s : one.lithology)
        text += joined(s->samp_id, s->lith_id, s->descr, s->abr, s->percent);
    EXPECT_EQ("1|3|x||30|1|5|Chalk|chk|70|", text);
    one.ClearLithology();
    EXPECT_EQ(0, one.HasLithology()) << "not read again";
}

TEST_F(SampleData, AgesAreReplacedPerInterpretation)
{
    db.run("INSERT INTO ZRSSR VALUES (7, 1, 0, 0.5, 1, 2, 3, 4), (7, 1, NULL, 9, 9, 9, 9, 9),"
           " (7, 1, 2, -0.5, 0, 0, 0, 0), (7, 2, 0, 7, 7, 7, 7, 7)");
    for (const long id : {0L, 2L, 3L, 0L})
        one.LoadSrAge(id);
    EXPECT_EQ(3, one.ages.count());
    EXPECT_EQ(
        "1|1|0|0|", joined(one.HasSrAge(0), one.HasSrAge(2), one.HasSrAge(3), one.HasSrAge(4)));
    const StatementLog log;
    one.SaveSrAge(0);
    one.GetSrAge(4)->age_below = 8;
    one.SaveSrAge(4);
    EXPECT_EQ(1, one.HasSrAge(4));
    dbCommit();
    EXPECT_EQ((Statements{"-0.5|0|2", "0.5|4|0", "0|0|4"}),
        db.rows("SELECT ratio, ageminus, interp_id FROM ZRSSR WHERE samp_id = 1"));
    EXPECT_EQ("DELETE FROM " + table("ZRSSR")
            + " WHERE well_id=7 AND samp_id=1 AND (interp_id=0 OR interp_id is null)",
        log.statements()[0]);
}

TEST_F(SampleData, ACodeReplacesThoseThatShareAnEnd)
{
    db.run("INSERT INTO ZRLITHO VALUES (1, 5, 10), (5, 2, 11), (5, 6, 12)");
    Sample two(7, 2, 50, "CU", 0, 0, 50);
    for (Sample* top : {&one, static_cast<Sample*>(nullptr), &one})
        Litho(top, &two, 13).save();
    dbCommit();
    EXPECT_EQ((Statements{"5|6|12", "1|2|13"}), db.rows("SELECT * FROM ZRLITHO"));
}

} // namespace

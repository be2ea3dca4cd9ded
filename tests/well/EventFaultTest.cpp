#include "dict/EVdictList.h"
#include "tests/support/FaultTable.h"
#include "tests/well/WellTest.h"

namespace {

/// With one row of each table.
struct Parts : WellData {
    Parts()
    {
        for (const char* row : {"WELLTVD VALUES (7, 10, 1)", "ZRLITHO VALUES (1, 9, 4)",
                 "CORES VALUES (7, 100, 110, '7', 'Y')", "CORESHIFT VALUES (7, 100, 2)",
                 "LITHDESC (lith_id) VALUES (5)", "EVENTDIC (ev_id, name) VALUES (3, 'b')",
                 "ZRSLITH (well_id, samp_id, lith_id) VALUES (7, 1, 5)",
                 "ZRSSR (well_id, samp_id, interp_id, ratio) VALUES (7, 1, 2, 0.5)"})
            db.run(std::string("INSERT INTO ") + row);
    }
    Sample one{7, 1, 1, "CU", 0, 0, 1};
};

const FaultCase<Parts> kFaults[] = {
    {"true vertical depths",
        [](Parts&) {
            TVDepth table(2);
            table.AddPoint(5, 5, 'M');
            table.changed = 0;
            table.Load(7);
            return joined(table.count, table.ddepth[0]);
        },
        {{1, "SELECT ddepth", "1|5|", "0|5|"}}},
    {"cores",
        [](Parts&) {
            Well well;
            well.well_id = 7;
            well.LoadCores(0);
            const std::string loaded = joined(well.coresState, well.cores.count());
            return loaded + joined(well.cores.isEmpty() ? 0 : well.cores.next()->shiftTop);
        },
        {{1, "SELECT top_depth", "0|0|0|", "1|0|0|"}, {2, "SELECT depth, shift", "1|1|0|"}}},
    {"lithology",
        [](Parts& t) {
            t.one.AddSlith(new Slith(1, 1, "", "", 1));
            t.one.LoadLithology();
            return joined(t.one.lithology.count(), t.one.lithLoaded);
        },
        {{1, "SELECT l.descr", "0|0|", "0|1|"}}},
    {"age",
        [](Parts& t) {
            t.one.GetSrAge(2)->ratio = 1;
            t.one.LoadSrAge(2);
            return joined(t.one.ages.count(), t.one.HasSrAge(2));
        },
        {{1, "SELECT ratio", "0|0|", "1|0|"}}},
    {"saved age",
        [](Parts& t) {
            t.one.SaveSrAge(2);
            dbCommit();
            return t.db.value("SELECT group_concat(ratio) FROM ZRSSR");
        },
        {{1, "DELETE", "0.5"}, {2, "INSERT", "NULL"}}},
    {"code",
        [](Parts& t) {
            Litho(&t.one, &t.one, 5).save();
            dbCommit();
            return t.db.value("SELECT group_concat(lithcode) FROM ZRLITHO");
        },
        {{1, "DELETE", "4,5", "", true}, {2, "INSERT", "4", "", true}}},
    {"event",
        [](Parts&) {
            SampleList samples;
            EVdictList dictionary;
            const EVt event(7, 0, 3, 'F', 1, samples, dictionary);
            const std::string text = joined(event.sample->samp_id, event.entry->name());
            delete event.sample;
            return text;
        },
        {{1, "SELECT s.top_depth", "0|b|", "0|b|", true},
            {2, "SELECT spec_id", "1||", "1||", true}}},
};

TEST(WellPartFaults, LeaveWhatWasReadAndAreReported) { expectFaults(kFaults); }
TEST(WellPartFaults, EndTheProcessWhereTheyAreFatal) { expectEnds(kFaults); }

} // namespace

// tests/well/WellLoadTest.cpp
#include "dict/EVdictList.h"
#include "taxonomy/TaxonList.h"
#include "tests/well/AnalysisData.h"

namespace {

const std::string kSample = "   30.00-31.00m SC one";

struct LoadWell : AnalysisTest {
    LoadWell() { well.well_id = 7; }

    std::string found() const { return occurrencesOf(well); }
    void loadDetails()
    {
        well.LoadSamples(0);
        well.LoadSampleDetails('M', "");
    }

    Well well;
};

TEST_F(LoadWell, DetailsComeAfterSamplesAndOnce)
{
    StatementLog log;
    well.LoadSampleDetails('M', "");
    EXPECT_EQ((Statements{"Attempt to load sample details before samples"}), boxes.texts());
    EXPECT_EQ(Statements{}, log.statements());
    db.run("INSERT INTO SMPDTL (well_id, samp_id, analy_id) VALUES (7, 99, 11)");
    boxes.clear();
    well.LoadSamples(0);
    well.LoadSampleDetails('M', "ABC"); // no number of a user: none matches, so again
    well.LoadSampleDetails('M', "");
    well.LoadSampleDetails('M', "");
    EXPECT_EQ((Statements{"Attempt to load by analyst in Well::LoadSampleDetails",
                  "Unmatched sample details for sample: 99"}),
        boxes.texts());
    const auto sent = log.statements();
    ASSERT_EQ(3u, sent.size());
    EXPECT_NE(std::string::npos, sent[1].find(" AND h.analyst='ABC' AND h.analyst=u.user_id"));
    EXPECT_EQ("SELECT s.samp_id,u.abr,h.analy_no,s.picker,s.source,s.barren,s.modified,s.modifier,"
              "s.weight,s.coarse,s.medium,s.fine,s.notes,s.proximal,s.distal,h.red,h.green,h.blue,"
              "h.abnsch_id FROM "
            + table("SMPDTL") + " s," + table("ANALY_HDR") + " h," + table("USERDEF")
            + " u WHERE s.well_id=7 AND h.disc_id='M' AND h.analyst=u.user_id AND "
              "s.analy_id=h.analy_id AND s.well_id=h.well_id",
        sent[2]);
    const Smpdtl& d = *well.samples.FindById(1)->FindDetails('M', "ABC");
    EXPECT_EQ("p1|s1|first|1998-03-04|MA|N|1|0.25|1|2|255|128|1|5|",
        joined(d.picker.view(), d.source.view(), d.notes.view(), d.modified.isoText(),
            d.modifier.view(), d.barren, d.inDb, d.weight, d.proximal, d.distal, int(d.red),
            int(d.green), int(d.blue), d.abnsch_id));
}

TEST_F(LoadWell, OccurrencesGoToTheirRecords)
{
    const StatementLog log;
    loadDetails();
    well.loadFss('M', "", 0);
    const std::string once = "2/ABC*: 50=3; 1/ABC*: 50=5 51=4; 1/ABC/2: 50=6; ";
    EXPECT_EQ(once, found());
    well.loadFss('M', "", 0);
    EXPECT_EQ(once, found());
    well.loadFss('M', "ABC", 1);
    EXPECT_EQ("2/ABC*: 50=3; 1/ABC*: 50=5 51=4; 1/ABC/2: 50=6 50=6; ", found())
        << "what was not complete comes again";
    const std::string start = "SELECT samp_id,u.abr,h.analy_no,spec_id,status,ident_type,abund,"
                              "caved,marker,medium,coarse,fine,spec_type_id,preserv,colour,"
                              "t.comments FROM "
        + table("TAXONOCC") + " t," + table("ANALY_HDR") + " h," + table("USERDEF")
        + " u WHERE t.well_id=7 AND t.well_id=h.well_id AND h.disc_id='M' AND "
          "h.analy_id=t.analy_id ";
    const std::string end = " AND u.user_id=h.analyst ORDER BY samp_id, spec_id";
    EXPECT_EQ((Statements{start + end, start + " AND u.abr='ABC'" + end}),
        (Statements{log.statements()[2], log.statements()[3]}));
    const Sample& s = *well.samples.FindById(2);
    const Fssabnd& o = **s.FindDetails('M', "")->occurrences.begin();
    EXPECT_EQ("2|50|R|?|C|C|1|2|3|1|poor|red|long|C|A|0|",
        joined(o.samp_id, o.spec_id, o.status, o.ident_type, o.abund.view(), o.caved, o.marker,
            o.coarse, o.medium, o.fine, o.preserv.view(), o.colour.view(), o.comments.view(),
            o.condition, o.maturity, int(s.occSaved[0])));
    TaxonList taxa;
    well.CollectTaxa('M', taxa);
    EXPECT_EQ(2, taxa.count());
    well.ChangeDiscipline('M', 'A', "ABC/2");
    well.UnloadDiscipline('M', "");
    EXPECT_EQ("1/ABC/2: 50=6 50=6; ", found());
    loadDetails();
    well.loadFss('M', "", 0);
    EXPECT_EQ("2/ABC*: 50=3; 1/ABC/2: 50=6 50=6; 1/ABC*: 50=5 51=4; 1/ABC/2: 50=6; ", found());
    EXPECT_EQ(Statements{}, boxes.texts());
}

TEST_F(LoadWell, OccurrencesBringMissingSamples)
{
    const struct {
        const char* name;
        const char* change;
        void (*prepare)(Well&);
        char disc, wellType;
        Statements reports;
        const char* expected;
    } kCases[] = {
        {"none loaded", "DELETE FROM TAXONOCC WHERE analy_id=12", [](Well&) {}, 'M', 'W', {},
            "2/ABC*: 50=3; 1/ABC*: 50=5 51=4; "},
        {"an outcrop", "UPDATE WELLS SET type='O'", [](Well&) {}, 'M', 'O', {},
            "1/ABC*: 50=5 51=4; 2/ABC*: 50=3; "},
        {"half of them loaded", "UPDATE WELLS SET type='W'",
            [](Well& w) {
                w.AddSample(new Sample(7L, 1L));
                w.samplesLoaded = 1;
                w.LoadSampleDetails('M', "");
            },
            'M', 'W', {"Unmatched sample details for sample: 2"},
            "2/ABC*: 50=3; 1/ABC*: 50=5 51=4; 1/ABC/2:; "},
        {"no details", "DELETE FROM SMPDTL WHERE analy_id=13", [](Well&) {}, 'N', 'W',
            {"Occurrence record found with no sample details at: " + kSample}, "1/XY*: 52=7; "},
        {"no sample",
            "INSERT INTO TAXONOCC (well_id, samp_id, spec_id, analy_id) VALUES (7, 0, 1, 13),"
            " (7, 99, 1, 13), (7, 99, 2, 13)",
            [](Well& w) {
                (w.AddSample(new Sample(7L, 1L)), w.samples.next())
                    ->AddDetails('N', "XY", "", "", "", 'N');
            },
            'N', 'W', Statements(3, "sample id not in database in well.loadFss"), "1/XY*: 52=7; "},
    };
    for (const auto& c : kCases) {
        db.run(c.change);
        boxes.clear();
        Well w;
        w.well_id = 7;
        w.type = c.wellType;
        c.prepare(w);
        w.loadFss(c.disc, "", 0);
        EXPECT_EQ(c.expected, occurrencesOf(w)) << c.name;
        EXPECT_EQ(c.reports, boxes.texts()) << c.name;
        EXPECT_EQ(1, w.occurrencesLoaded[c.disc == 'N']) << c.name;
    }
}

TEST_F(LoadWell, OccurrencesNeedTheDetailsOfAListedSample)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    boxes.echo();
    const std::string report = "null analyst for sample: " + kSample;
    EXPECT_EXIT(well.loadFss('M', "", 0), testing::ExitedWithCode(1), report)
        << "a second analyst of a sample that was not listed";
    well.LoadSamples(0);
    EXPECT_EXIT(well.loadFss('N', "", 0), testing::ExitedWithCode(1), report);
}

TEST_F(LoadWell, CommentsAreThoseOfTheInterpretation)
{
    const std::string word(1022, 'x');
    db.run("INSERT INTO BCMMNTS VALUES (1, 0, 'M', 'ABC', 'zero'), (2, NULL, 'M', 'ABC', 'none'),"
           " (1, 5, 'M', 'ABC', '"
        + word + "\u00e9 y')");
    const auto comment = [this](long usamp_id, long interp_id) {
        char out[1024] = "before";
        const int none = well.LoadComment('M', usamp_id, "ABC", out, interp_id);
        return joined(none, out);
    };
    EXPECT_EQ("0|zero|", comment(1, 0));
    EXPECT_EQ("0|none|", comment(2, 0));
    EXPECT_EQ("0|" + word + "|", comment(1, 5)) << "cut at a character";
    EXPECT_EQ("1||", comment(2, 5));
    std::string whole;
    well.LoadComment('M', 1, "ABC", whole, 5);
    EXPECT_EQ(word + "\u00e9 y", whole);
}

TEST_F(LoadWell, LithologyGoesToSamples)
{
    db.run("INSERT INTO LITHDESC (lithcode, lithdescr, lithabr) VALUES (3, 'Sand', 'Snd')");
    db.run("INSERT INTO ZRSLITH (well_id, samp_id, lith_id, percent) VALUES (7, 1, 3, 60),"
           " (7, 99, 3, 40)");
    well.LoadSamples(0);
    well.LoadSampleLithology(0);
    well.LoadSampleLithology(0);
    well.LoadSampleLithology(1);
    const SlithList& list = well.samples.FindById(1)->lithology;
    const Slith& part = **list.begin();
    EXPECT_EQ("2|1|3|Sand|Snd|60|",
        joined(list.count(), part.samp_id, part.lith_id, part.descr, part.abr, part.percent));
    EXPECT_EQ(Statements(2, "Mismatched sample: 99 in zrslith"), boxes.texts());
    Well other;
    {
        const DriverFault fault(1, "SQLExecDirect");
        other.LoadSampleLithology(0);
    }
    EXPECT_EQ(4u, boxes.texts().size()) << "and goes on";
    db.run("DROP TABLE ZRSLITH");
    other.LoadSampleLithology(0);
    EXPECT_EQ("4|0|", joined(boxes.texts().size(), other.slithLoaded));
}

TEST_F(LoadWell, EventsGoToTheirPlace)
{
    db.run("INSERT INTO EVENTDIC (ev_id, name) VALUES (1, 'b'), (2, 'a')");
    db.run("INSERT INTO EVENTS (ev_id, well_id, interp_id, ev_type, samp_id, disc_id, analyst,"
           " qualifier, comments, source, company, modified) VALUES (1, 7, 4, 'F', 1, 'M', 'an',"
           " 'qu', 'co', 'so', 'cy', '1998-03-05'), (2, 7, 4, 'L', 2, NULL, NULL, NULL, NULL,"
           " NULL, NULL, NULL), (1, 7, 5, 'F', 2, 'M', 'an', 'qu', 'co', 'so', 'cy', NULL)");
    EVdictList dictionary;
    well.LoadEvents(4, dictionary, 0, 0);
    const auto text = [this] {
        std::string all;
        for (const EVt* e : well.events)
            all += joined(e->interp_id, e->ev_id, e->kind, e->sample->samp_id);
        return all;
    };
    EXPECT_EQ("4|2|L|2|4|1|F|1|", text());
    const EVt* deep = *std::next(well.events.begin());
    EXPECT_EQ("M|an|qu|co|so|cy|1998-03-05|",
        joined(deep->disc_id, deep->analyst, deep->qualifier, deep->comments, deep->source,
            deep->company, deep->modified.isoText()));
    well.type = 'O';
    well.LoadEvents(5, dictionary, 1, 0);
    EXPECT_EQ("4|2|L|2|4|1|F|1|5|1|F|2|", text()) << "by name, then deepest first";
    well.RemoveEvent(1);
    EXPECT_EQ("4|2|L|2|", text());
}

TEST_F(LoadWell, AgesGiveDepths)
{
    db.run("INSERT INTO IGD_DICT (igd_id, u_age, l_age) VALUES (1, 10, 20), (2, 20, 30),"
           " (3, 30, 40)");
    db.run("INSERT INTO SAMPLES (samp_id, well_id, base_depth) VALUES (3, 7, 90), (4, 7, -5)");
    const struct {
        const char* name;
        const char* intervals;
        float young, old, top, base;
    } kCases[] = {
        {"with a margin", "(7, 3, 2, 1, 1, 1), (7, 3, 1, 3, 2, 2)", 10.09f, 29.91f, 20, 90},
        {"beyond it", "(7, 3, 2, 1, 1, 1), (7, 3, 1, 3, 2, 2)", 10.2f, 30, 31, 90},
        {"a deeper lower term", "(7, 3, 2, 1, 1, 1), (7, 3, 1, 3, 3, 2)", 10, 30, 20, 90},
        {"above the datum", "(7, 3, 4, 4, 1, 3)", 10, 30, -5, -5},
        {"another well", "(8, 3, 2, 1, 1, 1)", 10, 30, 0, 0},
    };
    for (const auto& c : kCases) {
        db.run("DELETE FROM IGD");
        db.run(std::string("INSERT INTO IGD (well_id, igd_type, top_id, base_id, upp_zone,"
                           " low_zone) VALUES ")
            + c.intervals);
        float top = 1, base = 1;
        well.AgeRangeDepths(c.young, c.old, &top, &base);
        EXPECT_EQ(joined(c.top, c.base), joined(top, base)) << c.name;
    }
}

TEST_F(LoadWell, ReportsAreWritten)
{
    int totals[4] = {9, 9, 9, 9};
    std::ostringstream out;
    well.WriteSummary(out, totals, 0, 0);
    well.ListLithologyIntervals(out);
    EXPECT_EQ("\nWell name: ( no name )\nNo samples for this well", out.str());
    well.well_name = "Seven";
    loadDetails();
    well.loadFss('M', "", 0);
    out.str("");
    well.WriteSummary(out, totals, 0, 0);
    EXPECT_EQ("\nWell name: Seven\nTotal: 2 samples, depth range 20.00m to 31.00m\nTotal M "
              "occurrences: 4\nTotal N occurrences: 0\nTotal P occurrences: 0\nTotal A "
              "occurrences: 0",
        out.str());
    EXPECT_EQ("4|0|2|", joined(totals[0], totals[3], well.sampleCount));
    well.lithology.push(new Litho(well.samples.FindById(2), well.samples.FindById(1), 4));
    well.lithology.push(new Litho(nullptr, well.samples.FindById(2), 1));
    out.str("");
    well.ListLithologyIntervals(out);
    EXPECT_EQ("\n2 lithology intervals, 20m to 31m", out.str());
    well.SaveLithologyIntervals();
    EXPECT_EQ((Statements{"2|1|4"}), db.rows("SELECT top_id, base_id, lithcode FROM ZRLITHO"));
    char text[600];
    well.Summary(text, totals, 'F', 1);
    EXPECT_STREQ("\nWell name: Seven\nTotal: 2 samples, depth range 65.62' to 101.71'"
                 "\nTotal occurrences: 4\nRead into discipline: M",
        text);
    out.str("");
    well.LoadSampleDetails('N', "");
    well.ListSamples(out);
    const std::string none = "\nDiscipline: N\nDiscipline: P\nDiscipline: A";
    const std::string plain = "\nStatus: I,Type P, , Counts: ", end = ", SIPM: 0";
    EXPECT_EQ("\nList of samples from well:\tSeven\nSample depth:\t65.6168\nDiscipline: M"
              "\nStatus: R,Type ?, C, Counts: 3, SIPM: 0"
            + none + "\nSample depth:\t101.706\nDiscipline: M" + plain + "5" + end + plain + "4"
            + end + plain + "6" + end + none + "\nEnd of Sample list",
        out.str());
    EXPECT_EQ(2, well.samples.next()->samp_id) << "they stay";
}

} // namespace

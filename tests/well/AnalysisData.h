// tests/well/AnalysisData.h
#pragma once

#include "tests/well/WellTest.h"

#include <algorithm>

/// Well 7 with analyses in M (by ABC twice) and N (by XY), details of its samples 1 and 2 and of a
/// sample 99 that the well does not have, and occurrences.
struct AnalysisData : WellData {
    AnalysisData()
    {
        db.run("INSERT INTO USERDEF VALUES (1, 'ABC'), (2, 'XY')");
        db.run("INSERT INTO ANALY_HDR (well_id, analy_id, disc_id, analyst, analy_no, red, green,"
               " blue, abnsch_id) VALUES (7, 11, 'M', 1, 1, 255, 128, 1, 5),"
               " (7, 12, 'M', 1, 2, 0, 0, 0, 0), (7, 13, 'N', 2, 1, 0, 0, 0, 0)");
        db.run("INSERT INTO SMPDTL (well_id, samp_id, analy_id, picker, source, barren, modified,"
               " modifier, weight, coarse, medium, fine, notes, proximal, distal) VALUES"
               " (7, 1, 11, 'p1', 's1', 'N', '1998-03-04', 'MA', 0.25, 1, 1, 1, 'first', 1, 2),"
               " (7, 1, 12, 'pk', 'sr', 'Y', '1998-03-05', 'MO', 0.5, 2, 3, 4, 'second', 6, 7),"
               " (7, 2, 11, NULL, NULL, 'N', NULL, NULL, NULL, NULL, NULL, NULL, NULL, 0, 0),"
               " (7, 1, 13, NULL, NULL, 'N', NULL, NULL, NULL, NULL, NULL, NULL, NULL, 0, 0)");
        db.run("INSERT INTO TAXONOCC (well_id, samp_id, spec_id, analy_id, status, ident_type,"
               " abund, caved, marker, medium, coarse, fine, preserv, colour, comments) VALUES"
               " (7, 2, 50, 11, 'R', '?', 'C', 'C', 'Y', 3, 2, 1, 'poor', 'red', 'long'),"
               " (7, 1, 51, 11, 'I', 'P', NULL, NULL, 'N', 4, 0, 0, NULL, NULL, NULL),"
               " (7, 1, 50, 11, NULL, NULL, NULL, NULL, NULL, 5, 0, 0, NULL, NULL, NULL),"
               " (7, 1, 50, 12, NULL, NULL, NULL, NULL, NULL, 6, 0, 0, NULL, NULL, NULL),"
               " (7, 1, 52, 13, NULL, NULL, NULL, NULL, NULL, 7, 0, 0, NULL, NULL, NULL)");
    }
};

class AnalysisTest : public testing::Test, protected AnalysisData {};

inline std::string detailsOf(const Sample& s)
{
    std::ostringstream text;
    for (const Smpdtl* d : s.details)
        text << d->disc << ',' << d->analyst << ',' << d->picker << ',' << d->source << ','
             << d->notes << ',' << d->barren << ',' << d->inDb << ' ';
    return text.str();
}

/// "sample/analyst:taxon=medium ..." of every sample and record, a star on complete records.
inline std::string occurrencesOf(const Well& w)
{
    std::ostringstream text;
    for (const Sample* s : w.samples) {
        for (const Smpdtl* d : s->details) {
            text << s->samp_id << '/' << d->analyst << (d->occComplete ? "*:" : ":");
            for (const Fssabnd* o : d->occurrences)
                text << ' ' << o->spec_id << '=' << o->medium;
            text << "; ";
        }
    }
    return text.str();
}

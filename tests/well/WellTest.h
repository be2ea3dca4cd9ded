// tests/well/WellTest.h
#pragma once

#include "tests/support/MessageLog.h"
#include "tests/support/TestDatabase.h"
#include "util/Date.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// A table name, and a date, as statements carry them in this process.
inline std::string table(const std::string& name) { return testSettings().prefix + name; }
inline std::string dateLiteral(Date date)
{
    return testSettings().kind == 2 ? "'" + date.compactText() + "'" : "#" + date.isoText() + "#";
}

using Statements = std::vector<std::string>;
using Ids = std::vector<long>;

inline Ids idsOf(const SampleList& list)
{
    Ids ids;
    for (const Sample* s : list)
        ids.push_back(s->samp_id);
    return ids;
}

/// The values joined by bars.
template <typename... Values> std::string joined(const Values&... values)
{
    std::ostringstream text;
    ((text << values << '|'), ...);
    return text.str();
}

inline std::string textOf(const Sample& s)
{
    return joined(s.samp_id, s.top, s.base, s.GetType(), s.grid_x, s.grid_y, s.created.isoText(),
        s.modified.isoText(), s.creator.view(), s.modifier.view(), s.label.view(), int(s.saved));
}

inline std::string identityOf(const Well& w)
{
    return joined(w.well_id, w.well_code.view(), w.GetName(), w.descrip, int(w.identified));
}

inline std::string headerOf(const Well& w)
{
    return joined(w.well_name.view(), w.operator_.view(), w.country.view(), w.field.view(),
        w.grid_x, w.grid_y, w.lat_dec, w.long_dec, w.td, w.sl, w.sb, w.rte, w.type, w.units,
        int(w.datum), w.spud_date.isoText(), w.comp_date.isoText(), w.geoDatum, w.kicko,
        w.ocs.view(), w.county.view());
}

/// A database with well 7, a well that has no identifier, and samples. Message boxes are kept.
struct WellData {
    WellData()
    {
        db.run(
            "INSERT INTO WELLS (well_code, well_name, operator, country, field, grid_x, grid_y,"
            " lat_dec, long_dec, td, sl, sb, rte, type, units, datum, spud_date, comp_date,"
            " geoDatum, kicko, ocs, county) VALUES ('C-7', 'Well Seven', 'Oper', 'Land', 'Field',"
            " 11, 12, 61.25, 2.5, 3000.5, 1.5, -90.25, 25.5, 'O', 'F', 2, '1998-03-05',"
            " '1998-04-06', 'ED50', 500.5, 'OCS-1', 'Shire')");
        db.run("INSERT INTO WELL_IDENT VALUES (7, 'C-7', 'the seventh')");
        db.run("INSERT INTO WELLS (well_code, well_name) VALUES ('LONE', 'Lone well of 25 letters "
               "x')");
        db.run("INSERT INTO SAMPLES (samp_id, well_id, top_depth, base_depth, type, label, grid_x,"
               " grid_y, created, modified, creator, modifier) VALUES"
               " (1, 7, 30, 31, 'SC', 'one', 3, 4, '1998-03-05', '1998-04-06', 'AB', 'CD'),"
               " (2, 7, 20, 0, 'log', NULL, 0, 0, NULL, NULL, NULL, NULL),"
               " (9, 8, 20, 0, 'CU', NULL, 0, 0, NULL, NULL, NULL, NULL)");
    }

    TestDatabase db;
    MessageLog boxes;
};

class WellTest : public testing::Test, protected WellData {};

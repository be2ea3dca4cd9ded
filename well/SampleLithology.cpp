// well/SampleLithology.cpp
#include "well/Sample.h"

#include "db/Cursor.h"
#include "db/Literals.h"

void Sample::LoadLithology()
{
    ClearLithology();
    const std::string sql = "SELECT l.descr, l.abr, s.lith_id, s.percnt FROM "
        + sql::table("ZRSLITH") + " s, " + sql::table("LITHDESC")
        + " l WHERE s.well_id=" + sql::integer(well_id) + " AND s.samp_id=" + sql::integer(samp_id)
        + " AND s.lith_id=l.lith_id ORDER BY s.lith_id";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    while (rows.next()) {
        const std::string descr = rows.text(1);
        const std::string abr = rows.text(2);
        const long lith_id = rows.integer(3);
        AddSlith(new Slith(samp_id, lith_id, descr.c_str(), abr.c_str(), rows.integer(4)));
    }
    lithLoaded = 1;
}

int Sample::HasLithology()
{
    if (!lithLoaded)
        LoadLithology();
    return !lithology.isEmpty();
}

void Sample::ClearLithology() { lithology.destroyAll(); }

void Sample::AddSlith(Slith* s) { lithology.push(s); }

// well/LoadSampleLithology.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/SchemaInspection.h"
#include "well/Sample.h"

void Well::LoadSampleLithology(int reload)
{
    if ((slithLoaded && !reload) || !tableExists("ZRSLITH"))
        return;
    const std::string sql = "SELECT s.samp_id, l.lithdescr, l.lithabr, s.lith_id, s.percent FROM "
        + sql::table("ZRSLITH") + " s, " + sql::table("LITHDESC")
        + " l WHERE well_id =" + sql::integer(well_id) + " AND s.lith_id=l.lithcode";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    while (rows.next()) {
        const long samp_id = rows.integer(1);
        Sample* s = samples.FindById(samp_id);
        if (!s) {
            reportError("Mismatched sample: " + std::to_string(samp_id) + " in zrslith");
            continue;
        }
        const std::string descr = rows.text(2), abr = rows.text(3);
        const long lith_id = rows.integer(4);
        s->AddSlith(new Slith(samp_id, lith_id, descr.c_str(), abr.c_str(), rows.integer(5)));
    }
    slithLoaded = 1;
}

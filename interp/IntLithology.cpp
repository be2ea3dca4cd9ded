// interp/IntLithology.cpp
#include "interp/IGDList.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "interp/IntLithZone.h"
#include "interp/LithRows.h"

bool loadIntLithology(IGDList& list, const IGDLoad& from)
{
    list.setTitle("Interval Lithology");
    const std::string sql = "SELECT S.top_depth, S.base_depth, L.descr, L.abr, S.lith_id FROM "
        + sql::table("ZRILITH") + " S," + sql::table("LITHDESC") + " L WHERE S.well_id="
        + sql::integer(list.well_id()) + " AND L.lith_id = S.lith_id ORDER BY S.top_depth";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    while (rows.next()) {
        const float top = lithDepth(list, from.well, rows.number(1));
        const float base = lithDepth(list, from.well, rows.number(2));
        const std::string descr = rows.text(3), abr = rows.text(4);
        list.insert(new IntLithZone(top, base, rows.integer(5), descr.c_str(), abr.c_str()));
    }
    return rows.readAll();
}

bool saveIntLithology(const IGDList& list, char unit, int negate)
{
    return replaceLithRows("ZRILITH", list, [&](const IGDBase& record) {
        const auto& zone = dynamic_cast<const IntLithZone&>(record);
        return insertLithRow("ZRILITH", lithRow(list, zone, zone.lith_id, unit, negate)) + ")";
    });
}

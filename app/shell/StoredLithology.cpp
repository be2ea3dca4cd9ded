// app/shell/StoredLithology.cpp
#include "app/shell/StoredLithology.h"

#include "db/Cursor.h"
#include "db/Literals.h"

#include <algorithm>

namespace {

enum class Columns { OfRocks, OfQualifiers };

StoredLithology rowOf(const Cursor& row, Columns columns)
{
    StoredLithology stored;
    stored.top = row.number(1);
    stored.base = row.number(2);
    stored.lith_id = row.integer(3);
    if (columns == Columns::OfRocks)
        return stored;
    stored.kind = row.letter(4);
    stored.alignment = row.letter(5);
    stored.place = row.number(6);
    stored.text = row.text(7);
    return stored;
}

StoredLithologies rowsOf(const std::string& select, Columns columns)
{
    Cursor rows(select);
    if (!rows) {
        reportDbFailure(select, Fatal::No);
        return std::nullopt;
    }
    std::vector<StoredLithology> stored;
    while (rows.next())
        stored.push_back(rowOf(rows, columns));
    if (!rows.readAll())
        return std::nullopt;
    std::sort(stored.begin(), stored.end());
    return stored;
}

std::string rocksOf(long well_id)
{
    return "SELECT S.top_depth, S.base_depth, S.lith_id FROM " + sql::table("ZRILITH")
        + " S WHERE S.well_id=" + sql::integer(well_id);
}

} // namespace

StoredLithologies storedRocks(long well_id) { return rowsOf(rocksOf(well_id), Columns::OfRocks); }

StoredLithologies storedUnknownRocks(long well_id)
{
    return rowsOf(rocksOf(well_id) + " AND NOT EXISTS (SELECT L.lith_id FROM "
            + sql::table("LITHDESC") + " L WHERE L.lith_id = S.lith_id)",
        Columns::OfRocks);
}

StoredLithologies storedQualifiers(long well_id)
{
    return rowsOf("SELECT top_depth, base_depth, lith_id, type, alignment, plotpos, txt FROM "
            + sql::table("ZRQLITH") + " WHERE well_id=" + sql::integer(well_id),
        Columns::OfQualifiers);
}

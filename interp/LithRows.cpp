// interp/LithRows.cpp
#include "interp/LithRows.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Units.h"
#include "interp/IGDList.h"
#include "interp/LoadedDepths.h"

#include <algorithm>

namespace {

// Single precision, as the depths themselves: a row just at the edge is to be met by every record
// that was read from it.
constexpr float kSameDepth = 0.01f;

/// As `runOrReport`, but a statement that ran and could not be closed, which the session reported,
/// counts as failed: it would keep the commit from being made, and the list would pass for saved.
bool ranToItsEnd(const std::string& sql)
{
    Cursor statement(sql);
    if (!statement)
        reportDbFailure(sql, Fatal::No);
    return statement && statement.close() == 0;
}

} // namespace

std::string insertLithRow(const char* table, const LithRow& row, const char* moreColumns)
{
    return "INSERT INTO " + sql::table(table) + " (well_id, top_depth, base_depth, lith_id"
        + moreColumns + ") VALUES(" + sql::integer(row.well_id) + ", " + sql::number(row.top) + ", "
        + sql::number(row.base) + ", " + sql::integer(row.lith_id);
}

std::string deleteLithRows(const char* table, long well_id, float top)
{
    return "DELETE FROM " + sql::table(table) + " WHERE well_id =" + sql::integer(well_id)
        + " AND top_depth" + isAbout(top);
}

std::string isAbout(float depth)
{
    return " BETWEEN " + sql::number(depth - kSameDepth) + " AND "
        + sql::number(depth + kSameDepth);
}

float lithDepth(const IGDList& list, const Well& well, double metres)
{
    const float depth = depthFromMetres(list, metres);
    return negates(well) ? -depth : depth;
}

LithRow lithRow(const IGDList& list, const IGDBase& record, long lith_id, char unit, int negate)
{
    return {list.well_id(), toMetres(record.getTop(negate), unit),
        toMetres(record.getBase(negate), unit), lith_id};
}

bool replaceLithRows(const char* table, const IGDList& list,
    const std::function<std::string(const IGDBase& record)>& insertOf)
{
    return ranToItsEnd("DELETE FROM " + sql::table(table)
               + " WHERE well_id=" + sql::integer(list.well_id()))
        && std::all_of(list.begin(), list.end(),
            [&](const IGDBase* record) { return ranToItsEnd(insertOf(*record)); });
}

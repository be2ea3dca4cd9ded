// well/SampleStore.cpp
#include "well/Sample.h"

#include "db/CurrentUser.h"
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "well/SampleRow.h"
#include "well/SampleType.h"

namespace {

/// The row, or none; a failure was reported then.
SampleRow readRow(long well_id, long samp_id)
{
    const std::string sql =
        "SELECT s.top_depth, s.base_depth, s.type, s.grid_x, s.grid_y, s.created, s.modified, "
        "s.creator, s.modifier, s.label FROM "
        + sql::table("SAMPLES") + " s  WHERE s.samp_id=" + sql::integer(samp_id)
        + " AND s.well_id=" + sql::integer(well_id);
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::Yes);
        return {};
    }
    if (!row.next())
        return {};
    return SampleRow(samp_id, row, 1);
}

} // namespace

SampleRow::SampleRow(long sampId, const Cursor& row, short first)
    : samp_id(sampId)
{
    // A column can be read once only and in order.
    top = static_cast<float>(row.number(first++));
    base = static_cast<float>(row.number(first++));
    type = row.text(first++);
    grid_x = row.integer(first++);
    grid_y = row.integer(first++);
    created = sql::parsedDate(row.text(first++).c_str());
    modified = sql::parsedDate(row.text(first++).c_str());
    creator = row.text(first++);
    modifier = row.text(first++);
    label = row.text(first);
}

Sample::Sample(long wellId, long sampId)
    : Sample(wellId, readRow(wellId, sampId))
{
}

Sample::Sample(long wellId, const SampleRow& row)
    : Sample(wellId, row.samp_id, Interval(row.top, row.base), knownSampleType(row.type))
{
    grid_x = row.grid_x;
    grid_y = row.grid_y;
    created = row.created;
    modified = row.modified;
    creator = row.creator;
    modifier = row.modifier;
    label = row.label;
    saved = row.samp_id != 0;
}

void Sample::ReloadLabel()
{
    const std::string sql = "SELECT s.label FROM " + sql::table("SAMPLES")
        + " s  WHERE s.samp_id=" + sql::integer(samp_id);
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::Yes);
        return;
    }
    label = row.next() ? row.text(1) : "";
}

void Sample::Update()
{
    FixDepths();
    if (saved)
        return;
    modified = Date::Today();
    const std::string sql = "UPDATE " + sql::table("SAMPLES") + " SET depth=" + sql::number(top)
        + ",bot_depth=" + sql::number(base) + ", type=" + sql::quote(type.view())
        + ",grid_x=" + sql::integer(grid_x) + ",grid_y=" + sql::integer(grid_y)
        + ",label=" + sql::quote(label.view()) + ", modified=" + sql::date(modified) + ", modifier="
        + sql::quote(currentUserAbr.view()) + " WHERE samp_id=" + sql::integer(samp_id);
    if (!runStatement(sql))
        reportDbFailure(sql, Fatal::No);
}

// well/LoadEvents.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "dict/EVdictList.h"

#include <memory>

namespace {

std::unique_ptr<EVt> readEvent(
    Well& well, long interp_id, EVdictList& dictionary, const Cursor& row)
{
    const long ev_id = row.integer(1);
    const char kind = row.letter(2);
    auto event = std::make_unique<EVt>(
        well.well_id, interp_id, ev_id, kind, row.integer(3), well.samples, dictionary);
    event->disc_id = row.letter(4);
    event->analyst = row.text(5);
    event->qualifier = row.text(6);
    event->comments = row.text(7);
    event->source = row.text(8);
    event->company = row.text(9);
    event->modified = sql::parsedDate(row.text(10).c_str());
    return event;
}

} // namespace

void Well::LoadEvents(long interp_id, EVdictList& dictionary, int mode, int reverse)
{
    const std::string sql =
        "SELECT ev_id, ev_type, samp_id ,disc_id,analyst,qualifier,comments,source,company,"
        "modified FROM "
        + sql::table("EVENTS") + " WHERE well_id = " + sql::integer(well_id)
        + " AND interp_id=" + sql::integer(interp_id);
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::Yes);
        return;
    }
    events.sortBy(mode, type, reverse);
    while (rows.next())
        events.insertSorted(readEvent(*this, interp_id, dictionary, rows).release(), type, reverse);
}

void Well::RemoveEvent(long ev_id)
{
    events.destroyIf([ev_id](const EVt& event) { return event.ev_id == ev_id; });
}

// interp/LoadMarkers.cpp
#include "interp/IGDList.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Lookups.h"
#include "interp/Casing.h"
#include "interp/LoadedDepths.h"
#include "interp/Smark.h"

namespace {

/// Reads the depths of a table, each with a text beside it. They are not negated, whatever the
/// well: what is drilled from above is measured from above. False after a reported failure.
template <typename MakeRecord>
bool loadDepths(IGDList& list, const char* textColumn, const char* table, MakeRecord makeRecord)
{
    const FixedText<25> wellCode = wellCodeOf(list.well_id());
    const std::string sql = std::string("SELECT depth, ") + textColumn + " FROM "
        + sql::table(table) + " WHERE well_id=" + sql::integer(list.well_id());
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    while (rows.next()) {
        const float depth = depthFromMetres(list, rows.number(1));
        list.insert(makeRecord(wellCode, depth, rows.text(2).c_str()));
    }
    return rows.readAll();
}

} // namespace

bool loadCasings(IGDList& list, const IGDLoad&)
{
    list.setTitle("Casing");
    return loadDepths(
        list, "diam", "CASING", [](const char* wellCode, float depth, const char* diam) {
            return new Casing(wellCode, depth, diam);
        });
}

bool loadSeismicMarkers(IGDList& list, const IGDLoad&)
{
    list.setTitle("Seismic Marker");
    return loadDepths(
        list, "colour", "WELLSMARK", [](const char* wellCode, float depth, const char* colour) {
            return new Smark(wellCode, depth, colour, 0);
        });
}

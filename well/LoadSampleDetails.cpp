// well/LoadSampleDetails.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TextArgument.h"
#include "well/Sample.h"

namespace {

std::string detailsSql(long well_id, char disc, std::string_view analyst)
{
    std::string sql =
        "SELECT s.samp_id,u.abr,h.analy_no,s.picker,s.source,s.barren,s.modified,s.modifier,"
        "s.weight,s.coarse,s.medium,s.fine,s.notes,s.proximal,s.distal,h.red,h.green,h.blue,"
        "h.abnsch_id FROM "
        + sql::table("SMPDTL") + " s," + sql::table("ANALY_HDR") + " h," + sql::table("USERDEF")
        + " u WHERE s.well_id=" + sql::integer(well_id) + " AND h.disc_id=" + sql::quoteChar(disc);
    if (!analyst.empty()) {
        sql += " AND h.analyst=" + sql::quote(analyst);
        reportError("Attempt to load by analyst in Well::LoadSampleDetails");
    }
    return sql + " AND h.analyst=u.user_id AND s.analy_id=h.analy_id AND s.well_id=h.well_id";
}

AnalystKey readKey(const Cursor& row)
{
    const std::string abr = row.text(2);
    return analystKey(abr, row.integer(3));
}

/// Columns 4 to 8.
Smpdtl& addRecord(Sample& s, char disc, const AnalystKey& key, const Cursor& row)
{
    const std::string picker = row.text(4), source = row.text(5);
    const char barren = row.letter(6);
    const Date modified = sql::parsedDate(row.text(7).c_str());
    s.RemoveDetails(disc, key);
    return *s.AddDetailsFromDb(
        disc, key, picker.c_str(), source.c_str(), barren, modified, row.text(8).c_str());
}

/// The columns behind them.
void readRest(Smpdtl& record, const Cursor& row)
{
    record.weight = static_cast<float>(row.number(9));
    record.coarse = static_cast<float>(row.number(10));
    record.medium = static_cast<float>(row.number(11));
    record.fine = static_cast<float>(row.number(12));
    record.notes = row.text(13);
    record.proximal = row.integer(14);
    record.distal = row.integer(15);
    record.red = static_cast<unsigned char>(row.integer(16));
    record.green = static_cast<unsigned char>(row.integer(17));
    record.blue = static_cast<unsigned char>(row.integer(18));
    record.abnsch_id = row.integer(19);
}

} // namespace

void Well::LoadSampleDetails(char disc, const char* analyst)
{
    if (!samplesLoaded) {
        reportError("Attempt to load sample details before samples");
        return;
    }
    int& loaded = detailsLoaded[discIndex(disc)];
    if (loaded)
        return;
    Cursor rows(detailsSql(well_id, disc, orEmpty(analyst)));
    if (!rows) {
        reportDbFailureAs("Error selecting sample details list", Fatal::Yes);
        return;
    }
    while (rows.next()) {
        const long samp_id = rows.integer(1);
        const AnalystKey key = readKey(rows);
        Sample* s = samples.FindById(samp_id);
        if (!s) {
            reportError("Unmatched sample details for sample: " + std::to_string(samp_id));
            continue;
        }
        readRest(addRecord(*s, disc, key, rows), rows);
        loaded = 1;
    }
}

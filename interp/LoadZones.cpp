// interp/LoadZones.cpp
#include "interp/IGDList.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "interp/IGDTypes.h"
#include "interp/IGDZone.h"
#include "interp/LoadedDepths.h"
#include "well/Well.h"

#include <memory>

const SampledRecords kSampledZones = {
    [](const IGDBase& record) {
        const auto& zone = dynamic_cast<const IGDZone&>(record);
        return SampledRecords::Ends{zone.top_id, zone.base_id};
    },
    [](const IGDBase& record) { return dynamic_cast<const IGDZone&>(record).upp_inf.str(); },
    "\nZone: ",
    [](const IGDBase& record) { return dynamic_cast<const IGDZone&>(record).sch_id; },
    "I",
    false,
};

namespace {

constexpr int kBiozones = 4;
constexpr int kMostSchemes = 4;

std::string inSchemes(const long* schemeIds)
{
    std::string condition = " AND (";
    for (int i = 0; i < kMostSchemes && (i == 0 || schemeIds[i] != 0); ++i)
        condition += (i > 0 ? " OR " : "") + (" sch_id=" + sql::integer(schemeIds[i]));
    return condition + " )";
}

std::string zonesOf(const IGDList& list, const IGDLoad& from)
{
    std::string sql = "SELECT top_id, base_id, sch_id, q_uzone, q_lzone, upp_inf, low_inf, top_bnd,"
                      " base_bnd, hier, upp_zone, low_zone ,sep,modified,modifier FROM "
        + sql::table("IGD") + " WHERE well_id=" + sql::integer(list.well_id())
        + " AND igd_type=" + sql::integer(list.igd_type())
        + " AND hier >=" + sql::integer(from.hierMin) + " AND hier <=" + sql::integer(from.hierMax)
        + " AND interp_id=" + sql::integer(list.interp_id());
    if (list.igd_type() == kBiozones && from.schemeIds)
        sql += inSchemes(from.schemeIds);
    return sql;
}

/// A term of the dictionary; zones that were named by hand are stored without.
long termOf(long igd_id) { return igd_id < 1 ? -1 : igd_id; }

/// The next row as a zone, without what the samples tell.
std::unique_ptr<IGDZone> readZone(int igd_type, const Cursor& row)
{
    const long top_id = row.integer(1), base_id = row.integer(2), sch_id = row.integer(3);
    const char q_uzone = row.letter(4), q_lzone = row.letter(5);
    const std::string upper = row.text(6), lower = row.text(7);
    auto zone = std::make_unique<IGDZone>(
        igd_type, top_id, base_id, q_uzone, upper.c_str(), q_lzone, lower.c_str());
    zone->sch_id = sch_id;
    zone->top_bnd = static_cast<int>(row.integer(8));
    zone->base_bnd = static_cast<int>(row.integer(9));
    zone->setHier(static_cast<int>(row.integer(10)));
    zone->upp_zone = termOf(row.integer(11));
    zone->low_zone = termOf(row.integer(12));
    const std::string sep = row.text(13);
    if (!sep.empty())
        zone->sep = sep;
    zone->modified = sql::parsedDate(row.text(14).c_str());
    zone->modifier = row.text(15);
    return zone;
}

void takeFromSamples(IGDZone& zone, const IGDList& list, Well& well)
{
    zone.setTop(depthOfSample(list, well, zone.top_id));
    zone.setBase(depthOfSample(list, well, zone.base_id));
    zone.topSampleType = well.samples.TypeOf(zone.top_id);
    zone.baseSampleType = well.samples.TypeOf(zone.base_id);
}

} // namespace

bool loadZones(IGDList& list, const IGDLoad& from)
{
    list.setTitle(columnName(list.igd_type(), from.hierMin, 0));
    const std::string sql = zonesOf(list, from);
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    while (rows.next()) {
        auto zone = readZone(list.igd_type(), rows);
        takeFromSamples(*zone, list, from.well);
        list.insert(zone.release());
    }
    return rows.readAll();
}

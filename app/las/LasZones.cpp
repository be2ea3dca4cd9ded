// app/las/LasZones.cpp
#include "app/las/LasZones.h"

#include "app/shell/CollectedReports.h"
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "interp/IGDList.h"
#include "interp/IGDTypes.h"
#include "interp/IGDZone.h"
#include "interp/LoadedDepths.h"
#include "well/Well.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace {

constexpr int kTypes[] = {3, 2, 4, 10};
constexpr int kWidestRank = 1, kFinestRank = 8;
constexpr int kLongForm = 1, kWithoutDiscipline = 0;

// Biozones have their ranks named under the types of their schemes.
int namingType(int type)
{
    constexpr int kBiozones = 4, kNamedBiozones = 41;
    return type == kBiozones ? kNamedBiozones : type;
}

// Hands every row to `take`; a report when not all can be read.
template <typename Take> void eachRow(const std::string& select, Take take)
{
    Cursor rows(select);
    while (rows && rows.next())
        take(rows);
    if (!rows || !rows.readAll())
        reportDbFailure(select, Fatal::No);
}

using Schemes = std::map<long, std::string>;

// Without their terms, which no file needs.
Schemes schemeNames()
{
    Schemes names;
    eachRow("SELECT sch_id, name FROM " + sql::table("IGD_SCH"), [&](const Cursor& row) {
        const long sch_id = row.integer(1); // columns are read in order
        names.emplace(sch_id, row.text(2));
    });
    return names;
}

std::vector<long> interpretationsOf(const Well& well)
{
    const std::string select = "SELECT DISTINCT interp_id FROM " + sql::table("IGD")
        + " WHERE well_id=" + sql::integer(well.well_id) + " ORDER BY interp_id";
    std::vector<long> numbers;
    eachRow(select, [&](const Cursor& row) { numbers.push_back(row.integer(1)); });
    return numbers;
}

LasZone lasZone(const IGDZone& zone, const Well& well, long interp_id, const Schemes& schemes)
{
    const auto scheme = schemes.find(zone.sch_id);
    const int naming = namingType(zone.type());
    LasZone made;
    made.name = zone.label();
    made.top = zone.getTop(negates(well));
    made.base = zone.getBase(negates(well));
    made.scheme = scheme == schemes.end() ? "" : scheme->second;
    made.kind = typeName(naming, kWithoutDiscipline);
    made.level = columnName(naming, zone.hier(), kLongForm);
    made.rank = zone.hier();
    made.topQuality = boundaryName(zone.top_bnd);
    made.baseQuality = boundaryName(zone.base_bnd);
    made.interp_id = interp_id;
    return made;
}

void append(std::vector<std::string>&& from, std::vector<std::string>* to)
{
    std::move(from.begin(), from.end(), std::back_inserter(*to));
}

} // namespace

LasZones lasZonesOf(Well& well)
{
    constexpr long kAnyScheme = 0;
    LasZones found;
    CollectedReports reports;
    const std::vector<long> interpretations = interpretationsOf(well);
    const Schemes schemes = schemeNames();
    for (const long interp_id : interpretations) {
        for (const int type : kTypes) {
            IGDList list(
                type, kWidestRank, kFinestRank, &well, 'M', kAnyScheme, interp_id, nullptr);
            append(reports.take(), &found.failures);
            if (!list.isComplete())
                found.failures.push_back("Not all zones of the well could be read.");
            list.removeMissingSamples(&well);
            append(reports.take(), &found.reports);
            for (const IGDBase* record : list) // of these types all are zones
                found.zones.push_back(
                    lasZone(*static_cast<const IGDZone*>(record), well, interp_id, schemes));
        }
    }
    append(reports.take(), &found.failures);
    return found;
}

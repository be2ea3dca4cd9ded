// app/batch/ZonesCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/InterpretationArguments.h"
#include "app/batch/NumberRange.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "app/shell/ZoneConflicts.h"
#include "interp/IGDSchemeList.h"
#include "interp/IGDTypes.h"
#include "interp/IGDZone.h"
#include "store/Value.h"
#include "util/TextUtil.h"

#include <iostream>
#include <optional>

namespace {

using enum TextTable::Align;

constexpr int kLongForm = 1;

std::string depthOf(float depth) { return fixedString(depth, 2); }

std::string nameOf(const IGDBase& record) { return shownText(record.label()); }

// Biozones of a well have their ranks named under the types of their schemes.
std::string rankName(int type, int rank)
{
    constexpr int kBiozones = 4, kNamedBiozones = 41;
    return columnName(type == kBiozones ? kNamedBiozones : type, rank, kLongForm);
}

TextTable zoneTable(const IGDList& list, int negate)
{
    const std::string unit = unitTitle(list.unit());
    TextTable table({{"top" + unit, Right}, {"base" + unit, Right}, {"rank"}, {"zone"},
        {"top quality"}, {"base quality"}, {"scheme"}});
    const IGDSchemeList schemes;
    for (IGDBase* record : list) {
        const auto* zone = static_cast<const IGDZone*>(record); // of these types all are
        const igd_sch* scheme = schemes.findScheme(zone->sch_id);
        const std::string topQuality = boundaryName(zone->top_bnd);
        table.add({depthOf(zone->getTop(negate)), depthOf(zone->getBase(negate)),
            rankName(list.igd_type(), zone->hier()), nameOf(*zone), topQuality,
            boundaryName(zone->base_bnd), scheme ? shownText(scheme->name.view()) : ""});
    }
    return table;
}

int listZones(const ZoneQuery& query, bool csv)
{
    const auto ranks = query.ranks.empty() ? NumberRange{kWidestRank, kFinestRank}
                                           : numberRange(query.ranks).value_or(NumberRange{});
    if (ranks.from == 0)
        return failed("--rank " + query.ranks + ": a rank from 1 on, or a range such as 1-2.");
    const int type = typeOf(query.type);
    const auto loaded = type ? sampledWellOf(query.well) : nullptr;
    if (!loaded)
        return kFailed;
    const auto list =
        zonesOf(*loaded, type, static_cast<int>(ranks.from), static_cast<int>(ranks.to),
            query.interp_id, query.units ? query.units : loaded->well.units);
    const TextTable table = zoneTable(*list, isSection(loaded->well));
    csv ? table.writeCsv(std::cout) : table.write(std::cout);
    return kDone;
}

int listConflicts(const ZoneQuery& query)
{
    const auto loaded = sampledWellOf(query.well);
    if (!loaded)
        return kFailed;
    const char units = query.units ? query.units : loaded->well.units;
    TextTable table({{"rank"}, {"zone"}, {"and zone"}, {"conflict" + unitTitle(units)}});
    for (const int type : kZoneTypes) {
        for (int rank = kWidestRank; rank <= kFinestRank; ++rank) {
            const auto list = zonesOf(*loaded, type, rank, rank, query.interp_id, units);
            for (const ZoneConflict& conflict : conflictsOf(*list))
                table.add({rankName(type, rank), nameOf(*conflict.first), nameOf(*conflict.second),
                    conflictText(conflict, isSection(loaded->well))});
        }
    }
    if (table.rows() == 0)
        std::cout << "No conflicts.\n";
    else
        table.write(std::cout);
    return kDone;
}

} // namespace

void addZones(CLI::App& app, BatchOptions* options)
{
    const auto query = std::make_shared<ZoneQuery>();
    const auto csv = std::make_shared<bool>(false);
    CLI::App* zones = addCommand(app, options, "zones", "List the interpreted zones of a well",
        [=] { return listZones(*query, *csv); });
    addWell(zones, &query->well);
    zones
        ->add_option("--type", query->type,
            "2 or Lithostratigraphy, 3 or Chronostratigraphy, 4 or "
            "Biozone, 10 or Sequence")
        ->type_name("T")
        ->required();
    zones->add_option("--rank", query->ranks, "Only of these ranks, 1 being the widest")
        ->type_name("A-B");
    addInterpretation(zones, &query->interp_id);
    addUnits(zones, &query->units);
    zones->add_flag("--csv", *csv, "Write comma separated values");
}

void addConflicts(CLI::App& app, BatchOptions* options)
{
    const auto query = std::make_shared<ZoneQuery>();
    CLI::App* conflicts = addCommand(app, options, "conflicts",
        "List the zones of a well that overlap within a rank, or that give their shared boundary "
        "two qualities",
        [=] { return listConflicts(*query); });
    addWell(conflicts, &query->well);
    addInterpretation(conflicts, &query->interp_id);
    addUnits(conflicts, &query->units);
}

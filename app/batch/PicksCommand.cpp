// app/batch/PicksCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/InterpretationArguments.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "db/Units.h"
#include "interp/IGDList.h"
#include "interp/IGDTypes.h"
#include "interp/IGDZone.h"
#include "interp/SQPick.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Sample.h"

#include <iostream>

namespace {

using enum TextTable::Align;

void writePicks(const SQPickList& picks, char units)
{
    TextTable table({{"depth" + unitTitle(units), Right}, {"surface"}, {"age [Ma]", Right},
        {"quality"}, {"qualifier"}, {"information"}});
    for (const SQPick* pick : picks)
        table.add({pick->sample ? sampleDepthText(*pick->sample, units) : "no sample",
            shownText(pick->surface.name), fixedString(pick->surface.age, 3),
            boundaryName(pick->bnd), pick->qualifier ? std::string(1, pick->qualifier) : "",
            shownText(pick->inf)});
    table.write(std::cout);
}

// Sequence zones are made in metres.
void writeZones(const SQPickList& picks, const Well& well, int rank, char units)
{
    constexpr int kAsStored = 0;
    const IGDList zones(picks, well, rank);
    if (zones.isEmpty())
        return;
    const auto depthOf = [units](
                             float metres) { return fixedString(fromMetres(metres, units), 2); };
    const std::string unit = unitTitle(units);
    TextTable table({{"top" + unit, Right}, {"base" + unit, Right}, {"sequence"}, {"rank", Right}});
    for (const IGDBase* zone : zones)
        table.add({depthOf(zone->getTop(kAsStored)), depthOf(zone->getBase(kAsStored)),
            shownText(zone->label()), std::to_string(rank)});
    std::cout << '\n';
    table.write(std::cout);
}

int listPicks(const ZoneQuery& query)
{
    const auto loaded = sampledWellOf(query.well);
    if (!loaded)
        return kFailed;
    const char units = query.units ? query.units : loaded->well.units;
    SQPickList picks;
    if (!loadPicks(picks, loaded->well, query.interp_id))
        return kFailed;
    writePicks(picks, units);
    for (int rank = kWidestRank; rank <= kFinestRank; ++rank)
        writeZones(picks, loaded->well, rank, units);
    return kDone;
}

} // namespace

void addPicks(CLI::App& app, BatchOptions* options)
{
    const auto query = std::make_shared<ZoneQuery>();
    CLI::App* picks = addCommand(app, options, "picks",
        "List the surfaces picked in a well and the sequences that lie between them",
        [=] { return listPicks(*query); });
    addWell(picks, &query->well);
    addInterpretation(picks, &query->interp_id);
    addUnits(picks, &query->units);
}

// app/batch/LithologyCommands.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/InterpretationArguments.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "interp/Environment.h"
#include "interp/IGDList.h"
#include "interp/IntLithZone.h"
#include "interp/LithQualifier.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Sample.h"
#include "well/Slith.h"

#include <iostream>

namespace {

using enum TextTable::Align;

constexpr int kAsStored = 0;

std::string depthOf(float depth) { return fixedString(depth, 2); }

int listSampleLithology(const ZoneQuery& query)
{
    const auto loaded = sampledWellOf(query.well);
    if (!loaded)
        return kFailed;
    Well& well = loaded->well;
    well.LoadSampleLithology(0);
    const char units = query.units ? query.units : well.units;
    TextTable table({{"depth" + unitTitle(units), Right}, {"type"}, {"per cent", Right}, {"code"},
        {"lithology"}});
    for (const Sample* sample : well.samples)
        for (const Slith* part : sample->lithology)
            table.add({sampleDepthText(*sample, units), sample->GetType(),
                std::to_string(part->percent), shownText(part->abr), shownText(part->descr)});
    table.write(std::cout);
    return kDone;
}

std::string kindName(char kind)
{
    switch (kind) {
    case 'A':
        return "accessory";
    case 'Q':
        return "qualifier";
    case 'S':
        return "stringer";
    default:
        return "text";
    }
}

int listLithology(const ZoneQuery& query)
{
    const auto loaded = sampledWellOf(query.well);
    if (!loaded)
        return kFailed;
    const char units = query.units ? query.units : loaded->well.units;
    const std::string unit = unitTitle(units);
    TextTable table(
        {{"top" + unit, Right}, {"base" + unit, Right}, {"kind"}, {"code"}, {"lithology"}});
    for (IGDBase* record : *recordsOf(*loaded, IntLithZone::kType, query.interp_id, units)) {
        const auto& rock = static_cast<const IntLithZone&>(*record);
        table.add({depthOf(rock.getTop(kAsStored)), depthOf(rock.getBase(kAsStored)), "rock",
            shownText(rock.abr.view()), shownText(rock.descr.view())});
    }
    for (IGDBase* record : *recordsOf(*loaded, LithQualifier::kType, query.interp_id, units)) {
        const auto& said = static_cast<const LithQualifier&>(*record);
        table.add({depthOf(said.getTop(kAsStored)), depthOf(said.getBase(kAsStored)),
            kindName(said.qualType()), shownText(said.abr.view()), shownText(said.descr.view())});
    }
    table.write(std::cout);
    return kDone;
}

int listEnvironment(const ZoneQuery& query)
{
    const auto loaded = sampledWellOf(query.well);
    if (!loaded)
        return kFailed;
    const char units = query.units ? query.units : loaded->well.units;
    const std::string unit = unitTitle(units);
    TextTable table({{"top" + unit, Right}, {"base" + unit, Right}, {"environment"}});
    for (const IGDBase* record : *recordsOf(*loaded, Environment::kType, query.interp_id, units))
        table.add({depthOf(record->getTop(kAsStored)), depthOf(record->getBase(kAsStored)),
            shownText(record->label())});
    table.write(std::cout);
    return kDone;
}

} // namespace

void addSampleLithology(CLI::App& app, BatchOptions* options)
{
    const auto query = std::make_shared<ZoneQuery>();
    CLI::App* lithology = addCommand(app, options, "sample-lithology",
        "List what the samples of a well are made of", [=] { return listSampleLithology(*query); });
    addWell(lithology, &query->well);
    addUnits(lithology, &query->units);
}

void addLithology(CLI::App& app, BatchOptions* options)
{
    const auto query = std::make_shared<ZoneQuery>();
    CLI::App* lithology = addCommand(app, options, "lithology",
        "List the interval lithology of a well and what is said of the rocks",
        [=] { return listLithology(*query); });
    addWell(lithology, &query->well);
    addInterpretation(lithology, &query->interp_id);
    addUnits(lithology, &query->units);
}

void addEnvironment(CLI::App& app, BatchOptions* options)
{
    const auto query = std::make_shared<ZoneQuery>();
    CLI::App* environment = addCommand(app, options, "environment",
        "List the palaeoenvironments of a well", [=] { return listEnvironment(*query); });
    addWell(environment, &query->well);
    addInterpretation(environment, &query->interp_id);
    addUnits(environment, &query->units);
}

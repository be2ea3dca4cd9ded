// app/batch/LithologyCommands.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/InterpretationArguments.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "app/shell/ZoneConflicts.h"
#include "interp/Environment.h"
#include "interp/IGDList.h"
#include "interp/IntLithZone.h"
#include "interp/LithQualifier.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Sample.h"
#include "well/Slith.h"

#include <initializer_list>
#include <iostream>

namespace {

using enum TextTable::Align;

/// The depths of a record in two cells.
std::vector<std::string> depthsOf(const IGDBase& record, const Well& well)
{
    const int negate = isSection(well);
    return {fixedString(record.getTop(negate), 2), fixedString(record.getBase(negate), 2)};
}

void add(TextTable& table, const IGDBase& record, const Well& well,
    std::initializer_list<std::string> what)
{
    std::vector<std::string> cells = depthsOf(record, well);
    cells.insert(cells.end(), what);
    table.add(std::move(cells));
}

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
    const auto rocks = recordsOf(*loaded, IntLithZone::kType, query.interp_id, units);
    for (const IGDBase* record : *rocks) {
        const auto& rock = static_cast<const IntLithZone&>(*record);
        add(table, rock, loaded->well,
            {"rock", shownText(rock.abr.view()), shownText(rock.descr.view())});
    }
    const auto qualifiers = recordsOf(*loaded, LithQualifier::kType, query.interp_id, units);
    for (const IGDBase* record : *qualifiers) {
        const auto& said = static_cast<const LithQualifier&>(*record);
        add(table, said, loaded->well,
            {kindName(said.qualType()), shownText(said.abr.view()), shownText(said.descr.view())});
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
    const auto environments = recordsOf(*loaded, Environment::kType, query.interp_id, units);
    for (const IGDBase* record : *environments)
        add(table, *record, loaded->well, {shownText(record->label())});
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

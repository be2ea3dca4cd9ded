// app/batch/InterpretationArguments.cpp
#include "app/batch/InterpretationArguments.h"

#include "app/batch/Failure.h"
#include "app/batch/WellArgument.h"
#include "app/shell/CollectedReports.h"
#include "interp/IGDList.h"
#include "interp/IGDTypes.h"
#include "util/TextUtil.h"

#include <CLI/CLI.hpp>

namespace {

constexpr int kBiozones = 4; // without a name in one direction

std::string nameOf(int type) { return type == kBiozones ? "Biozone" : typeName(type, 0); }

} // namespace

int typeOf(const std::string& text)
{
    std::string known;
    for (const int type : kZoneTypes) {
        const std::string name = nameOf(type);
        if (compareIgnoringCase(text, name) == 0 || text == std::to_string(type))
            return type;
        known += (known.empty() ? "" : ", ") + std::to_string(type) + " (" + name + ')';
    }
    failed("There are no zones of type " + text + ". There are: " + known + '.');
    return 0;
}

void addInterpretation(CLI::App* command, long* interp_id)
{
    command->add_option("--interp", *interp_id, "Number of the interpretation (default: 0)")
        ->type_name("N");
}

std::unique_ptr<IGDList> recordsOf(LoadedWell& loaded, int type, long interp_id, char units)
{
    return zonesOf(loaded, type, kWidestRank, kFinestRank, interp_id, units);
}

std::unique_ptr<IGDList> zonesOf(
    LoadedWell& loaded, int type, int firstRank, int lastRank, long interp_id, char units)
{
    constexpr long kAnyScheme = 0;
    // Biozones are asked for by their schemes; those that the well has are found here.
    LoadStep step;
    step.name = nameOf(type);
    CollectedReports reports;
    auto list = std::make_unique<IGDList>(
        type, firstRank, lastRank, &loaded.well, units, kAnyScheme, interp_id, nullptr);
    list->removeMissingSamples(&loaded.well);
    step.reports = reports.take();
    writeReports(step);
    return list;
}

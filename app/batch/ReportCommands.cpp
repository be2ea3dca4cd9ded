// app/batch/ReportCommands.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/WellArgument.h"

#include <iostream>

namespace {

struct Values {
    std::string well;
    char units = 0; ///< 0: those of the well
    bool compact = false;
};

int summarise(const Values& values)
{
    const auto loaded = loadedWellOf(values.well);
    if (!loaded)
        return kFailed;
    int totals[4];
    loaded->well.WriteSummary(std::cout, totals, values.units, values.compact ? 1 : 0);
    std::cout << '\n';
    return kDone;
}

int list(const std::string& well)
{
    const auto loaded = loadedWellOf(well);
    if (!loaded)
        return kFailed;
    loaded->well.ListSamples(std::cout);
    std::cout << '\n';
    return kDone;
}

} // namespace

void addSummary(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* summary = addCommand(app, options, "summary",
        "Count a well's samples and occurrences", [=] { return summarise(*values); });
    addWell(summary, &values->well);
    addUnits(summary, &values->units);
    summary->add_flag("--compact", values->compact, "Leave disciplines without occurrences out");
}

void addList(CLI::App& app, BatchOptions* options)
{
    const auto well = std::make_shared<std::string>();
    addWell(addCommand(app, options, "list",
                "List every sample of a well with the occurrences of each analyst",
                [=] { return list(*well); }),
        well.get());
}

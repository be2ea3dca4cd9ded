// app/batch/LoadCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "util/TextUtil.h"

#include <iostream>

namespace {

using enum TextTable::Align;

std::string milliseconds(double seconds) { return fixedString(seconds * 1000, 1); }

int load(const std::string& text)
{
    const auto loaded = wellOf(text);
    if (!loaded)
        return kFailed;
    TextTable table({{"read"}, {"loaded", Right}, {"refused", Right}, {"time [ms]", Right}});
    double seconds = 0;
    for (const LoadStep& step : loadAll(*loaded)) {
        writeReports(step);
        table.add({step.name, std::to_string(step.count), std::to_string(step.reports.size()),
            milliseconds(step.seconds)});
        seconds += step.seconds;
    }
    table.add({"all", "", "", milliseconds(seconds)});
    table.write(std::cout);
    return kDone;
}

} // namespace

void addLoad(CLI::App& app, BatchOptions* options)
{
    const auto well = std::make_shared<std::string>();
    addWell(addCommand(app, options, "load",
                "Load all that is known of a well, and say what was refused and how long it took",
                [=] { return load(*well); }),
        well.get());
}

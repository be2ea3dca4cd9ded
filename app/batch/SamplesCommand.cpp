// app/batch/SamplesCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "store/Value.h"
#include "well/Sample.h"

#include <iostream>

namespace {

using enum TextTable::Align;

struct Values {
    std::string well;
    char units = 0; ///< 0: those of the well
};

int listSamples(const Values& values)
{
    const auto loaded = sampledWellOf(values.well);
    if (!loaded)
        return kFailed;
    const Well& well = loaded->well;
    const char units = values.units ? values.units : well.units;
    const std::string unit = unitTitle(units);
    TextTable table({{"depth" + unit, Right}, {"top" + unit, Right}, {"base" + unit, Right},
        {"type"}, {"label"}});
    for (const Sample* sample : well.samples)
        table.add({sampleDepthText(*sample, units), depthText(sample->GetTop(units, 0, 0)),
            depthText(sample->GetBase(units, 0, 0)), sample->GetType(),
            shownText(sample->label.view())});
    table.write(std::cout);
    return kDone;
}

} // namespace

void addSamples(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* samples = addCommand(app, options, "samples",
        "List the samples of a well in depth order", [=] { return listSamples(*values); });
    addWell(samples, &values->well);
    addUnits(samples, &values->units);
}

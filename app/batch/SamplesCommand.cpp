// app/batch/SamplesCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "app/shell/FindWell.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <iostream>
#include <memory>

namespace {

using enum TextTable::Align;

struct Values {
    std::string well;
    char units = 0; ///< 0: those of the well
};

std::string depthText(float depth) { return isAbsentDepth(depth) ? "" : fixedString(depth, 2); }

void addSample(TextTable& table, const Sample& sample, char units)
{
    constexpr int kShort = 1, kWithRange = 1, kNoForce = 0, kNoShift = 0, kNoLabel = 0;
    const bool hasDepth = !isAbsentDepth(sample.GetDepth(units, 0, 0));
    table.add(
        {hasDepth ? sample.DepthLabel(units, kShort, kWithRange, kNoForce, kNoShift, kNoLabel) : "",
            depthText(sample.GetTop(units, 0, 0)), depthText(sample.GetBase(units, 0, 0)),
            sample.GetType(), shownText(sample.label.view())});
}

int listSamples(const Values& values)
{
    std::string error;
    const long id = findWell(values.well, &error);
    if (id == 0)
        return failed(error);
    Well well(id);
    well.LoadSamples(0);
    const char units = values.units ? values.units : well.units;
    const std::string unit = units == 'F' ? " [ft]" : " [m]";
    TextTable table({{"depth" + unit, Right}, {"top" + unit, Right}, {"base" + unit, Right},
        {"type"}, {"label"}});
    for (const Sample* sample : well.samples)
        addSample(table, *sample, units);
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

// app/batch/DepthCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/WellArgument.h"
#include "app/shell/DepthModel.h"
#include "db/Units.h"
#include "util/TextUtil.h"

#include <iostream>
#include <optional>

namespace {

struct Values {
    std::string well;
    char units = 0; ///< 0: those of the well
    std::optional<float> md;
    std::optional<float> tvd;
};

int convert(const Values& values)
{
    if (values.md.has_value() == values.tvd.has_value())
        return failed("Give one depth: --md or --tvd.");
    const auto loaded = wellOf(values.well);
    if (!loaded)
        return kFailed;
    const char units = values.units ? values.units : loaded->well.units;
    const TVDepth& table = depthModel(loaded->well);
    if (table.count < 2)
        return failed("The well has no deviation survey of two points or more.");
    const float given = toMetres(values.md ? *values.md : *values.tvd, units);
    const float found = values.md ? table.MDtoTVD(given) : table.TVDtoMD(given);
    const std::string unit = units == 'F' ? " ft" : " m";
    std::cout << "measured depth " << fixedString(fromMetres(values.md ? given : found, units), 2)
              << unit << ", true vertical depth "
              << fixedString(fromMetres(values.md ? found : given, units), 2) << unit;
    if (isBeyondSurvey(table, given, values.md ? DepthAxis::Measured : DepthAxis::Vertical))
        std::cout << " (beyond the survey: the value of its last point)";
    std::cout << '\n';
    return kDone;
}

} // namespace

void addDepth(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* depth = addCommand(app, options, "depth",
        "Convert a depth by the deviation survey of a well", [=] { return convert(*values); });
    addWell(depth, &values->well);
    depth->add_option("--md", values->md, "A measured depth")->type_name("X");
    depth->add_option("--tvd", values->tvd, "A true vertical depth")->type_name("X");
    addUnits(depth, &values->units);
}

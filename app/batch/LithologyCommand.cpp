// app/batch/LithologyCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "store/Value.h"
#include "well/Sample.h"
#include "well/Slith.h"

#include <iostream>

namespace {

using enum TextTable::Align;

struct Values {
    std::string well;
    char units = 0; ///< 0: those of the well
};

int listLithology(const Values& values)
{
    const auto loaded = loadedWellOf(values.well);
    if (!loaded)
        return kFailed;
    const Well& well = loaded->well;
    const char units = values.units ? values.units : well.units;
    TextTable table({{"depth" + unitTitle(units), Right}, {"type"}, {"per cent", Right}, {"code"},
        {"lithology"}});
    for (const Sample* sample : well.samples)
        for (const Slith* part : sample->lithology)
            table.add({sampleDepthText(*sample, units), sample->GetType(),
                std::to_string(part->percent), shownText(part->abr), shownText(part->descr)});
    table.write(std::cout);
    return kDone;
}

} // namespace

void addSampleLithology(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* lithology = addCommand(app, options, "sample-lithology",
        "List what the samples of a well are made of", [=] { return listLithology(*values); });
    addWell(lithology, &values->well);
    addUnits(lithology, &values->units);
}

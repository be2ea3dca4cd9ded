// app/batch/EventCommands.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "dict/EventLabels.h"
#include "dict/compStd.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Sample.h"

#include <iostream>

namespace {

using enum TextTable::Align;

struct Values {
    std::string name; ///< a well, or a standard
    char units = 0;   ///< 0: those of the well
};

template <typename Event> std::string labelOf(const Event& event)
{
    char label[kEventLabelRoom];
    event.label(label);
    return shownText(label);
}

// Events at samples that the database does not have would stand at depth 0.
bool isPlaced(const EVt& event) { return event.sample->samp_id != 0; }

int listEvents(const Values& values)
{
    const auto loaded = loadedWellOf(values.name);
    if (!loaded)
        return kFailed;
    const Well& well = loaded->well;
    const char units = values.units ? values.units : well.units;
    TextTable table({{"depth" + unitTitle(units), Right}, {"type"}, {"event"}, {"discipline"},
        {"analyst"}, {"qualifier"}, {"interpretation", Right}, {"comments"}});
    for (const EVt* event : well.events) {
        if (!isPlaced(*event)) {
            std::cerr << "no sample in the database for: " << labelOf(*event) << '\n';
            continue;
        }
        table.add({sampleDepthText(*event->sample, units), event->sample->GetType(),
            labelOf(*event), event->disc_id ? std::string(1, event->disc_id) : "",
            shownText(event->analyst), shownText(event->qualifier),
            std::to_string(event->interp_id), shownText(event->comments)});
    }
    table.write(std::cout);
    return kDone;
}

int showStandard(const std::string& name)
{
    EVdictList dictionary;
    const compStd standard(storedText(name), dictionary);
    if (standard.std_id == 0)
        return failed("No composite standard is called " + name + '.');
    std::cout << shownText(standard.name) << ", from " << fixedString(standard.topcsu, 2) << " to "
              << fixedString(standard.basecsu, 2) << ' ' << shownText(standard.units) << '\n';
    TextTable table({{shownText(standard.units), Right}, {"event"}});
    for (const auto& event : standard.events)
        table.add({fixedString(event->csu, 3), labelOf(*event)});
    table.write(std::cout);
    return kDone;
}

} // namespace

void addEvents(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* events = addCommand(app, options, "events",
        "List the events of a well in depth order, tops and bases as drilled",
        [=] { return listEvents(*values); });
    addWell(events, &values->name);
    addUnits(events, &values->units);
}

void addStandard(CLI::App& app, BatchOptions* options)
{
    const auto name = std::make_shared<std::string>();
    addCommand(app, options, "standard", "List the events of a composite standard",
        [=] { return showStandard(*name); })
        ->add_option("NAME", *name, "Name of the standard")
        ->required();
}

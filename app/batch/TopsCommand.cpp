// app/batch/TopsCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "app/import/TaxonName.h"
#include "app/shell/TaxonRanges.h"
#include "store/Value.h"
#include "well/Sample.h"

#include <iostream>

namespace {

using enum TextTable::Align;

struct Values {
    std::string well;
    std::string discipline;
    char units = 0; ///< 0: those of the well
    bool excludeSuspect = false;
};

void addEnd(std::vector<std::string>& cells, const RangeEnd& end, char units)
{
    cells.push_back(end.sample ? sampleDepthText(*end.sample, units) : "");
    cells.push_back(end.sample ? end.sample->GetType() : "");
    cells.push_back(end.absentFrom ? sampleDepthText(*end.absentFrom, units) : "");
    cells.push_back(end.why);
}

int listTops(const Values& values)
{
    const auto loaded = loadedWellOf(values.well);
    const char disc = loaded ? disciplineOf(values.discipline) : '\0';
    if (disc == '\0')
        return kFailed;
    Well& well = loaded->well;
    const char units = values.units ? values.units : well.units;
    const std::string unit = unitTitle(units);
    TextTable table({{"taxon"}, {"top" + unit, Right}, {"type"}, {"not at" + unit, Right}, {"why"},
        {"base" + unit, Right}, {"type"}, {"not at" + unit, Right}, {"why"}});
    TaxonList taxa;
    const Suspect suspect = values.excludeSuspect ? Suspect::Excluded : Suspect::Counts;
    for (const TaxonRange& range : taxonRanges(well, disc, suspect, taxa)) {
        std::vector<std::string> cells{shownText(composedName(*range.taxon, true))};
        addEnd(cells, range.top, units);
        addEnd(cells, range.base, units);
        table.add(std::move(cells));
    }
    table.write(std::cout);
    return kDone;
}

} // namespace

void addTops(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* tops = addCommand(app, options, "tops",
        "List where the range of each taxon of a discipline starts and ends in a well, highest "
        "tops "
        "first; beside each end the nearest examined sample beyond it that lacks the taxon",
        [=] { return listTops(*values); });
    addWell(tops, &values->well);
    addDiscipline(tops, &values->discipline);
    addUnits(tops, &values->units);
    tops->add_flag("--exclude-suspect", values->excludeSuspect,
        "Pass over reworked occurrences at tops and caved ones at bases while there are others");
}

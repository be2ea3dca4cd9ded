// app/batch/Commands.cpp
#include "app/batch/Commands.h"

#include "app/batch/AbundanceCommand.h"
#include "app/batch/Failure.h"
#include "app/batch/ImportConsole.h"
#include "app/batch/TaxonCommands.h"
#include "app/batch/TextTable.h"
#include "app/shell/FindWell.h"
#include "app/shell/OpenDatabase.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <iostream>

namespace {

using enum TextTable::Align;

class SessionEnd {
public:
    ~SessionEnd() { dbDisconnect(); }
};

int create(const BatchOptions& options)
{
    std::cout << "Created " << options.connection.databaseFile << '\n';
    return kDone;
}

int import(const BatchOptions& options)
{
    ImportOptions what;
    what.inputs.assign(options.inputs.begin(), options.inputs.end());
    what.dryRun = options.dryRun;
    ImportResult result;
    {
        ImportConsole console;
        result = importFiles(what, console);
    }
    writeCounts(result, options.dryRun);
    if (!result.failure.empty())
        return failed(result.failure);
    return options.strict && result.refused() > 0 ? kFailed : kDone;
}

int listWells()
{
    const std::string select = "SELECT v.well_id, w.well_code, w.well_name, w.type, w.units, "
                               "w.operator, w.field, w.country FROM "
        + sql::table("WELLS") + " w, " + sql::table("WELL_IDENT")
        + " v WHERE v.well_code=w.well_code ORDER BY w.well_name, w.well_code";
    Cursor rows(select);
    if (!rows)
        return failed("The wells could not be read: " + select + "\n" + dbErrorText());
    TextTable table({{"number", Right}, {"code"}, {"name"}, {"type"}, {"units"}, {"operator"},
        {"field"}, {"country"}});
    while (rows.next()) {
        std::vector<std::string> cells{std::to_string(rows.integer(1))};
        for (short column = 2; column <= 8; ++column)
            cells.push_back(shownText(rows.text(column)));
        table.add(std::move(cells));
    }
    table.write(std::cout);
    return kDone;
}

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

int listSamples(const BatchOptions& options)
{
    std::string error;
    const long id = findWell(options.well, &error);
    if (id == 0)
        return failed(error);
    Well well(id);
    well.LoadSamples(0);
    const char units = options.units ? options.units : well.units;
    const std::string unit = units == 'F' ? " [ft]" : " [m]";
    TextTable table({{"depth" + unit, Right}, {"top" + unit, Right}, {"base" + unit, Right},
        {"type"}, {"label"}});
    for (const Sample* sample : well.samples)
        addSample(table, *sample, units);
    table.write(std::cout);
    return kDone;
}

} // namespace

int runCommand(const BatchOptions& options)
{
    const SessionEnd end;
    const bool hasDatabase =
        !options.connection.databaseFile.empty() || !options.connection.connectString.empty();
    const std::string problem = options.command == BatchCommand::Create
        ? createDatabaseFile(options.connection)
        : hasDatabase ? openDatabase(options.connection)
                      : "";
    if (!problem.empty())
        return failed(problem);
    switch (options.command) {
    case BatchCommand::Create:
        return create(options);
    case BatchCommand::Import:
        return import(options);
    case BatchCommand::Wells:
        return listWells();
    case BatchCommand::Samples:
        return listSamples(options);
    case BatchCommand::Taxa:
        return listTaxa(options.taxa);
    case BatchCommand::Taxon:
        return showTaxon(options.words, hasDatabase);
    case BatchCommand::Abundance:
        return showAbundance(options.scheme, options.amount);
    case BatchCommand::None:
        break;
    }
    return kDone;
}

// app/batch/CreateCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/ImportConsole.h"
#include "app/batch/TextTable.h"
#include "app/shell/StarterData.h"

#include <iostream>
#include <memory>

namespace {

constexpr const char* kAdvice = "\nNo database was made. With --empty it is made without them.";

struct Values {
    bool empty = false;
    ImportResult starter;
};

// A dictionary that lacks rows would only be noticed when they are needed.
std::string problemOf(const ImportResult& starter)
{
    if (!starter.failure.empty() || starter.refused() == 0)
        return starter.failure;
    return "Rows refused: " + std::to_string(starter.refused()) + '.';
}

// Runs while the new file is still uncommitted: nothing of it is left when this fails.
std::string loadStarter(Values* values)
{
    if (values->empty)
        return {};
    std::string error;
    ImportOptions what;
    what.inputs = {starterFolder(&error)};
    if (!error.empty())
        return error + kAdvice;
    {
        ImportConsole console;
        values->starter = importFiles(what, console);
    }
    const std::string problem = problemOf(values->starter);
    return problem.empty() ? problem
                           : "The starter dictionaries in " + what.inputs.front().string()
            + " could not be loaded. " + problem + kAdvice;
}

int tell(const std::string& file, const ImportResult& starter)
{
    std::cout << "Created " << file << '\n';
    TextTable table({{"starter dictionary"}, {"rows", TextTable::Align::Right}});
    for (const FileCounts& counts : starter.files)
        table.add({counts.file, std::to_string(counts.added)});
    if (table.rows() > 0)
        table.write(std::cout);
    return kDone;
}

} // namespace

void addCreate(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    options->fill = [=] { return loadStarter(values.get()); };
    CLI::App* create = addCommand(
        app, options, "create",
        "Make a new embedded database with the starter dictionaries: disciplines, categories, a "
        "time scale, lithologies, abundance and environment schemes; a file that is there is left "
        "as it is",
        [=] { return tell(options->connection.databaseFile, values->starter); },
        DatabaseNeed::Create);
    create->add_option("FILE", options->newFile, "The new file (or give it with --database)");
    create->add_flag("--empty", values->empty, "Leave the starter dictionaries out");
}

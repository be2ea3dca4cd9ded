// app/batch/ImportCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/ImportConsole.h"

#include <iostream>
#include <memory>

namespace {

struct Values {
    std::vector<std::string> inputs;
    std::string map;
    bool dryRun = false;
    bool strict = false;
};

int run(const Values& values)
{
    ImportOptions what;
    what.inputs.assign(values.inputs.begin(), values.inputs.end());
    what.dryRun = values.dryRun;
    what.map = values.map;
    ImportResult result;
    {
        ImportConsole console;
        result = importFiles(what, console);
    }
    writeCounts(result, values.dryRun);
    if (!result.failure.empty())
        return failed(result.failure);
    return values.strict && result.refused() > 0 ? kFailed : kDone;
}

} // namespace

void addImport(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* import = addCommand(app, options, "import",
        "Bring in files such as wells.csv, samples.csv and taxa.csv. Everything is checked first; "
        "rows that cannot be stored are listed, the others are stored together. Importing the same "
        "files again changes nothing",
        [=] { return run(*values); });
    import->add_option("INPUT", values->inputs, "Folders that hold the files, or the files")
        ->required();
    import
        ->add_option("--map", values->map,
            "Names the columns of files that import does not know: a CSV file with the columns "
            "file, kind, column, from, value, units (docs/import.md, examples/maps)")
        ->type_name("FILE");
    import->add_flag("--dry-run", values->dryRun, "Check and count, but store nothing");
    import->add_flag("--strict", values->strict, "End with exit status 1 when a row was refused");
}

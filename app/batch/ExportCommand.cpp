// app/batch/ExportCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/LasCommand.h"
#include "app/batch/TextTable.h"
#include "app/export/Exporter.h"
#include "app/shell/FindWell.h"

#include <iostream>
#include <memory>

namespace {

struct Values {
    std::vector<std::string> words; // WELL and FOLDER, FOLDER alone, or WELL alone
    std::string las;                // the file; empty: tables
    bool all = false;
    bool force = false;
};

int wrongUsage(const std::string& why)
{
    failed(why);
    return kWrongUsage;
}

int writeLas(const Values& values)
{
    if (values.words.size() != 1 || values.all)
        return wrongUsage("A LAS file holds one well: name it and no folder.");
    return writeLasFile(values.words.front(), values.las, values.force);
}

int writeTables(const Values& values)
{
    if (values.words.size() != (values.all ? 1u : 2u))
        return wrongUsage("Name a well and a folder, or --all and a folder.");
    ExportOptions what;
    what.folder = values.words.back();
    what.force = values.force;
    std::string error;
    if (!values.all && (what.well = findWell(values.words.front(), &error)) == 0)
        return failed(error);
    const ExportResult result = exportTables(what);
    if (!result.failure.empty())
        return failed(result.failure);
    for (const std::string& rows : result.left)
        std::cerr << rows << ", left out\n";
    TextTable table({{"file", TextTable::Align::Left}, {"rows", TextTable::Align::Right}});
    for (const ExportedFile& file : result.files)
        table.add({file.name, std::to_string(file.rows)});
    table.write(std::cout);
    return kDone;
}

} // namespace

void addExport(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* command = addCommand(app, options, "export",
        "Write the tables as CSV files that import reads: the rows of one well with all "
        "dictionaries, or everything; or one well as a LAS file",
        [=] { return values->las.empty() ? writeTables(*values) : writeLas(*values); });
    command
        ->add_option("WORDS", values->words,
            "The well, by code, name or number, and the folder; with --all the folder alone, with "
            "--las the well alone")
        ->type_name("[WELL] [FOLDER]")
        ->expected(1, 2)
        ->required();
    command->add_flag("--all", values->all, "All wells");
    command
        ->add_option("--las", values->las,
            "Write zones, cores and deviation survey of the well to this LAS 3.0 file")
        ->type_name("FILE");
    command->add_flag("--force", values->force,
        "Replace the files of an earlier export; other files in the folder are left");
}

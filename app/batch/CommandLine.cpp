// app/batch/CommandLine.cpp
#include "app/batch/CommandLine.h"

#include "app/batch/Commands.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

constexpr const char* kAbout = "Zonaris: wells, samples and their fossils.\n"
                               "Without a command the main window opens.";

constexpr const char* kExamples = "Examples:\n"
                                  "  zonaris create my.zdb\n"
                                  "  zonaris --database my.zdb import FOLDER\n"
                                  "  zonaris --database my.zdb samples \"WELL 1\" --units F\n"
                                  "Exit status: 0 done, 1 failed, 2 wrong usage.";

void addConnectionOptions(CLI::App& app, ConnectionSettings* connection)
{
    CLI::Option* file = app.add_option("--database", connection->databaseFile,
                               "An embedded database, held in this file")
                            ->type_name("FILE");
    app.add_option("--connect", connection->connectString,
           "Any other database: an ODBC connection string, such as \"DSN=wells;UID=me;PWD=...\"")
        ->type_name("STRING")
        ->excludes(file);
    app.add_option("--kind", connection->kind,
           "Kind of the database: 0 speaks Access-style SQL (default), 2 Oracle's; 3 is 0 with "
           "Oracle's dates, 1 and 5 are 0 with another catalogue")
        ->type_name("N")
        ->check(CLI::IsMember({0, 1, 2, 3, 5}));
    app.add_option("--owner", connection->ownerPrefix,
           "Put in front of every table name, with its separator, such as \"GEO.\"")
        ->type_name("PREFIX");
    app.add_option("--user", connection->user,
           "Your abbreviation, at most 5 letters; rows that you store carry it")
        ->type_name("ABR");
}

// For the pictures in documents; no group hides them from the help.
void addPictureOptions(CLI::App& app, PictureOptions* picture)
{
    app.add_option("--screenshot", picture->file)->type_name("FILE.png")->group("");
    app.add_option("--show-well", picture->well)->type_name("WELL")->group("");
    app.add_option("--show-tab", picture->view)->type_name("TITLE")->group("");
    app.add_option("--show-width", picture->width)->type_name("PIXELS")->group("");
    app.add_option("--show-height", picture->height)->type_name("PIXELS")->group("");
    app.add_flag("--show-dark", picture->dark)->group("");
}

constexpr void (*kCommands[])(CLI::App&, BatchOptions*) = {
    addCreate,
    addImport,
    addExport,
    addWells,
    addSamples,
    addLoad,
    addSummary,
    addList,
    addOccurrences,
    addTops,
    addEvents,
    addStandard,
    addDepth,
    addSampleLithology,
    addSchemes,
    addScheme,
    addAge,
    addDepthOfAge,
    addZones,
    addConflicts,
    addLithology,
    addEnvironment,
    addPicks,
    addTaxa,
    addTaxon,
    addAbundance,
};

// What the declarations above cannot say.
void checkTogether(BatchOptions* options)
{
    ConnectionSettings& connection = options->connection;
    if (!options->newFile.empty() && !connection.databaseFile.empty())
        throw CLI::ValidationError("create", "the file is given twice");
    if (!options->newFile.empty())
        connection.databaseFile = options->newFile;
    if (connection.user.size() > 5)
        throw CLI::ValidationError("--user", "more than 5 bytes");
    if (connection.ownerPrefix.size() > 50)
        throw CLI::ValidationError("--owner", "more than 50 bytes");
    if (!options->run)
        return;
    if (options->database == DatabaseNeed::Create && connection.databaseFile.empty())
        throw CLI::ValidationError("create", "name the file to create");
    if (options->database == DatabaseNeed::Open && !connection.isNamed())
        throw CLI::ValidationError("no database", "name it with --database or --connect");
}

} // namespace

std::optional<int> readCommandLine(int argc, const char* const* argv, BatchOptions* options)
{
    CLI::App app(kAbout, "zonaris");
    app.footer(kExamples);
    app.set_version_flag("--version", "zonaris " ZONARIS_VERSION);
    app.require_subcommand(0, 1);
    addConnectionOptions(app, &options->connection);
    for (const auto addOne : kCommands)
        addOne(app, options);
    addPictureOptions(app, &options->picture);
    try {
        app.parse(argc, argv);
        checkTogether(options);
    } catch (const CLI::ParseError& end) {
        return app.exit(end, std::cout, std::cerr) == 0 ? kDone : kWrongUsage;
    }
    return std::nullopt;
}

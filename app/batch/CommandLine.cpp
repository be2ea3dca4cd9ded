// app/batch/CommandLine.cpp
#include "app/batch/CommandLine.h"

#include "app/batch/Commands.h"
#include "app/shell/ProgramVersion.h"
#include "app/shell/SettingsFile.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <sstream>

namespace {

constexpr const char* kAbout = "Zonaris: wells, samples and their fossils.\n"
                               "Without a command the main window opens.";

constexpr const char* kExamples = "Examples:\n"
                                  "  zonaris create my.zdb\n"
                                  "  zonaris --database my.zdb import FOLDER\n"
                                  "  zonaris --database my.zdb samples \"WELL 1\" --units F\n"
                                  "Exit status: 0 done, 1 failed, 2 wrong usage.";

void addConnectionOptions(CLI::App& app, ConnectionChoice* asked)
{
    CLI::Option* file = app.add_option("--database", asked->database,
                               "An embedded database, held in this file, or the name of a kept "
                               "connection")
                            ->type_name("FILE");
    app.add_option("--connect", asked->connect,
           "Any other database: an ODBC connection string, such as \"DSN=wells;UID=me;PWD=...\", "
           "or the name of a kept connection")
        ->type_name("STRING")
        ->excludes(file);
    app.add_option("--kind", asked->kind,
           "Kind of the database: 0 speaks Access-style SQL (default), 2 Oracle's; 3 is 0 with "
           "Oracle's dates, 1 and 5 are 0 with another catalogue")
        ->type_name("N")
        ->check(CLI::IsMember({0, 1, 2, 3, 5}));
    app.add_option("--owner,--prefix", asked->ownerPrefix,
           "Put in front of every table name, with its separator, such as \"GEO.\"")
        ->type_name("PREFIX");
    app.add_option("--user", asked->user,
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
    addPref,
    addConnections,
    addConnection,
    addBackup,
    addDoctor,
};

std::string noDatabase(const Settings& settings)
{
    std::string text = "name it with --database or --connect";
    if (!settings.recent.empty())
        text += ". Recent ones:";
    for (const std::string& file : settings.recent)
        text += "\n  --database \"" + file + '"';
    return text;
}

// A file to be made is not the name of a connection.
std::string resolve(BatchOptions* options, const Settings& settings)
{
    ConnectionChoice asked = options->asked;
    if (options->database != DatabaseNeed::Create)
        return resolveConnection(asked, settings, &options->connection);
    asked.database.clear();
    asked.connect.clear();
    const std::string problem = resolveConnection(asked, settings, &options->connection);
    options->connection.databaseFile =
        options->newFile.empty() ? options->asked.database : options->newFile;
    return problem;
}

// What the declarations above cannot say.
void checkTogether(const BatchOptions& options)
{
    const ConnectionChoice& asked = options.asked;
    if (!options.newFile.empty() && !asked.database.empty())
        throw CLI::ValidationError("create", "the file is given twice");
    if (asked.user.value_or("").size() > 5)
        throw CLI::ValidationError("--user", "more than 5 bytes");
    if (asked.ownerPrefix.value_or("").size() > 50)
        throw CLI::ValidationError("--owner", "more than 50 bytes");
}

void findDatabase(BatchOptions* options)
{
    if (options->run && options->database == DatabaseNeed::None)
        return;
    Settings settings;
    std::string problem = readSettings(&settings);
    if (!problem.empty())
        std::cerr << "zonaris: " << problem << '\n';
    problem = resolve(options, settings);
    if (!problem.empty())
        throw CLI::ValidationError("--connect", problem);
    if (!options->run)
        return;
    if (options->database == DatabaseNeed::Create && options->connection.databaseFile.empty())
        throw CLI::ValidationError("create", "name the file to create");
    if ((options->database == DatabaseNeed::Open || options->database == DatabaseNeed::AsIs)
        && !options->connection.isNamed())
        throw CLI::ValidationError("no database", noDatabase(settings));
}

// What was typed may hold a password, and the message repeats it.
int tellEnd(CLI::App& app, const CLI::ParseError& end)
{
    std::ostringstream problem;
    if (app.exit(end, std::cout, problem) == 0)
        return kDone;
    const std::string text = withoutSecrets(problem.str());
    std::cerr << text << (text.ends_with('\n') ? "" : "\n");
    return kWrongUsage;
}

} // namespace

std::optional<int> readCommandLine(int argc, const char* const* argv, BatchOptions* options)
{
    CLI::App app(kAbout, "zonaris");
    app.footer(kExamples);
    app.set_version_flag("--version", programVersion());
    app.require_subcommand(0, 1);
    addConnectionOptions(app, &options->asked);
    for (const auto addOne : kCommands)
        addOne(app, options);
    addPictureOptions(app, &options->picture);
    try {
        app.parse(argc, argv);
        checkTogether(*options);
        findDatabase(options);
    } catch (const CLI::ParseError& end) {
        return tellEnd(app, end);
    }
    return std::nullopt;
}

// app/batch/CommandLine.cpp
#include "app/batch/CommandLine.h"

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

void addCommand(CLI::App* command, BatchCommand which, BatchOptions* options)
{
    command->fallthrough(); // the options above may stand behind the command
    command->callback([=] { options->command = which; });
}

void addCreate(CLI::App& app, BatchOptions* options, std::string* file)
{
    CLI::App* create = app.add_subcommand("create",
        "Make a new embedded database with empty tables; a file that is there is left as it is");
    create->add_option("FILE", *file, "The new file (or give it with --database)");
    addCommand(create, BatchCommand::Create, options);
}

void addImport(CLI::App& app, BatchOptions* options)
{
    CLI::App* import = app.add_subcommand("import",
        "Bring in files such as wells.csv, samples.csv and taxa.csv. Everything is checked first; "
        "rows that cannot be stored are listed, the others are stored together. Importing the same "
        "files again changes nothing");
    import->add_option("INPUT", options->inputs, "Folders that hold the files, or the files")
        ->required();
    import->add_flag("--dry-run", options->dryRun, "Check and count, but store nothing");
    import->add_flag("--strict", options->strict, "End with exit status 1 when a row was refused");
    addCommand(import, BatchCommand::Import, options);
}

void addSamples(CLI::App& app, BatchOptions* options, std::string* units)
{
    CLI::App* samples = app.add_subcommand("samples", "List the samples of a well in depth order");
    samples->add_option("WELL", options->well, "Code, name or number of the well")->required();
    samples->add_option("--units", *units, "M for metres, F for feet (default: as the well has it)")
        ->type_name("M|F")
        ->check(CLI::IsMember({"M", "F"}, CLI::ignore_case));
    addCommand(samples, BatchCommand::Samples, options);
}

void addTaxa(CLI::App& app, BatchOptions* options)
{
    TaxaQuery& query = options->taxa;
    CLI::App* taxa = app.add_subcommand("taxa", "List the names of the dictionary");
    taxa->add_option("PATTERN", query.patterns,
        "Genus, species and subspecies, a subgenus in brackets; * stands for any letters, and what "
        "is left out for any name");
    taxa->add_option("--category", query.category, "Only of this category")->type_name("PATTERN");
    taxa->add_option("--codes", query.codes, "Only with codes in this range, such as 100-200")
        ->type_name("A-B");
    taxa->add_flag(
        "--synonyms", query.synonyms, "Names that another one is to be used for as well");
    taxa->add_option("--scheme", query.scheme,
            "Show the names to use of this synonymy scheme, synonyms included")
        ->type_name("NAME");
    addCommand(taxa, BatchCommand::Taxa, options);
}

void addTaxon(CLI::App& app, BatchOptions* options)
{
    CLI::App* taxon = app.add_subcommand("taxon",
        "Show how a written name is read and whether it is in the dictionary; reading "
        "needs no database");
    taxon->add_option("TEXT", options->words, "The name, with its marks and author")->required();
    addCommand(taxon, BatchCommand::Taxon, options);
}

void addAbundance(CLI::App& app, BatchOptions* options)
{
    CLI::App* abundance = app.add_subcommand("abundance", "Show the levels of an abundance scheme");
    abundance->add_option("SCHEME", options->scheme, "Name or number of the scheme")->required();
    abundance->add_option("COUNT|CODE", options->amount,
        "A count to see its level, or a code to see the count that it stands for");
    addCommand(abundance, BatchCommand::Abundance, options);
}

// What the declarations above cannot say.
void checkTogether(BatchOptions* options, const std::string& newFile)
{
    ConnectionSettings& connection = options->connection;
    if (!newFile.empty() && !connection.databaseFile.empty())
        throw CLI::ValidationError("create", "the file is given twice");
    if (!newFile.empty())
        connection.databaseFile = newFile;
    if (connection.user.size() > 5)
        throw CLI::ValidationError("--user", "more than 5 bytes");
    if (connection.ownerPrefix.size() > 50)
        throw CLI::ValidationError("--owner", "more than 50 bytes");
    if (options->command == BatchCommand::None)
        return;
    if (options->command == BatchCommand::Create && connection.databaseFile.empty())
        throw CLI::ValidationError("create", "name the file to create");
    if (connection.databaseFile.empty() && connection.connectString.empty()
        && options->command != BatchCommand::Taxon)
        throw CLI::ValidationError("no database", "name it with --database or --connect");
}

} // namespace

std::optional<int> readCommandLine(int argc, const char* const* argv, BatchOptions* options)
{
    CLI::App app(kAbout, "zonaris");
    app.footer(kExamples);
    app.set_version_flag("--version", "zonaris " ZONARIS_VERSION);
    app.require_subcommand(0, 1);
    std::string newFile;
    std::string units;
    addConnectionOptions(app, &options->connection);
    addCreate(app, options, &newFile);
    addImport(app, options);
    addCommand(app.add_subcommand("wells", "List the wells"), BatchCommand::Wells, options);
    addSamples(app, options, &units);
    addTaxa(app, options);
    addTaxon(app, options);
    addAbundance(app, options);
    // For the pictures in documents; no group hides it from the help.
    app.add_option("--screenshot", options->picture)->type_name("FILE.png")->group("");
    try {
        app.parse(argc, argv);
        checkTogether(options, newFile);
    } catch (const CLI::ParseError& end) {
        return app.exit(end, std::cout, std::cerr) == 0 ? kDone : kWrongUsage;
    }
    if (!units.empty())
        options->units = units == "F" || units == "f" ? 'F' : 'M';
    return std::nullopt;
}

// app/batch/ConnectionCommands.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "app/shell/SettingsFile.h"

#include <filesystem>
#include <iostream>

namespace {

std::vector<std::string> cells(const std::string& name, const ConnectionChoice& choice)
{
    return {name, choice.connect.empty() ? choice.database : withoutSecrets(choice.connect),
        choice.kind ? std::to_string(*choice.kind) : "", choice.ownerPrefix.value_or(""),
        choice.user.value_or("")};
}

int list()
{
    Settings settings;
    const std::string problem = readSettings(&settings);
    if (!problem.empty())
        return failed(problem);
    TextTable table({{"name"}, {"database"}, {"kind"}, {"prefix"}, {"user"}});
    for (const auto& [name, choice] : settings.connections)
        table.add(cells(name, choice));
    table.add(cells("", settings.defaults));
    table.write(std::cout);
    std::cout << "The last line holds where no connection says otherwise.\n";
    for (const std::string& file : settings.recent)
        std::cout << "recent: " << file << '\n';
    return kDone;
}

int change(const std::function<std::string(Settings*)>& edit)
{
    const std::string problem = changeSettings(edit);
    return problem.empty() ? kDone : failed(problem);
}

// "-": on the standard input, where no list of processes and no history of a shell shows it.
ConnectionChoice completed(ConnectionChoice choice)
{
    if (choice.connect == "-")
        std::getline(std::cin, choice.connect);
    if (!choice.database.empty())
        choice.database = std::filesystem::absolute(choice.database).lexically_normal().string();
    return choice;
}

std::string wrongNew(const std::string& name, const ConnectionChoice& choice)
{
    if (!isConnectionName(name))
        return "A connection's name has letters, digits, - and _ only, and begins with neither.";
    if (!choice.isNamed())
        return "Say what to connect with: --connect STRING or --database FILE.";
    if (!choice.connect.empty() && choice.connect.find('=') == std::string::npos)
        return "A connection string has the form KEY=value;KEY=value.";
    return {};
}

int add(const std::string& name, const ConnectionChoice& asked)
{
    const ConnectionChoice choice = completed(asked);
    const std::string wrong = wrongNew(name, choice);
    if (!wrong.empty())
        return failed(wrong);
    return change([&](Settings* settings) {
        return settings->connections.emplace(name, choice).second ? std::string()
                                                                  : "The connection " + name
                + " is there already. Remove it first: zonaris connection remove " + name;
    });
}

int remove(const std::string& name)
{
    return change([&](Settings* settings) {
        return settings->connections.erase(name) == 1
            ? std::string()
            : "No connection is called " + name + ". `zonaris connections` lists them.";
    });
}

int setDefaults(const ConnectionChoice& asked, bool clear)
{
    return change([&](Settings* settings) {
        ConnectionChoice& kept = settings->defaults;
        if (clear)
            kept = {};
        kept.kind = asked.kind ? asked.kind : kept.kind;
        if (asked.ownerPrefix)
            kept.ownerPrefix = asked.ownerPrefix;
        if (asked.user)
            kept.user = asked.user;
        return std::string();
    });
}

} // namespace

void addConnections(CLI::App& app, BatchOptions* options)
{
    addCommand(app, options, "connections",
        "List the connections that are kept under a name, and the recent databases", list,
        DatabaseNeed::None);
}

void addConnection(CLI::App& app, BatchOptions* options)
{
    CLI::App* connection =
        addGroup(app, "connection", "Keep a connection under a name, or the user, for later runs");
    const auto name = std::make_shared<std::string>();
    const auto clear = std::make_shared<bool>(false);
    CLI::App* adding = addCommand(
        *connection, options, "add",
        "Keep --connect or --database, --kind, --owner and --user under a name; --connect - reads "
        "the connection string from the standard input",
        [=] { return add(*name, options->asked); }, DatabaseNeed::None);
    adding->add_option("NAME", *name, "The name")->required();
    addCommand(
        *connection, options, "remove", "Forget a connection", [=] { return remove(*name); },
        DatabaseNeed::None)
        ->add_option("NAME", *name, "The name")
        ->required();
    addCommand(
        *connection, options, "defaults",
        "Keep --kind, --owner and --user for all databases that say nothing else",
        [=] { return setDefaults(options->asked, *clear); }, DatabaseNeed::None)
        ->add_flag("--clear", *clear, "Forget the former ones first");
}

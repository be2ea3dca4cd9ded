// app/batch/Command.cpp
#include "app/batch/Command.h"

CLI::App* addCommand(CLI::App& app, BatchOptions* options, const char* name, const char* help,
    std::function<int()> run, DatabaseNeed database)
{
    CLI::App* command = app.add_subcommand(name, help);
    command->fallthrough(); // options of the connection may stand behind the command
    command->callback([=, run = std::move(run)] {
        options->run = run;
        options->database = database;
    });
    return command;
}

CLI::App* addGroup(CLI::App& app, const char* name, const char* help)
{
    CLI::App* group = app.add_subcommand(name, help);
    group->fallthrough();
    group->require_subcommand(1);
    return group;
}

void addWell(CLI::App* command, std::string* well)
{
    command->add_option("WELL", *well, "Code, name or number of the well")->required();
}

void addDiscipline(CLI::App* command, std::string* discipline)
{
    command->add_option("--disc", *discipline, "Letter or name of the discipline")
        ->type_name("L")
        ->required();
}

void addUnits(CLI::App* command, char* units)
{
    command
        ->add_option_function<std::string>(
            "--units",
            [=](const std::string& text) { *units = text == "F" || text == "f" ? 'F' : 'M'; },
            "M for metres, F for feet (default: as the well has it)")
        ->type_name("M|F")
        ->check(CLI::IsMember({"M", "F"}, CLI::ignore_case));
}

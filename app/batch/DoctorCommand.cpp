// app/batch/DoctorCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/shell/Doctor.h"

#include <iomanip>
#include <iostream>

namespace {

constexpr int kNameWidth = 16;

void write(const Diagnosis& diagnosis)
{
    for (const Diagnosis::Fact& fact : diagnosis.facts)
        std::cout << std::left << std::setw(kNameWidth) << fact.name << fact.value << '\n';
    std::cout << '\n';
    int number = 0;
    for (const Diagnosis::Problem& problem : diagnosis.problems)
        std::cout << ++number << ". " << problem.text << "\n   " << problem.remedy << '\n';
    if (number == 0)
        std::cout << "Nothing is wrong.\n";
}

int examine(const ConnectionSettings& connection)
{
    const Diagnosis diagnosis = examineDatabase(connection);
    write(diagnosis);
    return diagnosis.problems.empty() ? kDone : kFailed;
}

} // namespace

void addDoctor(CLI::App& app, BatchOptions* options)
{
    addCommand(
        app, options, "doctor",
        "Examine program, driver and database; says what is wrong and what to do about it",
        [=] { return examine(options->connection); }, DatabaseNeed::ByItself);
}

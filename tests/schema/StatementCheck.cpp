// tests/schema/StatementCheck.cpp
//
//   statement_check FOLDER
//
// Prepares every statement that the suites sent, as the driver recorded them in FOLDER/*.txt,
// against the shipped tables, each in the dialect of its file. Prints those that the tables cannot
// answer, and a count at the end. Exit status 1 when there are such, or when no statement was
// found.

#include "tests/support/DriverControl.h"
#include "tests/support/SchemaDatabase.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>

namespace {

using Statements = std::set<std::string>;

/// Tests name tables that nobody has, and make tables of their own.
bool isOutsideTheTables(const std::string& statement)
{
    const std::string text = upperCased(trimmedLeft(statement));
    return text.starts_with("CREATE ") || text.starts_with("DROP ") || text.starts_with("ALTER ")
        || text.find("NO_SUCH_") != text.npos;
}

void read(const std::string& file, Statements& into)
{
    for (const std::string& statement : driver_control::recorded(file))
        if (!statement.empty() && !statement.starts_with("param:")
            && !isOutsideTheTables(statement))
            into.insert(statement);
}

std::map<std::string, Statements> readAll(const std::filesystem::path& folder)
{
    std::map<std::string, Statements> byDialect;
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(folder, none)) {
        const std::string file = entry.path().string();
        if (entry.path().extension() == ".txt")
            read(file, byDialect[file.find("kind2") != file.npos ? "Oracle" : "Access"]);
    }
    return byDialect;
}

/// How many of them the tables cannot answer.
std::size_t refusedOf(const Statements& statements, const std::string& dialect)
{
    SchemaDatabase database(dialect);
    std::size_t refused = 0;
    for (const std::string& statement : statements) {
        const std::string message = database.prepare(statement);
        if (message.empty())
            continue;
        ++refused;
        std::cout << dialect << ": " << statement << "\n    " << message << "\n";
    }
    return refused;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: statement_check FOLDER\n";
        return 1;
    }
    std::size_t all = 0;
    std::size_t refused = 0;
    for (const auto& [dialect, statements] : readAll(argv[1])) {
        all += statements.size();
        refused += refusedOf(statements, dialect);
    }
    std::cout << all - refused << " statements prepared, " << refused << " refused\n";
    return refused > 0 || all == 0 ? 1 : 0;
}

// tests/schema/StatementCheck.cpp
//
//   statement_check FOLDER
//
// Prepares every statement that the suites sent, as the driver recorded them in FOLDER/*.txt,
// against the shipped tables, each in the dialect of its file. Prints those that the tables cannot
// answer, and a count at the end. Exit status 1 when there are such, or when no statement was
// found.

#include "tests/schema/OdbcDatabase.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

namespace {

using Statements = std::set<std::string>;

struct Recorded {
    Statements access;
    Statements oracle;
};

struct Outcome {
    size_t prepared = 0;
    size_t refused = 0;
};

std::string unescaped(const std::string& line)
{
    std::string text;
    for (size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            text += line[i];
            continue;
        }
        const char letter = line[++i];
        text += letter == 'n' ? '\n' : letter == 'r' ? '\r' : letter == 't' ? '\t' : letter;
    }
    return text;
}

std::string upperCased(std::string text)
{
    std::ranges::transform(
        text, text.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

/// Tests name tables that nobody has, and make tables of their own.
bool isOutsideTheTables(const std::string& statement)
{
    const std::string text = upperCased(statement);
    const size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const std::string_view words = std::string_view(text).substr(start);
    const bool definition =
        std::ranges::any_of(std::initializer_list<const char*>{"CREATE ", "DROP ", "ALTER "},
            [words](const char* word) { return words.starts_with(word); });
    return definition || text.find("NO_SUCH_") != std::string::npos;
}

void read(const std::filesystem::path& file, Statements& into)
{
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);)
        if (!line.empty() && !line.starts_with("param:"))
            if (const std::string statement = unescaped(line); !isOutsideTheTables(statement))
                into.insert(statement);
}

Recorded readAll(const std::filesystem::path& folder)
{
    Recorded recorded;
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(folder, none)) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() == ".txt")
            read(entry.path(), name.find("kind2") != name.npos ? recorded.oracle : recorded.access);
    }
    return recorded;
}

Outcome prepareAll(const Statements& statements, const std::string& dialect)
{
    Outcome outcome;
    OdbcDatabase database("Dialect=" + dialect);
    if (!database.failure().empty()) {
        std::cout << database.failure() << "\n";
        outcome.refused = statements.size();
        return outcome;
    }
    for (const std::string& statement : statements) {
        const std::string message = database.prepare(statement);
        ++(message.empty() ? outcome.prepared : outcome.refused);
        if (!message.empty())
            std::cout << dialect << ": " << statement << "\n    " << message << "\n";
    }
    return outcome;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: statement_check FOLDER\n";
        return 1;
    }
    const Recorded recorded = readAll(argv[1]);
    const Outcome access = prepareAll(recorded.access, "Access");
    const Outcome oracle = prepareAll(recorded.oracle, "Oracle");
    const size_t prepared = access.prepared + oracle.prepared;
    const size_t refused = access.refused + oracle.refused;
    std::cout << prepared << " statements prepared, " << refused << " refused\n";
    return refused > 0 || prepared == 0 ? 1 : 0;
}

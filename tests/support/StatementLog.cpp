// tests/support/StatementLog.cpp
#include "tests/support/DriverControl.h"
#include "tests/support/TestDatabase.h"

#include <filesystem>
#include <fstream>

namespace {

std::uintmax_t sizeOf(const std::string& file)
{
    std::error_code none;
    const std::uintmax_t size = std::filesystem::file_size(file, none);
    return none ? 0 : size;
}

// The recorder keeps a statement on one line.
std::string unescaped(const std::string& line)
{
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool escape = line[i] == '\\' && i + 1 < line.size();
        const char c = escape ? line[++i] : line[i];
        text += !escape ? c : c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c;
    }
    return text;
}

} // namespace

StatementLog::StatementLog()
    : file_(driver_control::record())
    , start_(sizeOf(file_))
{
}

std::vector<std::string> StatementLog::statements() const
{
    return driver_control::recorded(file_, start_);
}

std::vector<std::string> driver_control::recorded(const std::string& file, std::uintmax_t start)
{
    std::ifstream in(file);
    in.seekg(static_cast<std::streamoff>(start));
    std::vector<std::string> statements;
    for (std::string line; std::getline(in, line);)
        statements.push_back(unescaped(line));
    return statements;
}

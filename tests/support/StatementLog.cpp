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

} // namespace

StatementLog::StatementLog()
    : file_(driver_control::record())
    , start_(sizeOf(file_))
{
}

std::vector<std::string> StatementLog::statements() const
{
    std::ifstream in(file_);
    in.seekg(static_cast<std::streamoff>(start_));
    std::vector<std::string> statements;
    for (std::string line; std::getline(in, line);)
        statements.push_back(line);
    return statements;
}

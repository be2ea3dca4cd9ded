// bench/support/BenchDatabase.cpp
#include "bench/support/BenchDatabase.h"

#include "app/shell/DriverLibrary.h"
#include "app/shell/OpenDatabase.h"
#include "db/Session.h"
#include "store/Statement.h"

#include <cstdlib>
#include <iostream>
#include <system_error>
#include <unistd.h>

namespace {

void giveUp(const std::string& reason)
{
    std::cerr << reason << '\n';
    std::exit(1);
}

void removeFiles(const std::filesystem::path& file)
{
    std::error_code ignored;
    for (const char* ending : {"", "-wal", "-shm", "-journal"})
        std::filesystem::remove(file.string() + ending, ignored);
}

} // namespace

BenchDatabase::BenchDatabase()
    : file_(std::filesystem::temp_directory_path()
        / ("zonaris-bench-" + std::to_string(getpid()) + ".zdb"))
{
    removeFiles(file_);
    ConnectionSettings settings;
    settings.databaseFile = file_.string();
    const std::string error = createDatabaseFile(settings);
    if (!error.empty())
        giveUp(error);
}

BenchDatabase::~BenchDatabase()
{
    dbDisconnect();
    removeFiles(file_);
}

std::string BenchDatabase::connectString() const
{
    std::string error;
    const std::string driver = driverLibrary(&error);
    if (driver.empty())
        giveUp(error);
    return embeddedConnectString(driver, file_.string(), 0, FileAccess::Open);
}

void BenchDatabase::run(const std::string& sql)
{
    Statement statement(sql);
    if (!statement.execute())
        giveUp(statement.error() + "\n" + sql);
}

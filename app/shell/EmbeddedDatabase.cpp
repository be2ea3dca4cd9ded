// app/shell/EmbeddedDatabase.cpp
#include "app/shell/EmbeddedDatabase.h"

#include "app/shell/DriverLibrary.h"
#include "db/Connection.h"
#include "db/Literals.h"
#include "db/Odbc.h"
#include "store/Statement.h"

#include <algorithm>

namespace {

// What the driver calls itself, whatever its file is called.
constexpr const char* kDriver = "libdesktopdb.so";

} // namespace

std::string connectionInfo(SQLUSMALLINT what)
{
    std::string text(4096, '\0');
    SQLSMALLINT length = 0;
    if (dbConnectionHandle() == SQL_NULL_HDBC
        || !odbcSucceeded(SQLGetInfo(dbConnectionHandle(), what, text.data(),
            static_cast<SQLSMALLINT>(text.size()), &length)))
        return {};
    text.resize(std::min(text.find('\0'), text.size()));
    return text;
}

bool isEmbedded() { return connectionInfo(SQL_DRIVER_NAME) == kDriver; }

std::string embeddedFile(const ConnectionSettings& settings)
{
    if (!settings.databaseFile.empty())
        return settings.databaseFile;
    return isEmbedded() ? connectionInfo(SQL_DATABASE_NAME) : std::string();
}

std::string connectStringOf(
    const ConnectionSettings& settings, FileAccess access, std::string* error)
{
    if (settings.databaseFile.empty())
        return settings.connectString;
    const std::string driver = driverLibrary(error);
    return driver.empty()
        ? std::string()
        : embeddedConnectString(driver, settings.databaseFile, settings.kind, access);
}

std::string readSchemaVersion(long* version)
{
    Statement select("SELECT max(version) FROM " + sql::table("SCHEMA_INFO"));
    Value value;
    if (!select.execute() || select.fetch() != Statement::Row::Fetched
        || !select.read(1, ColumnType::Integer, &value))
        return "The version of the tables could not be read: " + select.error();
    const long* number = std::get_if<long>(&value);
    *version = number ? *number : 0;
    return number ? std::string() : "The version of the tables is not told by SCHEMA_INFO.";
}

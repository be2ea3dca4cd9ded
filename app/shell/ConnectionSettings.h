// app/shell/ConnectionSettings.h
#pragma once

#include <string>

/// Which database, how it is spoken to, and who does. Either `databaseFile` or `connectString` is
/// set, not both.
struct ConnectionSettings {
    std::string databaseFile;  ///< an embedded database
    std::string connectString; ///< any ODBC database, as the driver manager takes it
    int kind = 0;              ///< `dbKind`
    std::string ownerPrefix;   ///< in front of every table name, with its separator ("GEO.")
    std::string user;          ///< abbreviation (USERDEF.abr), may be empty

    bool isNamed() const { return !databaseFile.empty() || !connectString.empty(); }
};

enum class FileAccess { Open, Create };

/// The connection string of an embedded database: kind 2 speaks Oracle's dialect, the others
/// Access's. Only with Create may the driver make the file.
std::string embeddedConnectString(
    const std::string& driver, const std::string& file, int kind, FileAccess access);

/// `connectString` as it may be shown and logged: the values of PWD=, Password= and their like as
/// "***", wherever they stand.
std::string withoutSecrets(const std::string& connectString);

/// `message` of a database or driver, without the secrets of the connection string that it may
/// repeat in words of its own.
std::string withoutSecretsOf(const std::string& connectString, std::string message);

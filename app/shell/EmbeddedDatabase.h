// app/shell/EmbeddedDatabase.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <sql.h>

#include <string>

// What the connected database says about itself. Failures read as an empty text.

/// One answer of SQLGetInfo on the session's connection, as text.
std::string connectionInfo(SQLUSMALLINT what);

/// Whether the session is connected with an embedded database, however it was named.
bool isEmbedded();

/// The file of the embedded database that the session is connected with under `settings`, also when
/// a connection string names it; empty for a server.
std::string embeddedFile(const ConnectionSettings& settings);

/// What to connect with for these settings; empty: `*error` tells why.
std::string connectStringOf(
    const ConnectionSettings& settings, FileAccess access, std::string* error);

/// Puts the version of the tables that SCHEMA_INFO holds into `*version`. Empty on success, else
/// what failed.
std::string readSchemaVersion(long* version);

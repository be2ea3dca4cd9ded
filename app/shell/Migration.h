// app/shell/Migration.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <string>

/// Brings the tables of the embedded database that the session is connected with under `settings`
/// to `kSchemaVersion`: in one transaction, behind a copy of the file beside it, whose name goes
/// into the sentence in `*notice`. Another process that converts the same file is waited for, and
/// then nothing is left to do. Empty on success, else what failed; the file is then as it was, and
/// a copy that was made stays.
std::string migrateDatabase(const ConnectionSettings& settings, std::string* notice);

/// Notes in SCHEMA_INFO that this program made the tables, with their version. Not committed.
/// Empty on success, else what failed.
std::string stampSchema(int version);

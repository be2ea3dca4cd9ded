// app/shell/OpenDatabase.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <string>

// The session's beginning. Results are empty on success, else a text for the user: what was tried,
// what the database said, what to do. Secrets of a connection string never appear in them.

/// Sets `dbKind`, `ownerPrefix` and the current user, connects the session, and sets the date
/// format where the kind asks for it. A file must be there and hold tables of this version or an
/// earlier one. On failure the session is not connected. A process opens databases of one kind
/// only, as the session fixes its function words at the first statement.
std::string openDatabase(const ConnectionSettings& settings);

/// Makes the file `settings.databaseFile`, which must not be there yet, with the shipped tables,
/// and leaves the session connected with it. On failure no file is left.
std::string createDatabaseFile(const ConnectionSettings& settings);

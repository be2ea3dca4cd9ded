// app/shell/OpenDatabase.h
#pragma once

#include "app/shell/ConnectionSettings.h"
#include "store/Create.h"

#include <string>

// The session's beginning. Results are empty on success, else a text for the user: what was tried,
// what the database said, what to do. Secrets of a connection string never appear in them.

/// Sets `dbKind`, `ownerPrefix` and the current user, connects the session, and sets the date
/// format where the kind asks for it. A file must be there. The tables are taken as they are. On
/// failure the session is not connected. A process opens databases of one kind only, as the
/// session fixes its function words at the first statement.
std::string connectDatabase(const ConnectionSettings& settings);

/// The same, ready for work: looks the user up, and brings the tables of an embedded database to
/// this program's version when they are of an earlier one, which a sentence in `*notice` (may be
/// null) tells. Tables of a later version are refused.
std::string openDatabase(const ConnectionSettings& settings, std::string* notice = nullptr);

/// Makes the file `settings.databaseFile`, which must not be there yet, with the shipped tables and
/// what `fill` puts into them, and leaves the session connected with it. On failure no file is
/// left.
std::string createDatabaseFile(const ConnectionSettings& settings, const FillDatabase& fill = {});

// app/shell/Settings.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

/// A database as somebody asks for it: what is not said is left to others.
struct ConnectionChoice {
    std::string database; ///< an embedded database's file, or the name of a kept connection
    std::string connect;  ///< an ODBC connection string, or the name of a kept connection
    std::optional<int> kind;
    std::optional<std::string> ownerPrefix;
    std::optional<std::string> user;

    bool isNamed() const { return !database.empty() || !connect.empty(); }
};

/// What the program keeps for a user from one run to the next, outside of any database.
struct Settings {
    std::vector<std::string> recent; ///< files of embedded databases, absolute, the latest first
    ConnectionChoice defaults;       ///< kind, prefix and user where nobody says otherwise
    std::map<std::string, ConnectionChoice> connections; ///< by name
};

/// Puts `file` in front of the recent ones, of which ten are kept.
void rememberFile(Settings* settings, const std::string& file);

/// Whether a connection may be called so: letters, digits, "-" and "_", so that no file and no
/// connection string looks like one.
bool isConnectionName(const std::string& text);

/// What to connect with: `asked` with the fields of the kept connection that it names, and then
/// those of the defaults, where it leaves one open. A file that is there comes before a connection
/// of that name. Empty on success, else what is wrong.
std::string resolveConnection(
    const ConnectionChoice& asked, const Settings& settings, ConnectionSettings* out);

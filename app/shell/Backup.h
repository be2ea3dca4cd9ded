// app/shell/Backup.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <cstdint>
#include <filesystem>
#include <string>

/// What became of a copy.
struct BackupResult {
    std::string error; ///< empty: it was made; else what failed, and nothing is left
    std::uintmax_t bytes = 0;
    double seconds = 0;
};

/// Copies the embedded database that the session is connected with under `settings` into `file`,
/// which must not be there yet: its committed state of one moment, while others read and write. The
/// copy is examined and on the disk before it gets its name. A database on a server is refused.
BackupResult backUpDatabase(const ConnectionSettings& settings, const std::filesystem::path& file);

/// The same under a name beside the database that tells the version of its tables, as in
/// "my.zdb.v1.bak", with a number behind it where that is taken. The name goes to `*file`.
BackupResult backUpBeside(
    const ConnectionSettings& settings, long version, std::filesystem::path* file);

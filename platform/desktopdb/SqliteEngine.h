// platform/desktopdb/SqliteEngine.h
#pragma once

#include "platform/desktopdb/Engine.h"

namespace desktopdb {

/// Opens a database file. Null with `failure` set when the file is not there (unless it may be
/// made), is no database, or cannot be read.
std::unique_ptr<Engine> openSqlite(const OpenOptions& options, Failure& failure);

} // namespace desktopdb

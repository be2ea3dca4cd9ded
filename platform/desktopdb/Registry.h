// platform/desktopdb/Registry.h
#pragma once

#include "platform/desktopdb/Connection.h"
#include "platform/desktopdb/Handles.h"
#include "platform/desktopdb/Statement.h"

namespace desktopdb {

// The living handles of the process, by their kind. Objects are owned by whoever frees the handle.

HandleTable<Environment>& environments();
HandleTable<Connection>& connections();
HandleTable<Statement>& statements();

/// Frees all statements of a connection; their handles are dead afterwards.
void dropStatements(Connection& connection);

} // namespace desktopdb

// db/Connection.h
#pragma once

#include <sql.h>

/// The session's ODBC connection, for statements outside the numbered cursors (schema inspection,
/// the application's writers); SQL_NULL_HDBC when not connected. The session keeps owning it.
SQLHDBC dbConnectionHandle();
/// The environment that belongs to it.
SQLHENV dbEnvironmentHandle();

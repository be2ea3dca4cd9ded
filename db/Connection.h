// db/Connection.h
#pragma once

#include <sql.h>

#include <string>

/// The session's ODBC connection, for statements outside the numbered cursors (schema inspection,
/// the application's writers); SQL_NULL_HDBC when not connected. The session keeps owning it.
SQLHDBC dbConnectionHandle();
/// The environment that belongs to it.
SQLHENV dbEnvironmentHandle();

/// Why the last `dbConnect` failed, in the words of the driver manager or the driver; empty after
/// one that succeeded and when neither gave a reason.
const std::string& dbConnectError();

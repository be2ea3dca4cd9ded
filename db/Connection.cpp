// db/Connection.cpp
#include "db/Connection.h"

#include "db/Session.h"
#include "db/SessionState.h"

int dbKind = 0;
FixedText<50> ownerPrefix;

namespace session {

State& state()
{
    static State theState;
    return theState;
}

SQLHSTMT statementOf(short cursor)
{
    return cursor >= 1 && cursor <= kLastCursor ? state().statements[cursor] : SQL_NULL_HSTMT;
}

} // namespace session

namespace {

using session::State;
using session::state;

// The driver that mistakes the switched-off scan for an error.
constexpr const char* kScanningDriver = "msorcl32.dll";

bool infoText(SQLHDBC connection, SQLUSMALLINT kind, std::string& out)
{
    char text[100] = "";
    SQLSMALLINT length = 0;
    const SQLRETURN result = SQLGetInfo(connection, kind, text, sizeof text, &length);
    out = text;
    return odbcSucceeded(result);
}

void freeHandles(State& s)
{
    if (s.connection != SQL_NULL_HDBC)
        SQLFreeConnect(s.connection);
    if (s.environment != SQL_NULL_HENV)
        SQLFreeEnv(s.environment);
    s.connection = SQL_NULL_HDBC;
    s.environment = SQL_NULL_HENV;
}

// The statements are not dropped one by one: they end with the connection that they belong to.
void forgetStatements(State& s)
{
    s.statements.fill(SQL_NULL_HSTMT);
    s.open.fill(false);
    ++s.generation;
}

// Rolls back first: some drivers refuse to disconnect while a transaction is open, and keep its
// locks.
void release(State& s)
{
    std::string ignored;
    if (s.connection != SQL_NULL_HDBC && infoText(s.connection, SQL_DATA_SOURCE_NAME, ignored)) {
        SQLTransact(s.environment, s.connection, SQL_ROLLBACK);
        SQLDisconnect(s.connection);
    }
    freeHandles(s);
    forgetStatements(s);
}

bool allocate(State& s)
{
    return odbcSucceeded(SQLAllocEnv(&s.environment))
        && odbcSucceeded(SQLAllocConnect(s.environment, &s.connection));
}

bool driverConnect(const State& s)
{
    SQLCHAR completed[500];
    SQLSMALLINT length = 0;
    return odbcSucceeded(SQLDriverConnect(s.connection, nullptr, odbcText(s.connectString), SQL_NTS,
        completed, sizeof completed, &length, SQL_DRIVER_COMPLETE));
}

bool openConnection(State& s, const char* text)
{
    if (!allocate(s))
        return false;
    if (text)
        s.connectString = text;
    return driverConnect(s);
}

} // namespace

void dbSetConnectString(const char* text) { state().connectString = text ? text : ""; }

short dbConnect(const char* text)
{
    State& s = state();
    s.lastFailedCursor = 0;
    s.connectError.clear();
    release(s);
    if (!openConnection(s, text)) {
        s.connectError = session::errorMessage(SQL_NULL_HSTMT);
        freeHandles(s);
        return 0;
    }
    SQLSetConnectOption(s.connection, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
    // A driver that does not tell its name makes this a failure, but the connection stays: a caller
    // that goes on, as after a lost connection, finds it working.
    std::string driver;
    if (!infoText(s.connection, SQL_DRIVER_NAME, driver)) {
        s.connectError = session::errorMessage(SQL_NULL_HSTMT);
        return 0;
    }
    if (driver == kScanningDriver)
        s.noScan = false;
    return 1;
}

short dbDisconnect()
{
    release(state());
    return 1;
}

SQLHDBC dbConnectionHandle() { return state().connection; }
SQLHENV dbEnvironmentHandle() { return state().environment; }

const std::string& dbConnectError() { return state().connectError; }

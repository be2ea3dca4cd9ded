// db/Cursors.cpp
#include "db/Dialect.h"
#include "db/ErrorReporter.h"
#include "db/Parameters.h"
#include "db/Session.h"
#include "db/SessionState.h"

#include <algorithm>

namespace {

using session::kLastCursor;
using session::State;
using session::state;
using session::statementOf;

// The lowest free number, or 0.
short takeCursor(State& s)
{
    for (short n = 1; n <= kLastCursor; ++n)
        if (!s.open[n]) {
            s.open[n] = true;
            return n;
        }
    return 0;
}

bool allocateStatement(State& s, short cursor)
{
    SQLHSTMT& statement = s.statements[cursor];
    if (statement != SQL_NULL_HSTMT)
        SQLFreeStmt(statement, SQL_DROP); // kept so far for its error text
    statement = SQL_NULL_HSTMT;
    return s.connection != SQL_NULL_HDBC && odbcSucceeded(SQLAllocStmt(s.connection, &statement));
}

bool runDirect(SQLHSTMT statement, const std::string& text)
{
    if (state().noScan && !odbcSucceeded(SQLSetStmtOption(statement, SQL_NOSCAN, SQL_NOSCAN_ON)))
        return false;
    return odbcSucceeded(SQLExecDirect(statement, odbcText(text), SQL_NTS));
}

bool bindAtExecution(SQLHSTMT statement, const ParameterisedText& text, SQLLEN& atExecution)
{
    SQLUSMALLINT number = 0;
    return std::ranges::all_of(text.parameters, [&](const std::string& parameter) {
        return odbcSucceeded(SQLSetParam(
            statement, ++number, SQL_C_CHAR, SQL_CHAR, parameter.size(), 0, nullptr, &atExecution));
    });
}

// Answers the driver's requests; it asks in the order of the markers.
SQLRETURN sendParameters(SQLHSTMT statement, const ParameterisedText& text)
{
    SQLPOINTER ignored = nullptr;
    for (const std::string& parameter : text.parameters) {
        const SQLRETURN asked = SQLParamData(statement, &ignored);
        if (asked != SQL_NEED_DATA)
            return asked;
        const SQLRETURN sent = SQLPutData(statement, odbcText(parameter), SQL_NTS);
        if (!odbcSucceeded(sent))
            return sent;
    }
    return SQLParamData(statement, &ignored);
}

bool runParameterised(SQLHSTMT statement, const ParameterisedText& text)
{
    SQLLEN atExecution = SQL_DATA_AT_EXEC;
    if (!odbcSucceeded(SQLPrepare(statement, odbcText(text.statement), SQL_NTS))
        || !bindAtExecution(statement, text, atExecution))
        return false;
    SQLRETURN result = SQLExecute(statement);
    if (result == SQL_NEED_DATA)
        result = sendParameters(statement, text);
    return odbcSucceeded(result);
}

bool run(SQLHSTMT statement, const std::string& text)
{
    if (text.find('|') == std::string::npos || dialectFacts().barsAsWritten)
        return runDirect(statement, text);
    return runParameterised(statement, withBarsAsParameters(text));
}

} // namespace

short dbExecute(const std::string& text)
{
    const std::string adapted = inDialect(text);
    State& s = state();
    const short cursor = takeCursor(s);
    if (cursor == 0)
        return 0;
    if (!allocateStatement(s, cursor)) {
        s.open[cursor] = false;
        return 0;
    }
    if (!run(s.statements[cursor], adapted)) {
        s.lastFailedCursor = cursor;
        s.open[cursor] = false;
        return 0;
    }
    return cursor;
}

short dbExecute(const char* text) { return dbExecute(std::string(text ? text : "")); }

int dbFetch(short cursor)
{
    const SQLHSTMT statement = statementOf(cursor);
    return statement != SQL_NULL_HSTMT && odbcSucceeded(SQLFetch(statement)) ? 0 : -1;
}

int dbCloseCursor(short cursor)
{
    if (cursor == 0)
        return 0;
    const SQLHSTMT statement = statementOf(cursor);
    if (statement == SQL_NULL_HSTMT || !odbcSucceeded(SQLFreeStmt(statement, SQL_DROP))) {
        reportError(dbErrorText());
        return -1;
    }
    state().statements[cursor] = SQL_NULL_HSTMT;
    state().open[cursor] = false;
    return 0;
}

long dbRowCount(short cursor)
{
    const SQLHSTMT statement = statementOf(cursor);
    SQLLEN rows = -1;
    return statement != SQL_NULL_HSTMT && SQLRowCount(statement, &rows) == SQL_SUCCESS ? rows : -1;
}

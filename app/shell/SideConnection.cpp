// app/shell/SideConnection.cpp
#include "app/shell/SideConnection.h"

#include "app/shell/ConnectionSettings.h"
#include "db/Connection.h"
#include "db/Odbc.h"

SideConnection::SideConnection(const std::string& connectString)
    : secretsFrom_(connectString)
{
    if (!check(SQLAllocConnect(dbEnvironmentHandle(), &connection_), SQL_NULL_HSTMT)) {
        connection_ = SQL_NULL_HDBC;
        return;
    }
    SQLCHAR completed[500];
    SQLSMALLINT length = 0;
    connected_ = check(SQLDriverConnect(connection_, nullptr, odbcText(connectString), SQL_NTS,
                           completed, sizeof completed, &length, SQL_DRIVER_NOPROMPT),
        SQL_NULL_HSTMT);
}

SideConnection::~SideConnection()
{
    if (connected_)
        SQLDisconnect(connection_);
    if (connection_ != SQL_NULL_HDBC)
        SQLFreeConnect(connection_);
}

bool SideConnection::check(SQLRETURN result, SQLHSTMT statement)
{
    if (odbcSucceeded(result))
        return true;
    SQLCHAR state[6];
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    SQLCHAR message[1000] = "";
    const bool told = odbcSucceeded(SQLError(dbEnvironmentHandle(), connection_, statement, state,
        &native, message, sizeof message, &length));
    error_ = told ? withoutSecretsOf(secretsFrom_, reinterpret_cast<const char*>(message))
                  : "The database gave no reason.";
    return false;
}

bool SideConnection::fetchAll(SQLHSTMT statement, std::vector<std::string>* texts)
{
    SQLSMALLINT columns = 0;
    if (!check(SQLNumResultCols(statement, &columns), statement))
        return false;
    while (columns > 0 && texts) {
        const SQLRETURN result = SQLFetch(statement);
        if (result == SQL_NO_DATA_FOUND)
            return true;
        char text[1001] = "";
        SQLLEN length = 0;
        if (!check(result, statement)
            || !check(SQLGetData(statement, 1, SQL_C_CHAR, text, sizeof text, &length), statement))
            return false;
        texts->push_back(text);
    }
    return true;
}

bool SideConnection::run(const std::string& sql, std::vector<std::string>* texts)
{
    if (!connected_)
        return false;
    SQLHSTMT statement = SQL_NULL_HSTMT;
    if (!check(SQLAllocStmt(connection_, &statement), SQL_NULL_HSTMT))
        return false;
    const bool done = check(SQLExecDirect(statement, odbcText(sql), SQL_NTS), statement)
        && fetchAll(statement, texts);
    SQLFreeStmt(statement, SQL_DROP);
    return done;
}

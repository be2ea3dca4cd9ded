// store/Transaction.cpp
#include "store/Transaction.h"

#include "db/Connection.h"
#include "db/Odbc.h"
#include "db/Session.h"
#include "store/Statement.h"

Transaction::~Transaction()
{
    if (open_)
        dbRollback();
}

bool Transaction::commit()
{
    const SQLHDBC connection = dbConnectionHandle();
    if (connection != SQL_NULL_HDBC
        && odbcSucceeded(SQLTransact(dbEnvironmentHandle(), connection, SQL_COMMIT))) {
        open_ = false;
        return true;
    }
    error_ = databaseError(SQL_NULL_HSTMT);
    // Half of the changes may wait in the connection; a later commit must not bring them in.
    dbRollback();
    open_ = false;
    return false;
}

// store/Transaction.cpp
#include "store/Transaction.h"

#include "db/Connection.h"
#include "db/Literals.h"
#include "db/Odbc.h"
#include "db/Session.h"
#include "store/Statement.h"

Transaction::~Transaction()
{
    if (open_)
        dbRollback();
}

bool Transaction::lock()
{
    // The first statement that may write takes the lock, whether it changes rows or not.
    Statement statement("UPDATE " + sql::table("WELLS") + " SET well_code=well_code WHERE 1=0");
    const bool locked = statement.execute();
    if (!locked)
        error_ = statement.error();
    return locked;
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

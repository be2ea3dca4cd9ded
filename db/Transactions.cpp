// db/Transactions.cpp
#include "db/ErrorReporter.h"
#include "db/Session.h"
#include "db/SessionState.h"

#include <algorithm>

namespace {

void endTransaction(SQLUSMALLINT how)
{
    const session::State& s = session::state();
    SQLTransact(s.environment, s.connection, how);
}

} // namespace

void dbCommit()
{
    auto& open = session::state().open;
    const auto first = std::ranges::find(open, true);
    if (first == open.end()) {
        endTransaction(SQL_COMMIT);
        return;
    }
    // The number only: whoever left the statement open may still be reading it.
    *first = false;
    reportError("Attempt to commit while cursor open");
}

void dbRollback() { endTransaction(SQL_ROLLBACK); }

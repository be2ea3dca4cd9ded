// interp/RunAndCommit.cpp
#include "interp/RunAndCommit.h"

#include "db/Cursor.h"
#include "db/Session.h"

bool runAndCommit(const std::string& sql, const char* failure, FailureText shown)
{
    if (!runStatement(sql)) {
        reportError(failure);
        if (shown == FailureText::WithStatement)
            reportDbFailure(sql, Fatal::No);
        return false;
    }
    dbCommit();
    return true;
}

// app/export/Snapshot.cpp
#include "app/export/Snapshot.h"

#include "db/Literals.h"

// A count has a row in an empty table too, and is not at its end before somebody asks for more.
Snapshot::Snapshot()
    : count_("SELECT count(*) FROM " + sql::table("WELL_IDENT"))
{
    if (!count_.execute() || count_.fetch() != Statement::Row::Fetched)
        error_ = count_.sql() + ": " + count_.error();
}

// app/export/Snapshot.h
#pragma once

#include "store/Statement.h"

#include <string>

/// While it lives, all reads of the session see the database as it was at the beginning, whatever
/// others store meanwhile. The embedded database keeps what a connection reads for as long as one
/// of its statements has rows left, so this is such a statement. Other databases do as their
/// isolation level says.
class Snapshot {
public:
    Snapshot();
    /// Empty, or why there is none.
    const std::string& error() const { return error_; }

private:
    Statement count_;
    std::string error_;
};

// db/SessionState.h
#pragma once

#include "db/Odbc.h"

#include <array>
#include <string>

// What the files of the session share and nobody else sees.

namespace session {

inline constexpr short kLastCursor = 9;

/// The process's one session. Handles that are freed are null from then on: the driver manager
/// aborts on some calls with a handle that was freed before.
struct State {
    SQLHENV environment = SQL_NULL_HENV;
    SQLHDBC connection = SQL_NULL_HDBC;
    /// Kept whole, for reconnections.
    std::string connectString;
    /// Kept when the handles that could be asked for it are freed.
    std::string connectError;

    /// Indexed by cursor number; entry 0 is not used. A statement outlives its number's release:
    /// that of a failed statement holds the error text, that of a refused commit may still be read.
    std::array<SQLHSTMT, kLastCursor + 1> statements{};
    std::array<bool, kLastCursor + 1> open{};

    /// Grows whenever statements are forgotten: a number taken before then means another statement.
    unsigned long generation = 0;
    /// The cursor number of the statement that failed last, 0 once its text was asked for.
    short lastFailedCursor = 0;
    /// Whether statements run with the driver's scan for escape clauses switched off.
    bool noScan = true;
};

State& state();

/// The statement behind a cursor number, null when there is none.
SQLHSTMT statementOf(short cursor);

/// The first message of a statement, or, for a null one, of the connection or else the environment.
/// Empty when there is none. It is read once.
std::string errorMessage(SQLHSTMT statement);

} // namespace session

// db/Columns.h
#pragma once

#include "db/Odbc.h"

#include <span>
#include <string>
#include <string_view>

// Columns of a statement's current row, from 1. NULL, and a column that the driver refuses to read,
// give 0, 0.0 or the empty text: the readers have no failure of their own.

namespace columns {

/// A 32-bit integer, widened.
long readLong(SQLHSTMT statement, short column);
short readShort(SQLHSTMT statement, short column);
double readDouble(SQLHSTMT statement, short column);
/// The start of the text, as much as fits in `buffer` with its terminator.
std::string_view readStart(SQLHSTMT statement, short column, std::span<char> buffer);
/// The whole text, however long.
std::string readText(SQLHSTMT statement, short column);

} // namespace columns

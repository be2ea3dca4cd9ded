// taxonomy/Identifiers.h
#pragma once

#include <optional>
#include <string>
#include <vector>

class Cursor;

/// The identifiers in column 1 of the rows that are left, in their order. Closes the cursor: what
/// is made of the identifiers runs statements of its own, and may lose the connection under it.
std::vector<long> takeIdentifiers(Cursor& row);

/// The same for a query; nothing after a failed statement, which was reported and is not fatal.
std::optional<std::vector<long>> identifiers(const std::string& sql);

/// The identifier in column 1 of the first row; 0 without a row and after the report of a failed
/// statement.
long firstIdentifier(const std::string& sql);

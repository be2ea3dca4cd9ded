// taxonomy/Identifiers.h
#pragma once

#include <optional>
#include <string>
#include <vector>

/// The identifiers in column 1 of all rows of a query, in their order. Nothing after a failed
/// statement, which was reported and is not fatal. The cursor is closed again: what is made of the
/// identifiers may need all of the session's cursors.
std::optional<std::vector<long>> identifiers(const std::string& sql);

/// The identifier in column 1 of the first row; 0 without a row and after the report of a failed
/// statement.
long firstIdentifier(const std::string& sql);

// store/Create.h
#pragma once

#include <functional>
#include <string>

/// Puts rows into a new database; empty on success, else what failed.
using FillDatabase = std::function<std::string()>;

/// Makes the tables of the shipped schema in the database that the session is connected with, and
/// then lets `fill` (none: nothing) put rows into them, in one transaction: all of it or none.
/// `fill` may commit once all its rows are in. The database must be new: tables that are there
/// already make it fail. Empty on success, else what failed.
std::string createDatabase(const FillDatabase& fill = {});

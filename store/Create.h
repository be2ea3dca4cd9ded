// store/Create.h
#pragma once

#include <string>

/// Makes the tables of the shipped schema in the database that the session is connected with, in
/// one transaction: all of them or none. The database must be new: tables that are there already
/// make it fail. Empty on success, else what failed.
std::string createDatabase();

// interp/RunAndCommit.h
#pragma once

#include <string>

/// What is reported of a failure: its own words alone, or also the statement and what the database
/// says.
enum class FailureText { Alone, WithStatement };

/// Runs a statement that returns no rows and commits. False, and nothing committed, after a
/// failure, which is reported, not fatal, beginning with the words `failure`. All cursors must be
/// closed, or nothing is committed although it returns true.
bool runAndCommit(const std::string& sql, const char* failure, FailureText shown);

// db/ErrorReporter.h
#pragma once

#include <string>

/// 0 at start. A caller sets it to 1 just before `reportError` when the failure must end the
/// process; a re-established connection sets it back to 0.
extern int fatalError;

/// Shows `text` in a modal box. A text that contains "ORA-03113" (a lost Oracle connection) offers
/// a reconnection and clears `fatalError`, after which the caller goes on without its cursors. A
/// set `fatalError` disconnects and ends the process with status 1; the call does not return then.
void reportError(const char* text);
void reportError(const std::string& text);

/// `reportError` with `fatalError` set just before: returns only when a lost connection was
/// restored.
void reportFatal(const std::string& text);

enum class Fatal { No, Yes };

/// The report of a statement that `dbExecute` could not run: first the statement, then the
/// database's text, with `fatalError` set in between when `fatal`. Returns only when the failure is
/// not fatal or a lost connection was restored; the caller must not read from the failed cursor.
void reportDbFailure(const std::string& sql, Fatal fatal);

/// The same with another first text in place of the bare statement.
void reportDbFailureAs(const std::string& firstText, Fatal fatal);

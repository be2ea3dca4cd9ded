// db/Session.h
#pragma once

#include "util/FixedText.h"

#include <string>

// The one database session of the process: an ODBC connection, statements on cursor numbers 1 to 9,
// and the adaptation of every SQL text to the database kind. Auto-commit is off; changes become
// permanent at `dbCommit`. Single-threaded: everything runs on the GUI thread.

/// Database kind: 2 is Oracle, 0 (and any other value) an Access-style desktop database; 1 and 5
/// differ from 0 in schema inspection only, 3 in the date statement after a reconnection only.
/// Set by the embedding application before the first statement; the function words are fixed then.
extern int dbKind;

/// Put in front of every table name, with its own separator ("GEO."). At most 50 bytes.
extern FixedText<50> ownerPrefix;

/// Stores the connection string, whole, without connecting. Null: empty.
void dbSetConnectString(const char* text);

/// Connects with `text` (kept for reconnections) or, when null, with the stored string. Returns 1
/// when connected, 0 on failure; reports nothing. On a connection that is still there it first
/// rolls back and releases the old handles, so that no lock of theirs blocks later writes. All
/// cursor numbers are free afterwards.
short dbConnect(const char* text);

/// Ends the session, rolling back what is not committed. Always 1; harmless when not connected.
short dbDisconnect();

/// Runs a statement of any length. Returns its cursor number, or 0 when it could not be run (or
/// nine cursors are open); reports nothing: callers report with `reportDbFailure`.
short dbExecute(const char* text);
short dbExecute(const std::string& text);

/// 0 when a row was fetched, -1 at the end of the rows or on failure. Reports nothing.
int dbFetch(short cursor);

/// Drops the statement. 0, or -1 after reporting the database's text; cursor 0 does nothing.
int dbCloseCursor(short cursor);

// Column readers; columns count from 1 and are read once, in order. NULL reads as 0, 0.0, the
// empty text and the character 0.
long dbGetLong(short cursor, short column);
double dbGetDouble(short cursor, short column);
/// At most 1023 bytes, cut at a character border; trailing white space, control characters and
/// blanks removed. Valid until the next call of this function.
const char* dbGetString(short cursor, short column);
/// The first byte of the text.
char dbGetChar(short cursor, short column);

/// Rows that the statement affected, or -1.
long dbRowCount(short cursor);

/// The database's text for the statement that failed last, at most 255 bytes, or "A database error
/// has occurred." when none has failed since the last call. Valid until the next call.
const char* dbErrorText();

/// Commits. Refused with a report ("Attempt to commit while cursor open") while a cursor is open;
/// the first open cursor number is freed then, so the next attempt may pass.
void dbCommit();
/// Rolls back, open cursors or not.
void dbRollback();

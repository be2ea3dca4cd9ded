// platform/desktopdb/TestControl.h
#pragma once

#include <sql.h>

// Switches for tests, as connection attributes (SQLSetConnectAttr) and environment variables. All
// are off until set. Faults and recording hold for the whole process.

/// Text "CALL:N[:SQLSTATE[:TEXT]][:always]": the N-th call, counted from the setting, of the ODBC
/// function CALL ("any": of any function) does nothing and fails with that SQLSTATE (HY000) and
/// text; with ":always" all later ones too. Empty text: off. Functions count under the names by
/// which the driver manager calls the driver: SQLAllocHandle, SQLFreeHandle, SQLFreeStmt,
/// SQLEndTran, SQLBindParameter and so on. Environment variable DESKTOPDB_FAULT; it is read
/// when an environment handle is allocated and takes effect when it has changed.
#define SQL_ATTR_DESKTOPDB_FAULT 30001

/// Read only, text: the function that the fault has made fail; empty before.
#define SQL_ATTR_DESKTOPDB_FAULT_FIRED 30002

/// Text, the path of a file: every statement is appended to it as it arrives, one a line, with
/// \n, \r, \t and \\ for those characters, and behind it a line "param:TEXT" for each parameter
/// value that it runs with. Empty text: off. Environment variable DESKTOPDB_RECORD.
#define SQL_ATTR_DESKTOPDB_RECORD 30003

/// Number, 1: this connection's calls are neither counted for faults nor recorded.
#define SQL_ATTR_DESKTOPDB_HIDDEN 30004

/// Read only, number: statements that this connection took from its cache of compiled ones.
#define SQL_ATTR_DESKTOPDB_CACHE_HITS 30005

/// Read only, number: statements that were not found there.
#define SQL_ATTR_DESKTOPDB_CACHE_MISSES 30006

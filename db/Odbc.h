// db/Odbc.h
#pragma once

#include <sql.h>
#include <sqlext.h>

#include <string>

// The driver manager's header with the little that every caller of it here needs. The session keeps
// to the 2.x call set, so that any driver manager from then on serves.

/// Whether a call did its work; "end of rows" and "needs data" are neither success nor failure.
inline bool odbcSucceeded(SQLRETURN result)
{
    return result == SQL_SUCCESS || result == SQL_SUCCESS_WITH_INFO;
}

/// A text as the calls take it: unsigned bytes that they only read.
inline SQLCHAR* odbcText(const char* text)
{
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text));
}
inline SQLCHAR* odbcText(const std::string& text) { return odbcText(text.c_str()); }

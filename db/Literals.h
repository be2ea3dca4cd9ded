// db/Literals.h
#pragma once

#include "util/Date.h"

#include <string>

// The literal conventions of the schema. Every statement is composed as text: a fixed piece, then a
// value turned into a literal here. The `const char*` results stay valid until the same helper is
// called again; append each at once, or use the string forms in namespace `sql`.

/// 'text' with every quote inside stored as a backquote; NULL for the empty text.
const char* sqlQuote(const char* text);
/// 'c'; NULL for the character 0.
const char* sqlQuoteChar(char c);
const char* sqlLong(long n);
const char* sqlInt(int n);
const char* sqlShort(short n);
/// Fixed-point text that reads back to the same double, never with an exponent, without trailing
/// zeros (values from one million on keep the zero decimals of the literal convention).
const char* sqlNumber(double x);
/// `ownerPrefix` and the table name.
const char* sqlTable(const char* table);
/// `ownerPrefix`, the discipline letter and the table name.
const char* sqlDiscTable(char discipline, const char* table);
/// 'ddmmyyyy' for kind 2, #yyyy-mm-dd# for the others. The invalid date: NULL for kind 2, empty for
/// the others; callers test validity themselves.
const char* sqlDate(Date d);
/// Reads "year-month-day", a time behind it ignored, into `*out`; the invalid date when the text
/// does not hold three numbers or the calendar has no such day. Returns `out`.
Date* parseDate(Date* out, const char* text);

/// The same literals as strings.
namespace sql {
std::string quote(std::string_view text);
std::string quoteChar(char c);
std::string integer(long n);
std::string number(double x);
std::string table(const char* name);
std::string date(Date d);
Date parsedDate(const char* text);
} // namespace sql

/// The next free identifier: one above the largest. 1 for an empty table, and after a failed query,
/// which is reported and not fatal.
long nextId(const char* column, const char* table);

/// 0 when `text`, trailing white space removed in place, is exactly "%"; else 1.
int isNarrowingFilter(char* text);

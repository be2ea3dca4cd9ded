// store/Value.h
#pragma once

#include "util/Date.h"

#include <string>
#include <string_view>
#include <variant>

/// What one column of one row holds, as the writers bind, read back and compare it.
/// std::monostate is NULL.
using Value = std::variant<std::monostate, std::string, long, double, Date>;

/// Float is a number that the core keeps in single precision, so two that read alike are alike.
enum class ColumnType { Text, Integer, Number, Float, Date };

// The schema's literals keep an apostrophe as a backquote, so a lookup composed as text asks for
// the backquote. Whatever is bound must therefore be stored the same way, and shown the other way
// round. These three are the only place that knows.

/// `text` as the database holds it: apostrophes as backquotes, trailing white space removed.
std::string storedText(std::string_view text);
/// The same with nothing removed, for copies of a database.
std::string storedWhole(std::string_view text);
/// A text of the database as people read it: backquotes as apostrophes.
std::string shownText(std::string_view stored);

/// `storedText` as a value; NULL for the empty text and the invalid date.
Value textValue(std::string_view text);
Value dateValue(Date date);

/// Whether writing `given` over `stored` would change nothing.
bool sameValue(ColumnType type, const Value& stored, const Value& given);

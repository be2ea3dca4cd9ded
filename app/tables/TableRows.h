// app/tables/TableRows.h
#pragma once

#include "app/tables/TableFile.h"
#include "store/Value.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The fields of one row as texts, none for NULL. Two values are the same where their texts are:
/// numbers in the shortest form that reads back, apostrophes as people see them, references and
/// own numbers as the database has them or, in a file, as the file has them.
using RowTexts = std::vector<std::optional<std::string>>;

/// Which rows of a table: a condition with "?" for its values, empty for all.
struct RowFilter {
    std::string where;
    std::vector<Value> values;
};

/// `column` is `value`, or NULL for a value that is.
RowFilter whereIs(const char* column, const Value& value);

/// Hands each row to `take`, in no order. False: `*error`.
bool readRows(const TableFile& table, const RowFilter& filter,
    const std::function<void(RowTexts&)>& take, std::string* error);

/// The text of a field as its kind writes it; none for a text that is no such value.
std::optional<std::string> plainText(FieldKind kind, const std::string& text);
/// What the database is given for a text of `plainText`; NULL for none.
Value boundValue(FieldKind kind, const std::optional<std::string>& text);

/// The order of rows in a file: field by field, NULL first, numbers by value, texts by bytes. The
/// own number does not count.
bool rowBefore(const TableFile& table, const RowTexts& a, const RowTexts& b);
/// By number where both are numbers, by bytes where neither is, numbers first.
std::strong_ordering compareTexts(
    const std::optional<std::string>& a, const std::optional<std::string>& b, FieldKind kind);

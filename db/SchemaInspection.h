// db/SchemaInspection.h
#pragma once

// Optional tables and columns: asked of the database itself, on statements of their own outside the
// numbered cursors. Nothing is reported; a failed call counts as absence. Table names come without
// the owner prefix.

/// 1 when a query on the table yields at least one column, else 0.
int tableExists(const char* table);
/// 1 when the table has a column of that name, letter case ignored.
int columnExists(const char* table, const char* column);
/// 1 when the catalogue lists a view of that name.
int viewExists(const char* name);
/// Fills the arrays, whose size is the caller's to choose, with the table's columns, each name
/// once: names and type names as new texts of 20 bytes (the caller releases them with delete[]),
/// precisions as given. Sets `*count`; returns 1.
int listColumns(const char* table, char** names, char** types, short* precisions, int* count);
/// Fills `names` with at most `max` table names as new texts of 50 bytes (released by the caller
/// with delete[]); returns their number.
int listTables(char** names, int max);
/// 1 when the catalogue describes the column; its kind goes to `typeWord` ("text", "number",
/// "date", "unknown") and its precision to `*precision`.
int columnType(const char* table, const char* column, char* typeWord, int* precision);

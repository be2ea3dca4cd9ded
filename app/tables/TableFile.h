// app/tables/TableFile.h
#pragma once

#include <span>
#include <string>
#include <string_view>

// The tables of the schema as files: one definition per table, by which every table is written and
// read. SCHEMA_INFO is not among them, since each database says its own version.

enum class FieldKind {
    Text,
    Whole,
    Number,
    Date,     ///< yyyy-mm-dd
    Own,      ///< the number under which other rows know the row; each file counts from 1
    Reference ///< the number of a row of another file, or the code of a well
};

struct TableField {
    std::string_view name; ///< in the header of the file
    FieldKind kind;
    const char* column;           ///< of the database
    std::string_view target = {}; ///< Reference: name of the table
    bool isKey = false;           ///< one of those that the row is found by
    const char* twin = nullptr;   ///< the column's other name, which holds the same
};

/// A column for people to read: what a reference means in words. Nothing is read from it.
struct ShownField {
    std::string_view name;
    std::size_t reference; ///< place of the field that it explains
};

/// What an export of one well takes of a table.
enum class TableScope {
    Dictionary, ///< all of it
    Well,       ///< the rows with its well_id
    WellCode,   ///< the row of its code
    Sample      ///< the rows that refer to one of its samples
};

/// Whether two rows of a table can have one key.
enum class KeyUse {
    None,    ///< there is none: rows are compared whole
    Natural, ///< it may happen; such rows are compared whole too
    Unique   ///< the database refuses the second one
};

struct TableFile {
    const char* name; ///< of the table
    TableScope scope;
    KeyUse keyUse;
    std::span<const TableField> fields;
    std::span<const ShownField> shown = {};
    /// The text that stands for a row where others refer to it; empty: nothing does.
    std::string_view title = {};
    bool numbersPerWell = false; ///< own numbers count within the first field
    bool keepsNumbers = false;   ///< own numbers mean something and stay wherever they are free
    /// Of comments that begin with the fields `abundance` and `percent`, these stand in columns of
    /// their own behind the others. The comments are the last field then.
    bool splitsComments = false;
    /// The database may have fewer columns: somebody else keeps the table.
    bool mayLackColumns = false;

    /// The table in small letters, without ".csv".
    std::string stem() const;
    /// The place of the own number; -1 without one.
    int own() const;
    /// The place of the reference to a well by which rows are read well by well; -1 without one.
    int well() const;
};

/// Behind those that their rows refer to.
std::span<const TableFile> tableFiles();
/// Null for a name that is none.
const TableFile* tableFile(std::string_view name);

/// The columns of the file in their order: fields, split comments, what is only shown.
std::string headerOf(const TableFile& table);

/// Whether other files can refer to a well by this code: it is not to be taken for one of the other
/// forms of a reference, "#2" (the number of a well), "?2" (of a row that is not there) and "0".
bool standsForWell(std::string_view code);

inline constexpr std::string_view kSplitNames[] = {"abundance", "percent"};

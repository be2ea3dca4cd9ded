// store/Statement.h
#pragma once

#include "store/Value.h"

#include <sql.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A prepared statement on the session's connection: prepared once, bound and executed many times,
/// dropped at its end. It stands outside the numbered cursors, so it neither uses one up nor keeps
/// the session from committing. The text goes to the database as it is written here: no dialect
/// words, no date literals. Must not outlive the connection.
class Statement {
public:
    /// Prepares `sql`, whose parameters are written "?". Without a connection, or when the database
    /// refuses the text, every later call fails with that error.
    explicit Statement(std::string sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Sets parameter `n` [1-..]; it keeps its value for later executions. A text is bound as it
    /// stands: `textValue` makes it what the database holds.
    void bind(int n, Value value);

    /// Runs with the values bound. False: `error` tells why. Ends the rows of an execution before.
    bool execute();
    /// Rows that the last execution changed, or -1.
    long changedRows() const;

    enum class Row { Fetched, End, Failed };
    Row fetch();
    /// Column `n` [1-..] of the current row; columns are read once, in order. Texts of any length,
    /// trailing white space removed. False: `error` tells why.
    bool read(int n, ColumnType type, Value* out);

    /// The same as text with nothing removed, none for NULL: what a copy of the database needs.
    bool readStored(int n, std::optional<std::string>* out);

    /// Ends the rows; the statement can be executed again.
    void close();

    const std::string& sql() const { return sql_; }
    /// The database's text of the call that failed last.
    const std::string& error() const { return error_; }

private:
    struct Parameter;

    bool check(SQLRETURN result);
    bool bindAll();
    bool readText(SQLUSMALLINT column, std::string* out, bool* isNull);
    bool readAsText(SQLUSMALLINT column, ColumnType type, Value* out);
    bool readAsNumber(SQLUSMALLINT column, ColumnType type, Value* out);

    std::string sql_;
    std::string error_;
    SQLHSTMT handle_ = SQL_NULL_HSTMT;
    std::vector<std::unique_ptr<Parameter>> parameters_;
};

/// The database's text for the last failed call on a handle; a general text when it gives none.
/// `statement` may be null: then the connection is asked.
std::string databaseError(SQLHSTMT statement);

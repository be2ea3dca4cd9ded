// platform/desktopdb/Engine.h
#pragma once

#include "platform/desktopdb/Diagnostics.h"
#include "platform/desktopdb/Value.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace desktopdb {

/// What the engine knows of a result column.
struct ResultColumn {
    std::string label;        ///< name in the result
    std::string table;        ///< table it comes from; empty for an expression
    std::string name;         ///< name in that table; empty for an expression
    std::string declaredType; ///< as the table declares it; empty for an expression
    bool notNull = false;
};

/// What the engine knows of a table's column.
struct TableColumn {
    std::string name;
    std::string declaredType;
    std::string defaultValue; ///< SQL text; empty without a default
    bool hasDefault = false;
    bool notNull = false;
    int keyPosition = 0; ///< position in the primary key from 1, 0 outside of it
};

struct TableEntry {
    std::string name;
    bool isView;
};

struct IndexEntry {
    std::string name;
    bool unique;
    std::vector<std::string> columns; ///< empty text for an expression
};

enum class Step { Row, Done, Failed };

/// A sequence of rows, read forward one at a time.
class RowSource {
public:
    virtual ~RowSource() = default;
    /// Moves to the next row. After Failed, `failure` says why.
    virtual Step step(Failure& failure) = 0;
    virtual int columnCount() const = 0;
    /// `column` from 0. Only while on a row.
    virtual Cell cell(int column) const = 0;
    virtual ResultColumn column(int column) const = 0;
};

/// One compiled statement, run any number of times.
class EngineStatement : public RowSource {
public:
    virtual int parameterCount() const = 0;
    /// `index` from 0. The cell's bytes must live until `reset`.
    virtual bool bind(int index, const Cell& cell, Failure& failure) = 0;
    /// Ends the run and forgets the bound values. No lock is held after it.
    virtual void reset() = 0;
    /// Whether running it leaves the database as it is.
    virtual bool readOnly() const = 0;
    /// Rows that the finished run inserted, changed or deleted.
    virtual std::int64_t changes() const = 0;
};

struct OpenOptions {
    std::string file;
    bool create = false;            ///< make the file when it is not there
    bool caseSensitiveLike = false; ///< LIKE regards case
    int busyTimeout = 5000;         ///< milliseconds to wait for another process's lock
};

/// One open database. Everything that the driver wants of an engine stands here, so that another
/// one can be put in its place. A connection uses it from one thread, save `interrupt`.
class Engine {
public:
    virtual ~Engine() = default;

    /// Null on failure. `sql` holds exactly one statement.
    virtual std::unique_ptr<EngineStatement> prepare(std::string_view sql, Failure& failure) = 0;

    /// Begins a transaction that is going to write.
    virtual bool begin(Failure& failure) = 0;
    virtual bool commit(Failure& failure) = 0;
    virtual bool rollback(Failure& failure) = 0;
    virtual bool inTransaction() const = 0;

    /// A number that differs after every change of the tables, also by another process. What is
    /// compiled next is compiled for the tables as they are now.
    virtual std::int64_t schemaVersion() = 0;
    /// Tables and views, by name.
    virtual bool tables(std::vector<TableEntry>& out, Failure& failure) = 0;
    /// Columns in their order; none when there is no such table.
    virtual bool columns(
        const std::string& table, std::vector<TableColumn>& out, Failure& failure) = 0;
    virtual bool indexes(
        const std::string& table, std::vector<IndexEntry>& out, Failure& failure) = 0;

    /// Makes the running statement fail soon. May be called from any thread.
    virtual void interrupt() = 0;

    virtual std::string name() const = 0;
    virtual std::string version() const = 0;
};

} // namespace desktopdb

// platform/desktopdb/Statement.h
#pragma once

#include "platform/desktopdb/ColumnType.h"
#include "platform/desktopdb/Connection.h"
#include "platform/desktopdb/Conversion.h"
#include "platform/desktopdb/Parameters.h"
#include "platform/desktopdb/Rewriter.h"

#include <atomic>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace desktopdb {

/// A column of the present result.
struct DescribedColumn {
    ResultColumn source;
    ColumnType type;
};

/// One statement handle. Its life: empty, prepared, then run; a run leaves rows to fetch, or
/// nothing, or waits for parameter data first. Calls out of turn give HY010 or 24000.
class Statement {
public:
    explicit Statement(Connection& connection)
        : connection_(connection)
    {
    }
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Diagnostics& diagnostics() { return diagnostics_; }
    Connection& connection() { return connection_; }

    SQLRETURN prepare(std::string_view sql);
    SQLRETURN execute();
    SQLRETURN executeDirect(std::string_view sql);

    SQLRETURN bindParameter(SQLUSMALLINT number, SQLSMALLINT ioType, const BoundParameter& bound);
    SQLRETURN parameterData(SQLPOINTER* token);
    SQLRETURN putData(SQLPOINTER data, SQLLEN length);
    /// Ends the wait for parameter data. A statement that runs in another thread fails soon; then
    /// nothing else is touched, so it may be called beside that thread.
    SQLRETURN cancel();
    bool isRunning() const { return running_.load(std::memory_order_acquire); }
    SQLRETURN parameterCount(SQLSMALLINT* count);

    SQLRETURN fetch();
    SQLRETURN fetchScroll(SQLSMALLINT orientation);
    SQLRETURN getData(SQLUSMALLINT number, const Target& target);
    SQLRETURN bindColumn(SQLUSMALLINT number, const Target& target);
    SQLRETURN moreResults();

    SQLRETURN columnCount(SQLSMALLINT* count);
    SQLRETURN describeColumn(SQLUSMALLINT number, SQLCHAR* name, SQLSMALLINT capacity,
        SQLSMALLINT* length, SQLSMALLINT* type, SQLULEN* size, SQLSMALLINT* digits,
        SQLSMALLINT* nullable);
    SQLRETURN columnAttribute(SQLUSMALLINT number, SQLUSMALLINT field, SQLPOINTER text,
        SQLSMALLINT capacity, SQLSMALLINT* length, SQLLEN* value);
    SQLRETURN rowCount(SQLLEN* count);

    /// SQL_CLOSE, SQL_UNBIND or SQL_RESET_PARAMS.
    SQLRETURN free(SQLUSMALLINT option);
    /// Like SQL_CLOSE, but a closed cursor is an error.
    SQLRETURN closeCursor();
    SQLRETURN setAttribute(SQLINTEGER attribute, SQLPOINTER value);

    /// Makes rows of the driver's own, or the failure to make them, this statement's result.
    SQLRETURN showRows(std::unique_ptr<RowSource> rows, const Failure& failure);

private:
    enum class State { Empty, Prepared, Done, Rows, NeedsData };

    // Statement.cpp: states and running
    bool mayStart();
    bool compile(std::string_view sql);
    Step stepRows(Failure& failure);
    SQLRETURN start();
    SQLRETURN run();
    SQLRETURN runEngine();
    bool bindValues(Failure& failure);
    SQLRETURN afterFirstStep(Step step, const Failure& failure);
    SQLRETURN abandon(const Failure& failure);
    void endRun();
    void release();

    // StatementRows.cpp: rows and columns
    Step nextRow(Failure& failure);
    SQLRETURN fetchBlock();
    SQLRETURN deliverBound(SQLULEN row);
    Target targetOf(const Target& bound, SQLULEN row) const;
    const RowSource* described() const;
    const std::vector<DescribedColumn>& columns();
    bool checkColumn(SQLUSMALLINT number);
    SQLRETURN deliverCell(int column, const Target& target, Progress& progress);

    Connection& connection_;
    Diagnostics diagnostics_;
    State state_ = State::Empty;
    std::atomic<bool> running_{false}; // inside the engine

    Rewritten text_;
    bool prepared_ = false; // the text outlives its runs
    std::unique_ptr<EngineStatement> compiled_;
    std::unique_ptr<RowSource> own_;
    RowSource* rows_ = nullptr; // the compiled statement or the driver's own rows
    int columnCount_ = 0;       // of `rows_`, which would have to ask the engine for each value
    Parameters parameters_;
    std::vector<Value> values_; // of this run, by the application's numbers

    Step peeked_ = Step::Failed; // Row: the first row waits to be fetched
    bool isPeeked_ = false;
    bool atEnd_ = false;
    bool onRow_ = false;
    SQLULEN rowNumber_ = 0;
    SQLLEN rowCount_ = -1;
    std::vector<DescribedColumn> columns_; // empty until asked for

    std::vector<Target> bound_; // by column number - 1; not bound: no buffer and no indicator
    int progressColumn_ = -1;
    Progress progress_;
    bool progressDone_ = false;

    bool scanEscapes_ = true;
    SQLULEN maxRows_ = 0;
    SQLULEN rowArraySize_ = 1;
    SQLULEN rowBindType_ = SQL_BIND_BY_COLUMN;
    SQLUSMALLINT* rowStatus_ = nullptr;
    SQLULEN* rowsFetched_ = nullptr;
    SQLULEN* bindOffset_ = nullptr;
};

} // namespace desktopdb

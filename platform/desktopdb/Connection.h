// platform/desktopdb/Connection.h
#pragma once

#include "platform/desktopdb/ConnectString.h"
#include "platform/desktopdb/Diagnostics.h"
#include "platform/desktopdb/Engine.h"
#include "platform/desktopdb/Rewriter.h"
#include "platform/desktopdb/StatementCache.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace desktopdb {

class Statement;

/// What the application asked of an environment handle.
struct Environment {
    Diagnostics diagnostics;
    SQLINTEGER odbcVersion = SQL_OV_ODBC2;
    std::set<void*> connections; ///< handles
};

/// One connection handle: an engine while it is connected, the transaction, and what its
/// statements share. Owns its statements. Used from one thread at a time, save `interrupt`.
class Connection : public DateColumns {
public:
    explicit Connection(Environment& environment)
        : environment_(environment)
    {
    }
    ~Connection() override;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    Diagnostics& diagnostics() { return diagnostics_; }
    Environment& environment() { return environment_; }
    bool isVersion2() const { return environment_.odbcVersion == SQL_OV_ODBC2; }

    SQLRETURN connect(std::string_view connectString);
    /// Rolls an open transaction back and drops the statements.
    SQLRETURN disconnect();
    bool isConnected() const { return engine_ != nullptr; }

    SQLRETURN endTransaction(SQLSMALLINT completion);
    SQLRETURN setAttribute(SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER length);
    SQLRETURN getAttribute(
        SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER capacity, SQLINTEGER* length);
    SQLRETURN getInfo(
        SQLUSMALLINT type, SQLPOINTER value, SQLSMALLINT capacity, SQLSMALLINT* length);

    /// Handles of the statements on this connection.
    std::set<void*>& statements() { return statements_; }
    /// Out of sight of faults and the recorder.
    bool isHidden() const { return hidden_; }

    // For the statements.
    Engine& engine() { return *engine_; }
    StatementCache& cache() { return cache_; }
    Dialect dialect() const { return settings_.dialect; }
    bool rewriteFor(std::string_view sql, bool scanEscapes, Rewritten& result, Failure& failure);
    /// Begins the transaction that a writing statement needs when commits are manual.
    bool beginForWrite(Failure& failure);
    void setDayFirstDates(bool on) { dayFirstDates_ = on; }
    /// After a change of the tables: nothing that was compiled for the old ones stays.
    void forgetCompiled();
    /// The same when another connection has changed them.
    void noticeTableChanges();

    bool isDate(std::string_view table, std::string_view column) const override;
    bool isDateAt(std::string_view table, size_t position) const override;

private:
    struct DateFlag {
        std::string column;
        bool isDate;
    };
    const std::vector<DateFlag>& columnsOf(std::string_view table) const;
    SQLRETURN setAutocommit(bool on);

    Environment& environment_;
    Diagnostics diagnostics_;
    ConnectSettings settings_;
    std::unique_ptr<Engine> engine_;
    StatementCache cache_; // behind the engine: its statements must go first
    std::set<void*> statements_;
    bool autocommit_ = true;
    bool dayFirstDates_ = false;
    bool hidden_ = false;
    // Which columns are dates, read when first needed and again when the tables have changed.
    mutable std::map<std::string, std::vector<DateFlag>, std::less<>> tables_;
    mutable std::int64_t tablesVersion_ = -1;
    std::int64_t compiledVersion_ = -1; // the tables that the cache's statements were made for
};

} // namespace desktopdb

// platform/desktopdb/Connection.cpp
#include "platform/desktopdb/Connection.h"

#include "platform/desktopdb/ColumnType.h"
#include "platform/desktopdb/Keywords.h"
#include "platform/desktopdb/Registry.h"
#include "platform/desktopdb/SqliteEngine.h"
#include "platform/desktopdb/TestAids.h"
#include "platform/desktopdb/TestControl.h"

#include <algorithm>

namespace desktopdb {

Connection::~Connection() { dropStatements(*this); }

SQLRETURN Connection::connect(std::string_view connectString)
{
    if (engine_)
        return diagnostics_.fail("08002", "the connection is open already");
    Failure failure;
    if (!readConnectString(connectString, settings_, failure))
        return diagnostics_.fail(failure);
    engine_ = openSqlite(settings_.open, failure);
    dayFirstDates_ = false;
    tables_.clear();
    return engine_ ? SQL_SUCCESS : diagnostics_.fail(failure);
}

SQLRETURN Connection::disconnect()
{
    if (!engine_)
        return diagnostics_.fail("08003", "the connection is not open");
    dropStatements(*this);
    cache_.clear();
    Failure ignored;
    if (engine_->inTransaction())
        engine_->rollback(ignored);
    engine_.reset();
    return SQL_SUCCESS;
}

SQLRETURN Connection::endTransaction(SQLSMALLINT completion)
{
    if (completion != SQL_COMMIT && completion != SQL_ROLLBACK)
        return diagnostics_.fail("HY012", "neither commit nor rollback");
    if (!engine_)
        return diagnostics_.fail("08003", "the connection is not open");
    if (!engine_->inTransaction())
        return SQL_SUCCESS;
    Failure failure;
    const bool done =
        completion == SQL_COMMIT ? engine_->commit(failure) : engine_->rollback(failure);
    if (completion == SQL_ROLLBACK)
        forgetCompiled(); // changes of tables are taken back as well
    return done ? SQL_SUCCESS : diagnostics_.fail(failure);
}

SQLRETURN Connection::setAutocommit(bool on)
{
    autocommit_ = on;
    return on && engine_ ? endTransaction(SQL_COMMIT) : SQL_SUCCESS;
}

namespace {
std::string_view attributeText(SQLPOINTER value, SQLINTEGER length)
{
    const auto* text = static_cast<const char*>(value);
    if (!text)
        return {};
    return length < 0 ? std::string_view(text)
                      : std::string_view(text, static_cast<size_t>(length));
}
} // namespace

SQLRETURN Connection::setAttribute(SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER length)
{
    const auto number = reinterpret_cast<SQLULEN>(value);
    switch (attribute) {
    case SQL_ATTR_AUTOCOMMIT:
        return setAutocommit(number == SQL_AUTOCOMMIT_ON);
    case SQL_ATTR_DESKTOPDB_FAULT:
        return setFault(attributeText(value, length))
            ? SQL_SUCCESS
            : diagnostics_.fail("HY024", "the fault is not of the form CALL:N[:SQLSTATE[:TEXT]]");
    case SQL_ATTR_DESKTOPDB_RECORD:
        setRecordFile(attributeText(value, length));
        return SQL_SUCCESS;
    case SQL_ATTR_DESKTOPDB_HIDDEN:
        hidden_ = number != 0;
        return SQL_SUCCESS;
    case SQL_ATTR_TXN_ISOLATION:
        return number == SQL_TXN_SERIALIZABLE
            ? SQL_SUCCESS
            : diagnostics_.warn("01S02", "transactions are always serializable");
    case SQL_ATTR_ACCESS_MODE:
    case SQL_ATTR_LOGIN_TIMEOUT:
    case SQL_ATTR_CONNECTION_TIMEOUT:
    case SQL_ATTR_METADATA_ID:
    case SQL_ATTR_PACKET_SIZE:
    case SQL_ATTR_QUIET_MODE:
    case SQL_ATTR_CURRENT_CATALOG:
    case SQL_ATTR_ANSI_APP:
        return SQL_SUCCESS; // hints that change nothing here
    default:
        return diagnostics_.fail(
            "HY092", "connection attribute " + std::to_string(attribute) + " is not known");
    }
}

SQLRETURN Connection::getAttribute(
    SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER capacity, SQLINTEGER* length)
{
    const auto text = [&](const std::string& t) -> SQLRETURN {
        return copyOut(t, value, capacity, length)
            ? SQL_SUCCESS
            : diagnostics_.warn("01004", "the text is longer than the buffer");
    };
    const auto number = [&](SQLULEN n) -> SQLRETURN {
        if (value)
            *static_cast<SQLUINTEGER*>(value) = static_cast<SQLUINTEGER>(n);
        if (length)
            *length = sizeof(SQLUINTEGER);
        return SQL_SUCCESS;
    };
    switch (attribute) {
    case SQL_ATTR_AUTOCOMMIT:
        return number(autocommit_ ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF);
    case SQL_ATTR_CONNECTION_DEAD:
        return number(engine_ ? SQL_CD_FALSE : SQL_CD_TRUE);
    case SQL_ATTR_TXN_ISOLATION:
        return number(SQL_TXN_SERIALIZABLE);
    case SQL_ATTR_ACCESS_MODE:
    case SQL_ATTR_LOGIN_TIMEOUT:
    case SQL_ATTR_CONNECTION_TIMEOUT:
        return number(0);
    case SQL_ATTR_CURRENT_CATALOG:
        return text({});
    case SQL_ATTR_DESKTOPDB_FAULT_FIRED:
        return text(firedFault());
    case SQL_ATTR_DESKTOPDB_RECORD:
        return text(recordFile());
    case SQL_ATTR_DESKTOPDB_HIDDEN:
        return number(hidden_);
    case SQL_ATTR_DESKTOPDB_CACHE_HITS:
        return number(static_cast<SQLULEN>(cache_.hits()));
    case SQL_ATTR_DESKTOPDB_CACHE_MISSES:
        return number(static_cast<SQLULEN>(cache_.misses()));
    default:
        return diagnostics_.fail(
            "HY092", "connection attribute " + std::to_string(attribute) + " is not known");
    }
}

bool Connection::rewriteFor(
    std::string_view sql, bool scanEscapes, Rewritten& result, Failure& failure)
{
    RewriteRules rules;
    rules.dialect = settings_.dialect;
    rules.owner = settings_.owner;
    rules.dayFirstDates = dayFirstDates_;
    rules.scanEscapes = scanEscapes;
    rules.dates = this;
    return rewrite(sql, rules, result, failure);
}

bool Connection::beginForWrite(Failure& failure)
{
    return autocommit_ || engine_->inTransaction() || engine_->begin(failure);
}

void Connection::forgetCompiled()
{
    cache_.clear();
    tables_.clear();
}

void Connection::noticeTableChanges()
{
    const std::int64_t version = engine_->schemaVersion();
    if (version != compiledVersion_)
        forgetCompiled();
    compiledVersion_ = version;
}

const std::vector<Connection::DateFlag>& Connection::columnsOf(std::string_view table) const
{
    const std::int64_t version = engine_->schemaVersion();
    if (version != tablesVersion_)
        tables_.clear();
    tablesVersion_ = version;
    const auto found = tables_.find(table);
    if (found != tables_.end())
        return found->second;
    std::vector<DateFlag>& flags = tables_[std::string(table)];
    std::vector<TableColumn> columns;
    Failure ignored; // a table that is not there is reported when the statement is compiled
    engine_->columns(std::string(table), columns, ignored);
    for (TableColumn& column : columns)
        flags.push_back({std::move(column.name),
            typeOfDeclaration(column.declaredType).sqlType == SQL_TYPE_DATE});
    return flags;
}

bool Connection::isDate(std::string_view table, std::string_view column) const
{
    return std::ranges::any_of(columnsOf(table),
        [&](const DateFlag& flag) { return flag.isDate && sameWord(flag.column, column); });
}

bool Connection::isDateAt(std::string_view table, size_t position) const
{
    const auto& columns = columnsOf(table);
    return position < columns.size() && columns[position].isDate;
}

} // namespace desktopdb

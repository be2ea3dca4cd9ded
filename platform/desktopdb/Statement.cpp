// platform/desktopdb/Statement.cpp
// States and running; rows and columns are in StatementRows.cpp.
#include "platform/desktopdb/Statement.h"

#include "platform/desktopdb/TestAids.h"

namespace desktopdb {

namespace {
constexpr SQLSMALLINT kSetParamType = 2; // SQLSetParam of ODBC 1 arrives as this io type
}

Statement::~Statement()
{
    endRun();
    release();
}

// A new run or text is refused while rows are open or data is awaited.
bool Statement::mayStart()
{
    if (state_ == State::NeedsData)
        diagnostics_.fail("HY010", "the statement waits for parameter data");
    else if (state_ == State::Rows)
        diagnostics_.fail("24000", "the statement's cursor is open");
    else
        return true;
    return false;
}

bool Statement::compile(std::string_view sql)
{
    endRun();
    release();
    prepared_ = false;
    state_ = State::Empty;
    if (isRecording() && !connection_.isHidden())
        recordStatement(sql);
    Failure failure;
    if (!connection_.rewriteFor(sql, scanEscapes_, text_, failure)) {
        diagnostics_.fail(failure);
        return false;
    }
    if (text_.kind == StatementKind::AlterSession)
        return true;
    if (text_.cacheable)
        compiled_ = connection_.cache().take(text_.sql);
    if (!compiled_)
        compiled_ = connection_.engine().prepare(text_.sql, failure);
    if (!compiled_)
        diagnostics_.fail(failure);
    return compiled_ != nullptr;
}

SQLRETURN Statement::prepare(std::string_view sql)
{
    if (!mayStart())
        return SQL_ERROR;
    // Columns are asked of a prepared statement before it runs and notices changed tables itself.
    connection_.noticeTableChanges();
    if (!compile(sql))
        return SQL_ERROR;
    prepared_ = true;
    state_ = State::Prepared;
    return SQL_SUCCESS;
}

SQLRETURN Statement::executeDirect(std::string_view sql)
{
    return mayStart() && compile(sql) ? start() : SQL_ERROR;
}

SQLRETURN Statement::execute()
{
    if (!mayStart())
        return SQL_ERROR;
    if (!prepared_)
        return diagnostics_.fail("HY010", "no statement has been prepared");
    endRun();
    return start();
}

SQLRETURN Statement::start()
{
    const auto count = static_cast<size_t>(text_.userParameters);
    if (!parameters_.areBound(count))
        return abandon({"07002", "not all parameters are bound"});
    if (parameters_.beginData(count)) {
        state_ = State::NeedsData;
        return SQL_NEED_DATA;
    }
    return run();
}

SQLRETURN Statement::run()
{
    Failure failure;
    const bool read = parameters_.read(static_cast<size_t>(text_.userParameters), values_, failure);
    parameters_.forgetData();
    if (!read)
        return abandon(failure);
    if (isRecording() && !connection_.isHidden()) {
        for (const Value& value : values_)
            recordParameter(value.cell());
    }
    if (text_.kind == StatementKind::AlterSession) {
        connection_.setDayFirstDates(text_.dayFirstDates);
        state_ = State::Done;
        return SQL_SUCCESS;
    }
    return runEngine();
}

SQLRETURN Statement::runEngine()
{
    Failure failure;
    const bool writes = text_.kind == StatementKind::Change || text_.kind == StatementKind::Define;
    if (!bindValues(failure) || (writes && !connection_.beginForWrite(failure)))
        return abandon(failure);
    rows_ = compiled_.get();
    const Step step = stepRows(failure);
    return afterFirstStep(step, failure);
}

Step Statement::stepRows(Failure& failure)
{
    running_.store(true, std::memory_order_release);
    const Step step = rows_->step(failure);
    running_.store(false, std::memory_order_release);
    return step;
}

bool Statement::bindValues(Failure& failure)
{
    int index = 0;
    for (const ParameterSource& source : text_.parameters) {
        Cell cell = source.literal.cell();
        if (source.user >= 0) {
            Value& value = values_[static_cast<size_t>(source.user)];
            if (!applyForm(source.form, connection_.dialect(), value, failure))
                return false;
            cell = value.cell();
        }
        if (!compiled_->bind(index++, cell, failure))
            return false;
    }
    return true;
}

// The first row is read with the execution: so a failure shows there, and expressions get a type.
SQLRETURN Statement::afterFirstStep(Step step, const Failure& failure)
{
    if (step == Step::Failed)
        return abandon(failure);
    if (text_.kind == StatementKind::Define)
        connection_.forgetCompiled();
    rowCount_ = text_.kind == StatementKind::Change ? compiled_->changes() : -1;
    columnCount_ = rows_->columnCount();
    if (columnCount_ == 0) {
        endRun();
        state_ = State::Done;
        return SQL_SUCCESS;
    }
    peeked_ = step;
    isPeeked_ = true;
    state_ = State::Rows;
    return SQL_SUCCESS;
}

SQLRETURN Statement::abandon(const Failure& failure)
{
    endRun();
    if (!prepared_)
        release();
    state_ = prepared_ ? State::Prepared : State::Empty;
    rowCount_ = -1;
    return diagnostics_.fail(failure);
}

// Ends the cursor and lets go of its locks; the text stays.
void Statement::endRun()
{
    if (compiled_)
        compiled_->reset();
    own_.reset();
    rows_ = nullptr;
    columnCount_ = 0;
    isPeeked_ = atEnd_ = onRow_ = false;
    rowNumber_ = 0;
    progressColumn_ = -1;
    columns_.clear();
}

void Statement::release()
{
    if (compiled_ && text_.cacheable)
        connection_.cache().give(text_.sql, std::move(compiled_));
    compiled_.reset();
}

SQLRETURN Statement::bindParameter(
    SQLUSMALLINT number, SQLSMALLINT ioType, const BoundParameter& bound)
{
    if (number == 0)
        return diagnostics_.fail("07009", "parameters are numbered from 1");
    if (ioType != SQL_PARAM_INPUT && ioType != kSetParamType)
        return diagnostics_.fail("HY105", "parameters are input only");
    BoundParameter resolved = bound;
    if (bound.cType == SQL_C_DEFAULT)
        resolved.cType = defaultCType(bound.sqlType);
    parameters_.bind(number - 1u, resolved);
    return SQL_SUCCESS;
}

SQLRETURN Statement::parameterData(SQLPOINTER* token)
{
    if (state_ != State::NeedsData)
        return diagnostics_.fail("HY010", "no parameter waits for data");
    if (const BoundParameter* waiting = parameters_.nextWaiting()) {
        if (token)
            *token = waiting->buffer;
        return SQL_NEED_DATA;
    }
    return run();
}

SQLRETURN Statement::putData(SQLPOINTER data, SQLLEN length)
{
    if (state_ != State::NeedsData || !parameters_.isTaking())
        return diagnostics_.fail("HY010", "no parameter waits for data");
    Failure failure;
    return parameters_.put(data, length, failure) ? SQL_SUCCESS : diagnostics_.fail(failure);
}

SQLRETURN Statement::cancel()
{
    if (isRunning()) {
        connection_.engine().interrupt();
        return SQL_SUCCESS;
    }
    if (state_ == State::NeedsData) {
        parameters_.forgetData();
        endRun();
        if (!prepared_)
            release();
        state_ = prepared_ ? State::Prepared : State::Empty;
    }
    return SQL_SUCCESS;
}

SQLRETURN Statement::parameterCount(SQLSMALLINT* count)
{
    if (!prepared_ && state_ != State::NeedsData)
        return diagnostics_.fail("HY010", "no statement has been prepared");
    if (count)
        *count = static_cast<SQLSMALLINT>(text_.userParameters);
    return SQL_SUCCESS;
}

SQLRETURN Statement::rowCount(SQLLEN* count)
{
    if (state_ == State::Empty || state_ == State::NeedsData)
        return diagnostics_.fail("HY010", "no statement has been run");
    if (count)
        *count = rowCount_;
    return SQL_SUCCESS;
}

SQLRETURN Statement::free(SQLUSMALLINT option)
{
    switch (option) {
    case SQL_CLOSE:
        if (state_ == State::NeedsData)
            return diagnostics_.fail("HY010", "the statement waits for parameter data");
        endRun();
        if (!prepared_)
            release();
        state_ = prepared_ ? State::Prepared : State::Empty;
        return SQL_SUCCESS;
    case SQL_UNBIND:
        bound_.clear();
        return SQL_SUCCESS;
    case SQL_RESET_PARAMS:
        parameters_.unbindAll();
        return SQL_SUCCESS;
    default:
        return diagnostics_.fail("HY092", "option " + std::to_string(option) + " is not known");
    }
}

SQLRETURN Statement::closeCursor()
{
    if (state_ != State::Rows)
        return diagnostics_.fail("24000", "no cursor is open");
    return free(SQL_CLOSE);
}

SQLRETURN Statement::setAttribute(SQLINTEGER attribute, SQLPOINTER value)
{
    const auto number = reinterpret_cast<SQLULEN>(value);
    const auto only = [&](SQLULEN wanted, const char* text) -> SQLRETURN {
        return number == wanted ? SQL_SUCCESS : diagnostics_.warn("01S02", text);
    };
    switch (attribute) {
    case SQL_ATTR_NOSCAN:
        scanEscapes_ = number != SQL_NOSCAN_ON;
        return SQL_SUCCESS;
    case SQL_ATTR_MAX_ROWS:
        maxRows_ = number;
        return SQL_SUCCESS;
    case SQL_ATTR_CURSOR_TYPE:
        return only(SQL_CURSOR_FORWARD_ONLY, "cursors move forward only");
    case SQL_ATTR_CONCURRENCY:
        return only(SQL_CONCUR_READ_ONLY, "cursors are read-only");
    case SQL_ATTR_QUERY_TIMEOUT:
    case SQL_ATTR_MAX_LENGTH:
        return only(0, "the limit is not kept");
    case SQL_ATTR_PARAMSET_SIZE:
        return number == 1 ? SQL_SUCCESS
                           : diagnostics_.fail("HYC00", "one set of parameters at a time");
    case SQL_ATTR_ROW_ARRAY_SIZE:
    case SQL_ROWSET_SIZE:
        if (number == 0)
            return diagnostics_.fail("HY024", "a block holds at least one row");
        rowArraySize_ = number;
        return SQL_SUCCESS;
    case SQL_ATTR_ROW_BIND_TYPE:
        rowBindType_ = number;
        return SQL_SUCCESS;
    case SQL_ATTR_ROW_STATUS_PTR:
        rowStatus_ = static_cast<SQLUSMALLINT*>(value);
        return SQL_SUCCESS;
    case SQL_ATTR_ROWS_FETCHED_PTR:
        rowsFetched_ = static_cast<SQLULEN*>(value);
        return SQL_SUCCESS;
    case SQL_ATTR_ROW_BIND_OFFSET_PTR:
        bindOffset_ = static_cast<SQLULEN*>(value);
        return SQL_SUCCESS;
    case SQL_ATTR_ASYNC_ENABLE:
        return number == SQL_ASYNC_ENABLE_OFF
            ? SQL_SUCCESS
            : diagnostics_.fail("HYC00", "statements run in the caller's thread");
    case SQL_ATTR_CURSOR_SCROLLABLE:
    case SQL_ATTR_CURSOR_SENSITIVITY:
    case SQL_ATTR_RETRIEVE_DATA:
    case SQL_ATTR_USE_BOOKMARKS:
    case SQL_ATTR_KEYSET_SIZE:
    case SQL_ATTR_SIMULATE_CURSOR:
    case SQL_ATTR_ENABLE_AUTO_IPD:
    case SQL_ATTR_METADATA_ID:
    case SQL_ATTR_PARAM_BIND_TYPE:
    case SQL_ATTR_PARAM_BIND_OFFSET_PTR:
    case SQL_ATTR_PARAM_OPERATION_PTR:
    case SQL_ATTR_PARAM_STATUS_PTR:
    case SQL_ATTR_PARAMS_PROCESSED_PTR:
    case SQL_ATTR_ROW_OPERATION_PTR:
        return SQL_SUCCESS; // nothing here depends on them
    default:
        return diagnostics_.fail(
            "HY092", "statement attribute " + std::to_string(attribute) + " is not known");
    }
}

SQLRETURN Statement::showRows(std::unique_ptr<RowSource> rows, const Failure& failure)
{
    if (!mayStart())
        return SQL_ERROR;
    endRun();
    release();
    prepared_ = false;
    text_ = {};
    if (!rows)
        return abandon(failure);
    own_ = std::move(rows);
    rows_ = own_.get();
    columnCount_ = rows_->columnCount();
    rowCount_ = -1;
    state_ = State::Rows;
    return SQL_SUCCESS;
}

} // namespace desktopdb

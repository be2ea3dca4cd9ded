// platform/desktopdb/StatementRows.cpp
// The rows and columns of a statement's result.
#include "platform/desktopdb/Statement.h"

#include <algorithm>

namespace desktopdb {

Step Statement::nextRow(Failure& failure)
{
    onRow_ = false;
    progressColumn_ = -1;
    Step step = Step::Done;
    if (isPeeked_)
        step = peeked_;
    else if (!atEnd_)
        step = stepRows(failure);
    isPeeked_ = false;
    if (maxRows_ && rowNumber_ == maxRows_ && step == Step::Row)
        step = Step::Done;
    // Stepped once more, a finished statement would start all over.
    atEnd_ = step != Step::Row;
    onRow_ = step == Step::Row;
    rowNumber_ += onRow_;
    return step;
}

SQLRETURN Statement::fetch()
{
    if (state_ == State::NeedsData)
        return diagnostics_.fail("HY010", "the statement waits for parameter data");
    if (state_ != State::Rows)
        return diagnostics_.fail("24000", "there are no rows to fetch");
    return fetchBlock();
}

SQLRETURN Statement::fetchScroll(SQLSMALLINT orientation)
{
    return orientation == SQL_FETCH_NEXT ? fetch()
                                         : diagnostics_.fail("HY106", "cursors move forward only");
}

SQLRETURN Statement::fetchBlock()
{
    SQLULEN fetched = 0;
    SQLRETURN result = SQL_SUCCESS;
    Failure failure;
    Step step = Step::Row;
    while (fetched < rowArraySize_ && (step = nextRow(failure)) == Step::Row) {
        const SQLRETURN delivered = bound_.empty() ? SQL_SUCCESS : deliverBound(fetched);
        if (rowStatus_)
            rowStatus_[fetched] = delivered == SQL_SUCCESS ? SQL_ROW_SUCCESS
                : delivered == SQL_ERROR                   ? SQL_ROW_ERROR
                                                           : SQL_ROW_SUCCESS_WITH_INFO;
        if (delivered != SQL_SUCCESS)
            result =
                delivered == SQL_ERROR && rowArraySize_ == 1 ? SQL_ERROR : SQL_SUCCESS_WITH_INFO;
        ++fetched;
    }
    if (rowsFetched_)
        *rowsFetched_ = fetched;
    for (SQLULEN i = fetched; rowStatus_ && i < rowArraySize_; ++i)
        rowStatus_[i] = SQL_ROW_NOROW;
    if (step == Step::Failed)
        return diagnostics_.fail(failure);
    return fetched ? result : SQL_NO_DATA;
}

Target Statement::targetOf(const Target& bound, SQLULEN row) const
{
    Target target = bound;
    const SQLULEN offset = bindOffset_ ? *bindOffset_ : 0;
    const SQLLEN size = fixedSize(bound.cType) ? fixedSize(bound.cType) : bound.capacity;
    const bool byColumn = rowBindType_ == SQL_BIND_BY_COLUMN;
    const SQLULEN step = byColumn ? static_cast<SQLULEN>(size) : rowBindType_;
    const SQLULEN indicatorStep = byColumn ? sizeof(SQLLEN) : rowBindType_;
    if (target.buffer)
        target.buffer = static_cast<char*>(target.buffer) + offset + row * step;
    if (target.indicator)
        target.indicator = reinterpret_cast<SQLLEN*>(
            reinterpret_cast<char*>(target.indicator) + offset + row * indicatorStep);
    return target;
}

SQLRETURN Statement::deliverBound(SQLULEN row)
{
    SQLRETURN worst = SQL_SUCCESS;
    const bool asBound = row == 0 && !bindOffset_;
    const size_t count = std::min(bound_.size(), static_cast<size_t>(columnCount_));
    for (size_t i = 0; i < count; ++i) {
        const Target& bound = bound_[i];
        if (!bound.buffer && !bound.indicator)
            continue;
        Progress progress;
        const int column = static_cast<int>(i);
        const SQLRETURN result = asBound ? deliverCell(column, bound, progress)
                                         : deliverCell(column, targetOf(bound, row), progress);
        if (result == SQL_ERROR || worst == SQL_SUCCESS)
            worst = result;
    }
    return worst;
}

SQLRETURN Statement::deliverCell(int column, const Target& target, Progress& progress)
{
    if (target.cType != SQL_C_DEFAULT)
        return deliver(rows_->cell(column), target, progress, diagnostics_);
    Target typed = target;
    typed.cType = defaultCType(columns()[static_cast<size_t>(column)].type.sqlType);
    return deliver(rows_->cell(column), typed, progress, diagnostics_);
}

SQLRETURN Statement::getData(SQLUSMALLINT number, const Target& target)
{
    if (state_ == State::NeedsData)
        return diagnostics_.fail("HY010", "the statement waits for parameter data");
    if (state_ != State::Rows || !onRow_)
        return diagnostics_.fail("24000", "the cursor is not on a row");
    const int column = number - 1;
    if ((column < 0 || column >= columnCount_) && !checkColumn(number))
        return SQL_ERROR;
    if (progressColumn_ != column) {
        progressColumn_ = column;
        progress_ = {};
        progressDone_ = false;
    }
    // Behind the end of a value there is nothing more, once; then it may be read again. A 2.x
    // application reads a value that came whole again at once.
    if (progressDone_) {
        progressColumn_ = -1;
        return SQL_NO_DATA;
    }
    const bool ends =
        progress_.partial || (!connection_.isVersion2() && fixedSize(target.cType) == 0);
    const SQLRETURN result = deliverCell(column, target, progress_);
    if (!progress_.partial) {
        progressDone_ = ends && SQL_SUCCEEDED(result);
        progress_.offset = 0;
    }
    return result;
}

SQLRETURN Statement::bindColumn(SQLUSMALLINT number, const Target& target)
{
    if (number == 0)
        return diagnostics_.fail("07009", "columns are numbered from 1");
    if (target.capacity < 0)
        return diagnostics_.fail("HY090", "the buffer's length is negative");
    if (bound_.size() < number)
        bound_.resize(number, Target{SQL_C_CHAR, nullptr, 0, nullptr});
    bound_[number - 1u] = target;
    return SQL_SUCCESS;
}

SQLRETURN Statement::moreResults()
{
    if (state_ == State::Rows)
        free(SQL_CLOSE);
    return SQL_NO_DATA;
}

const RowSource* Statement::described() const { return rows_ ? rows_ : compiled_.get(); }

bool Statement::checkColumn(SQLUSMALLINT number)
{
    const RowSource* source = described();
    const int count = source ? source->columnCount() : 0;
    if (number >= 1 && number <= count)
        return true;
    diagnostics_.fail("07009",
        "there is no column " + std::to_string(number) + ", the result has "
            + std::to_string(count));
    return false;
}

const std::vector<DescribedColumn>& Statement::columns()
{
    const RowSource* source = described();
    if (!columns_.empty() || !source)
        return columns_;
    const bool hasRow = onRow_ || (isPeeked_ && peeked_ == Step::Row);
    for (int i = 0; i < source->columnCount(); ++i) {
        ResultColumn column = source->column(i);
        const ColumnType type = column.declaredType.empty()
            ? typeOfValue(hasRow ? source->cell(i).kind : ValueKind::Null)
            : typeOfDeclaration(column.declaredType);
        columns_.push_back({std::move(column), type});
    }
    return columns_;
}

SQLRETURN Statement::columnCount(SQLSMALLINT* count)
{
    if (state_ == State::Empty || state_ == State::NeedsData)
        return diagnostics_.fail("HY010", "no statement has been prepared or run");
    const RowSource* source = described();
    if (count)
        *count = static_cast<SQLSMALLINT>(source ? source->columnCount() : 0);
    return SQL_SUCCESS;
}

SQLRETURN Statement::describeColumn(SQLUSMALLINT number, SQLCHAR* name, SQLSMALLINT capacity,
    SQLSMALLINT* length, SQLSMALLINT* type, SQLULEN* size, SQLSMALLINT* digits,
    SQLSMALLINT* nullable)
{
    if (state_ == State::Empty || state_ == State::NeedsData)
        return diagnostics_.fail("HY010", "no statement has been prepared or run");
    if (!checkColumn(number))
        return SQL_ERROR;
    const DescribedColumn& column = columns()[number - 1u];
    if (type)
        *type = typeForVersion(column.type.sqlType, connection_.isVersion2());
    if (size)
        *size = column.type.size;
    if (digits)
        *digits = column.type.digits;
    if (nullable)
        *nullable = column.source.notNull ? SQL_NO_NULLS : SQL_NULLABLE;
    return copyOut(column.source.label, name, capacity, length)
        ? SQL_SUCCESS
        : diagnostics_.warn("01004", "the column's name is longer than the buffer");
}

} // namespace desktopdb

// store/Statement.cpp
#include "store/Statement.h"

#include "db/Connection.h"
#include "db/Literals.h"
#include "db/Odbc.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr const char* kNoText = "The database gave no reason.";
constexpr const char* kNotConnected = "There is no connection to a database.";

} // namespace

// Lives at one address from binding to execution, as the driver reads it then.
struct Statement::Parameter {
    Value value;
    SQLINTEGER integer = 0;
    DATE_STRUCT date{};
    SQLLEN length = 0;

    SQLRETURN bindTo(SQLHSTMT statement, SQLUSMALLINT number);

private:
    SQLRETURN pass(SQLHSTMT statement, SQLUSMALLINT number, SQLSMALLINT cType, SQLSMALLINT sqlType,
        SQLULEN size, void* data)
    {
        return SQLBindParameter(
            statement, number, SQL_PARAM_INPUT, cType, sqlType, size, 0, data, 0, &length);
    }
};

SQLRETURN Statement::Parameter::bindTo(SQLHSTMT statement, SQLUSMALLINT number)
{
    length = 0;
    if (auto* text = std::get_if<std::string>(&value)) {
        length = static_cast<SQLLEN>(text->size());
        return pass(statement, number, SQL_C_CHAR, SQL_VARCHAR, std::max<SQLULEN>(text->size(), 1),
            text->data());
    }
    if (const auto* whole = std::get_if<long>(&value)) {
        integer = static_cast<SQLINTEGER>(*whole);
        return pass(statement, number, SQL_C_LONG, SQL_INTEGER, 10, &integer);
    }
    if (auto* fraction = std::get_if<double>(&value))
        return pass(statement, number, SQL_C_DOUBLE, SQL_DOUBLE, 15, fraction);
    if (const auto* day = std::get_if<Date>(&value)) {
        date = {static_cast<SQLSMALLINT>(day->year()), static_cast<SQLUSMALLINT>(day->month()),
            static_cast<SQLUSMALLINT>(day->day())};
        return pass(statement, number, SQL_C_DATE, SQL_DATE, 10, &date);
    }
    length = SQL_NULL_DATA;
    return pass(statement, number, SQL_C_CHAR, SQL_VARCHAR, 1, nullptr);
}

std::string databaseError(SQLHSTMT statement)
{
    const SQLHDBC connection = dbConnectionHandle();
    if (connection == SQL_NULL_HDBC)
        return kNotConnected;
    SQLCHAR sqlstate[6];
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    SQLCHAR message[1024] = "";
    const SQLRETURN result = SQLError(dbEnvironmentHandle(), connection, statement, sqlstate,
        &native, message, sizeof message, &length);
    return odbcSucceeded(result) ? reinterpret_cast<const char*>(message) : kNoText;
}

Statement::Statement(std::string sql)
    : sql_(std::move(sql))
{
    const SQLHDBC connection = dbConnectionHandle();
    if (connection == SQL_NULL_HDBC) {
        error_ = kNotConnected;
        return;
    }
    if (!odbcSucceeded(SQLAllocStmt(connection, &handle_))) {
        handle_ = SQL_NULL_HSTMT;
        error_ = databaseError(SQL_NULL_HSTMT);
        return;
    }
    if (check(SQLPrepare(handle_, odbcText(sql_), SQL_NTS)))
        return;
    SQLFreeStmt(handle_, SQL_DROP);
    handle_ = SQL_NULL_HSTMT;
}

Statement::~Statement()
{
    // A connection that went away first took its statements along.
    if (handle_ != SQL_NULL_HSTMT && dbConnectionHandle() != SQL_NULL_HDBC)
        SQLFreeStmt(handle_, SQL_DROP);
}

bool Statement::check(SQLRETURN result)
{
    if (odbcSucceeded(result))
        return true;
    error_ = databaseError(handle_);
    return false;
}

void Statement::bind(int n, Value value)
{
    while (parameters_.size() < static_cast<std::size_t>(n))
        parameters_.push_back(std::make_unique<Parameter>());
    parameters_[n - 1]->value = std::move(value);
}

bool Statement::bindAll()
{
    SQLUSMALLINT number = 0;
    return std::ranges::all_of(parameters_,
        [&](const auto& parameter) { return check(parameter->bindTo(handle_, ++number)); });
}

bool Statement::execute()
{
    if (handle_ == SQL_NULL_HSTMT)
        return false;
    close();
    return bindAll() && check(SQLExecute(handle_));
}

void Statement::close()
{
    if (handle_ != SQL_NULL_HSTMT)
        SQLFreeStmt(handle_, SQL_CLOSE);
}

long Statement::changedRows() const
{
    SQLLEN rows = -1;
    return handle_ != SQL_NULL_HSTMT && odbcSucceeded(SQLRowCount(handle_, &rows)) ? rows : -1;
}

Statement::Row Statement::fetch()
{
    if (handle_ == SQL_NULL_HSTMT)
        return Row::Failed;
    const SQLRETURN result = SQLFetch(handle_);
    if (result == SQL_NO_DATA_FOUND)
        return Row::End;
    return check(result) ? Row::Fetched : Row::Failed;
}

bool Statement::readText(SQLUSMALLINT column, std::string* out, bool* isNull)
{
    std::array<char, 512> piece{};
    for (;;) {
        SQLLEN length = 0;
        const SQLRETURN result =
            SQLGetData(handle_, column, SQL_C_CHAR, piece.data(), piece.size(), &length);
        if (result == SQL_NO_DATA_FOUND)
            return true;
        if (!check(result))
            return false;
        *isNull = length == SQL_NULL_DATA;
        if (*isNull)
            return true;
        *out += piece.data();
        // "Success with information" is how a driver says that more of the text is waiting.
        if (result == SQL_SUCCESS)
            return true;
    }
}

bool Statement::readAsText(SQLUSMALLINT column, ColumnType type, Value* out)
{
    std::string text;
    bool isNull = false;
    if (!readText(column, &text, &isNull))
        return false;
    text.resize(trimmedRight(text).size());
    if (isNull || text.empty())
        return true;
    *out = type == ColumnType::Date ? dateValue(sql::parsedDate(text.c_str())) : Value(text);
    return true;
}

bool Statement::readAsNumber(SQLUSMALLINT column, ColumnType type, Value* out)
{
    SQLINTEGER whole = 0;
    double fraction = 0;
    SQLLEN length = 0;
    const bool integer = type == ColumnType::Integer;
    const SQLRETURN result = integer
        ? SQLGetData(handle_, column, SQL_C_LONG, &whole, sizeof whole, &length)
        : SQLGetData(handle_, column, SQL_C_DOUBLE, &fraction, sizeof fraction, &length);
    if (!check(result))
        return false;
    if (length != SQL_NULL_DATA)
        *out = integer ? Value(static_cast<long>(whole)) : Value(fraction);
    return true;
}

bool Statement::read(int n, ColumnType type, Value* out)
{
    *out = Value();
    const auto column = static_cast<SQLUSMALLINT>(n);
    return type == ColumnType::Text || type == ColumnType::Date ? readAsText(column, type, out)
                                                                : readAsNumber(column, type, out);
}

bool Statement::readStored(int n, std::optional<std::string>* out)
{
    bool isNull = false;
    out->emplace();
    const bool good = readText(static_cast<SQLUSMALLINT>(n), &**out, &isNull);
    if (!good || isNull)
        out->reset();
    return good;
}

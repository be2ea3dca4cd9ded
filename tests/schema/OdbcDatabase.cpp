// tests/schema/OdbcDatabase.cpp
#include "tests/schema/OdbcDatabase.h"

#include "schema/Schema.h"

#include <filesystem>
#include <unistd.h>

namespace {

SQLCHAR* sqlText(const std::string& text)
{
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.c_str()));
}

std::string message(SQLSMALLINT kind, SQLHANDLE handle)
{
    SQLCHAR state[6] = {}, text[1024] = {};
    SQLINTEGER code = 0;
    SQLGetDiagRec(kind, handle, 1, state, &code, text, sizeof text, nullptr);
    return std::string(reinterpret_cast<char*>(state)) + " " + reinterpret_cast<char*>(text);
}

/// A statement handle that frees itself.
class Statement {
public:
    explicit Statement(SQLHDBC connection)
    {
        SQLAllocHandle(SQL_HANDLE_STMT, connection, &handle_);
    }
    ~Statement() { SQLFreeHandle(SQL_HANDLE_STMT, handle_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// An update that meets no row is no failure.
    std::string outcome(SQLRETURN result) const
    {
        const bool good = SQL_SUCCEEDED(result) || result == SQL_NO_DATA;
        return good ? std::string() : message(SQL_HANDLE_STMT, handle_);
    }
    SQLHSTMT handle() const { return handle_; }

private:
    SQLHSTMT handle_ = SQL_NULL_HSTMT;
};

std::string columnText(SQLHSTMT statement, SQLUSMALLINT column)
{
    SQLCHAR text[1024] = {};
    SQLLEN length = 0;
    SQLGetData(statement, column, SQL_C_CHAR, text, sizeof text, &length);
    return length == SQL_NULL_DATA ? "NULL" : reinterpret_cast<char*>(text);
}

std::string freshFile()
{
    static int count = 0;
    const std::string name =
        "zonaris-schema-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".db";
    return (std::filesystem::temp_directory_path() / name).string();
}

} // namespace

OdbcDatabase::OdbcDatabase(const std::string& options)
    : file_(freshFile())
{
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_);
    SQLSetEnvAttr(
        environment_, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_);
    const std::string target =
        "Driver=" ZONARIS_DRIVER_FILE ";Database=" + file_ + ";Create=1;" + options;
    if (!SQL_SUCCEEDED(SQLDriverConnect(connection_, nullptr, sqlText(target), SQL_NTS, nullptr, 0,
            nullptr, SQL_DRIVER_NOPROMPT))) {
        failure_ = message(SQL_HANDLE_DBC, connection_);
        return;
    }
    SQLSetConnectAttr(connection_, SQL_ATTR_AUTOCOMMIT,
        reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_OFF), SQL_IS_UINTEGER);
    for (const std::string_view statement : schemaStatements())
        if (failure_.empty() && !(failure_ = run(std::string(statement))).empty())
            failure_ += " in: " + std::string(statement);
}

OdbcDatabase::~OdbcDatabase()
{
    SQLEndTran(SQL_HANDLE_DBC, connection_, SQL_ROLLBACK);
    SQLDisconnect(connection_);
    SQLFreeHandle(SQL_HANDLE_DBC, connection_);
    SQLFreeHandle(SQL_HANDLE_ENV, environment_);
    for (const char* part : {"", "-journal", "-wal", "-shm"})
        std::filesystem::remove(file_ + part);
}

std::string OdbcDatabase::run(const std::string& sql)
{
    Statement statement(connection_);
    return statement.outcome(SQLExecDirect(statement.handle(), sqlText(sql), SQL_NTS));
}

std::string OdbcDatabase::prepare(const std::string& sql)
{
    Statement statement(connection_);
    const SQLRETURN prepared = SQLPrepare(statement.handle(), sqlText(sql), SQL_NTS);
    SQLSMALLINT columns = 0;
    // A driver may put the work off until somebody asks for the columns.
    return statement.outcome(
        SQL_SUCCEEDED(prepared) ? SQLNumResultCols(statement.handle(), &columns) : prepared);
}

std::vector<std::string> OdbcDatabase::rows(const std::string& sql)
{
    Statement statement(connection_);
    const SQLRETURN executed = SQLExecDirect(statement.handle(), sqlText(sql), SQL_NTS);
    if (!SQL_SUCCEEDED(executed))
        return {statement.outcome(executed)};
    SQLSMALLINT columns = 0;
    SQLNumResultCols(statement.handle(), &columns);
    std::vector<std::string> rows;
    while (SQL_SUCCEEDED(SQLFetch(statement.handle()))) {
        std::string row;
        for (SQLSMALLINT column = 1; column <= columns; ++column)
            row += (column > 1 ? "|" : "")
                + columnText(statement.handle(), static_cast<SQLUSMALLINT>(column));
        rows.push_back(row);
    }
    return rows;
}

// tests/platform/desktopdb/Client.h
#pragma once

#include "tests/support/Workspace.h"

#include <string>
#include <vector>

#include <sqlext.h>

/// A place for one test's database. Makes no file.
class DatabaseFile {
public:
    explicit DatabaseFile(const std::string& name = "test.db")
        : path_(workspace::newFile(name))
    {
    }
    const std::string& path() const { return path_; }
    /// "Driver=...;Database=...;" and `more`.
    std::string connectString(const std::string& more = "Create=1") const;

private:
    std::string path_;
};

/// Row texts as tests compare them: columns joined with "|", NULL as "NULL".
using Rows = std::vector<std::string>;

/// A connection through the driver manager, as a 2.x or 3.x application makes it. Failed calls are
/// the test's to look at: `state` and `message` tell about the last one.
class Client {
public:
    enum Version { Odbc2 = SQL_OV_ODBC2, Odbc3 = SQL_OV_ODBC3 };
    explicit Client(Version version = Odbc3);
    explicit Client(
        const DatabaseFile& file, const std::string& more = "Create=1", Version version = Odbc3);
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    SQLRETURN connect(const std::string& connectString);
    SQLRETURN disconnect();
    void autocommit(bool on);
    SQLRETURN commit() { return end(SQL_COMMIT); }
    SQLRETURN rollback() { return end(SQL_ROLLBACK); }

    /// A new statement handle, dropped with the client at the latest.
    SQLHSTMT statement();
    SQLRETURN drop(SQLHSTMT statement);
    /// Runs on `statement` and keeps what went wrong.
    SQLRETURN execute(SQLHSTMT statement, const std::string& sql);

    /// Runs and drops; false with `state` set when it failed.
    bool run(const std::string& sql);
    /// All rows; a failure is the only row, as "!" and its state.
    Rows rows(const std::string& sql);
    /// The rows that `statement` still has.
    Rows fetchAll(SQLHSTMT statement);
    /// First column of the first row.
    std::string value(const std::string& sql);

    /// Remembers the state and text of what failed on `statement`, or on the connection.
    void look(SQLHSTMT statement = SQL_NULL_HSTMT);
    const std::string& state() const { return state_; }
    const std::string& message() const { return message_; }

    SQLRETURN setAttribute(SQLINTEGER attribute, const std::string& text);
    SQLRETURN setAttribute(SQLINTEGER attribute, SQLULEN number);
    std::string textAttribute(SQLINTEGER attribute);
    long numberAttribute(SQLINTEGER attribute);

    SQLHENV environment() const { return environment_; }
    SQLHDBC connection() const { return connection_; }

private:
    SQLRETURN end(SQLSMALLINT completion);

    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
    std::string state_;
    std::string message_;
};

/// `text` as ODBC's functions want it.
inline SQLCHAR* bytes(const std::string& text)
{
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.c_str()));
}

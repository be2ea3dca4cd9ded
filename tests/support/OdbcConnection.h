// tests/support/OdbcConnection.h
#pragma once

#include <sql.h>

#include <string>
#include <vector>

/// A connection of the tests' own, beside the session: everything is committed at once, and the
/// driver's recorder and faults pass it by. A failing call fails the test.
class OdbcConnection {
public:
    explicit OdbcConnection(const std::string& connectString);
    ~OdbcConnection();
    OdbcConnection(const OdbcConnection&) = delete;
    OdbcConnection& operator=(const OdbcConnection&) = delete;

    using Row = std::vector<std::string>;
    /// Runs a statement; its rows as texts, NULL as "NULL".
    std::vector<Row> run(const std::string& sql);
    /// The rows of a statement, columns joined with "|".
    std::vector<std::string> lines(const std::string& sql);
    /// Prepares a statement without running it; the driver's message, empty when it could be. Does
    /// not fail the test.
    std::string prepare(const std::string& sql);

    /// The driver's attributes of its own.
    void setAttribute(SQLINTEGER attribute, const std::string& text);
    void setAttribute(SQLINTEGER attribute, SQLULEN number);
    std::string attribute(SQLINTEGER attribute) const;

    /// Groups statements into one transaction, which a schema of many tables is made faster in.
    void begin();
    void commit();

private:
    void check(SQLRETURN result, SQLSMALLINT kind, SQLHANDLE handle, const std::string& what) const;
    Row currentRow(SQLHSTMT statement, SQLSMALLINT columns) const;

    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
};

// tests/schema/OdbcDatabase.h
#pragma once

#include <string>
#include <vector>

#include <sql.h>
#include <sqlext.h>

/// A fresh database of the embedded driver with the shipped tables, all in one transaction that is
/// never committed, since commits would take most of a test's time. The tables are tried out below
/// the session, so nothing of it is used. The end disconnects and removes the file.
class OdbcDatabase {
public:
    /// `options` goes into the connection string as it stands ("Dialect=Oracle"). When the database
    /// cannot be made, `failure` says why and nothing else may be called.
    explicit OdbcDatabase(const std::string& options = {});
    ~OdbcDatabase();
    OdbcDatabase(const OdbcDatabase&) = delete;
    OdbcDatabase& operator=(const OdbcDatabase&) = delete;

    const std::string& failure() const { return failure_; }

    /// Runs a statement; the driver's message, empty when it ran.
    std::string run(const std::string& sql);
    /// Prepares a statement without running it; the driver's message, empty when it could be.
    std::string prepare(const std::string& sql);
    /// The rows of a query, columns joined with "|", NULL as "NULL"; the driver's message as the
    /// one row when the query fails.
    std::vector<std::string> rows(const std::string& sql);

private:
    std::string file_;
    std::string failure_;
    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
};

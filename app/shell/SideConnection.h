// app/shell/SideConnection.h
#pragma once

#include <sql.h>

#include <string>
#include <vector>

/// A second connection beside the session's, for what cannot stand in the session's transaction.
/// Each statement is committed at once. The session must be connected, as its environment is used.
class SideConnection {
public:
    /// Connects. When that fails, every statement fails with the reason.
    explicit SideConnection(const std::string& connectString);
    ~SideConnection();
    SideConnection(const SideConnection&) = delete;
    SideConnection& operator=(const SideConnection&) = delete;

    /// Runs a statement as it stands and puts the first column of its rows into `texts` (null: they
    /// are not wanted), each at most 1000 bytes. False: `error` tells why, without secrets.
    bool run(const std::string& sql, std::vector<std::string>* texts = nullptr);
    const std::string& error() const { return error_; }

private:
    bool check(SQLRETURN result, SQLHSTMT statement);
    bool fetchAll(SQLHSTMT statement, std::vector<std::string>* texts);

    std::string secretsFrom_; // the connection string
    SQLHDBC connection_ = SQL_NULL_HDBC;
    bool connected_ = false;
    std::string error_;
};

// store/Transaction.h
#pragma once

#include <string>

/// The changes of one unit of work on the session's connection: all of them or none. The connection
/// commits by hand, so the first statement after the last commit began the transaction already;
/// this object decides how it ends.
class Transaction {
public:
    Transaction() = default;
    /// Rolls back unless `commit` succeeded.
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Waits for other writers, as long as the database does, and keeps them out until the end:
    /// what is read from here on stays true. False: `error`. Databases that lock single rows keep
    /// nobody out.
    bool lock();
    /// Makes the changes permanent. False: nothing of it was kept, and `error` has the database's
    /// text. Unlike the session's own commit it takes no notice of open cursors.
    bool commit();
    const std::string& error() const { return error_; }

private:
    bool open_ = true;
    std::string error_;
};

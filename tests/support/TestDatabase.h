// tests/support/TestDatabase.h
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// What this test process runs as, from the environment: database kind (ZONARIS_TEST_KIND, 0 when
/// not set) and owner prefix (ZONARIS_TEST_PREFIX, empty when not set). The session freezes its
/// function words per process, so every kind gets a process of its own.
struct TestSettings {
    int kind;
    std::string prefix;
};
const TestSettings& testSettings();

/// A fresh embedded database in a temporary file, with the shipped schema unless `Empty`, and the
/// session connected to it with the process's kind and prefix. Its end disconnects the session,
/// restores the session settings and removes the file.
class TestDatabase {
public:
    enum Contents { Schema, Empty };
    explicit TestDatabase(Contents contents = Schema);
    ~TestDatabase();
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    /// The connection string that the session is connected with.
    const std::string& connectString() const { return connectString_; }
    const std::string& file() const { return file_; }

    // A second connection of the test's own, committed at once and outside the session: what a test
    // puts in or looks at does not pass through the code under test. Bare table names, SQLite's own
    // date texts. A failing statement fails the test.
    void run(const std::string& sql);
    /// First column of the first row as text; "NULL" for NULL, "" without a row.
    std::string value(const std::string& sql);
    /// All rows, columns as text joined with "|", NULL as "NULL".
    std::vector<std::string> rows(const std::string& sql);

private:
    struct State;
    State* state_;
    std::string file_;
    std::string connectString_;
};

/// The statements that arrived at the driver over the session since this object was made, in order,
/// as the driver received them; parameters appear as "param:TEXT" behind their statement.
class StatementLog {
public:
    StatementLog();
    std::vector<std::string> statements() const;

private:
    std::string file_;
    std::uintmax_t start_;
};

/// Makes one driver call fail while it lives: the `n`-th (from 1) of `call` counted from its
/// making, or, with `Always`, that one and all later ones. `call` is an ODBC function name
/// ("SQLFetch", "SQLExecDirect", ...) or "any".
class DriverFault {
public:
    enum Times { Once, Always };
    explicit DriverFault(int n, const std::string& call = "any", Times times = Once,
        const std::string& sqlstate = "HY000", const std::string& text = "injected fault");
    ~DriverFault();
    /// Whether the call was reached.
    bool fired() const;
    /// The ODBC function that failed; empty when not fired.
    std::string call() const;
};

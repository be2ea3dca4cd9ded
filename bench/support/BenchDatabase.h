// bench/support/BenchDatabase.h
#pragma once

#include <filesystem>
#include <string>

/// A new embedded database in a temporary file, with the shipped tables, and the session connected
/// to it. Its end disconnects the session and removes the file. What cannot be made or run ends the
/// program with a message: a measurement of half a database would be none.
class BenchDatabase {
public:
    BenchDatabase();
    ~BenchDatabase();
    BenchDatabase(const BenchDatabase&) = delete;
    BenchDatabase& operator=(const BenchDatabase&) = delete;

    /// Runs a statement that gives no rows, on the session's connection and in its transaction.
    void run(const std::string& sql);

    /// How another connection reaches the same file.
    std::string connectString() const;

private:
    std::filesystem::path file_;
};

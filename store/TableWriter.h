// store/TableWriter.h
#pragma once

#include "store/Statement.h"

#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

struct Column {
    const char* name;
    ColumnType type;
};

/// One entry per column of the writer. An entry without value stands for "not given": inserted as
/// NULL, left as it is by an update.
using Row = std::vector<std::optional<Value>>;

/// Reads and writes single rows of one table by their natural key, with statements that are
/// prepared once. The owner prefix is put in front of the table. Must not outlive the connection.
class TableWriter {
public:
    /// The arrays must outlive the writer; the key columns are not among `columns`.
    TableWriter(const char* table, std::span<const Column> keys, std::span<const Column> columns);

    enum class Found { Yes, No, Failed };
    /// Reads the columns of the first row with this key into `stored`, every entry with a value.
    Found find(const std::vector<Value>& key, Row* stored);
    bool insert(const std::vector<Value>& key, const Row& row);
    /// Writes the entries of `changes` that have a value; without any it does nothing.
    bool update(const std::vector<Value>& key, const Row& changes);

    /// The entries of `given` that writing them over `stored` would change.
    Row differences(const Row& stored, const Row& given) const;

    /// The statement and the database's text of the call that failed last.
    const std::string& error() const { return error_; }

private:
    Statement& prepared(const std::string& sql);
    bool run(Statement& statement);
    bool fail(const Statement& statement);

    std::string table_;
    std::span<const Column> keys_;
    std::span<const Column> columns_;
    std::map<std::string, std::unique_ptr<Statement>> statements_;
    std::string error_;
};

/// Whether no entry has a value.
bool isEmpty(const Row& row);

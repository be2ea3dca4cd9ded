// app/import/StoredRows.h
#pragma once

#include "app/import/TableNumbers.h"
#include "app/tables/TableRows.h"
#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/Statement.h"

#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

/// The rows of one table in the database, as an import finds and writes them. Rows are known by
/// hashes of 128 bits, for the wells that were asked for.
class StoredRows {
public:
    StoredRows(const TableFile& table, Writing writing, TableNumbers& numbers);

    /// Stores a row, in which references are the database's numbers. A row just like it that
    /// `source` did not bring is that row. Else, with `keyIsSingle`, the one row with its key is
    /// changed, and any other row is new. `*own` is the number that the file gives it (none: it
    /// gives none) and becomes the database's.
    Outcome put(RowTexts row, bool keyIsSingle, const void* source, std::optional<long>* own);
    /// Whether a row has that number; none: the database could not be asked.
    std::optional<bool> has(long own);

    const std::string& error() const { return error_; }

private:
    struct Known {
        std::string rest; // what is not its key
        long own = 0;
        const void* source = nullptr; // that brought it or found it
    };

    bool load(const std::optional<std::string>& well);
    Known& remember(const RowTexts& row, const void* source);
    bool keyIsWhole(const RowTexts& row) const;
    std::string keyOf(const RowTexts& row) const;
    std::string restOf(const RowTexts& row) const;
    bool allocate(const RowTexts& row, std::optional<long>* own);
    bool allocateInWell(const RowTexts& row, std::optional<long>* own);
    using Fields = std::vector<const TableField*>;
    bool write(const RowTexts& row, Outcome as);
    bool insert(const RowTexts& row, const Fields& fields);
    bool update(const RowTexts& row, const Fields& fields);
    bool run(Statement& statement);
    Statement& prepared(const std::string& sql);

    const TableFile& table_;
    const Writing writing_;
    TableNumbers& numbers_;
    IdAllocator ids_;
    std::unordered_map<std::string, std::vector<Known>> rows_;
    std::set<std::optional<std::string>> loaded_;   // wells, or nothing for a table without
    std::unordered_map<std::string, long> largest_; // numbers within wells
    std::set<long> kept_;                           // numbers of a table that keeps them
    std::unordered_map<std::string, std::unique_ptr<Statement>> statements_;
    std::string error_;
};

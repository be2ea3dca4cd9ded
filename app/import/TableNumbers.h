// app/import/TableNumbers.h
#pragma once

#include "app/tables/TableFile.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

/// A row of a table's file that rows of other files refer to.
struct NumberedRow {
    long line = 0;
    bool isAmbiguous = false;       ///< two rows have this code
    std::optional<long> databaseId; ///< none until the row is stored
};

/// What the references in the files of tables stand for, within one set of files.
class TableNumbers {
public:
    /// The row that the reference names; `scope` is the reference to the well where numbers count
    /// within one, else empty. Null when no file of the set has it.
    NumberedRow* find(const TableFile& table, const std::string& set, const std::string& scope,
        const std::string& reference);
    /// Gives the row of that line a reference, or finds it again. Another row that has it already
    /// makes it ambiguous.
    NumberedRow* give(const TableFile& table, const std::string& set, const std::string& scope,
        const std::string& reference, long line);

    /// Numbers that rows refer to though no row has them: no new row may get one.
    void addOrphan(const TableFile& table, long id) { orphans_[&table].insert(id); }
    bool isOrphan(const TableFile& table, long id) { return orphans_[&table].contains(id); }

private:
    using Place = std::pair<const TableFile*, std::string>; // table and set
    std::map<Place, std::unordered_map<std::string, NumberedRow>> rows_;
    std::map<const TableFile*, std::set<long>> orphans_;
};

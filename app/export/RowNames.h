// app/export/RowNames.h
#pragma once

#include "app/tables/TableRows.h"

#include <string>
#include <unordered_map>

/// What the rows that others refer to are called in the files.
class RowNames {
public:
    struct Name {
        std::string reference; ///< as other files refer to the row
        std::string title;     ///< as people know it
    };

    /// `row` is as the database has it, one with an own number.
    void give(const TableFile& table, const RowTexts& row, const std::string& reference);

    /// What the reference of a row is to; null for NULL and where there is no such row. `row` is
    /// as the database has it.
    const Name* find(const TableFile& table, const RowTexts& row, std::size_t field) const;

private:
    std::string titleOf(const TableFile& table, const RowTexts& row) const;

    std::unordered_map<std::string, Name> names_;
};

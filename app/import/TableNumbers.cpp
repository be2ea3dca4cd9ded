// app/import/TableNumbers.cpp
#include "app/import/TableNumbers.h"

NumberedRow* TableNumbers::find(const TableFile& table, const std::string& set,
    const std::string& scope, const std::string& reference)
{
    auto& rows = rows_[{&table, set}];
    const auto found = rows.find(scope + '\n' + reference);
    return found == rows.end() ? nullptr : &found->second;
}

NumberedRow* TableNumbers::give(const TableFile& table, const std::string& set,
    const std::string& scope, const std::string& reference, long line)
{
    NumberedRow& row = rows_[{&table, set}].try_emplace(scope + '\n' + reference).first->second;
    if (row.line == 0)
        row.line = line;
    row.isAmbiguous |= row.line != line;
    return &row;
}

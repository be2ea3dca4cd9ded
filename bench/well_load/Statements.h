// bench/well_load/Statements.h
#pragma once

#include "bench/well_load/GeneratedWell.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A statement of the loaders, and how each of its columns is read: 'l' whole number, 'd' number,
/// 's' text, 'c' first character, '-' read as a whole number and kept by no object.
struct LoadStatement {
    std::string sql;
    std::string_view columns;
    /// Where the analyst's abbreviation and number stand, which objects keep as one key; 0: nowhere.
    short keyColumn = 0;
};

/// All statements that a whole load of the generated well runs, in their order and as they arrive
/// at the driver.
std::vector<LoadStatement> loadStatements();

/// What reading does with a value when only time is measured: as good as nothing, so that the
/// reading itself is not left out.
class TouchedValues {
public:
    void integer(long n) { sum_ += static_cast<std::uint64_t>(n); }
    void number(double x) { sum_ += x > 0; }
    void text(std::string_view t) { sum_ += t.size(); }
    void letter(std::string_view t) { sum_ += t.empty() ? 0u : static_cast<unsigned char>(t[0]); }
    std::uint64_t sum() const { return sum_; }

private:
    std::uint64_t sum_ = 0;
};

/// Reads all rows column by column, as `rows` reads them.
template <class Rows, class Values>
void readAll(Rows& rows, std::string_view columns, Values& values)
{
    while (rows.next())
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const auto column = static_cast<short>(i + 1);
            switch (columns[i]) {
            case 'd':
                values.number(rows.number(column));
                break;
            case 's':
                values.text(rows.text(column));
                break;
            case 'c':
                values.letter(rows.text(column));
                break;
            default:
                values.integer(rows.integer(column));
            }
        }
}

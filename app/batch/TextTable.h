// app/batch/TextTable.h
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

/// Columns that UTF-8 text takes up on a terminal: combining marks none, East Asian wide
/// characters two, others one. A byte that is part of no character counts one.
std::size_t displayWidth(std::string_view text);

/// A table of texts, each column as wide as its widest cell.
class TextTable {
public:
    enum class Align { Left, Right };
    struct Column {
        std::string title;
        Align align = Align::Left;
    };

    explicit TextTable(std::vector<Column> columns);
    /// One cell per column.
    void add(std::vector<std::string> cells);
    std::size_t rows() const { return rows_.size(); }
    /// Titles and rows, two blanks between columns, none at the ends of lines.
    void write(std::ostream& out) const;

    /// Titles and rows as comma separated values, UTF-8, every cell quoted.
    void writeCsv(std::ostream& out) const;

private:
    void writeRow(std::ostream& out, const std::vector<std::string>& cells,
        const std::vector<std::size_t>& widths) const;

    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
};

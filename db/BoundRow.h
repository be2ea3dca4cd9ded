// db/BoundRow.h
#pragma once

#include "db/ColumnUse.h"
#include "db/Odbc.h"

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// The buffers that a statement's columns are bound to, so that a fetch fills all of them with one
/// call of the driver. Internal to `Cursor`. The statement must be dropped before this is.
///
/// A reader gives nothing for a column that is not bound for it, for a text that does not fit, and
/// for a row with a value that the driver could not convert: that one is asked of the driver then.
/// NULL reads as 0 and the empty text.
class BoundRow {
public:
    /// Binds the columns that were used in one way so far; `uses[0]` is column 1. Null when the
    /// driver reads no columns singly that are bound.
    static std::unique_ptr<BoundRow> bind(SQLHSTMT statement, std::span<const ColumnUse> uses);

    /// Fetches the next row; false at the end or on failure.
    bool fetch();
    /// Whether the last fetch found no more rows, rather than failing.
    bool atEnd() const { return atEnd_; }

    std::optional<long> integer(short column) const;
    std::optional<double> number(short column) const;
    /// As stored, up to a zero byte.
    std::optional<std::string_view> text(short column) const;
    std::optional<char> letter(short column) const;

private:
    struct Column {
        ColumnUse use = ColumnUse::None; // None: not bound
        SQLLEN indicator = SQL_NULL_DATA;
        char* buffer = nullptr;
    };
    explicit BoundRow(SQLHSTMT statement)
        : statement_(statement)
    {
    }
    void bindColumns(std::span<const ColumnUse> uses);
    const Column* boundFor(ColumnUse use, short column) const;

    SQLHSTMT statement_;
    std::vector<char> bytes_;
    std::vector<Column> columns_;
    bool filled_ = false;
    bool atEnd_ = false;
};

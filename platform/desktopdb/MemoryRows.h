// platform/desktopdb/MemoryRows.h
#pragma once

#include "platform/desktopdb/Engine.h"

#include <span>
#include <utility>
#include <vector>

namespace desktopdb {

/// Name and declaration of a column of the driver's own rows.
struct RowColumn {
    std::string_view name;
    std::string_view declaration;
};

/// Few rows that the driver itself has composed.
class MemoryRows : public RowSource {
public:
    /// `columns` outlives the rows.
    explicit MemoryRows(std::span<const RowColumn> columns)
        : columns_(columns)
    {
    }
    void add(std::vector<Value> row) { rows_.push_back(std::move(row)); }

    Step step(Failure&) override
    {
        return next_ < rows_.size() ? (++next_, Step::Row) : Step::Done;
    }
    int columnCount() const override { return static_cast<int>(columns_.size()); }
    Cell cell(int column) const override
    {
        return rows_[next_ - 1][static_cast<size_t>(column)].cell();
    }
    ResultColumn column(int column) const override
    {
        const RowColumn& c = columns_[static_cast<size_t>(column)];
        return {std::string(c.name), {}, {}, std::string(c.declaration), false};
    }

private:
    std::span<const RowColumn> columns_;
    std::vector<std::vector<Value>> rows_;
    size_t next_ = 0;
};

} // namespace desktopdb

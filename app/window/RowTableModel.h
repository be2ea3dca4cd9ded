// app/window/RowTableModel.h
#pragma once

#include "app/window/WellTableModel.h"

#include <span>
#include <vector>

/// The table made of what is found in a well and of functions that write a row under each column.
template <typename Row> class RowTableModel final : public WellTableModel {
public:
    struct Column : WellColumn {
        QString (*text)(const Row& row, char units);
        QString (*explained)(const Row& row) = nullptr;
    };
    using Finder = std::vector<Row> (*)(const Well& well);

    /// The columns must outlive the model.
    RowTableModel(std::span<const Column> columns, Finder rowsOf)
        : columns_(columns)
        , rowsOf_(rowsOf)
    {
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(columns_.size());
    }

protected:
    const Column& column(int number) const override
    {
        return columns_[static_cast<std::size_t>(number)];
    }
    QString text(const QModelIndex& index, char units) const override
    {
        return column(index.column()).text(row(index), units);
    }
    QString explained(const QModelIndex& index) const override
    {
        const auto explain = column(index.column()).explained;
        return explain ? explain(row(index)) : QString();
    }
    bool findRows(const Well* well) override
    {
        found_ = well ? rowsOf_(*well) : std::vector<Row>();
        return found_ != rows_;
    }
    void takeRows() override { rows_ = std::move(found_); }

private:
    const Row& row(const QModelIndex& index) const
    {
        return rows_[static_cast<std::size_t>(index.row())];
    }

    std::span<const Column> columns_;
    Finder rowsOf_;
    std::vector<Row> rows_;
    std::vector<Row> found_;
};

// app/window/RecordTable.h
#pragma once

#include "app/window/WellTableModel.h"

#include <QColor>

#include <vector>

/// What one cell shows.
struct RecordCell {
    RecordCell(QString shown, QString meant = {}, QColor behind = {})
        : text(std::move(shown))
        , words(std::move(meant))
        , colour(behind)
    {
    }

    QString text;
    QString words; ///< what the text stands for; empty where it speaks for itself
    QColor colour; ///< behind the text; invalid: that of the table
};

/// The cells of a row, one under each column.
using RecordRow = std::vector<RecordCell>;

/// A table of what was read of a well's interpretation. The core gives its records in one unit, so
/// they are read once more for another one: the rows are texts and point at nothing.
class RecordTable final : public WellTableModel {
public:
    explicit RecordTable(std::vector<WellColumn> columns)
        : columns_(std::move(columns))
    {
    }

    /// The next `show` shows these rows.
    void put(std::vector<RecordRow> rows) { found_ = std::move(rows); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Text on a colour is black or white, whichever can be read.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

protected:
    const WellColumn& column(int number) const override;
    QString text(const QModelIndex& index, char units) const override;
    QString explained(const QModelIndex& index) const override;
    bool findRows(const Well*) override { return !found_.empty() || !rows_.empty(); }
    void takeRows() override;

private:
    const RecordCell& cell(const QModelIndex& index) const;

    std::vector<WellColumn> columns_;
    std::vector<RecordRow> rows_;
    std::vector<RecordRow> found_;
};

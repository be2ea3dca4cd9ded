// app/window/FrozenTable.h
#pragma once

#include <QWidget>

#include <vector>

class NameHeader;
class QAbstractItemModel;
class QModelIndex;
class QTableView;

/// A wide table whose first columns stay in sight beside the others, which are headed by names of
/// taxa. Rows and selection are one.
class FrozenTable : public QWidget {
    Q_OBJECT

public:
    /// The model, which must outlive the table, has `frozen` columns that stay.
    FrozenTable(QAbstractItemModel* model, int frozen, QWidget* parent = nullptr);

    /// The columns that move: what takes the keyboard.
    QTableView& table() const { return *table_; }
    /// To be called when the model has other columns or texts: `widths` are those of the columns
    /// that move, in pixels.
    void fit(const std::vector<int>& widths);

private:
    void fitFrozen();
    void markRow(const QModelIndex& cell);

    int frozenColumns_;
    QTableView* frozen_;
    QTableView* table_;
    NameHeader* names_;
};

// app/window/WellTableModel.h
#pragma once

#include <QAbstractTableModel>

class Well;

/// What a column of a table says of itself.
struct WellColumn {
    const char* heading; ///< "%1" in columns of depths: the sign of the units
    const char* meaning;
    Qt::AlignmentFlag alignment;
};

/// Rows of something that a well has. Points at the parts of the well: they must live until `show`
/// is called with another one.
class WellTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows what `well` (null: nothing) has, with depths in `units` ('F' or 'M').
    void show(const Well* well, char units);
    /// The same well may have more by now. Nothing changes when it has not.
    void showMore();
    /// The same rows in other units.
    void setUnits(char units);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Columns have a text and a tooltip that says what the column holds; rows count from 1.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    virtual const WellColumn& column(int number) const = 0;
    virtual QString text(const QModelIndex& index, char units) const = 0;
    /// What the text stands for; empty where it speaks for itself.
    virtual QString explained(const QModelIndex& index) const = 0;
    /// Whether the rows of the well are others than those shown.
    virtual bool findRows(const Well* well) = 0;
    /// Shows the rows that were found last.
    virtual void takeRows() = 0;

private:
    const Well* well_ = nullptr;
    char units_ = 'M';
};

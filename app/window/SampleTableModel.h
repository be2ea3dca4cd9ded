// app/window/SampleTableModel.h
#pragma once

#include <QAbstractTableModel>

#include <vector>

class Sample;
class Well;

/// The samples of a well as rows, in the order of the well's list.
class SampleTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows the samples of `well` (null: none) with depths in `units` ('F' or 'M'). Points at the
    /// samples: they must live, and stay in the list, until the next call.
    void show(const Well* well, char units);
    /// The same samples in other units.
    void setUnits(char units);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Columns have a text and a tooltip that says what the column holds; rows count from 1.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<const Sample*> samples_; // a list has no access by row
    char units_ = 'M';
};

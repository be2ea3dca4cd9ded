// app/window/SamplePane.h
#pragma once

#include "app/window/DepthUnits.h"
#include "app/window/SampleTableModel.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QTableView;

/// The samples of the chosen well as a table, with the switch for the units above it.
class SamplePane : public QWidget {
    Q_OBJECT

public:
    explicit SamplePane(QWidget* parent = nullptr);

    /// Shows the samples of `well` (null: none) with depths in `units` ('F' or 'M'); the well must
    /// live until the next call.
    void show(const Well* well, char units);
    /// What the switch says, and the same samples in `units`.
    void setUnits(DepthUnits shown, char units);

    QTableView& table() const { return *table_; }

signals:
    /// The user turned the switch.
    void unitsChosen(DepthUnits units);

private:
    SampleTableModel samples_;
    QLabel* count_;
    QComboBox* units_;
    QTableView* table_;
};

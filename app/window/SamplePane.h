// app/window/SamplePane.h
#pragma once

#include "app/window/SampleTableModel.h"
#include "app/window/WellView.h"

class QComboBox;
class QLabel;
class QTableView;

/// The samples of the chosen well as a table, with the switch for the units above it.
class SamplePane : public WellView {
    Q_OBJECT

public:
    explicit SamplePane(QWidget* parent = nullptr);

    void showWell(const Well* well, char units) override;
    void setUnits(DepthUnits shown, char units) override;
    QWidget& place() const override;

private:
    SampleTableModel samples_;
    QLabel* count_;
    QComboBox* units_;
    QTableView* table_;
};

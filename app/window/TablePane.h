// app/window/TablePane.h
#pragma once

#include "app/window/WellTableModel.h"
#include "app/window/WellView.h"

#include <memory>

class QLabel;
class QTableView;
class QVBoxLayout;

/// How a table of a well is called.
struct TableWords {
    const char* object;  ///< name of the table among the widgets
    const char* spoken;  ///< by screen readers
    const char* none;    ///< stands above the table when there are no rows
    const char* counted; ///< and when there are: "%1" is how many
};

/// A plain table of the chosen well, with the number of its rows above it.
class TablePane : public WellView {
    Q_OBJECT

public:
    TablePane(std::unique_ptr<WellTableModel> model, const TableWords& words);

    void showWell(Well* well, char units) override;
    void showMore() override;
    void setUnits(char units) override;
    QWidget& place() const override;

protected:
    /// The line above the table goes first.
    QVBoxLayout& lines() const { return *lines_; }
    QTableView& table() const { return *table_; }

private:
    void fit();

    std::unique_ptr<WellTableModel> model_;
    TableWords words_;
    QVBoxLayout* lines_;
    QLabel* count_;
    QTableView* table_;
};

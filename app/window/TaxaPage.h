// app/window/TaxaPage.h
#pragma once

#include "app/window/Page.h"
#include "app/window/TaxonTableModel.h"

#include <QTimer>

class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;
class TaxonPanel;

/// The names of the dictionary: a field that searches them while one types, the names that were
/// found with the names to use under a synonymy scheme, and the parts of the chosen one.
class TaxaPage : public Page {
    Q_OBJECT

public:
    explicit TaxaPage(QWidget* parent = nullptr);

    void read() override;
    void startSearch() override;
    QWidget& firstPlace() const override;
    QList<QWidget*> panes() const override;

private:
    QWidget* makeSearch();
    void search();
    void enterTable();
    void choose(const QModelIndex& row);
    void chooseScheme();
    long scheme() const;

    TaxonTableModel taxa_;
    QTimer pause_; // since the last key
    QLineEdit* field_;
    QComboBox* schemes_;
    QLabel* count_;
    QTableView* table_;
    TaxonPanel* panel_;
    long chosen_ = 0;
};

// app/window/WellListPane.h
#pragma once

#include "app/window/WellFilter.h"
#include "app/window/WellListModel.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QShortcut;
class QTableView;

/// The list of the wells with the field that searches it. Searching never changes which well is
/// chosen: one that the search hides stays chosen, and is marked again when it comes back.
class WellListPane : public QWidget {
    Q_OBJECT

public:
    explicit WellListPane(QWidget* parent = nullptr);

    /// Shows these wells. The chosen one stays chosen when it is among them, else the first of the
    /// list is. Emits `wellChosen` either way.
    void setWells(std::vector<WellName> wells);

    /// Chooses that well as the user would; whether it is among those in sight.
    bool choose(long well_id);

    /// Marks that well as the chosen one again, which the user could not leave.
    void stayWith(long well_id);

    /// Whether the Escape key empties the search field.
    void setEscapeClears(bool clears);

    /// Puts the keyboard into the search field.
    void startSearch();

    QTableView& list() const { return *list_; }

signals:
    /// The user chose a well; 0 when there is none to choose.
    void wellChosen(long well_id);

private:
    void search(const QString& text);
    void enterList();
    void clearSearch();
    void chooseRow(const QModelIndex& row);
    void markChosen();
    QModelIndex rowOf(long well_id) const;
    void countRows();

    WellListModel wells_;
    WellFilter found_;
    QLineEdit* field_;
    QLabel* count_;
    QTableView* list_;
    QShortcut* escape_;
    long chosen_ = 0;
    bool marking_ = false; // rows change under the list; what it makes current is no choice
};

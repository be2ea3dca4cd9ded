// platform/zapp/qt/QtBoxes.cpp
#include "platform/zapp/qt/QtBoxes.h"

#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>

QtListBox::QtListBox(QListWidget& list)
    : list_(list)
{
    list_.setSortingEnabled(false);
    list_.setSelectionMode(QAbstractItemView::SingleSelection);
}

void QtListBox::add(const char* text) { list_.addItem(QString::fromUtf8(text)); }

int QtListBox::count() const { return list_.count(); }

int QtListBox::selection() const
{
    // Not currentRow: a list that receives the focus makes row 0 current without selecting it.
    const QModelIndexList selected = list_.selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void QtListBox::selection(int row)
{
    if (row == -1)
        list_.selectionModel()->clear();
    else if (row >= 0 && row < count())
        list_.setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
}

void QtListBox::clear() { list_.clear(); }

QtComboBox::QtComboBox(QComboBox& combo)
    : combo_(combo)
{
    combo_.setInsertPolicy(QComboBox::NoInsert);
}

void QtComboBox::add(const char* text)
{
    const QString row = QString::fromUtf8(text);
    if (selection() >= 0) {
        combo_.addItem(row);
        return;
    }
    // The widget selects the first row that it gets; nobody chose it, so nobody hears of it.
    const QSignalBlocker quiet(combo_);
    combo_.addItem(row);
    combo_.setCurrentIndex(-1);
}

int QtComboBox::count() const { return combo_.count(); }

int QtComboBox::selection() const { return combo_.currentIndex(); }

void QtComboBox::selection(int row)
{
    // The widget reads a row that is not there as -1.
    if (row >= -1 && row < count())
        combo_.setCurrentIndex(row);
}

void QtComboBox::reset() { combo_.clear(); }

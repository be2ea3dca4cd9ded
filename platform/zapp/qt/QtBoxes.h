// platform/zapp/qt/QtBoxes.h
#pragma once

#include "platform/zapp/zBoxes.h"

class QComboBox;
class QListWidget;

/// A list box over a QListWidget, which the window owns and which must outlive it. Takes the
/// widget for its own: sorting off, one row selected at most.
class QtListBox : public zListBoxBase {
public:
    explicit QtListBox(QListWidget& list);
    void add(const char* text) override;
    int count() const override;
    int selection() const override;
    void selection(int row) override;
    void clear() override;

private:
    QListWidget& list_;
};

/// A combo box over a QComboBox, which the window owns and which must outlive it. Takes the
/// widget for its own: what the user types into it becomes no row.
class QtComboBox : public zComboBoxBase {
public:
    explicit QtComboBox(QComboBox& combo);
    void add(const char* text) override;
    int count() const override;
    int selection() const override;
    void selection(int row) override;
    void reset() override;

private:
    QComboBox& combo_;
};

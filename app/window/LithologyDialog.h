// app/window/LithologyDialog.h
#pragma once

#include <QDialog>

class IGDBase;
class LithologyEditing;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

/// Asks what a rock interval or a qualifier is and puts it into the lithology. It stays open, with
/// what was typed, until all of it can be taken: what cannot is told below its field.
class LithologyDialog : public QDialog {
    Q_OBJECT

public:
    /// Changes `record` (null: adds one). Depths in `units`. `edits` and the record must outlive
    /// the dialog.
    LithologyDialog(
        LithologyEditing& edits, const IGDBase* record, char units, QWidget* parent = nullptr);

    /// That which was put in; null until `accept` closed the dialog.
    const IGDBase* put() const { return put_; }

    void accept() override;

private:
    QLabel* addField(QFormLayout& form, const QString& caption, QWidget* field);
    void listKinds();
    void listRocks();
    void showRecord();
    void showSaid(QFormLayout& form);
    void tell(QLabel* fault, const QString& text);

    LithologyEditing& edits_;
    const IGDBase* record_;
    char units_;
    const IGDBase* put_ = nullptr;

    QComboBox* kinds_;
    QLineEdit* top_;
    QLineEdit* base_;
    QComboBox* rocks_;
    QLabel* faults_[4]; // in the order of `LithologyField`
};

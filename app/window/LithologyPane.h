// app/window/LithologyPane.h
#pragma once

#include "app/window/RecordPane.h"

#include <memory>
#include <vector>

class IGDBase;
class LithologyEditing;
class QKeySequence;
class QPushButton;

/// The lithology of the chosen well, which is edited here: in memory, until the user saves it.
class LithologyPane : public RecordPane {
    Q_OBJECT

public:
    LithologyPane();
    ~LithologyPane() override;

    void showWell(Well* well, char units) override;
    bool hasUnsaved() const override;
    bool saveEdits() override;

protected:
    std::vector<RecordRow> readRows(Well& well, char units, long interp_id) override;

private:
    using Action = void (LithologyPane::*)();

    QPushButton* addButton(const QString& text, const char* object, Action action);
    void addKey(const QKeySequence& key, QWidget* where, QPushButton* button);
    void makeButtons();
    void connectTable();

    void add();
    void change();
    void removeChosen();
    void save();
    void revert();
    void edit(const IGDBase* record);
    void forget();
    void showEdits(const IGDBase* chosen);
    void choose(int row);
    void allow();
    const IGDBase* chosen() const;

    std::unique_ptr<LithologyEditing> edits_; // null until somebody looks
    std::vector<const IGDBase*> records_;     // of each row
    QPushButton* add_;
    QPushButton* change_;
    QPushButton* remove_;
    QPushButton* save_;
    QPushButton* revert_;
};

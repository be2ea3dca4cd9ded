// app/window/RecordPane.h
#pragma once

#include "app/window/RecordTable.h"
#include "app/window/TablePane.h"

#include <string>
#include <vector>

/// What there is to know of a table of records before any is read.
struct RecordKind {
    std::vector<WellColumn> columns;
    /// The rows of a well with depths in `units`. May read samples into the well.
    std::vector<RecordRow> (*rows)(Well& well, char units);
};

/// A table of what a well's interpretation holds. It is read when somebody looks at it, since most
/// wells are opened for their samples alone.
class RecordPane : public TablePane {
    Q_OBJECT

public:
    RecordPane(const RecordKind& kind, const TableWords& words);

    void showWell(Well* well, char units) override;
    /// What the well is still loading is no part of the interpretation.
    void showMore() override {}
    void setUnits(char units) override;

protected:
    void showEvent(QShowEvent* event) override;
    virtual std::vector<RecordRow> readRows(Well& well, char units) const;
    /// What is shown now is no longer what there is to show.
    void readAgain();

private:
    RecordPane(RecordTable* table, const RecordKind& kind, const TableWords& words);

    void update();
    void tell(const std::vector<std::string>& reports);

    RecordTable* table_;
    std::vector<RecordRow> (*rows_)(Well& well, char units);
    QString reading_; // what the reports are said to come from
    Well* well_ = nullptr;
    char units_ = 'M';
    bool stale_ = true;
    std::vector<std::string> told_;
};

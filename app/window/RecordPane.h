// app/window/RecordPane.h
#pragma once

#include "app/window/RecordTable.h"
#include "app/window/TablePane.h"

#include <string>
#include <vector>

class QComboBox;
class QHBoxLayout;

/// What there is to know of a table of records before any is read.
struct RecordKind {
    std::vector<WellColumn> columns;
    /// The rows of an interpretation of a well with depths in `units`. May read samples into the
    /// well.
    std::vector<RecordRow> (*rows)(Well& well, char units, long interp_id);
    bool hasVersions = true; ///< whether the interpretations differ in them
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
    void setVersion(long interp_id) override;

protected:
    void showEvent(QShowEvent* event) override;
    virtual std::vector<RecordRow> readRows(Well& well, char units, long interp_id);
    /// What is shown now is no longer what there is to show.
    void readAgain();
    /// The line above the table, to add choices to.
    QHBoxLayout& choices();
    /// Ends that line with the choice of the interpretation.
    void addVersions();
    Well* well() const { return well_; }
    char units() const { return units_; }

private:
    RecordPane(RecordTable* table, const RecordKind& kind, const TableWords& words);

    void update();
    void listVersions();
    void tell(const std::vector<std::string>& reports);

    RecordTable* table_;
    std::vector<RecordRow> (*rows_)(Well& well, char units, long interp_id);
    QHBoxLayout* choices_ = nullptr;
    QComboBox* versions_ = nullptr; // null: there are none to choose from
    long interp_id_ = 0;            // as the user wishes
    QString reading_;               // what the reports are said to come from
    Well* well_ = nullptr;
    char units_ = 'M';
    bool stale_ = true;
    std::vector<std::string> told_;
};

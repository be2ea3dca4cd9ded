// app/window/TaxonTableModel.h
#pragma once

#include <QAbstractTableModel>

#include <memory>
#include <vector>

class Taxon;
class TaxonList;

/// Names of the dictionary as rows, each with the name to use for it. Names are given as texts and,
/// for `NameDelegate`, with their italics.
class TaxonTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Recorded, ToUse, Category, Code, kColumns };

    explicit TaxonTableModel(QObject* parent = nullptr);
    ~TaxonTableModel() override;

    /// Shows these taxa in their order, with the names to use that `sch_id` gives them (0: any
    /// scheme).
    void show(std::unique_ptr<TaxonList> taxa, long sch_id);
    /// The same taxa with the names to use of another scheme.
    void setScheme(long sch_id);
    /// The taxon of a row; it lives until the next `show`.
    Taxon& taxon(int row) const { return *rows_[static_cast<std::size_t>(row)]; }
    /// The row of a taxon, -1 when it is not shown.
    int rowOf(long spec_id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Columns have a text and a tooltip that says what the column holds.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::unique_ptr<TaxonList> taxa_;
    std::vector<Taxon*> rows_; // a list has no access by row
};

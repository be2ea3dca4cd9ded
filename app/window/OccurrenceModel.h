// app/window/OccurrenceModel.h
#pragma once

#include "app/window/NameText.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

class OccurrenceTable;
struct TaxonRange;

/// The finds of a discipline as a matrix: a row for each sample, the columns that say which sample
/// it is, and behind them one for each taxon.
class OccurrenceModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Depth, Type, Label, Taxa, kSampleColumns };

    explicit OccurrenceModel(QObject* parent = nullptr);
    ~OccurrenceModel() override;

    /// Shows the table, whose well and taxa must live until the next call, with depths in `units`.
    void show(std::unique_ptr<const OccurrenceTable> table, char units);
    void setUnits(char units);

    /// The text of a taxon's column that has the most characters.
    const QString& longestText(int taxon) const
    {
        return longest_[static_cast<std::size_t>(taxon)];
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Tooltips say in words what the cell says in signs.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Names of taxa come with their italics as well, for `NameDelegate::kNameRole`.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void findLongestTexts();
    QVariant sampleData(const QModelIndex& index, int role) const;
    QVariant findData(const QModelIndex& index, int role) const;
    QString rangeWords(const TaxonRange& range) const;

    std::unique_ptr<const OccurrenceTable> table_;
    std::vector<NameText> names_; // without author, per taxon
    std::vector<QString> longest_;
    char units_ = 'M';
};

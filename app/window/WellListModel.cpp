// app/window/WellListModel.cpp
#include "app/window/WellListModel.h"

#include "app/window/Texts.h"

QString searchForm(const QString& text)
{
    return text.normalized(QString::NormalizationForm_C)
        .toCaseFolded()
        .toUpper() // some letters are two in capitals only
        .replace(QLatin1Char('`'), QLatin1Char('\''));
}

void WellListModel::setWells(std::vector<WellName> wells)
{
    beginResetModel();
    rows_.clear();
    for (WellName& well : wells) {
        Row row{std::move(well), {}};
        row.search[Name] = searchForm(row.well.name);
        row.search[Code] = searchForm(row.well.code);
        rows_.push_back(std::move(row));
    }
    endResetModel();
}

int WellListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int WellListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant WellListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const QString& text = index.column() == Name ? row.well.name : row.well.code;
    switch (role) {
    case Qt::DisplayRole:
        return text.isEmpty() ? missingText() : text;
    case WellIdRole:
        return QVariant::fromValue(row.well.well_id);
    case SearchRole:
        return row.search[index.column()];
    default:
        return {};
    }
}

QVariant WellListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    return section == Name ? tr("Name") : tr("Code");
}

// app/window/WellTableModel.cpp
#include "app/window/WellTableModel.h"

#include "app/window/DepthUnits.h"

#include <algorithm>
#include <cstring>

namespace {

bool holdsDepths(const WellColumn& column) { return std::strstr(column.heading, "%1"); }

QVariant alignment(const WellColumn& column)
{
    return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
}

} // namespace

void WellTableModel::show(const Well* well, char units)
{
    beginResetModel();
    well_ = well;
    units_ = units;
    findRows(well_);
    takeRows();
    endResetModel();
}

void WellTableModel::showMore()
{
    if (!findRows(well_))
        return;
    beginResetModel();
    takeRows();
    endResetModel();
}

void WellTableModel::setUnits(char units)
{
    units_ = units;
    int first = columnCount();
    int last = -1;
    for (int number = 0; number < columnCount(); ++number) {
        if (!holdsDepths(column(number)))
            continue;
        first = std::min(first, number);
        last = number;
    }
    if (last < 0)
        return;
    emit headerDataChanged(Qt::Horizontal, first, last);
    if (rowCount() > 0)
        emit dataChanged(index(0, first), index(rowCount() - 1, last));
}

QVariant WellTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index, units_);
    case Qt::ToolTipRole: {
        const QString words = explained(index);
        return words.isEmpty() ? QVariant() : QVariant(words);
    }
    case Qt::TextAlignmentRole:
        return alignment(column(index.column()));
    default:
        return {};
    }
}

QVariant WellTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    const WellColumn& shown = column(section);
    if (role == Qt::DisplayRole)
        return tr(shown.heading).replace(QLatin1String("%1"), unitsSign(units_));
    if (role == Qt::ToolTipRole)
        return tr(shown.meaning);
    return role == Qt::TextAlignmentRole ? alignment(shown) : QVariant();
}

// app/window/RecordTable.cpp
#include "app/window/RecordTable.h"

#include <utility>

namespace {

// As bright as the eye takes it, from 0 to 1: the weights of the three colours are those of screens
// (ITU-R BT.709).
double luma(const QColor& colour)
{
    return (0.2126 * colour.red() + 0.7152 * colour.green() + 0.0722 * colour.blue()) / 255;
}

QColor readableOn(const QColor& colour)
{
    constexpr double kLight = 0.65;
    return luma(colour) >= kLight ? Qt::black : Qt::white;
}

} // namespace

int RecordTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RecordTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RecordTable::data(const QModelIndex& index, int role) const
{
    if (role != Qt::BackgroundRole && role != Qt::ForegroundRole)
        return WellTableModel::data(index, role);
    if (!index.isValid() || !cell(index).colour.isValid())
        return {};
    const QColor& colour = cell(index).colour;
    return role == Qt::BackgroundRole ? colour : readableOn(colour);
}

const WellColumn& RecordTable::column(int number) const
{
    return columns_[static_cast<std::size_t>(number)];
}

QString RecordTable::text(const QModelIndex& index, char) const { return cell(index).text; }

QString RecordTable::explained(const QModelIndex& index) const { return cell(index).words; }

void RecordTable::takeRows() { rows_ = std::exchange(found_, {}); }

const RecordCell& RecordTable::cell(const QModelIndex& index) const
{
    return rows_[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
}

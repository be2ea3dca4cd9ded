// app/window/WellFilter.cpp
#include "app/window/WellFilter.h"

#include "app/window/WellListModel.h"

namespace {

// Without a language there is no order beyond that of the bytes, and no counting in it.
QLocale orderLocale()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace

WellFilter::WellFilter(QObject* parent)
    : QSortFilterProxyModel(parent)
    , order_(orderLocale())
{
    order_.setNumericMode(true);
    order_.setCaseSensitivity(Qt::CaseInsensitive);
}

void WellFilter::setText(const QString& text)
{
    wanted_ = searchForm(text.trimmed());
    invalidateFilter();
}

bool WellFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const auto contains = [&](int column) {
        const QModelIndex cell = sourceModel()->index(row, column, parent);
        return cell.data(WellListModel::SearchRole).toString().contains(wanted_);
    };
    return contains(WellListModel::Name) || contains(WellListModel::Code);
}

bool WellFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int order = order_.compare(left.data().toString(), right.data().toString());
    return order != 0 ? order < 0
                      : left.data(WellListModel::WellIdRole).toLongLong()
            < right.data(WellListModel::WellIdRole).toLongLong();
}

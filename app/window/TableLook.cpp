// app/window/TableLook.cpp
#include "app/window/TableLook.h"

#include <QHeaderView>
#include <QTableView>

namespace {

constexpr int kRowMargin = 6;      // pixels above and below the text, together
constexpr int kColumnMargin = 8;   // pixels beside the text, on both sides together
constexpr int kMeasuredRows = 200; // a well may have thousands, and all would take long

} // namespace

void lookLikeTable(QTableView& table)
{
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setWordWrap(false);
    table.setShowGrid(false);
    table.setAlternatingRowColors(true);
    table.setTabKeyNavigation(false);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + kRowMargin);
}

void fitColumns(QTableView& table)
{
    table.resizeColumnsToContents();
    for (int column = 0; column < table.model()->columnCount(); ++column)
        table.setColumnWidth(column, table.columnWidth(column) + kColumnMargin);
}

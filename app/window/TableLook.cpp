// app/window/TableLook.cpp
#include "app/window/TableLook.h"

#include <QHeaderView>
#include <QTableView>

namespace {

constexpr int kRowMargin = 6; // pixels above and below the text, together

} // namespace

void lookLikeTable(QTableView& table)
{
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setWordWrap(false);
    table.setShowGrid(false);
    table.setAlternatingRowColors(true);
    table.setTabKeyNavigation(false);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + kRowMargin);
}

// app/window/FrozenTable.cpp
#include "app/window/FrozenTable.h"

#include "app/window/NameHeader.h"
#include "app/window/TableLook.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

FrozenTable::FrozenTable(QAbstractItemModel* model, int frozen, QWidget* parent)
    : QWidget(parent)
    , frozenColumns_(frozen)
    , frozen_(new QTableView(this))
    , table_(new QTableView(this))
    , names_(new NameHeader(table_))
{
    table_->setHorizontalHeader(names_);
    for (QTableView* view : {frozen_, table_}) {
        view->setModel(model);
        lookLikeTable(*view);
        view->setShowGrid(true);
        view->verticalHeader()->hide();
        view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignBottom);
    }
    frozen_->setObjectName(QStringLiteral("samplesOfOccurrences"));
    frozen_->setSelectionModel(table_->selectionModel());
    frozen_->setSelectionMode(QAbstractItemView::NoSelection);
    frozen_->setFocusPolicy(Qt::NoFocus);
    frozen_->setAutoScroll(false);
    frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Always there, so that both parts have room for the same rows.
    table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(frozen_, 0, 0);
    layout->addWidget(table_, 0, 1, 2, 1);
    layout->setRowMinimumHeight(1, table_->horizontalScrollBar()->sizeHint().height());
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(1, 1);
    QScrollBar* const rows = frozen_->verticalScrollBar();
    connect(rows, &QScrollBar::valueChanged, table_->verticalScrollBar(), &QScrollBar::setValue);
    connect(table_->verticalScrollBar(), &QScrollBar::valueChanged, rows, &QScrollBar::setValue);
    connect(frozen_, &QTableView::pressed, this, &FrozenTable::markRow);
}

void FrozenTable::fit(const std::vector<int>& widths)
{
    for (int column = 0; column < table_->model()->columnCount(); ++column) {
        const bool stays = column < frozenColumns_;
        frozen_->setColumnHidden(column, !stays);
        table_->setColumnHidden(column, stays);
        if (!stays)
            names_->resizeSection(
                column, widths[static_cast<std::size_t>(column - frozenColumns_)]);
    }
    const int height = names_->heightForNames(frozenColumns_);
    names_->setFixedHeight(height);
    frozen_->horizontalHeader()->setFixedHeight(height);
    fitFrozen();
}

void FrozenTable::fitFrozen()
{
    int width = 2 * frozen_->frameWidth();
    for (int column = 0; column < frozenColumns_; ++column) {
        frozen_->resizeColumnToContents(column);
        width += frozen_->columnWidth(column);
    }
    frozen_->setFixedWidth(width);
}

// A press on the columns that stay means the whole row, where the table stands where it stood.
void FrozenTable::markRow(const QModelIndex& cell)
{
    table_->selectionModel()->select(
        cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    table_->setFocus(Qt::MouseFocusReason);
}

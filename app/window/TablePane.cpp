// app/window/TablePane.cpp
#include "app/window/TablePane.h"

#include "app/window/TableLook.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// A number alone at the far right would look lost.
bool endsWithText(const QAbstractItemModel& model)
{
    const QVariant alignment =
        model.headerData(model.columnCount() - 1, Qt::Horizontal, Qt::TextAlignmentRole);
    return !alignment.value<Qt::Alignment>().testFlag(Qt::AlignRight);
}

} // namespace

TablePane::TablePane(std::unique_ptr<WellTableModel> model, const TableWords& words)
    : model_(std::move(model))
    , words_(words)
    , lines_(new QVBoxLayout(this))
    , count_(new QLabel)
    , table_(new QTableView)
{
    table_->setObjectName(QLatin1String(words_.object));
    table_->setAccessibleName(tr(words_.spoken));
    table_->setModel(model_.get());
    lookLikeTable(*table_);
    table_->horizontalHeader()->setStretchLastSection(endsWithText(*model_));
    lines_->setContentsMargins(kViewMargins);
    lines_->addWidget(count_);
    lines_->addWidget(table_);
    fit();
}

void TablePane::showWell(Well* well, char units)
{
    model_->show(well, units);
    fit();
}

void TablePane::showMore()
{
    model_->showMore();
    fit();
}

void TablePane::setUnits(char units)
{
    model_->setUnits(units);
    fit();
}

QWidget& TablePane::place() const { return *table_; }

void TablePane::fit()
{
    fitColumns(*table_);
    const int count = model_->rowCount();
    count_->setText(count == 0 ? tr(words_.none) : tr(words_.counted).arg(count));
}

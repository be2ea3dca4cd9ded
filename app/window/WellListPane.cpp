// app/window/WellListPane.cpp
#include "app/window/WellListPane.h"

#include "app/window/TableLook.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QLineEdit* makeField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QStringLiteral("wellSearch"));
    field->setPlaceholderText(WellListPane::tr("Find a well by name or code"));
    field->setAccessibleName(WellListPane::tr("Find a well by name or code"));
    field->setClearButtonEnabled(true);
    return field;
}

QTableView* makeList(QWidget* parent, QAbstractItemModel* wells)
{
    auto* list = new QTableView(parent);
    list->setObjectName(QStringLiteral("wellList"));
    list->setAccessibleName(WellListPane::tr("Wells"));
    list->setModel(wells);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->verticalHeader()->hide();
    list->setSortingEnabled(true);
    list->sortByColumn(WellListModel::Name, Qt::AscendingOrder);
    lookLikeTable(*list);
    list->horizontalHeader()->setStretchLastSection(false);
    list->horizontalHeader()->setSectionResizeMode(WellListModel::Name, QHeaderView::Stretch);
    list->horizontalHeader()->setSectionResizeMode(
        WellListModel::Code, QHeaderView::ResizeToContents);
    return list;
}

} // namespace

WellListPane::WellListPane(QWidget* parent)
    : QWidget(parent)
    , field_(makeField(this))
    , count_(new QLabel(this))
{
    found_.setSourceModel(&wells_);
    list_ = makeList(this, &found_);
    count_->setObjectName(QStringLiteral("wellCount"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(field_);
    layout->addWidget(list_);
    layout->addWidget(count_);
    countRows();

    connect(field_, &QLineEdit::textChanged, this, &WellListPane::search);
    connect(field_, &QLineEdit::returnPressed, this, &WellListPane::enterList);
    connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &WellListPane::chooseRow);
    const auto onKey = [](Qt::Key key, QWidget* where, auto* pane, auto member) {
        auto* shortcut = new QShortcut(
            QKeySequence(key), where, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, pane, member);
        return shortcut;
    };
    onKey(Qt::Key_Down, field_, this, &WellListPane::enterList);
    escape_ = onKey(Qt::Key_Escape, this, this, &WellListPane::clearSearch);
}

void WellListPane::setWells(std::vector<WellName> wells)
{
    {
        const QScopedValueRollback marking(marking_, true);
        wells_.setWells(std::move(wells));
    }
    countRows();
    const QModelIndex before = rowOf(chosen_);
    const QModelIndex row = before.isValid() ? before : found_.index(0, 0);
    chosen_ = row.isValid() ? row.data(WellListModel::WellIdRole).value<long>() : 0;
    markChosen();
    emit wellChosen(chosen_);
}

void WellListPane::stayWith(long well_id)
{
    chosen_ = well_id;
    markChosen();
}

void WellListPane::setEscapeClears(bool clears) { escape_->setEnabled(clears); }

void WellListPane::startSearch()
{
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void WellListPane::search(const QString& text)
{
    {
        const QScopedValueRollback marking(marking_, true);
        found_.setText(text);
    }
    countRows();
    markChosen();
}

void WellListPane::enterList()
{
    if (!list_->currentIndex().isValid())
        list_->setCurrentIndex(found_.index(0, 0));
    list_->setFocus(Qt::ShortcutFocusReason);
}

void WellListPane::clearSearch() { field_->clear(); }

bool WellListPane::choose(long well_id)
{
    const QModelIndex row = rowOf(well_id);
    if (row.isValid())
        list_->setCurrentIndex(row);
    return row.isValid();
}

void WellListPane::chooseRow(const QModelIndex& row)
{
    if (marking_ || !row.isValid())
        return;
    chosen_ = row.data(WellListModel::WellIdRole).value<long>();
    emit wellChosen(chosen_);
}

void WellListPane::markChosen()
{
    const QScopedValueRollback marking(marking_, true);
    const QModelIndex row = rowOf(chosen_);
    if (row.isValid()) {
        list_->setCurrentIndex(row);
        list_->scrollTo(row);
    } else {
        list_->selectionModel()->clear();
    }
}

QModelIndex WellListPane::rowOf(long well_id) const
{
    const QModelIndexList rows = found_.match(found_.index(0, 0), WellListModel::WellIdRole,
        QVariant::fromValue(well_id), 1, Qt::MatchExactly);
    return rows.isEmpty() ? QModelIndex() : rows.first();
}

void WellListPane::countRows()
{
    count_->setText(tr("%1 of %2").arg(found_.rowCount()).arg(wells_.rowCount()));
}

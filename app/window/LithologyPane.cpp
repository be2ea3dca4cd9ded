// app/window/LithologyPane.cpp
#include "app/window/LithologyPane.h"

#include "app/shell/LithologyEditing.h"
#include "app/window/LithologyDialog.h"
#include "app/window/LithologyTable.h"
#include "db/ErrorReporter.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

#include <algorithm>

namespace {

constexpr TableWords kWords{"lithologyTable", "Lithology of the well", "No lithology",
    "Rocks and what is said of them: %1"};
constexpr bool kOneVersion = false; // rocks belong to no version of the interpretation

} // namespace

LithologyPane::LithologyPane()
    : RecordPane({lithologyColumns(), nullptr, kOneVersion}, kWords)
{
    makeButtons();
    connectTable();
    allow();
}

LithologyPane::~LithologyPane() = default;

void LithologyPane::showWell(Well* well, char units)
{
    forget();
    RecordPane::showWell(well, units);
    allow();
    emit unsavedChanged();
}

bool LithologyPane::hasUnsaved() const { return edits_ && edits_->isChanged(); }

bool LithologyPane::saveEdits()
{
    const std::string reason = edits_->save(units());
    if (reason.empty()) {
        forget();
        showEdits(nullptr);
    } else {
        reportError(reason);
    }
    emit unsavedChanged();
    return reason.empty();
}

std::vector<RecordRow> LithologyPane::readRows(Well& well, char units, long)
{
    if (!edits_)
        edits_ = std::make_unique<LithologyEditing>(well);
    records_.clear();
    std::vector<RecordRow> rows;
    for (const IGDList* list : {&edits_->rocks(), &edits_->qualifiers()}) {
        for (const IGDBase* record : *list) {
            records_.push_back(record);
            rows.push_back(lithologyRow(*record, *edits_, units));
        }
    }
    return rows;
}

QPushButton* LithologyPane::addButton(const QString& text, const char* object, Action action)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(object));
    choices().addWidget(button);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

// Beside the key behind Alt, which a button has one of.
void LithologyPane::addKey(const QKeySequence& key, QWidget* where, QPushButton* button)
{
    const auto context = where == this ? Qt::WindowShortcut : Qt::WidgetShortcut;
    connect(new QShortcut(key, where, nullptr, nullptr, context), &QShortcut::activated, button,
        &QPushButton::click);
    const QString name = key.toString(QKeySequence::NativeText);
    button->setToolTip(
        button->toolTip().isEmpty() ? name : QStringLiteral("%1, %2").arg(button->toolTip(), name));
}

void LithologyPane::makeButtons()
{
    add_ = addButton(tr("Add ro&w..."), "lithologyAdd", &LithologyPane::add);
    change_ = addButton(tr("Chan&ge..."), "lithologyChange", &LithologyPane::change);
    remove_ = addButton(tr("Dele&te"), "lithologyDelete", &LithologyPane::removeChosen);
    save_ = addButton(tr("S&ave"), "lithologySave", &LithologyPane::save);
    revert_ = addButton(tr("&Revert"), "lithologyRevert", &LithologyPane::revert);
    choices().addStretch();
    addKey(QKeySequence(Qt::Key_Insert), &table(), add_);
    addKey(QKeySequence(Qt::Key_F2), &table(), change_);
    addKey(QKeySequence(Qt::Key_Return), &table(), change_);
    addKey(QKeySequence::Delete, &table(), remove_);
    addKey(QKeySequence::Save, this, save_);
}

void LithologyPane::connectTable()
{
    connect(&table(), &QTableView::doubleClicked, this, &LithologyPane::change);
    connect(table().selectionModel(), &QItemSelectionModel::currentChanged, this,
        &LithologyPane::allow);
    connect(table().model(), &QAbstractItemModel::modelReset, this, &LithologyPane::allow);
}

void LithologyPane::add() { edit(nullptr); }

void LithologyPane::change()
{
    if (const IGDBase* record = chosen())
        edit(record);
}

void LithologyPane::removeChosen()
{
    const IGDBase* record = chosen();
    if (!record)
        return;
    const int row = table().currentIndex().row();
    edits_->remove(*record);
    showEdits(nullptr);
    choose(std::min(row, static_cast<int>(records_.size()) - 1));
}

void LithologyPane::save() { saveEdits(); }

void LithologyPane::revert()
{
    forget();
    showEdits(nullptr);
}

void LithologyPane::edit(const IGDBase* record)
{
    auto* dialog = new LithologyDialog(*edits_, record, units(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { showEdits(dialog->put()); });
    dialog->open();
}

/// What there is is read when it is shown next.
void LithologyPane::forget()
{
    records_.clear();
    edits_.reset();
}

/// Shows the rows as they are by now.
void LithologyPane::showEdits(const IGDBase* chosen)
{
    readAgain();
    const auto at = std::find(records_.begin(), records_.end(), chosen);
    if (at != records_.end())
        choose(static_cast<int>(at - records_.begin()));
    emit unsavedChanged();
}

void LithologyPane::choose(int row)
{
    table().setCurrentIndex(table().model()->index(row, 0));
    table().setFocus();
}

void LithologyPane::allow()
{
    add_->setEnabled(edits_ != nullptr);
    change_->setEnabled(chosen());
    remove_->setEnabled(chosen());
    save_->setEnabled(hasUnsaved());
    revert_->setEnabled(hasUnsaved());
}

/// Null: none.
const IGDBase* LithologyPane::chosen() const
{
    const auto row = static_cast<std::size_t>(table().currentIndex().row());
    return table().currentIndex().isValid() && row < records_.size() ? records_[row] : nullptr;
}

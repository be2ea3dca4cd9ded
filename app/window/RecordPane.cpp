// app/window/RecordPane.cpp
#include "app/window/RecordPane.h"

#include "app/shell/CollectedReports.h"
#include "app/shell/InterpretationVersions.h"
#include "app/window/Choices.h"
#include "well/Well.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QTableView>
#include <QVBoxLayout>

RecordPane::RecordPane(const RecordKind& kind, const TableWords& words)
    : RecordPane(new RecordTable(kind.columns), kind, words)
{
    if (kind.hasVersions)
        addVersions();
}

RecordPane::RecordPane(RecordTable* table, const RecordKind& kind, const TableWords& words)
    : TablePane(std::unique_ptr<WellTableModel>(table), words)
    , table_(table)
    , rows_(kind.rows)
    , reading_(tr(words.spoken))
{
}

void RecordPane::showWell(Well* well, char units)
{
    table_->put({});
    TablePane::showWell(well, units);
    well_ = well;
    units_ = units;
    told_.clear();
    readAgain();
}

void RecordPane::setUnits(char units)
{
    units_ = units;
    readAgain();
}

void RecordPane::setVersion(long interp_id)
{
    interp_id_ = interp_id;
    if (versions_)
        readAgain();
}

void RecordPane::showEvent(QShowEvent* event)
{
    TablePane::showEvent(event);
    update();
}

std::vector<RecordRow> RecordPane::readRows(Well& well, char units, long interp_id)
{
    return rows_(well, units, interp_id);
}

void RecordPane::readAgain()
{
    stale_ = true;
    if (isVisible())
        update();
}

void RecordPane::update()
{
    if (!stale_)
        return;
    stale_ = false;
    if (well_) {
        CollectedReports reports;
        listVersions();
        const long shown = versions_ ? versions_->currentData().value<long>() : 0;
        table_->put(readRows(*well_, units_, shown));
        tell(reports.take());
    }
    TablePane::showWell(well_, units_);
}

QHBoxLayout& RecordPane::choices()
{
    if (!choices_) {
        choices_ = new QHBoxLayout;
        lines().insertLayout(0, choices_);
    }
    return *choices_;
}

void RecordPane::addVersions()
{
    versions_ = makeCombo("version", tr("Version of the interpretation"));
    versions_->setObjectName(table().objectName() + QLatin1String("Version"));
    versions_->setToolTip(tr("The number of the interpretation; 0 is the default one"));
    addChoice(choices(), tr("Vers&ion"), versions_);
    choices().addStretch();
    connect(versions_, &QComboBox::activated, this,
        [this] { emit versionChosen(versions_->currentData().value<long>()); });
}

// Anew each time, since an import beside the window may bring some.
void RecordPane::listVersions()
{
    if (!versions_)
        return;
    versions_->clear();
    for (const long interp_id : interpretationVersions(well_->well_id))
        versions_->addItem(QString::number(interp_id), QVariant::fromValue(interp_id));
    versions_->setCurrentIndex(std::max(0, versions_->findData(QVariant::fromValue(interp_id_))));
}

// The same rows in other units are refused once more, which is no news.
void RecordPane::tell(const std::vector<std::string>& reports)
{
    if (reports == told_)
        return;
    told_ = reports;
    emit told(reading_, reports);
}

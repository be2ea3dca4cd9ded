// app/window/RecordPane.cpp
#include "app/window/RecordPane.h"

#include "app/shell/CollectedReports.h"

RecordPane::RecordPane(const RecordKind& kind, const TableWords& words)
    : RecordPane(new RecordTable(kind.columns), kind, words)
{
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

void RecordPane::showEvent(QShowEvent* event)
{
    TablePane::showEvent(event);
    update();
}

std::vector<RecordRow> RecordPane::readRows(Well& well, char units) const
{
    return rows_(well, units);
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
        table_->put(readRows(*well_, units_));
        tell(reports.take());
    }
    TablePane::showWell(well_, units_);
}

// The same rows in other units are refused once more, which is no news.
void RecordPane::tell(const std::vector<std::string>& reports)
{
    if (reports == told_)
        return;
    told_ = reports;
    emit told(reading_, reports);
}

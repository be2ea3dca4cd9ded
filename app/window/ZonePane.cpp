// app/window/ZonePane.cpp
#include "app/window/ZonePane.h"

#include "app/window/Choices.h"
#include "app/window/Interpretation.h"
#include "app/window/ZoneTable.h"

#include <QComboBox>
#include <QHBoxLayout>

namespace {

constexpr TableWords kWords{"zoneTable", "Zones of the well", "No zones", "Zones: %1"};
constexpr int kAllRanks = 0;

struct ZoneType {
    int igd_type;
    const char* name;
};
constexpr ZoneType kTypes[] = {
    {3, QT_TRANSLATE_NOOP("ZonePane", "Chronostratigraphy")},
    {2, QT_TRANSLATE_NOOP("ZonePane", "Lithostratigraphy")},
    {4, QT_TRANSLATE_NOOP("ZonePane", "Biozones")},
    {10, QT_TRANSLATE_NOOP("ZonePane", "Sequences")},
};

} // namespace

ZonePane::ZonePane()
    : RecordPane({zoneColumns(), nullptr, false}, kWords)
    , types_(makeCombo("zoneType", tr("Type of zones")))
    , ranks_(makeCombo("zoneRank", tr("Rank of zones")))
{
    for (const ZoneType& type : kTypes)
        types_->addItem(tr(type.name), type.igd_type);
    listRanks();
    addChoice(choices(), tr("T&ype"), types_);
    addChoice(choices(), tr("&Rank"), ranks_);
    addVersions();
    connect(types_, &QComboBox::activated, this, [this] {
        listRanks();
        readAgain();
    });
    connect(ranks_, &QComboBox::activated, this, &ZonePane::readAgain);
}

std::vector<RecordRow> ZonePane::readRows(Well& well, char units, long interp_id)
{
    return zoneRows(
        well, types_->currentData().toInt(), ranks_->currentData().toInt(), units, interp_id);
}

// Some types call all their ranks the same, so the number stands with the name.
void ZonePane::listRanks()
{
    const int type = types_->currentData().toInt();
    ranks_->clear();
    ranks_->addItem(tr("all"), kAllRanks);
    for (int rank = kWidestRank; rank <= kFinestRank; ++rank) {
        const QString name = zoneRankName(type, rank);
        if (!name.isEmpty())
            ranks_->addItem(tr("%1 (%2)").arg(name).arg(rank), rank);
    }
}

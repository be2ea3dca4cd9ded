// app/window/CoreTable.cpp
#include "app/window/DepthUnits.h"
#include "app/window/RowTableModel.h"
#include "app/window/Texts.h"
#include "app/window/WellTables.h"
#include "well/Well.h"

#include <QCoreApplication>

namespace {

using Cores = RowTableModel<const CoredInt*>;

QString recoveredText(char flag)
{
    if (flag == 'Y')
        return QCoreApplication::translate("CoreTable", "yes");
    return flag == 'N' ? QCoreApplication::translate("CoreTable", "no") : missingText();
}

constexpr Cores::Column kColumns[] = {
    {{"Core", "The number of the core", Qt::AlignLeft},
        [](const CoredInt* const& c, char) { return shownOrMissing(c->corenum); }},
    {{"Top (%1)", "Top of the cored interval, as drilled", Qt::AlignRight},
        [](const CoredInt* const& c, char units) { return depthText(c->top, units); }},
    {{"Base (%1)", "Base of the cored interval, as drilled", Qt::AlignRight},
        [](const CoredInt* const& c, char units) { return depthText(c->base, units); }},
    {{"Recovered", "Whether the core was recovered", Qt::AlignLeft},
        [](const CoredInt* const& c, char) { return recoveredText(c->recovered); }},
    {{"Shift of top (%1)", "What moves the top onto the depth of the logs", Qt::AlignRight},
        [](const CoredInt* const& c, char units) { return depthText(c->shiftTop, units); }},
    {{"Shift of base (%1)", "What moves the base onto the depth of the logs", Qt::AlignRight},
        [](const CoredInt* const& c, char units) { return depthText(c->shiftBase, units); }},
};

std::vector<const CoredInt*> coresOf(const Well& well)
{
    return {well.cores.begin(), well.cores.end()};
}

} // namespace

std::unique_ptr<WellTableModel> coreTable() { return std::make_unique<Cores>(kColumns, coresOf); }

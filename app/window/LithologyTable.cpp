// app/window/LithologyTable.cpp
#include "app/window/LithologyTable.h"

#include "app/shell/LithologyEditing.h"
#include "app/window/Interpretation.h"
#include "app/window/Texts.h"
#include "interp/Environment.h"
#include "interp/IntLithZone.h"
#include "interp/LithQualifier.h"

#include <QCoreApplication>

namespace {

const WellColumn kTop{"Top (%1)", "Where the interval starts", Qt::AlignRight};
const WellColumn kBase{"Base (%1)", "Where the interval ends", Qt::AlignRight};

QString translated(const char* text) { return QCoreApplication::translate("LithologyTable", text); }

template <typename Rock> RecordRow rowOf(const Rock& rock, const LithologyInput& said)
{
    return {QString::fromStdString(said.top), QString::fromStdString(said.base),
        kindText(said.kind), shownOrMissing(rock.abr.view()), shownOrMissing(rock.descr.view())};
}

std::vector<RecordRow> environmentRows(Well& well, char units, long interp_id)
{
    std::vector<RecordRow> rows;
    const auto list = interpretationOf(well, Environment::kType, units, interp_id);
    for (const IGDBase* record : *list)
        rows.push_back(
            {topText(*record, well), baseText(*record, well), shownOrMissing(record->label())});
    return rows;
}

} // namespace

std::vector<WellColumn> lithologyColumns()
{
    return {kTop, kBase,
        {"Kind", "A rock, or what is said of the rocks at that depth", Qt::AlignLeft},
        {"Code", "The abbreviation of the rock", Qt::AlignLeft},
        {"Description", "The rock, or what is said of it", Qt::AlignLeft}};
}

RecordRow lithologyRow(const IGDBase& record, const LithologyEditing& edits, char units)
{
    const LithologyInput said = edits.inputOf(record, units);
    if (said.kind == LithDicTerm::kMainLithology)
        return rowOf(static_cast<const IntLithZone&>(record), said);
    return rowOf(static_cast<const LithQualifier&>(record), said);
}

QString kindText(char kind)
{
    return translated(lithologyKindName(kind).data()); // of literals
}

RecordKind environments()
{
    return {{kTop, kBase,
                {"Environment", "The range of environments at the top, and that at the base",
                    Qt::AlignLeft}},
        environmentRows};
}

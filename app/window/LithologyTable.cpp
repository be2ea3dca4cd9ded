// app/window/LithologyTable.cpp
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

QString kindText(char kind)
{
    switch (kind) {
    case 'A':
        return translated("accessory");
    case 'Q':
        return translated("qualifier");
    case 'S':
        return translated("stringer");
    default:
        return translated("text");
    }
}

template <typename Rock> RecordRow rowOf(const Rock& rock, const Well& well, const QString& kind)
{
    return {topText(rock, well), baseText(rock, well), kind, shownOrMissing(rock.abr.view()),
        shownOrMissing(rock.descr.view())};
}

std::vector<RecordRow> lithologyRows(Well& well, char units)
{
    std::vector<RecordRow> rows;
    const auto rocks = interpretationOf(well, IntLithZone::kType, units);
    for (const IGDBase* record : *rocks)
        rows.push_back(rowOf(static_cast<const IntLithZone&>(*record), well, translated("rock")));
    const auto qualifiers = interpretationOf(well, LithQualifier::kType, units);
    for (const IGDBase* record : *qualifiers) {
        const auto& said = static_cast<const LithQualifier&>(*record);
        rows.push_back(rowOf(said, well, kindText(said.qualType())));
    }
    return rows;
}

std::vector<RecordRow> environmentRows(Well& well, char units)
{
    std::vector<RecordRow> rows;
    const auto list = interpretationOf(well, Environment::kType, units);
    for (const IGDBase* record : *list)
        rows.push_back(
            {topText(*record, well), baseText(*record, well), shownOrMissing(record->label())});
    return rows;
}

} // namespace

RecordKind lithology()
{
    return {
        {kTop, kBase, {"Kind", "A rock, or what is said of the rocks at that depth", Qt::AlignLeft},
            {"Code", "The abbreviation of the rock", Qt::AlignLeft},
            {"Description", "The rock, or what is said of it", Qt::AlignLeft}},
        lithologyRows};
}

RecordKind environments()
{
    return {{kTop, kBase,
                {"Environment", "The range of environments at the top, and that at the base",
                    Qt::AlignLeft}},
        environmentRows};
}

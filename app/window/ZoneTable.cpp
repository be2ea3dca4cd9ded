// app/window/ZoneTable.cpp
#include "app/window/ZoneTable.h"

#include "app/shell/ZoneConflicts.h"
#include "app/window/Interpretation.h"
#include "app/window/Texts.h"
#include "interp/IGDTypes.h"
#include "interp/IGDZone.h"
#include "interp/igd_sch.h"
#include "store/Value.h"

#include <QCoreApplication>

#include <map>
#include <string_view>

namespace {

QString nameOf(const IGDBase& record) { return QString::fromStdString(shownText(record.label())); }

/// What stands against each zone, in words, a line for each other zone.
std::map<const IGDBase*, QString> conflictWords(const IGDList& list, int negate)
{
    std::map<const IGDBase*, QString> words;
    const auto add = [&words](const IGDBase* zone, const IGDBase& other, const QString& text) {
        QString& lines = words[zone];
        if (!lines.isEmpty())
            lines += QLatin1Char('\n');
        lines += QCoreApplication::translate("ZoneTable", "With %1: %2.").arg(nameOf(other), text);
    };
    for (const ZoneConflict& conflict : conflictsOf(list)) {
        if (rankOf(*conflict.first) != rankOf(*conflict.second))
            continue; // a wider unit holds the finer ones
        const QString text = QString::fromStdString(conflictText(conflict, negate));
        add(conflict.first, *conflict.second, text);
        add(conflict.second, *conflict.first, text);
    }
    return words;
}

/// The names of schemes, each read once.
class SchemeNames {
public:
    const QString& operator[](long sch_id)
    {
        const auto [place, isNew] = names_.try_emplace(sch_id, missingText());
        if (isNew && sch_id > 0) {
            constexpr int kWithoutTerms = 0;
            place->second = shownOrMissing(igd_sch(sch_id, kWithoutTerms).name.view());
        }
        return place->second;
    }

private:
    std::map<long, QString> names_;
};

// White is the colour of terms that were never given one: they look as the table does.
QColor swatchOf(IGDZone& zone)
{
    const Colour colour = zone.getUpperColour();
    return colour == kWhite ? QColor() : QColor(colour.red, colour.green, colour.blue);
}

RecordCell markOf(const QString& words)
{
    return {words.isEmpty() ? QString() : QStringLiteral("!"), words};
}

} // namespace

std::vector<WellColumn> zoneColumns()
{
    return {
        {"Conflict", "! where zones of one rank overlap, or give their boundary two qualities",
            Qt::AlignHCenter},
        {"Top (%1)", "The depth of the sample at the top of the zone", Qt::AlignRight},
        {"Base (%1)", "The depth of the sample at the base of the zone", Qt::AlignRight},
        {"Rank", "The rank of the zone within its type", Qt::AlignLeft},
        {"Zone", "The terms of the zone, in the colour of the upper one", Qt::AlignLeft},
        {"Top quality", "How sure the top is, or what kind of boundary", Qt::AlignLeft},
        {"Base quality", "How sure the base is, or what kind of boundary", Qt::AlignLeft},
        {"Scheme", "The scheme that the terms belong to", Qt::AlignLeft},
    };
}

std::vector<RecordRow> zoneRows(Well& well, int igd_type, int rank, char units, long interp_id)
{
    const auto list = interpretationOf(well, igd_type, units, interp_id, rank);
    auto conflicts = conflictWords(*list, isSection(well));
    SchemeNames schemes;
    std::vector<RecordRow> rows;
    for (IGDBase* record : *list) {
        auto& zone = static_cast<IGDZone&>(*record); // of these types all are
        const QString rankName = zoneRankName(igd_type, zone.hier());
        rows.push_back({markOf(conflicts[record]), topText(zone, well), baseText(zone, well),
            rankName.isEmpty() ? missingText() : rankName, {nameOf(zone), {}, swatchOf(zone)},
            qualityText(zone.top_bnd), qualityText(zone.base_bnd), schemes[zone.sch_id]});
    }
    return rows;
}

QString zoneRankName(int igd_type, int rank)
{
    // Biozones of a well have their ranks named under the types of their schemes.
    constexpr int kBiozones = 4, kNamedBiozones = 41, kLongForm = 1;
    const std::string_view name =
        columnName(igd_type == kBiozones ? kNamedBiozones : igd_type, rank, kLongForm);
    return name.starts_with('*') ? QString() // no rank of that type
                                 : QString::fromLatin1(name.data());
}

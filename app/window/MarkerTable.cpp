// app/window/MarkerTable.cpp
#include "app/window/Interpretation.h"
#include "app/window/SampleTexts.h"
#include "app/window/Texts.h"
#include "interp/Casing.h"
#include "interp/SQPick.h"
#include "interp/Smark.h"
#include "util/TextUtil.h"
#include "well/Well.h"

#include <QCoreApplication>

namespace {

QString translated(const char* text) { return QCoreApplication::translate("MarkerTable", text); }

/// What stands at a depth and has nothing but a text.
RecordRow markerRow(const IGDBase& record, const char* kind, std::string_view text)
{
    constexpr int kAsStored = 0; // drilled from above in sections too
    return {recordDepthText(record.getTop(kAsStored)), translated(kind), shownOrMissing(text),
        missingText(), missingText(), missingText(), missingText()};
}

QString pickDepthText(const SQPick& pick, char units)
{
    return pick.sample ? sampleDepthText(*pick.sample, units) : translated("no such sample");
}

RecordRow pickRow(const SQPick& pick, char units)
{
    const bool known = pick.surface.surface_id != 0;
    return {pickDepthText(pick, units), translated("pick"), shownOrMissing(pick.surface.name),
        known ? QString::fromStdString(fixedString(pick.surface.age, 3)) : missingText(),
        qualityText(pick.bnd),
        shownOrMissing(pick.qualifier ? std::string(1, pick.qualifier) : std::string()),
        shownOrMissing(pick.inf)};
}

std::vector<RecordRow> markerRows(Well& well, char units, long interp_id)
{
    std::vector<RecordRow> rows;
    const auto casings = interpretationOf(well, Casing::kType, units, interp_id);
    for (const IGDBase* record : *casings)
        rows.push_back(
            markerRow(*record, "casing", static_cast<const Casing&>(*record).diam.view()));
    const auto seismic = interpretationOf(well, Smark::kType, units, interp_id);
    for (const IGDBase* record : *seismic)
        rows.push_back(
            markerRow(*record, "seismic marker", static_cast<const Smark&>(*record).colour.view()));
    SQPickList picks;
    loadPicks(picks, well, interp_id); // what fails is reported
    for (const SQPick* pick : picks)
        rows.push_back(pickRow(*pick, units));
    return rows;
}

} // namespace

RecordKind markers()
{
    return {{{"Depth (%1)", "Of a pick: the depth of its sample", Qt::AlignRight},
                {"Kind", "The shoe of a casing, a seismic marker or the pick of a surface",
                    Qt::AlignLeft},
                {"What", "The diameter of the casing, the colour of the marker, the surface picked",
                    Qt::AlignLeft},
                {"Age (Ma)", "The age of the surface", Qt::AlignRight},
                {"Quality", "How sure the pick is, or what kind of boundary", Qt::AlignLeft},
                {"Qualifier", "The letter noted with the pick", Qt::AlignLeft},
                {"Information", "What was noted about the pick", Qt::AlignLeft}},
        markerRows};
}

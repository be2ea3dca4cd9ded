// app/window/EventTable.cpp
#include "app/window/RowTableModel.h"
#include "app/window/SampleTexts.h"
#include "app/window/Texts.h"
#include "app/window/WellTables.h"
#include "dict/EventLabels.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Events = RowTableModel<const EVt*>;

// One at a sample that the database does not have would stand at depth 0.
bool isPlaced(const EVt* event) { return event->sample->samp_id != 0; }

QString placeText(const EVt& event, char units)
{
    return isPlaced(&event) ? sampleDepthText(*event.sample, units)
                            : QCoreApplication::translate("EventTable", "no such sample");
}

QString sampleText(const EVt* const& event)
{
    return isPlaced(event)
        ? sampleTypeWord(*event->sample)
        : QCoreApplication::translate("EventTable", "The database does not have the sample.");
}

QString labelText(const EVt& event)
{
    char label[kEventLabelRoom];
    event.label(label);
    return shownOrMissing(label);
}

QString disciplineText(const EVt& event)
{
    return event.disc_id ? shownOrMissing(std::string(1, event.disc_id)) : missingText();
}

constexpr Events::Column kColumns[] = {
    {{kSampleDepth, kSampleDepthMeaning, Qt::AlignRight},
        [](const EVt* const& e, char units) { return placeText(*e, units); }, sampleText},
    {{"Event", "Tops and bases in the order of drilling: the top is the first seen downhole",
         Qt::AlignLeft},
        [](const EVt* const& e, char) { return labelText(*e); }},
    {{"Discipline", "The discipline that the event was found in", Qt::AlignHCenter},
        [](const EVt* const& e, char) { return disciplineText(*e); }},
    {{"Analyst", "Who found the event", Qt::AlignLeft},
        [](const EVt* const& e, char) { return shownOrMissing(e->analyst); }},
    {{"Qualifier", "How sure the place is", Qt::AlignLeft},
        [](const EVt* const& e, char) { return shownOrMissing(e->qualifier); }},
    {{"Interpretation", "The number of the interpretation that the event belongs to",
         Qt::AlignRight},
        [](const EVt* const& e, char) { return QString::number(e->interp_id); }},
    {{"Comments", "What was noted about the event", Qt::AlignLeft},
        [](const EVt* const& e, char) { return shownOrMissing(e->comments); }},
};

std::vector<const EVt*> eventsOf(const Well& well)
{
    std::vector<const EVt*> events(well.events.begin(), well.events.end());
    std::stable_partition(events.begin(), events.end(), isPlaced);
    return events;
}

} // namespace

std::unique_ptr<WellTableModel> eventTable()
{
    return std::make_unique<Events>(kColumns, eventsOf);
}

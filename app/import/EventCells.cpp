// app/import/EventCells.cpp
#include "app/import/EventCells.h"

EventEntry* readEvent(CellReader& cells, int number, int name, ImportContext& context)
{
    EventEntry* entry =
        context.numberedEvents.find(cells.file().set, std::string(cells.raw(number)));
    std::string text;
    if (!entry && cells.text(name, &text) == Cell::Good)
        entry = context.events.find(text);
    if (!entry)
        cells.refuse(cells.raw(number).empty() ? name : number,
            "no such event in the database or among the accepted rows of event_dictionary files");
    return entry;
}

std::optional<EventKind> readEventKind(CellReader& cells, int column)
{
    auto kind = eventKindOf(cells.raw(column));
    if (!kind)
        cells.refuse(column, "no kind of event that is known (F, L, FO, LO, FCO, LCO, ...)");
    else if (kind->translated)
        cells.report().noteOnce(cells.header(column), "",
            "first and last are meant in time: last occurrences become tops, first ones bases");
    return kind;
}

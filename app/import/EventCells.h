// app/import/EventCells.h
#pragma once

#include "app/import/Cells.h"
#include "app/import/EventKind.h"
#include "app/import/ImportContext.h"

#include <optional>

// Cells of rows that place an event. What cannot be read refuses the row.

/// The event by the number that its set gives it, else by its name; null when refused. The event
/// dictionary must be loaded.
EventEntry* readEvent(CellReader& cells, int number, int name, ImportContext& context);

std::optional<EventKind> readEventKind(CellReader& cells, int column);

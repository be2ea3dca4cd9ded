// app/import/LithologyCells.h
#pragma once

#include "app/import/Cells.h"
#include "app/import/ImportContext.h"

/// The rock of a row by the code that the files beside it give it, else by its name; one that the
/// dictionary does not have becomes a rock of it. Null when refused. The rocks must be loaded.
LithologyEntry* readLithology(CellReader& cells, int code, int name, ImportContext& context);

/// What the dictionary calls a kind of rock: N for "main", A "accessory", Q "qualifier", S
/// "stringer", in words or as these letters; 0 for anything else.
char lithologyKind(std::string_view cell);

/// The key that a vocabulary gives a rock; 0 without one.
long lithologyCode(std::string_view cell);

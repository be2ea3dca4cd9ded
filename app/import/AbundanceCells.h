// app/import/AbundanceCells.h
#pragma once

#include "app/import/Abundance.h"
#include "app/import/Cells.h"

#include <string>

/// What the cells of an occurrence say about how much was found and in which state.
struct OccurrenceCells {
    std::string code;
    long count = 0; ///< 0: none given
    bool reworked = false;
    bool questionable = false;
    bool caved = false;
    std::string comments; ///< with what the columns do not hold, as named notes
    bool hasComments = false;
};

/// Reads abundance, status and identification of the row. A column of its own for a thing counts
/// more than what the abundance as written says of it, marks apart: these are never dropped. A row
/// that says that nothing was found is refused.
OccurrenceCells readOccurrenceCells(CellReader& cells, const AbundanceWords& words);

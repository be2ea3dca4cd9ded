// app/import/WellCells.h
#pragma once

#include "app/import/Cells.h"
#include "app/import/ImportContext.h"

#include <optional>
#include <string>

// Cells of rows that stand at depths of a well.

/// The well that the row names by its code, `*code`; null when that refuses the row. False: the
/// database could not be asked (the context's error).
bool readWell(CellReader& cells, int column, ImportContext& context, std::string* code,
    const KnownWell** well);

/// Reads depths of one row in metres: in the unit that the column's name says, else in that of the
/// row, else in that of the well, which is told.
class DepthCells {
public:
    /// `unitsColumn` is where the row says its unit; `well` may be null.
    DepthCells(CellReader& cells, int unitsColumn, const KnownWell* well);

    Cell read(int column, double* metres);

private:
    char units();

    CellReader& cells_;
    int unitsColumn_;
    const KnownWell* well_;
    char rowUnits_ = 0; // before the state, whose reading sets it
    Cell state_;
    bool told_ = false;
};

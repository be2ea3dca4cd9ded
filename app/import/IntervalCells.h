// app/import/IntervalCells.h
#pragma once

#include "app/import/DepthInterval.h"
#include "app/import/WellCells.h"

// Cells of rows that stand over an interval of a well.

struct IntervalColumns {
    int top;
    int base;
    int units;
};

/// The interval of a row; a top or base that is missing, or a base that does not lie below the top,
/// refuses it. In an outcrop depths are heights.
bool readInterval(
    CellReader& cells, const IntervalColumns& columns, const KnownWell* well, DepthInterval* out);

/// As `readInterval`, but a row without a base is none of its business: `*out` has the top then,
/// and `*hasBase` is false.
bool readOpenInterval(CellReader& cells, const IntervalColumns& columns, const KnownWell* well,
    DepthInterval* out, bool* hasBase);

/// A depth to tell people, in metres.
std::string metresText(double depth);

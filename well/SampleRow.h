// well/SampleRow.h
#pragma once

#include "db/Cursor.h"
#include "util/Date.h"

#include <string>

/// One row of SAMPLES as it was read, nothing completed or translated. Depths in metres.
struct SampleRow {
    /// No row: identifier 0, nothing given.
    SampleRow() = default;
    /// The columns top_depth, base_depth, type, grid_x, grid_y, created, modified, creator,
    /// modifier, label, in this order from column `first` of the current row on.
    SampleRow(long sampId, const Cursor& row, short first);

    long samp_id = 0;
    float top = 0;
    float base = 0;
    std::string type;
    long grid_x = 0;
    long grid_y = 0;
    Date created;
    Date modified;
    std::string creator;
    std::string modifier;
    std::string label;
};

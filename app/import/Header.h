// app/import/Header.h
#pragma once

#include "app/import/InputFile.h"

#include <string>
#include <string_view>

// How the names of columns are understood.

/// A unit of length as a header or a map writes it.
struct LengthUnit {
    std::string_view word;
    char units;         ///< 'M' or 'F' that values become; 0: not one of depths
    double divisor = 1; ///< what they are divided by for that
};
/// Null for a word that is no unit of length.
const LengthUnit* lengthUnit(std::string_view word);

/// "Top depth [m]" and "top_depth_m" are the same column: small letters, digits and characters
/// beyond ASCII stay, everything between them is one underscore.
std::string plainName(std::string_view header);

/// The column of the shape that has that name among its names; null when none has.
const ColumnShape* columnNamed(const FileShape& shape, std::string_view name);

/// The usual name of a column.
std::string_view usualName(const ColumnShape& column);

// app/import/DepthShapes.h
#pragma once

#include "app/import/Shapes.h"

#include <cstddef>

// The columns of the files about the depths of wells.

namespace tvd_points {
enum { WellCode, Measured, Vertical, Units, Count };
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Measured, "md measured_depth depth", CellKind::Depth, BadCell::RefusesRow, true},
    {Vertical, "tvd true_vertical_depth", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
};
static_assert(std::size(kColumns) == Count);
} // namespace tvd_points

namespace cores {
enum { WellCode, Number, Top, Base, Units, Recovered, Count };
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Number, "core_number corenum core", CellKind::Key, BadCell::RefusesRow, true, 20},
    {Top, "top_depth core_top", CellKind::Depth, BadCell::RefusesRow, true},
    {Base, "base_depth bot_depth core_base", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "depth_unit units", CellKind::Units, BadCell::RefusesRow},
    {Recovered, "recovered", CellKind::Text, BadCell::IsLeftOut},
};
static_assert(std::size(kColumns) == Count);
} // namespace cores

// app/import/MarkerShapes.h
#pragma once

#include "app/import/Shapes.h"

#include <cstddef>

// The columns of the files of what stands at single depths of wells.

namespace casing {
enum { WellCode, Depth, Units, Diameter, Kind, Count };
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Depth, "casing_depth depth", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
    {Diameter, "diam casing_diameter_in casing_diameter diameter", CellKind::Text,
        BadCell::IsLeftOut, true},
    {Kind, "casing_type", CellKind::Text, BadCell::IsLeftOut},
};
static_assert(std::size(kColumns) == Count);
} // namespace casing

namespace seismic_markers {
enum { WellCode, Depth, Units, Colour, Count };
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Depth, "depth", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
    {Colour, "colour color", CellKind::Text, BadCell::IsLeftOut, true, 20},
};
static_assert(std::size(kColumns) == Count);
} // namespace seismic_markers

namespace surfaces {
enum { Number, Name, Scheme, Age, Type, Count };
inline constexpr ColumnShape kColumns[] = {
    {Number, "surface_id", CellKind::Id, BadCell::RefusesRow},
    {Name, "name surface_name surface", CellKind::Key, BadCell::RefusesRow, true, 255},
    {Scheme, "scheme scheme_name", CellKind::Text, BadCell::RefusesRow, false, 80},
    {Age, "age_ma age", CellKind::Number, BadCell::RefusesRow, true},
    {Type, "type", CellKind::Whole, BadCell::IsLeftOut},
};
static_assert(std::size(kColumns) == Count);
} // namespace surfaces

namespace picks {
enum {
    WellCode,
    Sample,
    Depth,
    Units,
    SurfaceNumber,
    Surface,
    Comment,
    Boundary,
    Qualifier,
    Count
};
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Sample, "samp_id sample_id", CellKind::Id, BadCell::RefusesRow},
    {Depth, "depth", CellKind::Depth, BadCell::RefusesRow},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
    {SurfaceNumber, "surface_id", CellKind::Id, BadCell::RefusesRow},
    {Surface, "surface surface_name", CellKind::Text, BadCell::RefusesRow, false, 255},
    {Comment, "comments inf", CellKind::Text, BadCell::IsLeftOut, false, 255},
    {Boundary, "boundary bnd", CellKind::Text, BadCell::IsLeftOut},
    {Qualifier, "qualifier", CellKind::Text, BadCell::IsLeftOut, false, 1},
};
static_assert(std::size(kColumns) == Count);
} // namespace picks

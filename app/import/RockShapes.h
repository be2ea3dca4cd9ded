// app/import/RockShapes.h
#pragma once

#include "app/import/Shapes.h"

#include <cstddef>

// The columns of the files of rocks and of environments.

namespace lithologies {
enum { Code, Name, Abr, Kind, Count };
inline constexpr ColumnShape kColumns[] = {
    {Code, "lith_id lith_code code", CellKind::Id, BadCell::RefusesRow},
    {Name, "descr lithology name", CellKind::Key, BadCell::RefusesRow, true, 81},
    {Abr, "abr abbreviation", CellKind::Text, BadCell::IsLeftOut, false, 9},
    {Kind, "kind cmp", CellKind::Text, BadCell::RefusesRow},
};
static_assert(std::size(kColumns) == Count);
} // namespace lithologies

/// Rocks over depths of a well.
namespace rock_layers {
enum { WellCode, Top, Base, Units, Code, Name, Count };
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Top, "top_depth top_md top", CellKind::Depth, BadCell::RefusesRow, true},
    {Base, "base_depth base_md base", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
    {Code, "lith_code lith_id", CellKind::Id, BadCell::RefusesRow},
    {Name, "lithology descr", CellKind::Key, BadCell::RefusesRow, true, 81},
};
static_assert(std::size(kColumns) == Count);
} // namespace rock_layers

/// Intervals whose rocks are in a file of components.
namespace intervals {
enum { WellCode, Top, Base, Units, Count };
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Top, "top_depth top_md top", CellKind::Depth, BadCell::RefusesRow, true},
    {Base, "base_depth base_md base", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
};
static_assert(std::size(kColumns) == Count);
} // namespace intervals

namespace lithology_components {
enum { WellCode, Base, Units, Code, Name, Percent, Count };
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Base, "base_depth base_md base", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
    {Code, "lith_code lith_id", CellKind::Id, BadCell::RefusesRow},
    {Name, "lithology descr", CellKind::Key, BadCell::RefusesRow, true, 81},
    {Percent, "percent", CellKind::Number, BadCell::RefusesRow, true},
};
static_assert(std::size(kColumns) == Count);
} // namespace lithology_components

namespace environment_terms {
enum { Scheme, Number, Name, Red, Green, Blue, Count };
inline constexpr ColumnShape kColumns[] = {
    {Scheme, "scheme_name scheme", CellKind::Key, BadCell::RefusesRow, true, 80},
    {Number, "term_no", CellKind::Whole, BadCell::RefusesRow},
    {Name, "term name", CellKind::Key, BadCell::RefusesRow, true, 79},
    {Red, "r red", CellKind::Whole, BadCell::IsLeftOut},
    {Green, "g green", CellKind::Whole, BadCell::IsLeftOut},
    {Blue, "b blue", CellKind::Whole, BadCell::IsLeftOut},
};
static_assert(std::size(kColumns) == Count);
} // namespace environment_terms

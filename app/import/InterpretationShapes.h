// app/import/InterpretationShapes.h
#pragma once

#include "app/import/Shapes.h"

#include <array>
#include <cstddef>

// The columns of the files of interpretation schemes, their terms, and zones of wells.

namespace interpretation_schemes {
enum { Number, Name, Category, Discipline, Type, Count };
inline constexpr ColumnShape kColumns[] = {
    {Number, "sch_id", CellKind::Id, BadCell::RefusesRow, true},
    {Name, "scheme_name name", CellKind::Key, BadCell::RefusesRow, true, 80},
    {Category, "category cat_mnem", CellKind::Text, BadCell::IsLeftOut},
    {Discipline, "disc_id discipline", CellKind::Text, BadCell::IsLeftOut},
    {Type, "igd_type", CellKind::Whole, BadCell::RefusesRow},
};
static_assert(std::size(kColumns) == Count);
} // namespace interpretation_schemes

/// Of time scales, zones of zonations and lithostratigraphic units.
namespace terms {
enum {
    Number,
    SchemeNumber,
    Scheme,
    Name,
    Abr,
    Rank,
    RankName,
    Top,
    Base,
    Red,
    Green,
    Blue,
    Region,
    Count
};
inline constexpr ColumnShape kChronostratColumns[] = {
    {Number, "igd_id", CellKind::Id, BadCell::RefusesRow},
    {SchemeNumber, "sch_id", CellKind::Id, BadCell::RefusesRow},
    {Scheme, "scheme scheme_name", CellKind::Text, BadCell::RefusesRow, false, 80},
    {Name, "name unit_name", CellKind::Key, BadCell::RefusesRow, true, 80},
    {Abr, "abr abbr", CellKind::Text, BadCell::IsLeftOut, false, 5},
    {Rank, "hier", CellKind::Whole, BadCell::RefusesRow},
    {RankName, "rank level", CellKind::Text, BadCell::IsLeftOut},
    {Top, "top_ma top_age_ma u_age", CellKind::Number, BadCell::RefusesRow, true},
    {Base, "base_ma base_age_ma l_age", CellKind::Number, BadCell::RefusesRow, true},
    {Red, "r red", CellKind::Whole, BadCell::IsLeftOut},
    {Green, "g green", CellKind::Whole, BadCell::IsLeftOut},
    {Blue, "b blue", CellKind::Whole, BadCell::IsLeftOut},
    {Region, "region", CellKind::Text, BadCell::IsLeftOut},
};
inline constexpr auto kZoneColumns = [] {
    auto columns = std::to_array(kChronostratColumns);
    columns[Name].names = "zone_name name";
    columns[Top].names = "top_age_ma top_ma u_age";
    columns[Base].names = "base_age_ma base_ma l_age";
    columns[Top].required = columns[Base].required = false;
    return columns;
}();
inline constexpr auto kUnitColumns = [] {
    auto columns = kZoneColumns;
    columns[Number].names = "unit_id igd_id";
    columns[Name].names = "unit_name name";
    return columns;
}();
static_assert(std::size(kChronostratColumns) == Count);
} // namespace terms

/// Of zones of wells.
namespace well_zones {
enum {
    WellCode,
    Top,
    Base,
    Units,
    Number,
    Name,
    LowerName,
    ParentName,
    Rank,
    RankName,
    Scheme,
    TopAge,
    BaseAge,
    Count
};
inline constexpr ColumnShape kFormationColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Top, "top_md top_depth top", CellKind::Depth, BadCell::RefusesRow, true},
    {Base, "base_md base_depth base", CellKind::Depth, BadCell::RefusesRow, true},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
    {Number, "unit_id", CellKind::Id, BadCell::RefusesRow},
    {Name, "unit_name name", CellKind::Key, BadCell::RefusesRow, true, 80},
    {LowerName, "lower_name", CellKind::Text, BadCell::RefusesRow, false, 80},
    {ParentName, "parent_name", CellKind::Text, BadCell::IsLeftOut, false, 80},
    {Rank, "hier", CellKind::Whole, BadCell::RefusesRow},
    {RankName, "level rank", CellKind::Text, BadCell::IsLeftOut},
    {Scheme, "scheme scheme_name", CellKind::Text, BadCell::RefusesRow, false, 80},
    {TopAge, "top_age_ma top_ma", CellKind::Number, BadCell::IsLeftOut},
    {BaseAge, "base_age_ma base_ma", CellKind::Number, BadCell::IsLeftOut},
};
inline constexpr auto kAgeColumns = [] {
    auto columns = std::to_array(kFormationColumns);
    columns[Name].names = "age_name name";
    columns[LowerName].names = "auxiliary_age_name lower_age_name";
    return columns;
}();
static_assert(std::size(kFormationColumns) == Count);
} // namespace well_zones

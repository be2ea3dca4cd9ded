// app/import/EventShapes.h
#pragma once

#include "app/import/Shapes.h"

#include <cstddef>

// The columns of the files of events and of composite standards.

namespace event_dictionary {
enum { Number, Name, Taxon, Kind, Type, Count };
inline constexpr ColumnShape kColumns[] = {
    {Number, "ev_id event_id datum_id", CellKind::Id, BadCell::RefusesRow},
    {Name, "name event_name description", CellKind::Text, BadCell::RefusesRow, true, 100},
    {Taxon, "taxon taxon_name", CellKind::Text, BadCell::IsLeftOut, false, 226},
    {Kind, "datum_type kind", CellKind::Text, BadCell::RefusesRow},
    {Type, "ev_type", CellKind::Text, BadCell::IsLeftOut},
};
static_assert(std::size(kColumns) == Count);
} // namespace event_dictionary

namespace events {
enum {
    WellCode,
    Number,
    Name,
    Kind,
    Sample,
    Depth,
    Top,
    Base,
    Units,
    Discipline,
    Analyst,
    Qualifier,
    Source,
    Company,
    Age,
    Comments,
    Count
};
inline constexpr ColumnShape kColumns[] = {
    {WellCode, "well_code", CellKind::Key, BadCell::RefusesRow, true, 25},
    {Number, "ev_id event_id datum_id", CellKind::Id, BadCell::RefusesRow},
    {Name, "event_name name event", CellKind::Text, BadCell::RefusesRow, false, 100},
    {Kind, "ev_type datum_type kind", CellKind::Text, BadCell::RefusesRow, true},
    {Sample, "samp_id sample_id", CellKind::Id, BadCell::RefusesRow},
    {Depth, "depth height", CellKind::Depth, BadCell::RefusesRow},
    {Top, "depth_top top_depth", CellKind::Depth, BadCell::RefusesRow},
    {Base, "depth_base base_depth", CellKind::Depth, BadCell::RefusesRow},
    {Units, "units depth_unit", CellKind::Units, BadCell::RefusesRow},
    {Discipline, "disc_id discipline", CellKind::Text, BadCell::IsLeftOut},
    {Analyst, "analyst", CellKind::Text, BadCell::IsLeftOut, false, 255},
    {Qualifier, "qualifier", CellKind::Text, BadCell::IsLeftOut, false, 255},
    {Source, "source", CellKind::Text, BadCell::IsLeftOut, false, 255},
    {Company, "company", CellKind::Text, BadCell::IsLeftOut, false, 255},
    {Age, "age_young_ma age_ma", CellKind::Text, BadCell::IsLeftOut},
    {Comments, "comments", CellKind::Text, BadCell::IsLeftOut, false, 1500},
};
static_assert(std::size(kColumns) == Count);
} // namespace events

namespace composite_standard {
enum { Standard, Units, Number, Name, Kind, Position, Count };
inline constexpr ColumnShape kColumns[] = {
    {Standard, "standard std_name", CellKind::Text, BadCell::RefusesRow, false, 80},
    {Units, "units", CellKind::Text, BadCell::IsLeftOut, false, 20},
    {Number, "ev_id event_id datum_id", CellKind::Id, BadCell::RefusesRow},
    {Name, "event_name name event", CellKind::Text, BadCell::RefusesRow, false, 100},
    {Kind, "ev_type datum_type kind", CellKind::Text, BadCell::RefusesRow, true},
    {Position, "csu position", CellKind::Number, BadCell::RefusesRow, true},
};
static_assert(std::size(kColumns) == Count);
} // namespace composite_standard

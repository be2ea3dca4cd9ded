// app/import/AnalysisShapes.h
#pragma once

#include "app/import/Shapes.h"

#include <array>
#include <cstddef>

// The columns of the files of analytical data. Capacities are those of the columns that the texts
// go to; texts without one are checked by their loader.

namespace analysts {
enum { Analyst, Count };
inline constexpr ColumnShape kColumns[] = {
    {Analyst, "analyst abr abbreviation", CellKind::Key, BadCell::RefusesRow, true},
};
static_assert(std::size(kColumns) == Count);
} // namespace analysts

/// The codes of a set of files, lowest first.
namespace abundance_codes {
enum { Code, Word, Scheme, Count };
inline constexpr ColumnShape kColumns[] = {
    {Code, "abund code abr", CellKind::Text, BadCell::RefusesRow, true},
    {Word, "word name meaning", CellKind::Text, BadCell::IsLeftOut, true, 25},
    {Scheme, "scheme", CellKind::Text, BadCell::IsLeftOut, false, 25},
};
static_assert(std::size(kColumns) == Count);
} // namespace abundance_codes

namespace sample_details {
enum {
    Sample,
    Discipline,
    Category,
    Analyst,
    Number,
    Picker,
    Source,
    Barren,
    Weight,
    Coarse,
    Medium,
    Fine,
    Proximal,
    Distal,
    GroupAbundance,
    Preservation,
    Overgrowth,
    Dissolution,
    Age,
    OldestAge,
    YoungestAge,
    OldestZone,
    YoungestZone,
    ZoneScheme,
    Notes,
    Count
};
inline constexpr ColumnShape kColumns[] = {
    {Sample, "samp_id sample_id", CellKind::Id, BadCell::RefusesRow, true},
    {Discipline, "disc_id discipline", CellKind::Text, BadCell::RefusesRow},
    {Category, "category cat_mnem", CellKind::Text, BadCell::IsLeftOut, false, 80},
    {Analyst, "analyst analyst_key", CellKind::Text, BadCell::RefusesRow},
    {Number, "analy_no analysis_number", CellKind::Whole, BadCell::RefusesRow},
    {Picker, "picker", CellKind::Text, BadCell::IsLeftOut, false, 5},
    {Source, "source", CellKind::Text, BadCell::IsLeftOut, false, 5},
    {Barren, "barren", CellKind::Text, BadCell::IsLeftOut},
    {Weight, "weight", CellKind::Number, BadCell::IsLeftOut},
    {Coarse, "coarse", CellKind::Number, BadCell::IsLeftOut},
    {Medium, "medium", CellKind::Number, BadCell::IsLeftOut},
    {Fine, "fine", CellKind::Number, BadCell::IsLeftOut},
    {Proximal, "proximal", CellKind::Whole, BadCell::IsLeftOut},
    {Distal, "distal", CellKind::Whole, BadCell::IsLeftOut},
    {GroupAbundance, "group_abundance", CellKind::Text, BadCell::IsLeftOut},
    {Preservation, "group_preservation preservation mechanical_preservation", CellKind::Text,
        BadCell::IsLeftOut},
    {Overgrowth, "chemical_overgrowth overgrowth", CellKind::Text, BadCell::IsLeftOut},
    {Dissolution, "chemical_dissolution dissolution", CellKind::Text, BadCell::IsLeftOut},
    {Age, "reported_age age", CellKind::Text, BadCell::IsLeftOut},
    {OldestAge, "age_oldest oldest_age", CellKind::Text, BadCell::IsLeftOut},
    {YoungestAge, "age_youngest youngest_age", CellKind::Text, BadCell::IsLeftOut},
    {OldestZone, "zone_bottom oldest_zone", CellKind::Text, BadCell::IsLeftOut},
    {YoungestZone, "zone_top youngest_zone", CellKind::Text, BadCell::IsLeftOut},
    {ZoneScheme, "zone_scheme", CellKind::Text, BadCell::IsLeftOut, false, 80},
    {Notes, "notes comments", CellKind::Text, BadCell::IsLeftOut, false, 240},
};
static_assert(std::size(kColumns) == Count);
} // namespace sample_details

/// Of occurrences and of counts.
namespace occurrences {
enum {
    Sample,
    SpecId,
    Taxon,
    Category,
    Discipline,
    Analyst,
    Number,
    Written,
    Code,
    Counted,
    Percent,
    Coarse,
    Fine,
    Status,
    Identification,
    Caved,
    Marker,
    Preservation,
    Colour,
    Comments,
    Count
};
inline constexpr ColumnShape kColumns[] = {
    {Sample, "samp_id sample_id", CellKind::Id, BadCell::RefusesRow, true},
    {SpecId, "spec_id taxon_id", CellKind::Id, BadCell::RefusesRow},
    {Taxon, "taxon_name taxon name", CellKind::Text, BadCell::RefusesRow, false, 226},
    {Category, "category cat_mnem", CellKind::Text, BadCell::IsLeftOut, false, 80},
    {Discipline, "disc_id discipline", CellKind::Text, BadCell::RefusesRow},
    {Analyst, "analyst analyst_key", CellKind::Text, BadCell::RefusesRow},
    {Number, "analy_no analysis_number", CellKind::Whole, BadCell::RefusesRow},
    {Written, "abundance_text raw_value abundance", CellKind::Text, BadCell::IsLeftOut},
    {Code, "abund abundance_code", CellKind::Text, BadCell::IsLeftOut},
    {Counted, "count medium", CellKind::Number, BadCell::IsLeftOut},
    {Percent, "percent percentage", CellKind::Number, BadCell::IsLeftOut},
    {Coarse, "coarse", CellKind::Whole, BadCell::IsLeftOut},
    {Fine, "fine", CellKind::Whole, BadCell::IsLeftOut},
    {Status, "status", CellKind::Text, BadCell::IsLeftOut},
    {Identification, "ident_type identification", CellKind::Text, BadCell::IsLeftOut},
    {Caved, "caved", CellKind::Text, BadCell::IsLeftOut},
    {Marker, "marker", CellKind::Text, BadCell::IsLeftOut},
    {Preservation, "preservation preserv", CellKind::Text, BadCell::IsLeftOut, false, 255},
    {Colour, "colour color", CellKind::Text, BadCell::IsLeftOut, false, 255},
    {Comments, "comments notes", CellKind::Text, BadCell::IsLeftOut, false, 1000},
};
static_assert(std::size(kColumns) == Count);

/// The same for a file of counts, which must have them.
inline constexpr auto kCountColumns = [] {
    auto columns = std::to_array(kColumns);
    columns[Counted].required = true;
    return columns;
}();
} // namespace occurrences

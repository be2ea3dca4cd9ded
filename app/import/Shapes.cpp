// app/import/Shapes.cpp
#include "app/import/Shapes.h"

#include "app/import/AnalysisShapes.h"
#include "app/import/DepthShapes.h"
#include "app/import/EventShapes.h"
#include "app/import/InterpretationShapes.h"
#include "app/import/Loader.h"
#include "app/import/MarkerShapes.h"
#include "app/import/RockShapes.h"
#include "app/import/TableLoader.h"

#include <algorithm>
#include <functional>

namespace {

constexpr auto Refuses = BadCell::RefusesRow;
constexpr auto LeftOut = BadCell::IsLeftOut;

// Capacities are those of the columns that the texts go to.
constexpr ColumnShape kWells[] = {
    {wells::Code, "well_code", CellKind::Key, Refuses, true, 25},
    {wells::Name, "well_name section_name", CellKind::Text, LeftOut, false, 25},
    {wells::Operator, "operator", CellKind::Text, LeftOut, false, 50},
    {wells::Country, "country", CellKind::Text, LeftOut, false, 25},
    {wells::County, "county", CellKind::Text, LeftOut, false, 30},
    {wells::Ocs, "ocs", CellKind::Text, LeftOut, false, 10},
    {wells::Field, "field", CellKind::Text, LeftOut, false, 20},
    {wells::GridX, "grid_x", CellKind::Whole, LeftOut},
    {wells::GridY, "grid_y", CellKind::Whole, LeftOut},
    {wells::Latitude, "lat_dec latitude", CellKind::Number, LeftOut},
    {wells::Longitude, "long_dec longitude", CellKind::Number, LeftOut},
    {wells::GeoDatum, "geodatum geodetic_datum", CellKind::Text, LeftOut, false, 255},
    {wells::SpudDate, "spud_date arrival_date", CellKind::Date, LeftOut},
    {wells::CompDate, "comp_date completion_date departure_date", CellKind::Date, LeftOut},
    {wells::Td, "td total_depth_md total_depth total_penetration", CellKind::Depth, LeftOut},
    {wells::Sl, "sl sea_level", CellKind::Depth, LeftOut},
    {wells::Sb, "sb water_depth", CellKind::Depth, LeftOut},
    {wells::Rte, "rte kb_elevation", CellKind::Depth, LeftOut},
    {wells::Kicko, "kicko kick_off_depth", CellKind::Depth, LeftOut},
    {wells::Type, "type well_type", CellKind::WellType, LeftOut},
    {wells::Units, "units", CellKind::Units, Refuses},
    {wells::Description, "descrip description", CellKind::Text, LeftOut, false, 2000},
};
static_assert(std::size(kWells) == wells::Count);

constexpr ColumnShape kSamples[] = {
    {samples::WellCode, "well_code core_code", CellKind::Key, Refuses, true, 25},
    {samples::Id, "samp_id sample_id", CellKind::Id, Refuses},
    {samples::Top, "top_depth depth", CellKind::Depth, Refuses},
    {samples::Base, "base_depth bot_depth", CellKind::Depth, Refuses},
    {samples::Type, "type sample_type", CellKind::SampleType, Refuses, true, 5},
    {samples::Label, "label", CellKind::Text, LeftOut, false, 15},
    {samples::Units, "units depth_unit", CellKind::Units, Refuses},
    {samples::GridX, "grid_x", CellKind::Whole, LeftOut},
    {samples::GridY, "grid_y", CellKind::Whole, LeftOut},
};
static_assert(std::size(kSamples) == samples::Count);

constexpr ColumnShape kDisciplines[] = {
    {disciplines::Letter, "disc_id discipline", CellKind::Text, Refuses, true},
    {disciplines::Name, "disc_name name", CellKind::Text, LeftOut, true, 30},
    {disciplines::Abr, "disc_abr abr", CellKind::Text, LeftOut, false, 5},
    {disciplines::Adjective, "disc_adj adjective", CellKind::Text, LeftOut, false, 30},
};
static_assert(std::size(kDisciplines) == disciplines::Count);

constexpr ColumnShape kCategories[] = {
    {categories::Mnemonic, "cat_mnem category mnemonic", CellKind::Key, Refuses, true, 5},
    {categories::Discipline, "disc_id discipline", CellKind::Text, LeftOut},
    {categories::Name, "cat_name group_name name", CellKind::Text, LeftOut, false, 53},
};
static_assert(std::size(kCategories) == categories::Count);

// Names are fitted into their slots as wholes, so their pieces may have any length. A name longer
// than the notes keep would be lost where it does not fit.
constexpr ColumnShape kTaxa[] = {
    {taxa::Id, "spec_id taxon_id", CellKind::Id, Refuses},
    {taxa::Category, "cat_mnem category", CellKind::Text, Refuses},
    {taxa::Group, "taxon_group group", CellKind::Text, Refuses},
    {taxa::Discipline, "disc_id discipline", CellKind::Text, LeftOut},
    {taxa::Name, "name taxon_name taxon", CellKind::Text, LeftOut, false, 226},
    {taxa::AboveGenus, "above_genus", CellKind::Text, LeftOut},
    {taxa::GenusMark, "genus_qualifier genus_modifier", CellKind::Text, LeftOut},
    {taxa::Genus, "genus", CellKind::Text, LeftOut},
    {taxa::Subgenus, "sub_genus subgenus", CellKind::Text, LeftOut},
    {taxa::SpeciesMark, "species_qualifier species_modifier", CellKind::Text, LeftOut},
    {taxa::Species, "species", CellKind::Text, LeftOut},
    {taxa::SubspeciesMark, "subspecies_qualifier subspecies_modifier", CellKind::Text, LeftOut},
    {taxa::Subspecies, "sub_spec subspecies", CellKind::Text, LeftOut},
    {taxa::Rest, "rest descriptor", CellKind::Text, LeftOut},
    {taxa::Author, "author", CellKind::Text, LeftOut, false, 79},
    {taxa::Year, "year", CellKind::Whole, LeftOut},
    {taxa::AlphaCode, "alphacode alpha_code source_code", CellKind::Text, LeftOut, false, 255},
    {taxa::Code, "sipm_code code", CellKind::Whole, LeftOut},
    {taxa::Notes, "notes", CellKind::Text, LeftOut, false, 240},
};
static_assert(std::size(kTaxa) == taxa::Count);

constexpr ColumnShape kSynonymy[] = {
    {synonymy::Name, "name synonym", CellKind::Text, Refuses, true, 226},
    {synonymy::Preferred, "preferred_name accepted_name name_to_use", CellKind::Text, Refuses, true,
        226},
    {synonymy::PreferredId, "preferred_id", CellKind::Id, Refuses},
    {synonymy::Category, "cat_mnem category taxon_group", CellKind::Text, Refuses},
    {synonymy::Scheme, "scheme synonymy_scheme", CellKind::Text, Refuses, false, 49},
};
constexpr ColumnShape kNameVariants[] = {
    {synonymy::Name, "verbatim_name variant name", CellKind::Text, Refuses, true, 226},
    {synonymy::Preferred, "name_to_use preferred_name", CellKind::Text, Refuses, false, 226},
    {synonymy::PreferredId, "spec_id taxon_id", CellKind::Id, Refuses},
    {synonymy::Category, "cat_mnem category taxon_group", CellKind::Text, Refuses},
    {synonymy::Scheme, "scheme synonymy_scheme", CellKind::Text, Refuses, false, 49},
};
static_assert(std::size(kSynonymy) == synonymy::Count);
static_assert(std::size(kNameVariants) == synonymy::Count);

constexpr ColumnShape kSchemes[] = {
    {schemes::Id, "scheme_id", CellKind::Id, Refuses, true},
    {schemes::Name, "name", CellKind::Key, Refuses, true, 25},
};
static_assert(std::size(kSchemes) == schemes::Count);

constexpr ColumnShape kLevels[] = {
    {levels::SchemeId, "scheme_id", CellKind::Id, Refuses},
    {levels::Scheme, "scheme scheme_name", CellKind::Text, Refuses, false, 25},
    {levels::EntryNo, "entry_no", CellKind::Whole, Refuses},
    {levels::Name, "entry_name level name", CellKind::Text, LeftOut, false, 25},
    {levels::Abr, "abr code", CellKind::Text, Refuses, true, 4},
    {levels::Min, "min", CellKind::Number, Refuses},
    {levels::MinExclusive, "min_exclusive", CellKind::Text, LeftOut},
    {levels::Output, "output_val output", CellKind::Whole, LeftOut},
};
static_assert(std::size(kLevels) == levels::Count);

template <std::size_t N> constexpr bool inOrder(const ColumnShape (&columns)[N])
{
    for (std::size_t i = 0; i < N; ++i)
        if (columns[i].column != static_cast<int>(i))
            return false;
    return true;
}
static_assert(inOrder(kWells) && inOrder(kSamples));
static_assert(inOrder(kDisciplines));
static_assert(inOrder(kCategories) && inOrder(kTaxa) && inOrder(kSynonymy));
static_assert(inOrder(kNameVariants) && inOrder(kSchemes) && inOrder(kLevels));
static_assert(inOrder(analysts::kColumns) && inOrder(abundance_codes::kColumns));
static_assert(inOrder(sample_details::kColumns) && inOrder(occurrences::kColumns));
static_assert(inOrder(event_dictionary::kColumns) && inOrder(events::kColumns));
static_assert(inOrder(composite_standard::kColumns));
static_assert(inOrder(tvd_points::kColumns) && inOrder(cores::kColumns));
static_assert(inOrder(interpretation_schemes::kColumns) && inOrder(terms::kChronostratColumns));
static_assert(inOrder(well_zones::kFormationColumns));
static_assert(inOrder(lithologies::kColumns) && inOrder(rock_layers::kColumns));
static_assert(inOrder(intervals::kColumns) && inOrder(lithology_components::kColumns));
static_assert(inOrder(environment_terms::kColumns) && inOrder(casing::kColumns));
static_assert(inOrder(seismic_markers::kColumns) && inOrder(surfaces::kColumns));
static_assert(inOrder(picks::kColumns));

constexpr FileShape kShapes[] = {
    {"wells", kWells, makeWellsLoader},
    {"sections", kWells, makeWellsLoader, true},
    {"samples", kSamples, makeSamplesLoader},
    {"disciplines", kDisciplines, makeDisciplinesLoader},
    {"categories", kCategories, makeCategoriesLoader},
    {"taxa", kTaxa, makeTaxaLoader},
    {"synonymy", kSynonymy, makeSynonymyLoader},
    {"name_variants", kNameVariants, makeNameVariantsLoader},
    {"schemes", kSchemes, makeSchemesLoader, true},
    {"levels", kLevels, makeLevelsLoader, true},
    {"abundance_codes", abundance_codes::kColumns, makeAbundanceCodesLoader},
    {"analysts", analysts::kColumns, makeAnalystsLoader},
    {"sample_details", sample_details::kColumns, makeDetailsLoader},
    {"occurrences", occurrences::kColumns, makeOccurrencesLoader},
    {"counts", occurrences::kCountColumns, makeOccurrencesLoader},
    {"event_dictionary", event_dictionary::kColumns, makeEventDictionaryLoader},
    {"events", events::kColumns, makeEventsLoader},
    {"composite_standard", composite_standard::kColumns, makeStandardLoader},
    {"tvd_points", tvd_points::kColumns, makeTvdLoader},
    {"cores", cores::kColumns, makeCoresLoader},
    {"chronostrat", terms::kChronostratColumns, makeTimeScaleLoader},
    {"schemes", interpretation_schemes::kColumns, makeInterpretationSchemesLoader, true},
    {"zones", terms::kZoneColumns, makeZonationLoader},
    {"lithostrat_units", terms::kUnitColumns, makeUnitsLoader},
    {"formation_tops", well_zones::kFormationColumns, makeFormationTopsLoader},
    {"age_intervals", well_zones::kAgeColumns, makeAgeIntervalsLoader},
    {"simple_lithology", lithologies::kColumns, makeLithologiesLoader},
    {"lithologies", lithologies::kColumns, makeLithologiesLoader},
    {"lithology_codes", lithologies::kColumns, makeLithologiesLoader},
    {"lithology_layers", rock_layers::kColumns, makeLayersLoader},
    {"lithology_intervals", rock_layers::kColumns, makeLayersLoader},
    {"intervals", intervals::kColumns, makeIntervalsLoader, true},
    {"lithology_components", lithology_components::kColumns, makeComponentsLoader},
    {"env_scheme", environment_terms::kColumns, makeEnvironmentTermsLoader},
    {"casing", casing::kColumns, makeCasingLoader},
    {"seismic_markers", seismic_markers::kColumns, makeMarkersLoader},
    {"surfaces", surfaces::kColumns, makeSurfacesLoader},
    {"picks", picks::kColumns, makePicksLoader},
};

bool isNameBreak(char c) { return c == '-' || c == '_' || c == '.' || c == ' '; }

bool namesShape(std::string_view stem, std::string_view shape)
{
    if (stem.starts_with(shape) && (stem.size() == shape.size() || isNameBreak(stem[shape.size()])))
        return true;
    return stem.size() > shape.size() && stem.ends_with(shape)
        && isNameBreak(stem[stem.size() - shape.size() - 1]);
}

} // namespace

std::span<const FileShape> fileShapes()
{
    static const auto shapes = [] {
        std::vector<FileShape> all(std::begin(kShapes), std::end(kShapes));
        const auto tables = tableShapes();
        all.insert(all.end(), tables.begin(), tables.end());
        return all;
    }();
    return shapes;
}

std::vector<const FileShape*> shapesOfFile(std::string_view stem)
{
    std::vector<const FileShape*> shapes;
    for (const FileShape& shape : fileShapes())
        if (shape.table ? stem == shape.name : namesShape(stem, shape.name))
            shapes.push_back(&shape);
    std::ranges::stable_sort(
        shapes, std::greater(), [](const FileShape* shape) { return shape->name.size(); });
    return shapes;
}

const FileShape* shapeOfFile(std::string_view stem)
{
    const auto shapes = shapesOfFile(stem);
    return shapes.empty() ? nullptr : shapes.front();
}

// app/import/Shapes.cpp
#include "app/import/Shapes.h"

#include "app/import/Loader.h"

namespace {

constexpr auto Refuses = BadCell::RefusesRow;
constexpr auto LeftOut = BadCell::IsLeftOut;

// Capacities are those of the columns that the texts go to.
constexpr ColumnShape kWells[] = {
    {wells::Code, "well_code", CellKind::Key, Refuses, true, 25},
    {wells::Name, "well_name", CellKind::Text, LeftOut, false, 25},
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
    {samples::WellCode, "well_code", CellKind::Key, Refuses, true, 25},
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

template <std::size_t N> constexpr bool inOrder(const ColumnShape (&columns)[N])
{
    for (std::size_t i = 0; i < N; ++i)
        if (columns[i].column != static_cast<int>(i))
            return false;
    return true;
}
static_assert(inOrder(kWells) && inOrder(kSamples));

constexpr FileShape kShapes[] = {
    {"wells", kWells, makeWellsLoader},
    {"samples", kSamples, makeSamplesLoader},
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

std::span<const FileShape> fileShapes() { return kShapes; }

const FileShape* shapeOfFile(std::string_view stem)
{
    for (const FileShape& shape : kShapes)
        if (namesShape(stem, shape.name))
            return &shape;
    return nullptr;
}

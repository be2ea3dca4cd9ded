// store/PickWriters.cpp
#include "store/PickWriters.h"

#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kSurfaceKey[] = {{"surface_id", Type::Integer}};
constexpr Column kSurface[] = {
    {"sch_id", Type::Integer}, {"age", Type::Float}, {"type", Type::Integer}, {"name", Type::Text}};
constexpr Column kPickKey[] = {{"well_id", Type::Integer}, {"interp_id", Type::Integer},
    {"samp_id", Type::Integer}, {"surface_id", Type::Integer}};
constexpr Column kPick[] = {{"inf", Type::Text}, {"bnd", Type::Integer}, {"qualifier", Type::Text}};
constexpr long kDefaultInterpretation = 0;
constexpr long kConfident = 3;

} // namespace

SurfaceWriter::SurfaceWriter(Writing writing)
    : writing_(writing)
    , table_("SURFACE", kSurfaceKey, kSurface)
    , surfaces_("SURFACE", "surface_id", "name")
{
}

Outcome SurfaceWriter::put(NamedEntry& surface, const SurfaceRecord& record)
{
    Row row{record.schemeId, record.age, record.type, std::nullopt};
    if (!surface.isStored) {
        if (!surfaces_.number(surface))
            return Outcome::Failed;
        row[3] = textValue(surface.name);
    }
    return putRow(table_, writing_, {Value(surface.id)}, row);
}

std::string SurfaceWriter::error() const
{
    return table_.error().empty() ? surfaces_.error() : table_.error();
}

PickWriter::PickWriter(Writing writing)
    : writing_(writing)
    , table_("SQPICK", kPickKey, kPick)
{
}

Outcome PickWriter::put(const PickRecord& record)
{
    return putRow(table_, writing_,
        {Value(record.wellId), Value(kDefaultInterpretation), Value(record.sampleId),
            Value(record.surfaceId)},
        {record.comment, record.boundary, record.qualifier},
        {{std::nullopt, Value(kConfident), std::nullopt}, {}});
}

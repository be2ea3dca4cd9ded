// store/OccurrenceWriter.cpp
#include "store/OccurrenceWriter.h"

#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"well_id", Type::Integer}, {"samp_id", Type::Integer},
    {"spec_id", Type::Integer}, {"analy_id", Type::Integer}, {"status", Type::Text},
    {"ident_type", Type::Text}};
constexpr Column kOccurrence[] = {{"disc_id", Type::Text}, {"abund", Type::Text},
    {"caved", Type::Text}, {"marker", Type::Text}, {"medium", Type::Integer},
    {"coarse", Type::Integer}, {"fine", Type::Integer}, {"preserv", Type::Text},
    {"colour", Type::Text}, {"comments", Type::Text}};
static_assert(std::size(kOccurrence) == static_cast<std::size_t>(OccurrenceColumn::Count));

} // namespace

OccurrenceWriter::OccurrenceWriter(Writing writing)
    : writing_(writing)
    , table_("TAXONOCC", kKey, kOccurrence)
{
}

Outcome OccurrenceWriter::put(const OccurrenceRecord& record)
{
    return putRow(table_, writing_,
        {Value(record.wellId), Value(record.sampleId), Value(record.specId),
            Value(record.analysisId), textValue(record.reworked ? "R" : "I"),
            textValue(record.questionable ? "?" : "P")},
        record.columns);
}

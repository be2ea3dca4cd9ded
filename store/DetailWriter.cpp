// store/DetailWriter.cpp
#include "store/DetailWriter.h"

#include "db/CurrentUser.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"samp_id", Type::Integer}, {"analy_id", Type::Integer}};
constexpr Column kDetails[] = {{"well_id", Type::Integer}, {"disc_id", Type::Text},
    {"picker", Type::Text}, {"source", Type::Text}, {"barren", Type::Text}, {"weight", Type::Float},
    {"coarse", Type::Float}, {"medium", Type::Float}, {"fine", Type::Float}, {"notes", Type::Text},
    {"proximal", Type::Integer}, {"distal", Type::Integer}, {"modified", Type::Date},
    {"modifier", Type::Text}};
static_assert(std::size(kDetails) == static_cast<std::size_t>(DetailColumn::Count));

RowDefaults defaults()
{
    DetailRecord written;
    written.set(DetailColumn::Modified, dateValue(Date::Today()));
    written.set(DetailColumn::Modifier, textValue(currentUserAbr.view()));
    DetailRecord inserted = written;
    inserted.set(DetailColumn::Barren, textValue("N"));
    return {inserted.columns, written.columns};
}

} // namespace

DetailWriter::DetailWriter(Writing writing)
    : writing_(writing)
    , table_("SMPDTL", kKey, kDetails)
{
}

Outcome DetailWriter::put(const DetailRecord& record)
{
    return putRow(table_, writing_, {Value(record.sampleId), Value(record.analysisId)},
        record.columns, defaults());
}

TableWriter::Found DetailWriter::find(long sampleId, long analysisId)
{
    Row stored;
    return table_.find({Value(sampleId), Value(analysisId)}, &stored);
}

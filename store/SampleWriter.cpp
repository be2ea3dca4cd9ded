// store/SampleWriter.cpp
#include "store/SampleWriter.h"

#include "db/CurrentUser.h"
#include "db/Literals.h"
#include "db/Units.h"
#include "util/TextUtil.h"

#include <cmath>

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"samp_id", Type::Integer}};

enum SampleColumn {
    WellId,
    Top,
    Base,
    Depth,
    BottomDepth,
    SampleType,
    Label,
    GridX,
    GridY,
    Created,
    Modified,
    Creator,
    Modifier,
    Count
};
// The two depths have two names each; written alike they leave nothing to keep in step.
constexpr Column kSamples[] = {{"well_id", Type::Integer}, {"top_depth", Type::Float},
    {"base_depth", Type::Float}, {"depth", Type::Float}, {"bot_depth", Type::Float},
    {"type", Type::Text}, {"label", Type::Text}, {"grid_x", Type::Integer},
    {"grid_y", Type::Integer}, {"created", Type::Date}, {"modified", Type::Date},
    {"creator", Type::Text}, {"modifier", Type::Text}};
static_assert(std::size(kSamples) == Count);

bool isAbsent(const std::optional<double>& depth)
{
    return !depth || std::abs(*depth) < kAbsentDepth;
}

std::string depthKey(const std::optional<double>& depth)
{
    return isAbsent(depth) ? "-" : std::to_string(std::llround(*depth * 10000));
}

Value depthValue(const std::optional<double>& depth) { return depth ? Value(*depth) : Value(); }

std::string textOr(const Value& value)
{
    const auto* text = std::get_if<std::string>(&value);
    return text ? *text : std::string();
}

std::optional<double> depthOr(const Value& value)
{
    const auto* depth = std::get_if<double>(&value);
    return depth ? std::optional(*depth) : std::nullopt;
}

} // namespace

std::string sampleKey(const SampleRecord& record)
{
    const auto& top = isAbsent(record.top) ? record.base : record.top;
    const auto& base = isAbsent(record.base) ? record.top : record.base;
    return depthKey(top) + ' ' + depthKey(base) + ' ' + upperCased(record.type) + ' '
        + storedText(record.label);
}

SampleWriter::SampleWriter(Writing writing)
    : writing_(writing)
    , samples_("SAMPLES", kKey, kSamples)
    , ids_("samp_id", "SAMPLES")
    , select_("SELECT samp_id,grid_x,grid_y,top_depth,base_depth,type,label FROM "
          + sql::table("SAMPLES") + " WHERE well_id=? ORDER BY samp_id")
{
}

Outcome SampleWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool SampleWriter::readSamples(long wellId, WellSamples* out)
{
    constexpr Type kTypes[] = {Type::Integer, Type::Integer, Type::Integer, Type::Float,
        Type::Float, Type::Text, Type::Text};
    select_.bind(1, wellId);
    if (!select_.execute())
        return false;
    Statement::Row row;
    while ((row = select_.fetch()) == Statement::Row::Fetched) {
        Value values[std::size(kTypes)];
        for (std::size_t i = 0; i < std::size(kTypes); ++i)
            if (!select_.read(static_cast<int>(i) + 1, kTypes[i], &values[i]))
                return false;
        const SampleRecord record{wellId, depthOr(values[3]), depthOr(values[4]), textOr(values[5]),
            textOr(values[6]), {}, {}};
        const long* id = std::get_if<long>(&values[0]);
        // Of samples that are alike the oldest stands for all.
        out->try_emplace(sampleKey(record), Stored{id ? *id : 0, {values[1], values[2]}});
    }
    select_.close();
    return row == Statement::Row::End;
}

SampleWriter::WellSamples* SampleWriter::samplesOf(long wellId)
{
    const auto known = wells_.find(wellId);
    if (known != wells_.end())
        return &known->second;
    WellSamples read;
    if (!readSamples(wellId, &read)) {
        error_ = select_.sql() + ": " + select_.error();
        return nullptr;
    }
    return &wells_.emplace(wellId, std::move(read)).first->second;
}

Outcome SampleWriter::insert(const SampleRecord& record, WellSamples& samples, long* sampId)
{
    const std::optional<long> id = ids_.next();
    if (!id)
        return failed(ids_.error());
    Row row(Count);
    row[WellId] = record.wellId;
    row[Top] = row[Depth] = depthValue(record.top);
    row[Base] = row[BottomDepth] = depthValue(record.base);
    row[SampleType] = textValue(record.type);
    row[Label] = textValue(record.label);
    row[GridX] = record.gridX;
    row[GridY] = record.gridY;
    row[Created] = dateValue(Date::Today());
    row[Creator] = textValue(currentUserAbr.view());
    if (writing_ == Writing::Write && !samples_.insert({Value(*id)}, row))
        return failed(samples_.error());
    *sampId = *id;
    samples.emplace(sampleKey(record), Stored{*id, {record.gridX, record.gridY}});
    return Outcome::New;
}

Outcome SampleWriter::update(const SampleRecord& record, Stored& stored)
{
    Row grid(Count);
    grid[GridX] = stored.grid[0];
    grid[GridY] = stored.grid[1];
    Row given(Count);
    given[GridX] = record.gridX;
    given[GridY] = record.gridY;
    Row changes = samples_.differences(grid, given);
    if (isEmpty(changes))
        return Outcome::Same;
    changes[Modified] = dateValue(Date::Today());
    changes[Modifier] = textValue(currentUserAbr.view());
    if (writing_ == Writing::Write && !samples_.update({Value(stored.id)}, changes))
        return failed(samples_.error());
    stored.grid = {
        record.gridX ? record.gridX : stored.grid[0], record.gridY ? record.gridY : stored.grid[1]};
    return Outcome::Changed;
}

Outcome SampleWriter::put(const SampleRecord& record, long* sampId)
{
    WellSamples* samples = samplesOf(record.wellId);
    if (!samples)
        return Outcome::Failed;
    const auto stored = samples->find(sampleKey(record));
    if (stored == samples->end())
        return insert(record, *samples, sampId);
    *sampId = stored->second.id;
    return update(record, stored->second);
}

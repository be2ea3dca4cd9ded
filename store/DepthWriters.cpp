// store/DepthWriters.cpp
#include "store/DepthWriters.h"

#include "db/Literals.h"
#include "db/Units.h"
#include "store/Rows.h"

#include <cmath>

namespace {

using Type = ColumnType;

constexpr Column kPointKey[] = {{"well_id", Type::Integer}, {"ddepth", Type::Number}};
constexpr Column kPoint[] = {{"tvdepth", Type::Number}};

constexpr Column kCoreKey[] = {{"well_id", Type::Integer}, {"corenum", Type::Text}};
constexpr Column kCore[] = {
    {"top_depth", Type::Number}, {"base_depth", Type::Number}, {"recovered", Type::Text}};

constexpr double kSameDepth = 0.01; // metres, as the core compares depths of samples

double depthOf(const Value& top, const Value& base)
{
    const auto metres = [](const Value& value) {
        const double* depth = std::get_if<double>(&value);
        return depth ? *depth : 0;
    };
    const double bottom = metres(base);
    return std::abs(bottom) < kAbsentDepth ? metres(top) : bottom;
}

} // namespace

SurveyWriter::SurveyWriter(Writing writing)
    : writing_(writing)
    , table_("WELLTVD", kPointKey, kPoint)
{
}

Outcome SurveyWriter::put(long wellId, double measured, double vertical)
{
    return putRow(table_, writing_, {Value(wellId), Value(measured)}, {Value(vertical)});
}

CoreWriter::CoreWriter(Writing writing)
    : writing_(writing)
    , table_("CORES", kCoreKey, kCore)
{
}

Outcome CoreWriter::put(const CoreRecord& record)
{
    return putRow(table_, writing_, {Value(record.wellId), textValue(record.number)},
        {Value(record.top), Value(record.base), record.recovered});
}

SampleFinder::WellDepths* SampleFinder::of(long wellId)
{
    const auto known = wells_.find(wellId);
    if (known != wells_.end())
        return &known->second;
    Statement select("SELECT samp_id,top_depth,base_depth FROM " + sql::table("SAMPLES")
        + " WHERE well_id=? ORDER BY samp_id");
    select.bind(1, wellId);
    WellDepths depths;
    const auto take = [&](const std::vector<Value>& values) {
        if (values[1] != Value() || values[2] != Value()) // one without a depth is at none
            depths.emplace(depthOf(values[1], values[2]), integerOf(values[0]));
    };
    if (readAll(select, {Type::Integer, Type::Number, Type::Number}, take))
        return &wells_.emplace(wellId, std::move(depths)).first->second;
    error_ = select.sql() + ": " + select.error();
    return nullptr;
}

std::optional<long> SampleFinder::at(long wellId, double depth)
{
    const WellDepths* depths = of(wellId);
    if (!depths)
        return std::nullopt;
    const auto found = depths->lower_bound(depth - kSameDepth);
    return found != depths->end() && found->first <= depth + kSameDepth ? found->second : 0;
}

void SampleFinder::add(long wellId, double depth, long sampleId)
{
    const auto known = wells_.find(wellId);
    if (known != wells_.end())
        known->second.emplace(depth, sampleId);
}

// store/RockWriters.cpp
#include "store/RockWriters.h"

#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kIntervalKey[] = {
    {"well_id", Type::Integer}, {"top_depth", Type::Number}, {"base_depth", Type::Number}};
constexpr Column kInterval[] = {{"lith_id", Type::Integer}};
constexpr Column kAccessoryKey[] = {{"well_id", Type::Integer}, {"top_depth", Type::Number},
    {"base_depth", Type::Number}, {"lith_id", Type::Integer}, {"type", Type::Text}};
constexpr Column kAccessory[] = {{"plotpos", Type::Float}, {"alignment", Type::Text}};

} // namespace

RockIntervalWriter::RockIntervalWriter(Writing writing)
    : writing_(writing)
    , table_("ZRILITH", kIntervalKey, kInterval)
{
}

Outcome RockIntervalWriter::put(long wellId, double top, double base, long lithologyId)
{
    return putRow(table_, writing_, {Value(wellId), Value(top), Value(base)}, {Value(lithologyId)});
}

AccessoryRockWriter::AccessoryRockWriter(Writing writing)
    : writing_(writing)
    , table_("ZRQLITH", kAccessoryKey, kAccessory)
{
}

Outcome AccessoryRockWriter::put(
    long wellId, double top, double base, long lithologyId, double place)
{
    return putRow(table_, writing_,
        {Value(wellId), Value(top), Value(base), Value(lithologyId), textValue("A")},
        {Value(place), std::nullopt}, {{std::nullopt, textValue("L")}, {}});
}

// store/ZoneWriter.cpp
#include "store/ZoneWriter.h"

#include "db/CurrentUser.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"well_id", Type::Integer}, {"igd_type", Type::Integer},
    {"interp_id", Type::Integer}, {"hier", Type::Integer}, {"sch_id", Type::Integer},
    {"top_id", Type::Integer}, {"upp_zone", Type::Integer}};
constexpr Column kZone[] = {{"base_id", Type::Integer}, {"low_zone", Type::Integer},
    {"upp_inf", Type::Text}, {"low_inf", Type::Text}, {"modified", Type::Date},
    {"modifier", Type::Text}, {"top_bnd", Type::Integer}, {"base_bnd", Type::Integer}};
constexpr long kDefaultInterpretation = 0;
constexpr long kConfident = 3;

} // namespace

ZoneWriter::ZoneWriter(Writing writing)
    : writing_(writing)
    , table_("IGD", kKey, kZone)
{
}

Outcome ZoneWriter::put(const ZoneRecord& record)
{
    const std::vector<Value> key{Value(record.wellId), Value(record.type),
        Value(kDefaultInterpretation), Value(record.hier), Value(record.schemeId),
        Value(record.topId), Value(record.upperId)};
    Row given{Value(record.baseId), record.lowerId == 0 ? Value() : Value(record.lowerId),
        textValue(record.upperName), textValue(record.lowerName)};
    given.resize(std::size(kZone));
    Row written(std::size(kZone));
    written[4] = dateValue(Date::Today());
    written[5] = textValue(currentUserAbr.view());
    Row inserted = written;
    inserted[6] = inserted[7] = Value(kConfident);
    return putRow(table_, writing_, key, given, {inserted, written});
}

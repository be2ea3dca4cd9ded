// store/MarkerWriters.cpp
#include "store/MarkerWriters.h"

#include "db/Literals.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kCasingKey[] = {{"well_id", Type::Integer}};
constexpr Column kCasing[] = {{"depth", Type::Number}, {"diam", Type::Text}};
constexpr Column kMarkerKey[] = {{"well_id", Type::Integer}, {"depth", Type::Number}};
constexpr Column kMarker[] = {{"colour", Type::Text}};

} // namespace

CasingWriter::CasingWriter(Writing writing)
    : writing_(writing)
    , table_("CASING", kCasingKey, kCasing)
{
}

CasingWriter::Shoes* CasingWriter::of(long wellId)
{
    const auto known = wells_.find(wellId);
    if (known != wells_.end())
        return &known->second;
    Statement select("SELECT depth,diam FROM " + sql::table("CASING") + " WHERE well_id=?");
    select.bind(1, wellId);
    Shoes shoes;
    const auto take = [&](const std::vector<Value>& values) {
        const double* depth = std::get_if<double>(&values[0]);
        shoes.emplace(depth ? *depth : 0, textOf(values[1]));
    };
    if (readAll(select, {Type::Number, Type::Text}, take))
        return &wells_.emplace(wellId, std::move(shoes)).first->second;
    error_ = select.sql() + ": " + select.error();
    return nullptr;
}

Outcome CasingWriter::put(long wellId, double depth, const std::string& diameter)
{
    Shoes* shoes = of(wellId);
    if (!shoes)
        return Outcome::Failed;
    if (!shoes->emplace(depth, shownText(storedText(diameter))).second)
        return Outcome::Same;
    if (writing_ == Writing::Check
        || table_.insert({Value(wellId)}, {Value(depth), textValue(diameter)}))
        return Outcome::New;
    error_ = table_.error();
    return Outcome::Failed;
}

MarkerWriter::MarkerWriter(Writing writing)
    : writing_(writing)
    , table_("WELLSMARK", kMarkerKey, kMarker)
{
}

Outcome MarkerWriter::put(long wellId, double depth, const std::optional<Value>& colour)
{
    return putRow(table_, writing_, {Value(wellId), Value(depth)}, {colour});
}

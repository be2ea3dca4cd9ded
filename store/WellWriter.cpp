// store/WellWriter.cpp
#include "store/WellWriter.h"

#include "db/Units.h"

#include <algorithm>

namespace {

using Type = ColumnType;

constexpr Column kCode[] = {{"well_code", Type::Text}};
constexpr Column kWells[] = {{"well_name", Type::Text}, {"operator", Type::Text},
    {"country", Type::Text}, {"county", Type::Text}, {"ocs", Type::Text}, {"field", Type::Text},
    {"grid_x", Type::Integer}, {"grid_y", Type::Integer}, {"lat_dec", Type::Number},
    {"long_dec", Type::Number}, {"geoDatum", Type::Text}, {"spud_date", Type::Date},
    {"comp_date", Type::Date}, {"td", Type::Float}, {"sl", Type::Float}, {"sb", Type::Float},
    {"rte", Type::Float}, {"kicko", Type::Float}, {"datum", Type::Integer}, {"type", Type::Text},
    {"units", Type::Text}};
static_assert(std::size(kWells) == kWellColumns);

constexpr Column kIdentity[] = {{"well_id", Type::Integer}, {"descrip", Type::Text}};

constexpr WellColumn kDepths[] = {
    WellColumn::Td, WellColumn::Sl, WellColumn::Sb, WellColumn::Rte, WellColumn::Kicko};

std::optional<Value>& at(Row& row, WellColumn column)
{
    return row[static_cast<std::size_t>(column)];
}

// First byte of a text column, or `otherwise`.
char letterOf(const Row& row, WellColumn column, char otherwise)
{
    const auto index = static_cast<std::size_t>(column);
    if (index >= row.size() || !row[index])
        return otherwise;
    const auto* text = std::get_if<std::string>(&*row[index]);
    return text && !text->empty() ? text->front() : otherwise;
}

double converted(double depth, char from, char to)
{
    if (from == to)
        return depth;
    return to == 'F' ? depth * kFeetPerMetre : depth * kMetresPerFoot;
}

// The record's columns with its depths in the well's unit. Stored depths that the record leaves
// alone follow a change of the unit.
Row inWellUnits(const WellRecord& record, const StoredWell& stored)
{
    Row row = record.columns;
    const char before = stored.units();
    const char units = letterOf(row, WellColumn::Units, before);
    for (const WellColumn column : kDepths) {
        std::optional<Value>& entry = at(row, column);
        const bool given = entry.has_value();
        if (!given && units != before)
            entry = stored.columns[static_cast<std::size_t>(column)];
        double* depth = entry ? std::get_if<double>(&*entry) : nullptr;
        if (!depth)
            continue;
        const char own = record.depthUnits(column) ? record.depthUnits(column) : units;
        *depth = converted(*depth, given ? own : before, units);
    }
    return row;
}

} // namespace

void WellRecord::set(WellColumn column, Value value) { at(columns, column) = std::move(value); }

void WellRecord::setDepth(WellColumn column, double depth, char units)
{
    set(column, depth);
    depthUnits_[static_cast<std::size_t>(column)] = units;
}

const std::optional<Value>& WellRecord::get(WellColumn column) const
{
    return columns[static_cast<std::size_t>(column)];
}

char StoredWell::units() const { return letterOf(columns, WellColumn::Units, 'M'); }
char StoredWell::type() const { return letterOf(columns, WellColumn::Type, 'W'); }

WellWriter::WellWriter(Writing writing)
    : writing_(writing)
    , wells_("WELLS", kCode, kWells)
    , identities_("WELL_IDENT", kCode, kIdentity)
    , ids_("well_id", "WELL_IDENT")
{
}

Outcome WellWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool WellWriter::find(const std::string& code, StoredWell* out)
{
    *out = StoredWell();
    const std::vector<Value> key{textValue(code)};
    const TableWriter::Found inWells = wells_.find(key, &out->columns);
    if (inWells == TableWriter::Found::Failed) {
        error_ = wells_.error();
        return false;
    }
    out->inWells = inWells == TableWriter::Found::Yes;
    Row identity;
    const TableWriter::Found known = identities_.find(key, &identity);
    if (known == TableWriter::Found::Failed) {
        error_ = identities_.error();
        return false;
    }
    if (known == TableWriter::Found::Yes) {
        const long* id = std::get_if<long>(&*identity[0]);
        out->id = id ? *id : 0;
        out->description = *identity[1];
    }
    return true;
}

Outcome WellWriter::insertWell(const WellRecord& record)
{
    Row row = inWellUnits(record, StoredWell());
    for (const auto& [column, value] : {std::pair(WellColumn::Type, Value("W")),
             std::pair(WellColumn::Units, Value("M")), std::pair(WellColumn::Datum, Value(1L))})
        if (!at(row, column))
            at(row, column) = value;
    if (writing_ == Writing::Write && !wells_.insert({textValue(record.code)}, row))
        return failed(wells_.error());
    return Outcome::New;
}

Outcome WellWriter::updateWell(const WellRecord& record, const StoredWell& stored)
{
    const Row changes = wells_.differences(stored.columns, inWellUnits(record, stored));
    if (isEmpty(changes))
        return Outcome::Same;
    if (writing_ == Writing::Write && !wells_.update({textValue(record.code)}, changes))
        return failed(wells_.error());
    return Outcome::Changed;
}

Outcome WellWriter::insertIdentity(const WellRecord& record, long* wellId)
{
    const std::optional<long> id = ids_.next();
    if (!id)
        return failed(ids_.error());
    *wellId = *id;
    if (writing_ == Writing::Write
        && !identities_.insert({textValue(record.code)}, {Value(*id), record.description}))
        return failed(identities_.error());
    return Outcome::New;
}

Outcome WellWriter::updateIdentity(const WellRecord& record, const StoredWell& stored)
{
    const Row changes = identities_.differences(
        {Value(stored.id), stored.description}, {std::nullopt, record.description});
    if (isEmpty(changes))
        return Outcome::Same;
    if (writing_ == Writing::Write && !identities_.update({textValue(record.code)}, changes))
        return failed(identities_.error());
    return Outcome::Changed;
}

Outcome WellWriter::put(const WellRecord& record, long* wellId)
{
    StoredWell stored;
    if (!find(record.code, &stored))
        return Outcome::Failed;
    *wellId = stored.id;
    const Outcome header = stored.inWells ? updateWell(record, stored) : insertWell(record);
    if (header == Outcome::Failed)
        return header;
    const Outcome identity =
        stored.id != 0 ? updateIdentity(record, stored) : insertIdentity(record, wellId);
    if (identity == Outcome::Failed || header == Outcome::New)
        return identity == Outcome::Failed ? identity : header;
    return identity == Outcome::Same ? header : Outcome::Changed;
}

// store/AnalysisWriter.cpp
#include "store/AnalysisWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"well_id", Type::Integer}, {"analy_id", Type::Integer}};
constexpr Column kHeader[] = {{"disc_id", Type::Text}, {"analyst", Type::Integer},
    {"analy_no", Type::Integer}, {"abnsch_id", Type::Integer}};

} // namespace

AnalysisWriter::AnalysisWriter(Writing writing)
    : writing_(writing)
    , table_("ANALY_HDR", kKey, kHeader)
    , ids_("analy_id", "ANALY_HDR")
{
}

Outcome AnalysisWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool AnalysisWriter::readHeaders(long wellId, const TakeHeader& header)
{
    Statement select("SELECT analy_id,disc_id,analyst,analy_no FROM " + sql::table("ANALY_HDR")
        + " WHERE well_id=? ORDER BY analy_id");
    select.bind(1, wellId);
    const auto take = [&](const std::vector<Value>& values) {
        const std::string letter = textOf(values[1]);
        header(integerOf(values[0]), letter.empty() ? '\0' : letter[0], integerOf(values[2]),
            integerOf(values[3]));
    };
    if (readAll(select, {Type::Integer, Type::Text, Type::Integer, Type::Integer}, take))
        return true;
    error_ = select.sql() + ": " + select.error();
    return false;
}

bool AnalysisWriter::readNotes(long wellId, const TakeNotes& notes)
{
    Statement select("SELECT analy_id,notes FROM " + sql::table("SMPDTL")
        + " WHERE well_id=? AND notes IS NOT NULL");
    select.bind(1, wellId);
    const auto take = [&](const std::vector<Value>& values) {
        notes(integerOf(values[0]), textOf(values[1]));
    };
    if (readAll(select, {Type::Integer, Type::Text}, take))
        return true;
    error_ = select.sql() + ": " + select.error();
    return false;
}

bool AnalysisWriter::read(long wellId, const TakeHeader& header, const TakeNotes& notes)
{
    return readHeaders(wellId, header) && readNotes(wellId, notes);
}

Outcome AnalysisWriter::put(
    long wellId, Analysis& analysis, const std::optional<long>& scheme, UserWriter& users)
{
    if (!analysis.user->isStored && users.put(*analysis.user) == Outcome::Failed)
        return failed(users.error());
    if (!analysis.isStored) {
        const std::optional<long> id = ids_.next();
        if (!id)
            return failed(ids_.error());
        analysis.id = *id;
        analysis.isStored = true;
    }
    Row row{textValue(std::string(1, analysis.discipline)), Value(analysis.user->id),
        Value(analysis.number), std::nullopt};
    if (scheme)
        row.back() = Value(*scheme);
    const Outcome outcome = putRow(table_, writing_, {Value(wellId), Value(analysis.id)}, row);
    return outcome == Outcome::Failed ? failed(table_.error()) : outcome;
}

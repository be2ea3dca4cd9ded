// store/StandardWriter.cpp
#include "store/StandardWriter.h"

#include "db/CurrentUser.h"
#include "db/Literals.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kStandardKey[] = {{"std_id", Type::Integer}};
constexpr Column kStandard[] = {{"name", Type::Text}, {"topcsu", Type::Float},
    {"basecsu", Type::Float}, {"units", Type::Text}, {"creator", Type::Text},
    {"created", Type::Date}};
constexpr Column kEventKey[] = {
    {"std_id", Type::Integer}, {"ev_id", Type::Integer}, {"ev_type", Type::Text}};
constexpr Column kEvent[] = {{"csu", Type::Float}};

} // namespace

StandardWriter::StandardWriter(Writing writing)
    : writing_(writing)
    , standards_("CMPSTD", kStandardKey, kStandard)
    , events_("CMPSTDEV", kEventKey, kEvent)
    , ids_("std_id", "CMPSTD")
{
}

Outcome StandardWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool StandardWriter::load()
{
    if (loaded_)
        return true;
    Statement select("SELECT std_id,name FROM " + sql::table("CMPSTD") + " ORDER BY std_id");
    loaded_ = readAll(select, {Type::Integer, Type::Text}, [this](const auto& values) {
        names_.try_emplace(textOf(values[1]), integerOf(values[0]));
    });
    if (!loaded_)
        error_ = select.sql() + ": " + select.error();
    return loaded_;
}

Outcome StandardWriter::put(const StandardRecord& record, long* id)
{
    if (!load())
        return Outcome::Failed;
    const std::string name = shownText(storedText(record.name));
    auto known = names_.find(name);
    if (known == names_.end()) {
        const std::optional<long> next = ids_.next();
        if (!next)
            return failed(ids_.error());
        known = names_.emplace(name, *next).first;
    }
    *id = known->second;
    const Row given{textValue(name), Value(record.top), Value(record.base), textValue(record.units),
        std::nullopt, std::nullopt};
    const Row whenNew{std::nullopt, std::nullopt, std::nullopt, std::nullopt,
        textValue(currentUserAbr.view()), dateValue(Date::Today())};
    const Outcome outcome = putRow(standards_, writing_, {Value(*id)}, given, {whenNew, {}});
    return outcome == Outcome::Failed ? failed(standards_.error()) : outcome;
}

Outcome StandardWriter::putEvent(long standardId, long eventId, char kind, double position)
{
    const Outcome outcome = putRow(events_, writing_,
        {Value(standardId), Value(eventId), textValue(std::string(1, kind))}, {Value(position)});
    return outcome == Outcome::Failed ? failed(events_.error()) : outcome;
}

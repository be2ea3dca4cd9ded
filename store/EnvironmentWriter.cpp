// store/EnvironmentWriter.cpp
#include "store/EnvironmentWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kSchemeKey[] = {{"envsch_id", Type::Integer}};
constexpr Column kScheme[] = {{"name", Type::Text}};
constexpr Column kTermKey[] = {{"envsch_id", Type::Integer}, {"term_no", Type::Integer}};
constexpr Column kTerm[] = {{"term", Type::Text}, {"red", Type::Integer}, {"green", Type::Integer},
    {"blue", Type::Integer}};

} // namespace

EnvironmentWriter::EnvironmentWriter(Writing writing)
    : writing_(writing)
    , schemes_("ENV_SCH", "envsch_id", "name")
    , schemeTable_("ENV_SCH", kSchemeKey, kScheme)
    , termTable_("ENVSCHMBR", kTermKey, kTerm)
{
}

Outcome EnvironmentWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool EnvironmentWriter::load()
{
    if (schemes_.load())
        return true;
    failed(schemes_.error());
    return false;
}

bool EnvironmentWriter::readTerms(const NamedEntry& scheme, std::map<long, std::string>* terms)
{
    if (!scheme.isStored)
        return true;
    Statement select("SELECT term_no,term FROM " + sql::table("ENVSCHMBR") + " WHERE envsch_id=?");
    select.bind(1, scheme.id);
    const auto take = [&](const std::vector<Value>& values) {
        terms->emplace(integerOf(values[0]), textOf(values[1]));
    };
    if (readAll(select, {Type::Integer, Type::Text}, take))
        return true;
    failed(select.sql() + ": " + select.error());
    return false;
}

Outcome EnvironmentWriter::putScheme(NamedEntry& scheme)
{
    if (scheme.isStored)
        return Outcome::Same;
    if (!schemes_.number(scheme))
        return failed(schemes_.error());
    const Outcome outcome =
        putRow(schemeTable_, writing_, {Value(scheme.id)}, {textValue(scheme.name)});
    return outcome == Outcome::Failed ? failed(schemeTable_.error()) : outcome;
}

Outcome EnvironmentWriter::put(NamedEntry& scheme, const EnvironmentTerm& term)
{
    if (putScheme(scheme) == Outcome::Failed)
        return Outcome::Failed;
    const Outcome outcome = putRow(termTable_, writing_, {Value(scheme.id), Value(term.number)},
        {textValue(term.name), term.colour[0], term.colour[1], term.colour[2]});
    return outcome == Outcome::Failed ? failed(termTable_.error()) : outcome;
}

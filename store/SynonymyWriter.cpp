// store/SynonymyWriter.cpp
#include "store/SynonymyWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kSchemeKey[] = {{"sch_id", Type::Integer}};
constexpr Column kScheme[] = {{"name", Type::Text}};
constexpr Column kSynonymKey[] = {{"spec_id", Type::Integer}, {"sch_id", Type::Integer}};
constexpr Column kSynonym[] = {{"pref", Type::Integer}};

} // namespace

SynonymyWriter::SynonymyWriter(Writing writing)
    : writing_(writing)
    , schemes_("SYNSCH", kSchemeKey, kScheme)
    , synonymy_("SYNONYMY", kSynonymKey, kSynonym)
    , ids_("sch_id", "SYNSCH")
{
}

Outcome SynonymyWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool SynonymyWriter::loadSchemes()
{
    if (loaded_)
        return true;
    Statement select("SELECT sch_id,name FROM " + sql::table("SYNSCH") + " ORDER BY sch_id");
    loaded_ = readAll(select, {Type::Integer, Type::Text}, [this](const auto& values) {
        schemeIds_.try_emplace(textOf(values[1]), integerOf(values[0]));
    });
    if (!loaded_)
        error_ = select.sql() + ": " + select.error();
    return loaded_;
}

bool SynonymyWriter::ensureScheme(const std::string& name, long* id)
{
    if (!loadSchemes())
        return false;
    const std::string known = shownText(storedText(name));
    if (schemeIds_.find(known) == schemeIds_.end()) {
        const std::optional<long> next = ids_.next();
        if (!next) {
            error_ = ids_.error();
            return false;
        }
        if (writing_ == Writing::Write && !schemes_.insert({Value(*next)}, {textValue(name)})) {
            error_ = schemes_.error();
            return false;
        }
        schemeIds_[known] = *next;
    }
    *id = schemeIds_[known];
    return true;
}

Outcome SynonymyWriter::put(const std::string& scheme, long specId, long preferred)
{
    long id = 0;
    if (!ensureScheme(scheme, &id))
        return Outcome::Failed;
    const Outcome outcome =
        putRow(synonymy_, writing_, {Value(specId), Value(id)}, {Value(preferred)});
    return outcome == Outcome::Failed ? failed(synonymy_.error()) : outcome;
}

// store/AbundanceWriter.cpp
#include "store/AbundanceWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"

#include <algorithm>

namespace {

using Type = ColumnType;

constexpr Column kSchemeKey[] = {{"scheme_id", Type::Integer}};
constexpr Column kScheme[] = {{"name", Type::Text}};
constexpr Column kLevelKey[] = {{"scheme_id", Type::Integer}, {"entry_no", Type::Integer}};
constexpr Column kLevel[] = {{"entry_name", Type::Text}, {"abr", Type::Text},
    {"min", Type::Integer}, {"output_val", Type::Integer}};

std::string nameKey(const std::string& name) { return shownText(storedText(name)); }

} // namespace

AbundanceWriter::AbundanceWriter(Writing writing)
    : writing_(writing)
    , schemes_("ABNSCHME", kSchemeKey, kScheme)
    , levels_("ABNSCHMBR", kLevelKey, kLevel)
    , ids_("scheme_id", "ABNSCHME")
{
}

Outcome AbundanceWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool AbundanceWriter::load()
{
    loaded_ = loaded_ || (loadSchemes() && loadLevels());
    return loaded_;
}

bool AbundanceWriter::loadSchemes()
{
    Statement select(
        "SELECT scheme_id,name FROM " + sql::table("ABNSCHME") + " ORDER BY scheme_id");
    const bool good = readAll(select, {Type::Integer, Type::Text}, [this](const auto& values) {
        const std::string name = textOf(values[1]);
        byName_.try_emplace(name, AbundanceScheme{integerOf(values[0]), name, {}});
    });
    if (!good)
        error_ = select.sql() + ": " + select.error();
    return good;
}

bool AbundanceWriter::loadLevels()
{
    Statement select("SELECT scheme_id,entry_no,entry_name,abr,min,output_val FROM "
        + sql::table("ABNSCHMBR") + " ORDER BY scheme_id,entry_no");
    const auto take = [this](const std::vector<Value>& values) {
        const AbundanceLevel level{integerOf(values[1]), textOf(values[2]), textOf(values[3]),
            integerOf(values[4]), integerOf(values[5])};
        for (auto& [name, scheme] : byName_)
            if (scheme.id == integerOf(values[0]))
                scheme.levels.try_emplace(level.entryNo, level);
    };
    const bool good = readAll(select,
        {Type::Integer, Type::Integer, Type::Text, Type::Text, Type::Integer, Type::Integer}, take);
    if (!good)
        error_ = select.sql() + ": " + select.error();
    return good;
}

AbundanceScheme* AbundanceWriter::find(const std::string& name)
{
    const auto found = byName_.find(nameKey(name));
    return found == byName_.end() ? nullptr : &found->second;
}

AbundanceScheme* AbundanceWriter::add(const std::string& name)
{
    return &byName_.try_emplace(nameKey(name), AbundanceScheme{0, name, {}}).first->second;
}

Outcome AbundanceWriter::put(AbundanceScheme& scheme)
{
    if (scheme.id != 0)
        return Outcome::Same;
    const std::optional<long> id = ids_.next();
    if (!id)
        return failed(ids_.error());
    if (writing_ == Writing::Write && !schemes_.insert({Value(*id)}, {textValue(scheme.name)}))
        return failed(schemes_.error());
    scheme.id = *id;
    return Outcome::New;
}

Outcome AbundanceWriter::putLevel(const AbundanceScheme& scheme, const AbundanceLevel& level)
{
    const Outcome outcome = putRow(levels_, writing_, {Value(scheme.id), Value(level.entryNo)},
        {textValue(level.name), textValue(level.abr), Value(level.min), Value(level.output)});
    return outcome == Outcome::Failed ? failed(levels_.error()) : outcome;
}

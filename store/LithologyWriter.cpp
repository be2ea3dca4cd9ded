// store/LithologyWriter.cpp
#include "store/LithologyWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"
#include "util/TextUtil.h"

#include <limits>

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"lith_id", Type::Integer}};
// Key, description and abbreviation have two spellings each, and readers of either.
constexpr Column kLithology[] = {{"abr", Type::Text}, {"lithabr", Type::Text},
    {"lithcode", Type::Integer}, {"descr", Type::Text}, {"lithdescr", Type::Text},
    {"cmp", Type::Text}};
constexpr long kLargestReserved = 999;

std::string keyOf(const std::string& name) { return upperCased(shownText(storedText(name))); }

} // namespace

LithologyWriter::LithologyWriter(Writing writing)
    : writing_(writing)
    , table_("LITHDESC", kKey, kLithology)
    , keys_{kLargestReserved}
{
}

Outcome LithologyWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool LithologyWriter::load()
{
    if (loaded_)
        return true;
    Statement select("SELECT lith_id,descr FROM " + sql::table("LITHDESC")
        + " WHERE lith_id>? ORDER BY lith_id");
    select.bind(1, kLargestReserved);
    const auto take = [this](const std::vector<Value>& values) {
        const std::string name = textOf(values[1]);
        const long id = integerOf(values[0]);
        keys_.insert(id);
        entries_.try_emplace(keyOf(name), LithologyEntry{id, 0, name, true});
    };
    loaded_ = readAll(select, {Type::Integer, Type::Text}, take);
    if (!loaded_)
        error_ = select.sql() + ": " + select.error();
    return loaded_;
}

LithologyEntry* LithologyWriter::find(const std::string& name)
{
    const auto found = entries_.find(keyOf(name));
    return found == entries_.end() ? nullptr : &found->second;
}

LithologyEntry* LithologyWriter::add(const std::string& name, long wanted)
{
    LithologyEntry entry{0, wanted, shownText(storedText(name)), false};
    return &entries_.try_emplace(keyOf(name), std::move(entry)).first->second;
}

bool LithologyWriter::number(LithologyEntry& entry)
{
    const long last = *keys_.rbegin();
    const bool isFree = entry.wanted > kLargestReserved && keys_.count(entry.wanted) == 0;
    if (!isFree && last >= std::numeric_limits<int>::max()) {
        error_ = "No identifier is left in LITHDESC.";
        return false;
    }
    entry.id = isFree ? entry.wanted : last + 1;
    keys_.insert(entry.id);
    entry.isStored = true;
    return true;
}

Outcome LithologyWriter::put(LithologyEntry& entry, const std::optional<Value>& abr, char kind)
{
    const auto given = kind ? std::optional(Value(std::string(1, kind))) : std::optional<Value>();
    Row row{abr, abr, std::nullopt, std::nullopt, std::nullopt, given};
    if (!entry.isStored) {
        if (!number(entry))
            return Outcome::Failed;
        const Value name = textValue(entry.name);
        row = {abr, abr, Value(entry.id), name, name, given.value_or(textValue("N"))};
    }
    const Outcome outcome = putRow(table_, writing_, {Value(entry.id)}, row);
    return outcome == Outcome::Failed ? failed(table_.error()) : outcome;
}

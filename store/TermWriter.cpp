// store/TermWriter.cpp
#include "store/TermWriter.h"

#include "db/CurrentUser.h"
#include "db/Literals.h"
#include "store/Rows.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"igd_id", Type::Integer}};
// Those of `TermColumn` first.
constexpr Column kTerm[] = {{"abr", Type::Text}, {"u_age", Type::Float}, {"l_age", Type::Float},
    {"red", Type::Integer}, {"green", Type::Integer}, {"blue", Type::Integer},
    {"sch_id", Type::Integer}, {"igd_type", Type::Integer}, {"hier", Type::Integer},
    {"name", Type::Text}, {"created", Type::Date}, {"creator", Type::Text}};

std::string keyOf(const std::string& name) { return upperCased(shownText(storedText(name))); }

} // namespace

TermWriter::TermWriter(Writing writing)
    : writing_(writing)
    , table_("IGD_DICT", kKey, kTerm)
    , ids_("igd_id", "IGD_DICT")
{
}

Outcome TermWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool TermWriter::load(NamedEntry& scheme)
{
    const auto [known, isNew] = schemes_.try_emplace(&scheme);
    if (!isNew || !scheme.isStored)
        return true;
    Terms& terms = known->second;
    Statement select("SELECT igd_id,hier,name FROM " + sql::table("IGD_DICT")
        + " WHERE sch_id=? ORDER BY igd_id");
    select.bind(1, scheme.id);
    const auto take = [&](const std::vector<Value>& values) {
        const std::string name = textOf(values[2]);
        const long hier = std::max(1L, integerOf(values[1])); // as the core reads it
        TermEntry term{integerOf(values[0]), &scheme, hier, name, true};
        terms[keyOf(name)].try_emplace(hier, std::move(term));
    };
    if (readAll(select, {Type::Integer, Type::Integer, Type::Text}, take))
        return true;
    error_ = select.sql() + ": " + select.error();
    schemes_.erase(known);
    return false;
}

TermEntry* TermWriter::find(const NamedEntry& scheme, const std::string& name, long hier)
{
    auto& ranks = schemes_[&scheme][keyOf(name)];
    const auto found = ranks.find(hier);
    return found == ranks.end() ? nullptr : &found->second;
}

TermEntry* TermWriter::find(const NamedEntry& scheme, const std::string& name)
{
    auto& ranks = schemes_[&scheme][keyOf(name)];
    return ranks.empty() ? nullptr : &ranks.begin()->second;
}

TermEntry* TermWriter::add(NamedEntry& scheme, const std::string& name, long hier)
{
    TermEntry term{0, &scheme, hier, shownText(storedText(name)), false};
    return &schemes_[&scheme][keyOf(name)].try_emplace(hier, std::move(term)).first->second;
}

Outcome TermWriter::put(TermEntry& term, const Row& given)
{
    Row row = given;
    row.resize(std::size(kTerm));
    if (!term.isStored) {
        const std::optional<long> id = ids_.next();
        if (!id)
            return failed(ids_.error());
        term.id = *id;
        term.isStored = true;
        auto next = row.begin() + static_cast<std::ptrdiff_t>(TermColumn::Count);
        for (Value value : {Value(term.scheme->id), Value(term.scheme->kind), Value(term.hier),
                 textValue(term.name), dateValue(Date::Today()), textValue(currentUserAbr.view())})
            *next++ = std::move(value);
    }
    const Outcome outcome = putRow(table_, writing_, {Value(term.id)}, row);
    return outcome == Outcome::Failed ? failed(table_.error()) : outcome;
}

Outcome TermWriter::ensure(TermEntry& term)
{
    return term.isStored ? Outcome::Same : put(term, term.columns);
}

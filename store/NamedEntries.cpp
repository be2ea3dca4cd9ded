// store/NamedEntries.cpp
#include "store/NamedEntries.h"

#include "db/Literals.h"
#include "store/Rows.h"

NamedEntries::NamedEntries(
    const char* table, const char* idColumn, const char* nameColumn, const char* kindColumn)
    : table_(table)
    , idColumn_(idColumn)
    , nameColumn_(nameColumn)
    , kindColumn_(kindColumn ? kindColumn : idColumn)
    , ids_(idColumn, table)
{
}

bool NamedEntries::load()
{
    if (loaded_)
        return true;
    const std::string columns = std::string(idColumn_) + ',' + nameColumn_ + ',' + kindColumn_;
    Statement select(
        "SELECT " + columns + " FROM " + sql::table(table_) + " ORDER BY " + idColumn_);
    const auto take = [this](const std::vector<Value>& values) {
        const std::string name = textOf(values[1]);
        entries_.try_emplace(
            name, NamedEntry{integerOf(values[0]), name, integerOf(values[2]), true});
    };
    loaded_ = readAll(select, {ColumnType::Integer, ColumnType::Text, ColumnType::Integer}, take);
    if (!loaded_)
        error_ = select.sql() + ": " + select.error();
    return loaded_;
}

NamedEntry* NamedEntries::find(const std::string& name)
{
    const auto found = entries_.find(shownText(storedText(name)));
    return found == entries_.end() ? nullptr : &found->second;
}

NamedEntry* NamedEntries::add(const std::string& name, long kind)
{
    const std::string known = shownText(storedText(name));
    return &entries_.try_emplace(known, NamedEntry{0, known, kind, false}).first->second;
}

bool NamedEntries::number(NamedEntry& entry)
{
    const std::optional<long> id = ids_.next();
    if (!id) {
        error_ = ids_.error();
        return false;
    }
    entry.id = *id;
    entry.isStored = true;
    return true;
}

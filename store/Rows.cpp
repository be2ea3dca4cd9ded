// store/Rows.cpp
#include "store/Rows.h"

bool readAll(Statement& statement, const std::vector<ColumnType>& types,
    const std::function<void(const std::vector<Value>&)>& take)
{
    if (!statement.execute())
        return false;
    Statement::Row row;
    std::vector<Value> values(types.size());
    while ((row = statement.fetch()) == Statement::Row::Fetched) {
        for (std::size_t i = 0; i < types.size(); ++i)
            if (!statement.read(static_cast<int>(i) + 1, types[i], &values[i]))
                return false;
        take(values);
    }
    statement.close();
    return row == Statement::Row::End;
}

Outcome putRow(TableWriter& table, Writing writing, const std::vector<Value>& key, const Row& given,
    const RowDefaults& defaults)
{
    Row stored;
    const TableWriter::Found found = table.find(key, &stored);
    if (found == TableWriter::Found::Failed)
        return Outcome::Failed;
    const bool isNew = found == TableWriter::Found::No;
    Row changes = isNew ? given : table.differences(stored, given);
    if (!isNew && isEmpty(changes))
        return Outcome::Same;
    const Row& further = isNew ? defaults.whenNew : defaults.whenChanged;
    for (std::size_t i = 0; i < further.size(); ++i)
        if (further[i] && !(isNew && changes[i]))
            changes[i] = further[i];
    const bool good = writing == Writing::Check
        || (isNew ? table.insert(key, changes) : table.update(key, changes));
    return !good ? Outcome::Failed : isNew ? Outcome::New : Outcome::Changed;
}

std::string textOf(const Value& value)
{
    const auto* text = std::get_if<std::string>(&value);
    return text ? shownText(*text) : std::string();
}

long integerOf(const Value& value)
{
    const long* number = std::get_if<long>(&value);
    return number ? *number : 0;
}

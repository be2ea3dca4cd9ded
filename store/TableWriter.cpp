// store/TableWriter.cpp
#include "store/TableWriter.h"

#include "db/Literals.h"

#include <algorithm>

namespace {

// "a=? AND b=?": each name with its parameter.
std::string assignments(const std::vector<const char*>& names, const char* separator)
{
    std::string text;
    for (const char* name : names)
        text.append(text.empty() ? "" : separator).append(name).append("=?");
    return text;
}

std::string list(const std::vector<const char*>& names)
{
    std::string text;
    for (const char* name : names)
        text.append(text.empty() ? "" : ",").append(name);
    return text;
}

std::string markers(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += i == 0 ? "?" : ",?";
    return text;
}

std::vector<const char*> names(std::span<const Column> columns)
{
    std::vector<const char*> result;
    for (const Column& column : columns)
        result.push_back(column.name);
    return result;
}

void bindKey(Statement& statement, int first, const std::vector<Value>& key)
{
    for (const Value& value : key)
        statement.bind(first++, value);
}

} // namespace

bool isEmpty(const Row& row)
{
    return std::ranges::none_of(row, [](const auto& entry) { return entry.has_value(); });
}

TableWriter::TableWriter(
    const char* table, std::span<const Column> keys, std::span<const Column> columns)
    : table_(sql::table(table))
    , keys_(keys)
    , columns_(columns)
{
}

Statement& TableWriter::prepared(const std::string& sql)
{
    std::unique_ptr<Statement>& statement = statements_[sql];
    if (!statement)
        statement = std::make_unique<Statement>(sql);
    return *statement;
}

bool TableWriter::fail(const Statement& statement)
{
    error_ = statement.sql() + ": " + statement.error();
    return false;
}

bool TableWriter::run(Statement& statement) { return statement.execute() || fail(statement); }

Row TableWriter::differences(const Row& stored, const Row& given) const
{
    Row changes(given.size());
    for (std::size_t i = 0; i < given.size(); ++i)
        if (given[i] && !sameValue(columns_[i].type, stored[i].value_or(Value()), *given[i]))
            changes[i] = given[i];
    return changes;
}

TableWriter::Found TableWriter::find(const std::vector<Value>& key, Row* stored)
{
    Statement& select = prepared("SELECT " + list(names(columns_)) + " FROM " + table_ + " WHERE "
        + assignments(names(keys_), " AND "));
    bindKey(select, 1, key);
    if (!run(select))
        return Found::Failed;
    const Statement::Row row = select.fetch();
    if (row == Statement::Row::End)
        return Found::No;
    stored->assign(columns_.size(), Value());
    bool good = row == Statement::Row::Fetched;
    for (std::size_t i = 0; good && i < columns_.size(); ++i)
        good = select.read(static_cast<int>(i) + 1, columns_[i].type, &*(*stored)[i]);
    select.close();
    if (good)
        return Found::Yes;
    fail(select);
    return Found::Failed;
}

bool TableWriter::insert(const std::vector<Value>& key, const Row& row)
{
    Statement& insert = prepared("INSERT INTO " + table_ + " (" + list(names(keys_)) + ","
        + list(names(columns_)) + ") VALUES (" + markers(keys_.size() + columns_.size()) + ")");
    bindKey(insert, 1, key);
    for (std::size_t i = 0; i < row.size(); ++i)
        insert.bind(static_cast<int>(keys_.size() + i) + 1, row[i].value_or(Value()));
    return run(insert);
}

bool TableWriter::update(const std::vector<Value>& key, const Row& changes)
{
    if (isEmpty(changes))
        return true;
    std::vector<const char*> changed;
    for (std::size_t i = 0; i < changes.size(); ++i)
        if (changes[i])
            changed.push_back(columns_[i].name);
    Statement& update = prepared("UPDATE " + table_ + " SET " + assignments(changed, ",")
        + " WHERE " + assignments(names(keys_), " AND "));
    int number = 1;
    for (const auto& change : changes)
        if (change)
            update.bind(number++, *change);
    bindKey(update, number, key);
    return run(update);
}

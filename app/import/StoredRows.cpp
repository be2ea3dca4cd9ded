// app/import/StoredRows.cpp
#include "app/import/StoredRows.h"

#include "db/Literals.h"
#include "db/SchemaInspection.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace {

constexpr long kLastReserved = 999; // of the numbers that are kept: the system's own rocks

// Two hashes side by side, which fit a string without memory of its own.
std::string digest(const std::string& text)
{
    const std::size_t hashes[] = {
        std::hash<std::string>()(text), std::hash<std::string>()(text + '\1')};
    return {reinterpret_cast<const char*>(hashes), sizeof hashes};
}

void appendPart(std::string* all, const std::optional<std::string>& text)
{
    *all += text ? std::to_string(text->size()) + ':' + *text : "-";
}

const char* ownColumn(const TableFile& table)
{
    return table.own() < 0 ? "" : table.fields[static_cast<std::size_t>(table.own())].column;
}

// Each column and its other name.
template <typename Take> void eachColumn(const std::vector<const TableField*>& fields, Take take)
{
    for (const TableField* field : fields) {
        take(*field, field->column);
        if (field->twin)
            take(*field, field->twin);
    }
}

} // namespace

StoredRows::StoredRows(const TableFile& table, Writing writing, TableNumbers& numbers)
    : table_(table)
    , writing_(writing)
    , numbers_(numbers)
    , ids_(ownColumn(table), table.name)
{
}

bool StoredRows::keyIsWhole(const RowTexts& row) const
{
    for (std::size_t i = 0; i < row.size(); ++i)
        if (table_.fields[i].isKey && !row[i])
            return false;
    return true;
}

// Rows without a key have all of theirs as one.
std::string StoredRows::keyOf(const RowTexts& row) const
{
    std::string key;
    for (std::size_t i = 0; i < row.size(); ++i)
        if (table_.fields[i].isKey || table_.keyUse == KeyUse::None)
            appendPart(&key, row[i]);
    return digest(key);
}

std::string StoredRows::restOf(const RowTexts& row) const
{
    std::string rest;
    for (std::size_t i = 0; i < row.size(); ++i)
        if (!table_.fields[i].isKey && table_.fields[i].kind != FieldKind::Own)
            appendPart(&rest, row[i]);
    return digest(rest);
}

StoredRows::Known& StoredRows::remember(const RowTexts& row, const void* source)
{
    Known known{restOf(row), 0, source};
    if (const int own = table_.own(); own >= 0 && row[static_cast<std::size_t>(own)]) {
        known.own = std::stol(*row[static_cast<std::size_t>(own)]);
        if (table_.numbersPerWell) {
            long& largest = largest_[row.front().value_or("")];
            largest = std::max(largest, known.own);
        }
        if (table_.keepsNumbers)
            kept_.insert(known.own);
    }
    return rows_[keyOf(row)].emplace_back(std::move(known));
}

bool StoredRows::load(const std::optional<std::string>& well)
{
    if (!loaded_.insert(well).second)
        return true;
    RowFilter filter;
    if (table_.well() >= 0)
        filter = whereIs("well_id", boundValue(FieldKind::Reference, well));
    // Rows alike are found in the order of their numbers, as the files have them.
    std::vector<RowTexts> rows;
    const auto take = [&](RowTexts& row) { rows.push_back(row); };
    if (!readRows(table_, filter, take, &error_))
        return false;
    if (const int own = table_.own(); own >= 0)
        std::ranges::sort(rows, [own](const RowTexts& a, const RowTexts& b) {
            const auto place = static_cast<std::size_t>(own);
            return compareTexts(a[place], b[place], FieldKind::Own) < 0;
        });
    for (const RowTexts& row : rows)
        remember(row, nullptr);
    return true;
}

Outcome StoredRows::put(
    RowTexts row, bool keyIsSingle, const void* source, std::optional<long>* own)
{
    const int well = table_.well();
    if (!load(well < 0 ? std::nullopt : row[static_cast<std::size_t>(well)]))
        return Outcome::Failed;
    const std::string rest = restOf(row);
    std::vector<Known>& known = rows_[keyOf(row)];
    const auto same = std::ranges::find_if(
        known, [&](const Known& other) { return other.source != source && other.rest == rest; });
    if (same != known.end()) {
        same->source = source;
        *own = same->own;
        return Outcome::Same;
    }
    const auto setOwn = [&] {
        if (table_.own() >= 0)
            row[static_cast<std::size_t>(table_.own())] =
                *own ? std::optional(std::to_string(**own)) : std::nullopt;
    };
    if (keyIsSingle && table_.keyUse != KeyUse::None && keyIsWhole(row) && known.size() == 1
        && known.front().source != source) {
        known.front().source = source;
        known.front().rest = rest;
        *own = known.front().own;
        setOwn();
        return write(row, Outcome::Changed) ? Outcome::Changed : Outcome::Failed;
    }
    if (table_.own() >= 0 && !allocate(row, own))
        return Outcome::Failed;
    setOwn();
    remember(row, source);
    return write(row, Outcome::New) ? Outcome::New : Outcome::Failed;
}

bool StoredRows::allocate(const RowTexts& row, std::optional<long>* own)
{
    if (table_.numbersPerWell)
        return allocateInWell(row, own);
    if (table_.keepsNumbers && (!*own || !kept_.contains(**own)))
        return true;
    std::optional<long> next;
    do {
        next = ids_.next();
        if (!next) {
            error_ = ids_.error();
            return false;
        }
    } while (numbers_.isOrphan(table_, *next) || kept_.contains(*next)
        || (table_.keepsNumbers && *next <= kLastReserved));
    *own = next;
    return true;
}

bool StoredRows::allocateInWell(const RowTexts& row, std::optional<long>* own)
{
    long& largest = largest_[row.front().value_or("")];
    do {
        ++largest;
    } while (numbers_.isOrphan(table_, largest));
    *own = largest;
    return true;
}

std::optional<bool> StoredRows::has(long own)
{
    Statement& select = prepared(
        "SELECT count(*) FROM " + sql::table(table_.name) + " WHERE " + ownColumn(table_) + "=?");
    select.bind(1, own);
    Value count;
    if (!run(select) || select.fetch() != Statement::Row::Fetched
        || !select.read(1, ColumnType::Integer, &count))
        return std::nullopt;
    select.close();
    return count != Value(0L);
}

// Where the table may lack columns, which it has is asked only when writing all of them failed: a
// failed question counts as absence.
bool StoredRows::write(const RowTexts& row, Outcome as)
{
    if (writing_ == Writing::Check)
        return true;
    const auto run = [&](const Fields& fields) {
        return as == Outcome::New ? insert(row, fields) : update(row, fields);
    };
    Fields fields;
    for (const TableField& field : table_.fields)
        fields.push_back(&field);
    if (run(fields) || !table_.mayLackColumns)
        return error_.empty();
    error_.clear();
    std::erase_if(fields,
        [&](const TableField* field) { return columnExists(table_.name, field->column) == 0; });
    return run(fields);
}

bool StoredRows::insert(const RowTexts& row, const Fields& fields)
{
    std::string columns;
    std::string markers;
    std::vector<Value> values;
    eachColumn(fields, [&](const TableField& field, const char* column) {
        const auto place = static_cast<std::size_t>(&field - table_.fields.data());
        columns.append(columns.empty() ? "" : ",").append(column);
        markers += markers.empty() ? "?" : ",?";
        values.push_back(boundValue(field.kind, row[place]));
    });
    Statement& insert = prepared(
        "INSERT INTO " + sql::table(table_.name) + " (" + columns + ") VALUES (" + markers + ")");
    for (std::size_t i = 0; i < values.size(); ++i)
        insert.bind(static_cast<int>(i) + 1, std::move(values[i]));
    return run(insert);
}

bool StoredRows::update(const RowTexts& row, const Fields& fields)
{
    std::string changes;
    std::string key;
    std::vector<Value> values;
    std::vector<Value> keys;
    const bool byOwn = table_.own() >= 0;
    eachColumn(fields, [&](const TableField& field, const char* column) {
        const auto place = static_cast<std::size_t>(&field - table_.fields.data());
        const bool finds = byOwn
            ? field.kind == FieldKind::Own || (table_.numbersPerWell && place == 0)
            : field.isKey;
        if (!finds && field.isKey)
            return;
        std::string& text = finds ? key : changes;
        text.append(text.empty() ? "" : finds ? " AND " : ",").append(column).append("=?");
        (finds ? keys : values).push_back(boundValue(field.kind, row[place]));
    });
    Statement& update =
        prepared("UPDATE " + sql::table(table_.name) + " SET " + changes + " WHERE " + key);
    int n = 0;
    for (const auto& part : {values, keys})
        for (const Value& value : part)
            update.bind(++n, value);
    if (!run(update))
        return false;
    if (update.changedRows() != 0)
        return true;
    error_ = update.sql()
        + ": the row is not found by its key, which holds an apostrophe where "
          "the program keeps a backquote";
    return false;
}

Statement& StoredRows::prepared(const std::string& sql)
{
    std::unique_ptr<Statement>& statement = statements_[sql];
    if (!statement)
        statement = std::make_unique<Statement>(sql);
    return *statement;
}

bool StoredRows::run(Statement& statement)
{
    if (statement.execute())
        return true;
    error_ = statement.sql() + ": " + statement.error();
    return false;
}

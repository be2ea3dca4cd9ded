// app/tables/TableRows.cpp
#include "app/tables/TableRows.h"

#include "db/Literals.h"
#include "db/SchemaInspection.h"
#include "store/Statement.h"

#include <array>
#include <charconv>
#include <cmath>
#include <memory>

namespace {

template <typename T> std::optional<T> parsed(std::string_view text)
{
    T value{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end ? std::optional(value) : std::nullopt;
}

template <typename T> std::string shortest(T value)
{
    std::array<char, 32> digits;
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

bool isWhole(FieldKind kind)
{
    return kind == FieldKind::Whole || kind == FieldKind::Own || kind == FieldKind::Reference;
}

// A failed question counts as absence, so columns are asked for only where all of them failed.
enum class Columns { All, ThoseThere };

std::string columnList(const TableFile& table, Columns which)
{
    std::string list;
    for (const TableField& field : table.fields) {
        const bool isThere = which == Columns::All || columnExists(table.name, field.column) != 0;
        list.append(list.empty() ? "" : ",").append(isThere ? field.column : "NULL");
    }
    return list;
}

// Some databases give a day with a time behind it.
void cutMidnight(std::string* text)
{
    constexpr std::size_t kDay = 10;
    if (text->find_first_not_of(" 0:.T", kDay) == std::string::npos && text->size() > kDay)
        text->resize(kDay);
}

bool readField(Statement& select, int n, FieldKind kind, std::optional<std::string>* out)
{
    if (kind == FieldKind::Number) {
        Value value;
        if (!select.read(n, ColumnType::Number, &value))
            return false;
        const double* number = std::get_if<double>(&value);
        *out = number ? std::optional(shortest(*number)) : std::nullopt;
        return true;
    }
    if (!select.readStored(n, out))
        return false;
    if (*out && kind == FieldKind::Text)
        *out = shownText(**out);
    else if (*out && kind == FieldKind::Date)
        cutMidnight(&**out);
    return true;
}

bool readFields(Statement& select, const TableFile& table, RowTexts* row)
{
    for (std::size_t i = 0; i < table.fields.size(); ++i)
        if (!readField(select, static_cast<int>(i) + 1, table.fields[i].kind, &(*row)[i]))
            return false;
    return true;
}

} // namespace

RowFilter whereIs(const char* column, const Value& value)
{
    if (std::holds_alternative<std::monostate>(value))
        return {std::string(column) + " IS NULL", {}};
    return {std::string(column) + "=?", {value}};
}

bool readRows(const TableFile& table, const RowFilter& filter,
    const std::function<void(RowTexts&)>& take, std::string* error)
{
    const auto prepared = [&](Columns which) {
        auto select = std::make_unique<Statement>("SELECT " + columnList(table, which) + " FROM "
            + sql::table(table.name) + (filter.where.empty() ? "" : " WHERE ") + filter.where);
        int n = 0;
        for (const Value& value : filter.values)
            select->bind(++n, value);
        return select;
    };
    auto owner = prepared(Columns::All);
    bool good = owner->execute();
    if (!good && table.mayLackColumns) {
        owner = prepared(Columns::ThoseThere);
        good = owner->execute();
    }
    Statement& select = *owner;
    RowTexts row(table.fields.size());
    Statement::Row state = Statement::Row::Failed;
    while (good && (state = select.fetch()) == Statement::Row::Fetched) {
        good = readFields(select, table, &row);
        if (good)
            take(row);
    }
    if (good && state == Statement::Row::End)
        return true;
    *error = select.sql() + ": " + select.error();
    return false;
}

std::optional<std::string> plainText(FieldKind kind, const std::string& text)
{
    if (kind == FieldKind::Number) {
        const auto number = parsed<double>(text);
        // The database would take "nan" for NULL.
        return number && !std::isnan(*number) ? std::optional(shortest(*number)) : std::nullopt;
    }
    if (isWhole(kind)) {
        const auto number = parsed<int>(text);
        return number ? std::optional(shortest(*number)) : std::nullopt;
    }
    if (kind == FieldKind::Date && sql::parsedDate(text.c_str()).isoText() != text)
        return std::nullopt;
    return text;
}

Value boundValue(FieldKind kind, const std::optional<std::string>& text)
{
    if (!text)
        return {};
    if (kind == FieldKind::Number)
        return parsed<double>(*text).value_or(0);
    if (isWhole(kind))
        return parsed<long>(*text).value_or(0);
    if (kind == FieldKind::Date)
        return dateValue(sql::parsedDate(text->c_str()));
    return storedWhole(*text);
}

std::strong_ordering compareTexts(
    const std::optional<std::string>& a, const std::optional<std::string>& b, FieldKind kind)
{
    if (!a || !b)
        return a.has_value() <=> b.has_value();
    const bool isText = kind == FieldKind::Text || kind == FieldKind::Date;
    const auto x = isText ? std::nullopt : parsed<double>(*a);
    const auto y = isText ? std::nullopt : parsed<double>(*b);
    if (x && y && *x != *y)
        return *x < *y ? std::strong_ordering::less : std::strong_ordering::greater;
    if (x.has_value() != y.has_value())
        return y.has_value() <=> x.has_value();
    return *a <=> *b;
}

bool rowBefore(const TableFile& table, const RowTexts& a, const RowTexts& b)
{
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
        const FieldKind kind = table.fields[i].kind;
        const auto order = compareTexts(a[i], b[i], kind);
        if (kind != FieldKind::Own && order != std::strong_ordering::equal)
            return order < 0;
    }
    return false;
}

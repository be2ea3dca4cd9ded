// platform/desktopdb/Catalogue.cpp
#include "platform/desktopdb/Catalogue.h"

#include "platform/desktopdb/AsciiText.h"
#include "platform/desktopdb/ColumnType.h"
#include "platform/desktopdb/Keywords.h"
#include "platform/desktopdb/MemoryRows.h"

#include <algorithm>

namespace desktopdb {

namespace {
constexpr RowColumn kTableColumns[] = {{"TABLE_CAT", "VARCHAR(128)"},
    {"TABLE_SCHEM", "VARCHAR(128)"}, {"TABLE_NAME", "VARCHAR(128)"}, {"TABLE_TYPE", "VARCHAR(32)"},
    {"REMARKS", "VARCHAR(254)"}};

constexpr RowColumn kColumnColumns[] = {{"TABLE_CAT", "VARCHAR(128)"},
    {"TABLE_SCHEM", "VARCHAR(128)"}, {"TABLE_NAME", "VARCHAR(128)"},
    {"COLUMN_NAME", "VARCHAR(128)"}, {"DATA_TYPE", "SMALLINT"}, {"TYPE_NAME", "VARCHAR(128)"},
    {"COLUMN_SIZE", "INTEGER"}, {"BUFFER_LENGTH", "INTEGER"}, {"DECIMAL_DIGITS", "SMALLINT"},
    {"NUM_PREC_RADIX", "SMALLINT"}, {"NULLABLE", "SMALLINT"}, {"REMARKS", "VARCHAR(254)"},
    {"COLUMN_DEF", "VARCHAR(254)"}, {"SQL_DATA_TYPE", "SMALLINT"}, {"SQL_DATETIME_SUB", "SMALLINT"},
    {"CHAR_OCTET_LENGTH", "INTEGER"}, {"ORDINAL_POSITION", "INTEGER"},
    {"IS_NULLABLE", "VARCHAR(254)"}};

constexpr RowColumn kKeyColumns[] = {{"TABLE_CAT", "VARCHAR(128)"}, {"TABLE_SCHEM", "VARCHAR(128)"},
    {"TABLE_NAME", "VARCHAR(128)"}, {"COLUMN_NAME", "VARCHAR(128)"}, {"KEY_SEQ", "SMALLINT"},
    {"PK_NAME", "VARCHAR(128)"}};

constexpr RowColumn kStatisticsColumns[] = {{"TABLE_CAT", "VARCHAR(128)"},
    {"TABLE_SCHEM", "VARCHAR(128)"}, {"TABLE_NAME", "VARCHAR(128)"}, {"NON_UNIQUE", "SMALLINT"},
    {"INDEX_QUALIFIER", "VARCHAR(128)"}, {"INDEX_NAME", "VARCHAR(128)"}, {"TYPE", "SMALLINT"},
    {"ORDINAL_POSITION", "SMALLINT"}, {"COLUMN_NAME", "VARCHAR(128)"}, {"ASC_OR_DESC", "CHAR(1)"},
    {"CARDINALITY", "INTEGER"}, {"PAGES", "INTEGER"}, {"FILTER_CONDITION", "VARCHAR(254)"}};

constexpr RowColumn kTypeColumns[] = {{"TYPE_NAME", "VARCHAR(128)"}, {"DATA_TYPE", "SMALLINT"},
    {"COLUMN_SIZE", "INTEGER"}, {"LITERAL_PREFIX", "VARCHAR(128)"},
    {"LITERAL_SUFFIX", "VARCHAR(128)"}, {"CREATE_PARAMS", "VARCHAR(128)"}, {"NULLABLE", "SMALLINT"},
    {"CASE_SENSITIVE", "SMALLINT"}, {"SEARCHABLE", "SMALLINT"}, {"UNSIGNED_ATTRIBUTE", "SMALLINT"},
    {"FIXED_PREC_SCALE", "SMALLINT"}, {"AUTO_UNIQUE_VALUE", "SMALLINT"},
    {"LOCAL_TYPE_NAME", "VARCHAR(128)"}, {"MINIMUM_SCALE", "SMALLINT"},
    {"MAXIMUM_SCALE", "SMALLINT"}, {"SQL_DATA_TYPE", "SMALLINT"}, {"SQL_DATETIME_SUB", "SMALLINT"},
    {"NUM_PREC_RADIX", "INTEGER"}, {"INTERVAL_PRECISION", "SMALLINT"}};

const Value kNull{};

Value text(std::string_view t) { return Value::ofText(std::string(t)); }
Value number(std::int64_t n) { return Value::ofInteger(n); }
Value textOrNull(const CatalogueArgument& t) { return t && !t->empty() ? text(*t) : kNull; }
Value numberIf(bool present, std::int64_t n) { return present ? number(n) : kNull; }

// % and _ as in LIKE. Walks back to the last % only, so it takes no more than length times
// length steps.
bool matches(std::string_view pattern, std::string_view name)
{
    size_t p = 0, n = 0;
    size_t starPattern = pattern.npos, starName = 0;
    while (n < name.size()) {
        const bool escaped = p + 1 < pattern.size() && pattern[p] == '\\';
        const char c = p < pattern.size() ? pattern[escaped ? p + 1 : p] : '\0';
        if (!escaped && c == '%') {
            starPattern = ++p;
            starName = n;
        } else if (p < pattern.size()
            && ((!escaped && c == '_') || upperOf(c) == upperOf(name[n]))) {
            p += escaped ? 2 : 1;
            ++n;
        } else if (starPattern != pattern.npos) {
            p = starPattern;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '%')
        ++p;
    return p == pattern.size();
}

bool matches(const CatalogueArgument& pattern, std::string_view name)
{
    return !pattern || matches(std::string_view(*pattern), name);
}

bool listsType(const CatalogueArgument& types, std::string_view type)
{
    if (!types || types->empty() || *types == SQL_ALL_TABLE_TYPES)
        return true;
    std::string_view rest = *types;
    while (!rest.empty()) {
        const size_t comma = std::min(rest.find(','), rest.size());
        std::string_view word = rest.substr(0, comma);
        rest.remove_prefix(std::min(comma + 1, rest.size()));
        const size_t first = word.find_first_not_of(" '");
        if (first == word.npos)
            continue;
        word = word.substr(first, word.find_last_not_of(" '") - first + 1);
        if (sameWord(word, type))
            return true;
    }
    return false;
}

std::unique_ptr<MemoryRows> tableTypeRows()
{
    auto rows = std::make_unique<MemoryRows>(kTableColumns);
    for (const char* type : {"TABLE", "VIEW"})
        rows->add({kNull, kNull, kNull, text(type), kNull});
    return rows;
}

bool isNamed(const CatalogueArgument& argument, std::string_view name)
{
    return argument && *argument == name;
}

// Tables that a name stands for, without wildcards.
bool findTables(
    Engine& engine, const CatalogueArgument& name, std::vector<TableEntry>& found, Failure& failure)
{
    std::vector<TableEntry> all;
    if (!engine.tables(all, failure))
        return false;
    std::ranges::copy_if(all, std::back_inserter(found),
        [&](const TableEntry& entry) { return name && sameWord(entry.name, *name); });
    return true;
}

SQLSMALLINT dateSubcode(SQLSMALLINT sqlType)
{
    return static_cast<SQLSMALLINT>(sqlType - SQL_TYPE_DATE + SQL_CODE_DATE);
}

bool isDateType(SQLSMALLINT sqlType)
{
    return sqlType >= SQL_TYPE_DATE && sqlType <= SQL_TYPE_TIMESTAMP;
}

void addColumnRow(MemoryRows& rows, const CatalogueArgument& owner, const std::string& table,
    const TableColumn& column, int position, bool version2)
{
    const ColumnType type = typeOfDeclaration(column.declaredType);
    const bool isNumber = isNumberType(type.sqlType);
    const bool isDate = isDateType(type.sqlType);
    rows.add({kNull, textOrNull(owner), text(table), text(column.name),
        number(typeForVersion(type.sqlType, version2)), text(type.name),
        number(static_cast<std::int64_t>(type.size)), number(type.octets),
        numberIf(isNumber, type.digits), numberIf(isNumber, 10),
        number(column.notNull ? SQL_NO_NULLS : SQL_NULLABLE), kNull,
        column.hasDefault ? text(column.defaultValue) : kNull,
        number(isDate ? SQL_DATETIME : type.sqlType), numberIf(isDate, dateSubcode(type.sqlType)),
        numberIf(isTextType(type.sqlType), type.octets), number(position),
        text(column.notNull ? "NO" : "YES")});
}

void addIndexRows(MemoryRows& rows, const CatalogueArgument& owner, const std::string& table,
    const IndexEntry& index)
{
    std::int64_t position = 0;
    for (const std::string& column : index.columns)
        rows.add({kNull, textOrNull(owner), text(table), number(!index.unique), kNull,
            text(index.name), number(SQL_INDEX_OTHER), number(++position),
            column.empty() ? kNull : text(column), text("A"), kNull, kNull, kNull});
}

struct OfferedType {
    const char* name;
    const char* parameters;
};
// In the order of their codes, as ODBC asks for.
constexpr OfferedType kOffered[] = {{"BIT", nullptr}, {"TINYINT", nullptr}, {"BIGINT", nullptr},
    {"BLOB", nullptr}, {"VARBINARY", "length"}, {"TEXT", nullptr}, {"CHAR", "length"},
    {"NUMERIC", "precision,scale"}, {"DECIMAL", "precision,scale"}, {"INTEGER", nullptr},
    {"SMALLINT", nullptr}, {"FLOAT", nullptr}, {"REAL", nullptr}, {"DOUBLE", nullptr},
    {"VARCHAR", "length"}, {"DATE", nullptr}, {"TIME", nullptr}, {"TIMESTAMP", nullptr}};
} // namespace

std::unique_ptr<RowSource> tableRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& name, const CatalogueArgument& types, Failure& failure)
{
    if (isNamed(types, SQL_ALL_TABLE_TYPES) && isNamed(name, "") && isNamed(owner, ""))
        return tableTypeRows();
    auto rows = std::make_unique<MemoryRows>(kTableColumns);
    // An engine without owners has none to list.
    if (isNamed(owner, SQL_ALL_SCHEMAS) && isNamed(name, ""))
        return rows;
    std::vector<TableEntry> tables;
    if (!engine.tables(tables, failure))
        return nullptr;
    const CatalogueArgument shownOwner = isNamed(owner, "%") ? CatalogueArgument() : owner;
    std::ranges::stable_sort(tables, {}, &TableEntry::isView); // "TABLE" before "VIEW"
    for (const TableEntry& table : tables) {
        const char* type = table.isView ? "VIEW" : "TABLE";
        if (matches(name, table.name) && listsType(types, type))
            rows->add({kNull, textOrNull(shownOwner), text(table.name), text(type), kNull});
    }
    return rows;
}

std::unique_ptr<RowSource> columnRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& table, const CatalogueArgument& column, bool version2,
    Failure& failure)
{
    std::vector<TableEntry> tables;
    if (!engine.tables(tables, failure))
        return nullptr;
    auto rows = std::make_unique<MemoryRows>(kColumnColumns);
    const CatalogueArgument shownOwner = isNamed(owner, "%") ? CatalogueArgument() : owner;
    for (const TableEntry& entry : tables) {
        std::vector<TableColumn> columns;
        if (!matches(table, entry.name))
            continue;
        if (!engine.columns(entry.name, columns, failure))
            return nullptr;
        int position = 0;
        for (const TableColumn& c : columns) {
            ++position;
            if (matches(column, c.name))
                addColumnRow(*rows, shownOwner, entry.name, c, position, version2);
        }
    }
    return rows;
}

std::unique_ptr<RowSource> primaryKeyRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& table, Failure& failure)
{
    std::vector<TableEntry> tables;
    if (!findTables(engine, table, tables, failure))
        return nullptr;
    auto rows = std::make_unique<MemoryRows>(kKeyColumns);
    for (const TableEntry& entry : tables) {
        std::vector<TableColumn> columns;
        if (!engine.columns(entry.name, columns, failure))
            return nullptr;
        std::erase_if(columns, [](const TableColumn& c) { return c.keyPosition == 0; });
        std::ranges::sort(columns, {}, &TableColumn::keyPosition);
        for (const TableColumn& c : columns)
            rows->add({kNull, textOrNull(owner), text(entry.name), text(c.name),
                number(c.keyPosition), kNull});
    }
    return rows;
}

std::unique_ptr<RowSource> statisticsRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& table, bool uniqueOnly, Failure& failure)
{
    std::vector<TableEntry> tables;
    if (!findTables(engine, table, tables, failure))
        return nullptr;
    auto rows = std::make_unique<MemoryRows>(kStatisticsColumns);
    for (const TableEntry& entry : tables) {
        std::vector<IndexEntry> indexes;
        if (!engine.indexes(entry.name, indexes, failure))
            return nullptr;
        // Unique ones first, then by name.
        std::ranges::sort(indexes, [](const IndexEntry& a, const IndexEntry& b) {
            return a.unique != b.unique ? a.unique : a.name < b.name;
        });
        for (const IndexEntry& index : indexes) {
            if (index.unique || !uniqueOnly)
                addIndexRows(*rows, owner, entry.name, index);
        }
    }
    return rows;
}

std::unique_ptr<RowSource> typeRows(SQLSMALLINT sqlType, bool version2)
{
    auto rows = std::make_unique<MemoryRows>(kTypeColumns);
    for (const OfferedType& offered : kOffered) {
        const ColumnType type = typeOfDeclaration(offered.name);
        const SQLSMALLINT code = typeForVersion(type.sqlType, version2);
        if (sqlType != SQL_ALL_TYPES && sqlType != code)
            continue;
        const bool isNumber = isNumberType(type.sqlType);
        const bool isDate = isDateType(type.sqlType);
        const Value quote = isNumber ? kNull : text("'");
        rows->add({text(offered.name), number(code), number(static_cast<std::int64_t>(type.size)),
            quote, quote, offered.parameters ? text(offered.parameters) : kNull,
            number(SQL_NULLABLE), number(isTextType(type.sqlType)), number(SQL_SEARCHABLE),
            numberIf(isNumber, SQL_FALSE), number(SQL_FALSE), numberIf(isNumber, SQL_FALSE),
            text(offered.name), numberIf(isNumber, 0),
            numberIf(isNumber, offered.parameters ? 15 : 0),
            number(isDate ? SQL_DATETIME : type.sqlType),
            numberIf(isDate, dateSubcode(type.sqlType)), numberIf(isNumber, 10), kNull});
    }
    return rows;
}

} // namespace desktopdb

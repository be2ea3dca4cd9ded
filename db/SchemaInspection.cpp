// db/SchemaInspection.cpp
#include "db/SchemaInspection.h"

#include "db/Columns.h"
#include "db/Connection.h"
#include "db/Dialect.h"
#include "db/Literals.h"
#include "db/Odbc.h"
#include "db/Session.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr std::size_t kColumnText = 20; // bytes of a delivered text, its terminator included
constexpr std::size_t kTableText = 50;

// Columns of the catalogue's results, as the 2.x calls number them.
enum CatalogueColumn : short {
    kTableName = 3,
    kColumnName = 4,
    kDataType = 5,
    kTypeName = 6,
    kPrecision = 7
};

/// A statement of the session's connection that drops itself; null when it could not be made.
class OwnStatement {
public:
    OwnStatement()
    {
        const SQLHDBC connection = dbConnectionHandle();
        if (connection == SQL_NULL_HDBC || !odbcSucceeded(SQLAllocStmt(connection, &handle_)))
            handle_ = SQL_NULL_HSTMT;
    }
    ~OwnStatement()
    {
        if (handle_ != SQL_NULL_HSTMT)
            SQLFreeStmt(handle_, SQL_DROP);
    }
    OwnStatement(const OwnStatement&) = delete;
    OwnStatement& operator=(const OwnStatement&) = delete;

    SQLHSTMT handle() const { return handle_; }
    std::string text(short column) const { return columns::readText(handle_, column); }

    /// Prepares a query on the table that is never run; the number of its columns, 0 on failure.
    SQLSMALLINT prepareColumnsOf(const char* table)
    {
        const std::string query = "SELECT * FROM " + sql::table(table) + " WHERE 1=0";
        SQLSMALLINT columns = 0;
        if (handle_ != SQL_NULL_HSTMT
            && odbcSucceeded(
                SQLPrepare(handle_, odbcText(query), static_cast<SQLINTEGER>(query.size()))))
            SQLNumResultCols(handle_, &columns);
        return columns;
    }

private:
    SQLHSTMT handle_ = SQL_NULL_HSTMT;
};

/// A name for the catalogue functions, which take "_" and "%" in it for wildcards: escaped where
/// the driver says how; else `isIn` tells the rows that were meant from those that merely fit.
class CatalogueName {
public:
    explicit CatalogueName(std::string name)
        : name_(std::move(name))
        , pattern_(name_)
    {
        const std::string escape = isPlain(name_) ? "" : escapeOfDriver();
        comparesRows_ = !isPlain(name_) && escape.empty();
        if (!escape.empty())
            pattern_ = escaped(escape);
    }
    SQLCHAR* pattern() const { return odbcText(pattern_); }
    bool isIn(const OwnStatement& row, short column) const
    {
        return !comparesRows_ || compareIgnoringCase(name_, row.text(column)) == 0;
    }

private:
    static bool isPlain(std::string_view name)
    {
        return name.find_first_not_of(
                   "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789")
            == std::string_view::npos;
    }

    static std::string escapeOfDriver()
    {
        char escape[8] = "";
        SQLSMALLINT length = 0;
        const SQLRETURN result = SQLGetInfo(
            dbConnectionHandle(), SQL_SEARCH_PATTERN_ESCAPE, escape, sizeof escape, &length);
        return odbcSucceeded(result) ? escape : "";
    }

    std::string escaped(const std::string& escape) const
    {
        std::string pattern;
        for (const char c : name_) {
            if (c == '_' || c == '%' || c == escape[0])
                pattern += escape;
            pattern += c;
        }
        return pattern;
    }

    std::string name_;
    std::string pattern_;
    bool comparesRows_;
};

/// The owner prefix as the catalogue takes it: the owner stands before the first point, what
/// follows belongs to the table names.
struct CataloguePrefix {
    std::string owner;
    std::string ofTables;
};

CataloguePrefix cataloguePrefix()
{
    const std::string prefix = ownerPrefix.str();
    const std::size_t point = std::min(prefix.find('.'), prefix.size());
    const std::string owner = dialectFacts().ownerInCatalogue ? prefix.substr(0, point) : "";
    return {owner, point < prefix.size() ? prefix.substr(point + 1) : ""};
}

CatalogueName catalogueTable(const char* table)
{
    return CatalogueName(cataloguePrefix().ofTables + table);
}

/// The owner's argument: null, which is no restriction, for no owner.
class CatalogueOwner {
public:
    CatalogueOwner()
        : name_(cataloguePrefix().owner)
    {
    }
    SQLCHAR* argument() const { return *name_.pattern() ? name_.pattern() : nullptr; }

private:
    CatalogueName name_;
};

bool askTables(const OwnStatement& statement, SQLCHAR* table, const char* type)
{
    const CatalogueOwner owner;
    return statement.handle() != SQL_NULL_HSTMT
        && odbcSucceeded(SQLTables(statement.handle(), nullptr, 0, owner.argument(), SQL_NTS, table,
            SQL_NTS, odbcText(type), SQL_NTS));
}

bool askColumns(const OwnStatement& statement, SQLCHAR* table, SQLCHAR* column)
{
    const CatalogueOwner owner;
    return statement.handle() != SQL_NULL_HSTMT
        && odbcSucceeded(SQLColumns(statement.handle(), nullptr, 0, owner.argument(), SQL_NTS,
            table, SQL_NTS, column, SQL_NTS));
}

/// Moves on to the next row about that table.
bool fetchRowOf(const CatalogueName& table, const OwnStatement& rows)
{
    while (odbcSucceeded(SQLFetch(rows.handle())))
        if (table.isIn(rows, kTableName))
            return true;
    return false;
}

bool columnIsNamed(const OwnStatement& statement, SQLUSMALLINT number, const char* name)
{
    SQLCHAR found[256] = "";
    SQLSMALLINT length = 0;
    SQLSMALLINT type = 0;
    SQLULEN precision = 0;
    SQLSMALLINT scale = 0;
    SQLSMALLINT nullable = 0;
    const SQLRETURN result = SQLDescribeCol(statement.handle(), number, found, sizeof found,
        &length, &type, &precision, &scale, &nullable);
    return odbcSucceeded(result)
        && compareIgnoringCase(reinterpret_cast<const char*>(found), name) == 0;
}

// A text of `size` bytes that the caller releases with delete[].
char* newText(std::string_view text, std::size_t size)
{
    char* copy = new char[size]();
    utf8Prefix(text, size - 1).copy(copy, size - 1);
    return copy;
}

const char* kindWord(short type)
{
    switch (type) {
    case SQL_CHAR:
    case SQL_VARCHAR:
        return "text";
    case SQL_NUMERIC:
    case SQL_DECIMAL:
    case SQL_INTEGER:
    case SQL_SMALLINT:
    case SQL_FLOAT:
    case SQL_REAL:
    case SQL_DOUBLE:
        return "number";
    case SQL_DATE:
    case SQL_TIMESTAMP:
        return "date";
    default:
        return "unknown";
    }
}

} // namespace

int tableExists(const char* table) { return OwnStatement().prepareColumnsOf(table) > 0 ? 1 : 0; }

int columnExists(const char* table, const char* column)
{
    OwnStatement query;
    const SQLSMALLINT columns = query.prepareColumnsOf(table);
    for (SQLUSMALLINT number = 1; number <= columns; ++number)
        if (columnIsNamed(query, number, column))
            return 1;
    return 0;
}

int viewExists(const char* name)
{
    const CatalogueName view = catalogueTable(name);
    OwnStatement rows;
    if (!askTables(rows, view.pattern(), "'VIEW'"))
        return 0;
    while (SQLFetch(rows.handle()) == SQL_SUCCESS)
        if (view.isIn(rows, kTableName))
            return 1;
    return 0;
}

int listColumns(const char* table, char** names, char** types, short* precisions, int* count)
{
    *count = 0;
    const CatalogueName name = catalogueTable(table);
    OwnStatement rows;
    if (!askColumns(rows, name.pattern(), nullptr))
        return 1;
    std::set<std::string, std::less<>> delivered;
    while (fetchRowOf(name, rows)) {
        const std::string column = rows.text(kColumnName);
        if (column.empty() || !delivered.emplace(utf8Prefix(column, kColumnText - 1)).second)
            continue;
        names[*count] = newText(column, kColumnText);
        types[*count] = newText(rows.text(kTypeName), kColumnText);
        precisions[*count] = columns::readShort(rows.handle(), kPrecision);
        ++*count;
    }
    return 1;
}

int listTables(char** names, int max)
{
    OwnStatement rows;
    if (!askTables(rows, nullptr, "TABLE"))
        return 0;
    int delivered = 0;
    while (delivered < max && SQLFetch(rows.handle()) == SQL_SUCCESS) {
        const std::string name = rows.text(kTableName);
        if (!name.empty())
            names[delivered++] = newText(name, kTableText);
    }
    return delivered;
}

int columnType(const char* table, const char* column, char* typeWord, int* precision)
{
    const CatalogueName tableName = catalogueTable(table);
    const CatalogueName columnName{column};
    OwnStatement rows;
    if (!askColumns(rows, tableName.pattern(), columnName.pattern()))
        return 0;
    do
        if (!fetchRowOf(tableName, rows))
            return 0;
    while (!columnName.isIn(rows, kColumnName));
    std::strcpy(typeWord, kindWord(columns::readShort(rows.handle(), kDataType)));
    *precision = columns::readShort(rows.handle(), kPrecision);
    return 1;
}

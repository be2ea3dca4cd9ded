// platform/desktopdb/EntryStatements.cpp
// ODBC functions on statements.
#include "platform/desktopdb/Catalogue.h"
#include "platform/desktopdb/Entry.h"

using namespace desktopdb;

namespace {
CatalogueArgument argument(const SQLCHAR* text, SQLSMALLINT length)
{
    std::string_view read;
    return readText(text, length, read) ? CatalogueArgument(read) : CatalogueArgument();
}

template <class Make> SQLRETURN showCatalogue(SQLHSTMT handle, const char* function, Make make)
{
    return onStatement(handle, function, [&](Statement& s) {
        Failure failure;
        auto rows = make(s.connection(), failure);
        return s.showRows(std::move(rows), failure);
    });
}
} // namespace

SQLRETURN SQL_API SQLPrepare(SQLHSTMT handle, SQLCHAR* text, SQLINTEGER length)
{
    return onStatement(handle, "SQLPrepare", [&](Statement& s) {
        std::string_view sql;
        return readText(text, length, sql)
            ? s.prepare(sql)
            : s.diagnostics().fail("HY090", "the statement has no length");
    });
}

SQLRETURN SQL_API SQLExecute(SQLHSTMT handle)
{
    return onStatement(handle, "SQLExecute", [](Statement& s) { return s.execute(); });
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT handle, SQLCHAR* text, SQLINTEGER length)
{
    return onStatement(handle, "SQLExecDirect", [&](Statement& s) {
        std::string_view sql;
        return readText(text, length, sql)
            ? s.executeDirect(sql)
            : s.diagnostics().fail("HY090", "the statement has no length");
    });
}

SQLRETURN SQL_API SQLBindParameter(SQLHSTMT handle, SQLUSMALLINT number, SQLSMALLINT ioType,
    SQLSMALLINT cType, SQLSMALLINT sqlType, SQLULEN, SQLSMALLINT, SQLPOINTER value, SQLLEN capacity,
    SQLLEN* indicator)
{
    return onStatement(handle, "SQLBindParameter", [&](Statement& s) {
        return s.bindParameter(number, ioType, {cType, sqlType, value, capacity, indicator});
    });
}

SQLRETURN SQL_API SQLParamData(SQLHSTMT handle, SQLPOINTER* token)
{
    return onStatement(
        handle, "SQLParamData", [&](Statement& s) { return s.parameterData(token); });
}

SQLRETURN SQL_API SQLPutData(SQLHSTMT handle, SQLPOINTER data, SQLLEN length)
{
    return onStatement(handle, "SQLPutData", [&](Statement& s) { return s.putData(data, length); });
}

SQLRETURN SQL_API SQLCancel(SQLHSTMT handle)
{
    // A running statement belongs to another thread: its diagnostics are not to be touched.
    Statement* running = statements().find(handle);
    if (running && running->isRunning())
        return running->cancel();
    return onStatement(handle, "SQLCancel", [](Statement& s) { return s.cancel(); });
}

SQLRETURN SQL_API SQLNumParams(SQLHSTMT handle, SQLSMALLINT* count)
{
    return onStatement(
        handle, "SQLNumParams", [&](Statement& s) { return s.parameterCount(count); });
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT handle)
{
    return onStatement(handle, "SQLFetch", [](Statement& s) { return s.fetch(); });
}

SQLRETURN SQL_API SQLFetchScroll(SQLHSTMT handle, SQLSMALLINT orientation, SQLLEN)
{
    return onStatement(
        handle, "SQLFetchScroll", [&](Statement& s) { return s.fetchScroll(orientation); });
}

SQLRETURN SQL_API SQLGetData(SQLHSTMT handle, SQLUSMALLINT number, SQLSMALLINT cType,
    SQLPOINTER value, SQLLEN capacity, SQLLEN* indicator)
{
    return onStatement(handle, "SQLGetData", [&](Statement& s) {
        return s.getData(number, {cType, value, capacity, indicator});
    });
}

SQLRETURN SQL_API SQLBindCol(SQLHSTMT handle, SQLUSMALLINT number, SQLSMALLINT cType,
    SQLPOINTER value, SQLLEN capacity, SQLLEN* indicator)
{
    return onStatement(handle, "SQLBindCol", [&](Statement& s) {
        return s.bindColumn(number, {cType, value, capacity, indicator});
    });
}

SQLRETURN SQL_API SQLMoreResults(SQLHSTMT handle)
{
    return onStatement(handle, "SQLMoreResults", [](Statement& s) { return s.moreResults(); });
}

SQLRETURN SQL_API SQLCloseCursor(SQLHSTMT handle)
{
    return onStatement(handle, "SQLCloseCursor", [](Statement& s) { return s.closeCursor(); });
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT handle, SQLSMALLINT* count)
{
    return onStatement(
        handle, "SQLNumResultCols", [&](Statement& s) { return s.columnCount(count); });
}

SQLRETURN SQL_API SQLDescribeCol(SQLHSTMT handle, SQLUSMALLINT number, SQLCHAR* name,
    SQLSMALLINT capacity, SQLSMALLINT* length, SQLSMALLINT* type, SQLULEN* size,
    SQLSMALLINT* digits, SQLSMALLINT* nullable)
{
    return onStatement(handle, "SQLDescribeCol", [&](Statement& s) {
        return s.describeColumn(number, name, capacity, length, type, size, digits, nullable);
    });
}

SQLRETURN SQL_API SQLColAttribute(SQLHSTMT handle, SQLUSMALLINT number, SQLUSMALLINT field,
    SQLPOINTER text, SQLSMALLINT capacity, SQLSMALLINT* length, SQLLEN* value)
{
    return onStatement(handle, "SQLColAttribute", [&](Statement& s) {
        return s.columnAttribute(number, field, text, capacity, length, value);
    });
}

SQLRETURN SQL_API SQLRowCount(SQLHSTMT handle, SQLLEN* count)
{
    return onStatement(handle, "SQLRowCount", [&](Statement& s) { return s.rowCount(count); });
}

SQLRETURN SQL_API SQLSetStmtAttr(
    SQLHSTMT handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER)
{
    return onStatement(
        handle, "SQLSetStmtAttr", [&](Statement& s) { return s.setAttribute(attribute, value); });
}

SQLRETURN SQL_API SQLTables(SQLHSTMT handle, SQLCHAR*, SQLSMALLINT, SQLCHAR* owner,
    SQLSMALLINT ownerLength, SQLCHAR* name, SQLSMALLINT nameLength, SQLCHAR* types,
    SQLSMALLINT typesLength)
{
    return showCatalogue(handle, "SQLTables", [&](Connection& connection, Failure& failure) {
        return tableRows(connection.engine(), argument(owner, ownerLength),
            argument(name, nameLength), argument(types, typesLength), failure);
    });
}

SQLRETURN SQL_API SQLColumns(SQLHSTMT handle, SQLCHAR*, SQLSMALLINT, SQLCHAR* owner,
    SQLSMALLINT ownerLength, SQLCHAR* table, SQLSMALLINT tableLength, SQLCHAR* column,
    SQLSMALLINT columnLength)
{
    return showCatalogue(handle, "SQLColumns", [&](Connection& connection, Failure& failure) {
        return columnRows(connection.engine(), argument(owner, ownerLength),
            argument(table, tableLength), argument(column, columnLength), connection.isVersion2(),
            failure);
    });
}

SQLRETURN SQL_API SQLPrimaryKeys(SQLHSTMT handle, SQLCHAR*, SQLSMALLINT, SQLCHAR* owner,
    SQLSMALLINT ownerLength, SQLCHAR* table, SQLSMALLINT tableLength)
{
    return showCatalogue(handle, "SQLPrimaryKeys", [&](Connection& connection, Failure& failure) {
        return primaryKeyRows(connection.engine(), argument(owner, ownerLength),
            argument(table, tableLength), failure);
    });
}

SQLRETURN SQL_API SQLStatistics(SQLHSTMT handle, SQLCHAR*, SQLSMALLINT, SQLCHAR* owner,
    SQLSMALLINT ownerLength, SQLCHAR* table, SQLSMALLINT tableLength, SQLUSMALLINT unique,
    SQLUSMALLINT)
{
    return showCatalogue(handle, "SQLStatistics", [&](Connection& connection, Failure& failure) {
        return statisticsRows(connection.engine(), argument(owner, ownerLength),
            argument(table, tableLength), unique == SQL_INDEX_UNIQUE, failure);
    });
}

SQLRETURN SQL_API SQLGetTypeInfo(SQLHSTMT handle, SQLSMALLINT type)
{
    return showCatalogue(handle, "SQLGetTypeInfo",
        [&](Connection& connection, Failure&) { return typeRows(type, connection.isVersion2()); });
}

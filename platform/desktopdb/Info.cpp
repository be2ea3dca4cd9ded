// platform/desktopdb/Info.cpp
// The answers of SQLGetInfo.
#include "platform/desktopdb/Connection.h"

#include <algorithm>
#include <iterator>

namespace desktopdb {

namespace {
struct TextInfo {
    SQLUSMALLINT type;
    const char* text;
};

constexpr TextInfo kTexts[] = {
    {SQL_ACCESSIBLE_PROCEDURES, "N"},
    {SQL_ACCESSIBLE_TABLES, "Y"},
    {SQL_CATALOG_NAME, "N"},
    {SQL_CATALOG_NAME_SEPARATOR, ""},
    {SQL_CATALOG_TERM, ""},
    {SQL_COLLATION_SEQ, ""},
    {SQL_COLUMN_ALIAS, "Y"},
    {SQL_DATA_SOURCE_READ_ONLY, "N"},
    {SQL_DESCRIBE_PARAMETER, "N"},
    {SQL_DRIVER_NAME, "libdesktopdb.so"},
    {SQL_DRIVER_ODBC_VER, "03.80"},
    {SQL_DRIVER_VER, "00.01.0000"},
    {SQL_EXPRESSIONS_IN_ORDERBY, "Y"},
    {SQL_IDENTIFIER_QUOTE_CHAR, "\""},
    {SQL_INTEGRITY, "N"},
    {SQL_KEYWORDS, "REFERENCES"},
    {SQL_LIKE_ESCAPE_CLAUSE, "Y"},
    {SQL_MAX_ROW_SIZE_INCLUDES_LONG, "Y"},
    {SQL_MULTIPLE_ACTIVE_TXN, "Y"},
    {SQL_MULT_RESULT_SETS, "N"},
    {SQL_NEED_LONG_DATA_LEN, "N"},
    {SQL_ORDER_BY_COLUMNS_IN_SELECT, "N"},
    {SQL_OUTER_JOINS, "Y"},
    {SQL_PROCEDURES, "N"},
    {SQL_PROCEDURE_TERM, ""},
    {SQL_ROW_UPDATES, "N"},
    {SQL_SCHEMA_TERM, "owner"},
    {SQL_SEARCH_PATTERN_ESCAPE, "\\"},
    {SQL_SERVER_NAME, ""},
    {SQL_SPECIAL_CHARACTERS, "$"},
    {SQL_TABLE_TERM, "table"},
    {SQL_USER_NAME, ""},
    {SQL_XOPEN_CLI_YEAR, "1995"},
};

struct NumberInfo {
    SQLUSMALLINT type;
    SQLUINTEGER number;
};

// Answers of 16 bits.
constexpr NumberInfo kShorts[] = {
    {SQL_ACTIVE_ENVIRONMENTS, 0},
    {SQL_CATALOG_LOCATION, 0},
    {SQL_CONCAT_NULL_BEHAVIOR, SQL_CB_NULL},
    {SQL_CORRELATION_NAME, SQL_CN_ANY},
    // Rows stay readable behind the end of a transaction.
    {SQL_CURSOR_COMMIT_BEHAVIOR, SQL_CB_PRESERVE},
    {SQL_CURSOR_ROLLBACK_BEHAVIOR, SQL_CB_PRESERVE},
    {SQL_FILE_USAGE, SQL_FILE_CATALOG},
    {SQL_GROUP_BY, SQL_GB_NO_RELATION},
    {SQL_IDENTIFIER_CASE, SQL_IC_MIXED},
    {SQL_MAX_CATALOG_NAME_LEN, 0},
    {SQL_MAX_COLUMNS_IN_GROUP_BY, 0},
    {SQL_MAX_COLUMNS_IN_INDEX, 0},
    {SQL_MAX_COLUMNS_IN_ORDER_BY, 0},
    {SQL_MAX_COLUMNS_IN_SELECT, 2000},
    {SQL_MAX_COLUMNS_IN_TABLE, 2000},
    {SQL_MAX_COLUMN_NAME_LEN, 128},
    {SQL_MAX_CONCURRENT_ACTIVITIES, 0},
    {SQL_MAX_CURSOR_NAME_LEN, 128},
    {SQL_MAX_DRIVER_CONNECTIONS, 0},
    {SQL_MAX_IDENTIFIER_LEN, 128},
    {SQL_MAX_PROCEDURE_NAME_LEN, 0},
    {SQL_MAX_SCHEMA_NAME_LEN, 128},
    {SQL_MAX_TABLES_IN_SELECT, 64},
    {SQL_MAX_TABLE_NAME_LEN, 128},
    {SQL_MAX_USER_NAME_LEN, 0},
    {SQL_NON_NULLABLE_COLUMNS, SQL_NNC_NON_NULL},
    {SQL_NULL_COLLATION, SQL_NC_LOW},
    {SQL_ODBC_API_CONFORMANCE, SQL_OAC_LEVEL1},
    {SQL_ODBC_SAG_CLI_CONFORMANCE, SQL_OSCC_COMPLIANT},
    {SQL_ODBC_SQL_CONFORMANCE, SQL_OSC_CORE},
    {SQL_QUOTED_IDENTIFIER_CASE, SQL_IC_MIXED},
    {SQL_TXN_CAPABLE, SQL_TC_ALL},
};

constexpr SQLUINTEGER kAllCharConversions = SQL_CVT_CHAR | SQL_CVT_VARCHAR | SQL_CVT_LONGVARCHAR;

// Answers of 32 bits.
constexpr NumberInfo kLongs[] = {
    {SQL_AGGREGATE_FUNCTIONS, SQL_AF_ALL},
    {SQL_ALTER_TABLE, SQL_AT_ADD_COLUMN},
    {SQL_ASYNC_MODE, SQL_AM_NONE},
    {SQL_BATCH_SUPPORT, 0},
    {SQL_BOOKMARK_PERSISTENCE, 0},
    {SQL_CATALOG_USAGE, 0},
    {SQL_CONVERT_CHAR, kAllCharConversions},
    {SQL_CONVERT_FUNCTIONS, SQL_FN_CVT_CAST},
    {SQL_CONVERT_VARCHAR, kAllCharConversions},
    {SQL_CREATE_TABLE, SQL_CT_CREATE_TABLE},
    {SQL_CREATE_VIEW, SQL_CV_CREATE_VIEW},
    {SQL_CURSOR_SENSITIVITY, SQL_UNSPECIFIED},
    {SQL_DEFAULT_TXN_ISOLATION, SQL_TXN_SERIALIZABLE},
    {SQL_DROP_TABLE, SQL_DT_DROP_TABLE},
    {SQL_DROP_VIEW, SQL_DV_DROP_VIEW},
    {SQL_DYNAMIC_CURSOR_ATTRIBUTES1, 0},
    {SQL_DYNAMIC_CURSOR_ATTRIBUTES2, 0},
    {SQL_FETCH_DIRECTION, SQL_FD_FETCH_NEXT},
    {SQL_FORWARD_ONLY_CURSOR_ATTRIBUTES1, SQL_CA1_NEXT},
    {SQL_FORWARD_ONLY_CURSOR_ATTRIBUTES2, SQL_CA2_READ_ONLY_CONCURRENCY},
    {SQL_GETDATA_EXTENSIONS, SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER | SQL_GD_BOUND},
    {SQL_INDEX_KEYWORDS, SQL_IK_ALL},
    {SQL_INFO_SCHEMA_VIEWS, 0},
    {SQL_KEYSET_CURSOR_ATTRIBUTES1, 0},
    {SQL_KEYSET_CURSOR_ATTRIBUTES2, 0},
    {SQL_LOCK_TYPES, SQL_LCK_NO_CHANGE},
    {SQL_MAX_BINARY_LITERAL_LEN, 0},
    {SQL_MAX_CHAR_LITERAL_LEN, 0},
    {SQL_MAX_INDEX_SIZE, 0},
    {SQL_MAX_ROW_SIZE, 0},
    {SQL_MAX_STATEMENT_LEN, 0},
    {SQL_NUMERIC_FUNCTIONS, SQL_FN_NUM_ABS | SQL_FN_NUM_MOD | SQL_FN_NUM_SIGN | SQL_FN_NUM_ROUND},
    {SQL_ODBC_INTERFACE_CONFORMANCE, SQL_OIC_CORE},
    {SQL_OJ_CAPABILITIES,
        SQL_OJ_LEFT | SQL_OJ_RIGHT | SQL_OJ_FULL | SQL_OJ_NESTED | SQL_OJ_NOT_ORDERED | SQL_OJ_INNER
            | SQL_OJ_ALL_COMPARISON_OPS},
    {SQL_PARAM_ARRAY_ROW_COUNTS, SQL_PARC_NO_BATCH},
    {SQL_PARAM_ARRAY_SELECTS, SQL_PAS_NO_SELECT},
    {SQL_POSITIONED_STATEMENTS, 0},
    {SQL_POS_OPERATIONS, 0},
    {SQL_SCHEMA_USAGE, SQL_SU_DML_STATEMENTS | SQL_SU_TABLE_DEFINITION | SQL_SU_INDEX_DEFINITION},
    {SQL_SCROLL_CONCURRENCY, SQL_SCCO_READ_ONLY},
    {SQL_SCROLL_OPTIONS, SQL_SO_FORWARD_ONLY},
    {SQL_SQL_CONFORMANCE, SQL_SC_SQL92_ENTRY},
    {SQL_STATIC_CURSOR_ATTRIBUTES1, 0},
    {SQL_STATIC_CURSOR_ATTRIBUTES2, 0},
    {SQL_STATIC_SENSITIVITY, 0},
    {SQL_STRING_FUNCTIONS,
        SQL_FN_STR_UCASE | SQL_FN_STR_LCASE | SQL_FN_STR_LENGTH | SQL_FN_STR_LTRIM
            | SQL_FN_STR_RTRIM | SQL_FN_STR_REPLACE | SQL_FN_STR_SUBSTRING},
    {SQL_SUBQUERIES, SQL_SQ_COMPARISON | SQL_SQ_EXISTS | SQL_SQ_IN | SQL_SQ_CORRELATED_SUBQUERIES},
    {SQL_SYSTEM_FUNCTIONS, SQL_FN_SYS_IFNULL},
    {SQL_TIMEDATE_ADD_INTERVALS, 0},
    {SQL_TIMEDATE_DIFF_INTERVALS, 0},
    {SQL_TIMEDATE_FUNCTIONS, 0},
    {SQL_TXN_ISOLATION_OPTION, SQL_TXN_SERIALIZABLE},
    {SQL_UNION, SQL_U_UNION | SQL_U_UNION_ALL},
};

template <class Entry, size_t N> const Entry* lookUp(const Entry (&table)[N], SQLUSMALLINT type)
{
    const auto* found = std::ranges::find(table, type, &Entry::type);
    return found == std::end(table) ? nullptr : found;
}

template <class T> SQLRETURN answerNumber(SQLUINTEGER number, SQLPOINTER value, SQLSMALLINT* length)
{
    if (value)
        *static_cast<T*>(value) = static_cast<T>(number);
    if (length)
        *length = sizeof(T);
    return SQL_SUCCESS;
}
} // namespace

SQLRETURN Connection::getInfo(
    SQLUSMALLINT type, SQLPOINTER value, SQLSMALLINT capacity, SQLSMALLINT* length)
{
    const auto answer = [&](std::string_view text) -> SQLRETURN {
        return copyOut(text, value, capacity, length)
            ? SQL_SUCCESS
            : diagnostics_.warn("01004", "the text is longer than the buffer");
    };
    switch (type) {
    case SQL_DATABASE_NAME:
    case SQL_DATA_SOURCE_NAME:
        return answer(settings_.open.file);
    case SQL_DBMS_NAME:
        return answer(engine_ ? engine_->name() : "");
    case SQL_DBMS_VER:
        return answer(engine_ ? engine_->version() : "");
    default:
        break;
    }
    if (const TextInfo* info = lookUp(kTexts, type))
        return answer(info->text);
    if (const NumberInfo* info = lookUp(kShorts, type))
        return answerNumber<SQLUSMALLINT>(info->number, value, length);
    if (const NumberInfo* info = lookUp(kLongs, type))
        return answerNumber<SQLUINTEGER>(info->number, value, length);
    return diagnostics_.fail("HY096", "information " + std::to_string(type) + " is not known");
}

} // namespace desktopdb

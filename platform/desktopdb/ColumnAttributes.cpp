// platform/desktopdb/ColumnAttributes.cpp
// What SQLColAttribute says of a result column.
#include "platform/desktopdb/Statement.h"

namespace desktopdb {

namespace {
bool textField(const DescribedColumn& column, SQLUSMALLINT field, std::string& text)
{
    switch (field) {
    case SQL_DESC_NAME:
    case SQL_COLUMN_NAME:
    case SQL_DESC_LABEL:
        text = column.source.label;
        return true;
    case SQL_DESC_BASE_COLUMN_NAME:
        text = column.source.name;
        return true;
    case SQL_DESC_TABLE_NAME:
    case SQL_DESC_BASE_TABLE_NAME:
        text = column.source.table;
        return true;
    case SQL_DESC_TYPE_NAME:
    case SQL_DESC_LOCAL_TYPE_NAME:
        text = column.type.name;
        return true;
    case SQL_DESC_LITERAL_PREFIX:
    case SQL_DESC_LITERAL_SUFFIX:
        text = isNumberType(column.type.sqlType) ? "" : "'";
        return true;
    case SQL_DESC_CATALOG_NAME:
    case SQL_DESC_SCHEMA_NAME:
        text.clear();
        return true;
    default:
        return false;
    }
}

// The verbose type groups all dates and times.
SQLLEN verboseType(SQLSMALLINT sqlType)
{
    return sqlType >= SQL_TYPE_DATE && sqlType <= SQL_TYPE_TIMESTAMP ? SQL_DATETIME : sqlType;
}

bool numberField(const DescribedColumn& column, SQLUSMALLINT field, bool version2, SQLLEN& number)
{
    const ColumnType& type = column.type;
    switch (field) {
    case SQL_DESC_CONCISE_TYPE:
        number = typeForVersion(type.sqlType, version2);
        return true;
    case SQL_DESC_TYPE:
        number = verboseType(type.sqlType);
        return true;
    case SQL_DESC_LENGTH:
    case SQL_DESC_PRECISION:
    case SQL_COLUMN_PRECISION:
        number = static_cast<SQLLEN>(type.size);
        return true;
    case SQL_DESC_SCALE:
    case SQL_COLUMN_SCALE:
        number = type.digits;
        return true;
    case SQL_DESC_OCTET_LENGTH:
    case SQL_COLUMN_LENGTH:
        number = type.octets;
        return true;
    case SQL_DESC_DISPLAY_SIZE:
        number = type.display;
        return true;
    case SQL_DESC_NULLABLE:
    case SQL_COLUMN_NULLABLE:
        number = column.source.notNull ? SQL_NO_NULLS : SQL_NULLABLE;
        return true;
    case SQL_DESC_UNSIGNED:
        number = isNumberType(type.sqlType) ? SQL_FALSE : SQL_TRUE;
        return true;
    case SQL_DESC_CASE_SENSITIVE:
        number = isTextType(type.sqlType) ? SQL_TRUE : SQL_FALSE;
        return true;
    case SQL_DESC_SEARCHABLE:
        number = SQL_PRED_SEARCHABLE;
        return true;
    case SQL_DESC_UPDATABLE:
        number = SQL_ATTR_READWRITE_UNKNOWN;
        return true;
    case SQL_DESC_UNNAMED:
        number = column.source.label.empty() ? SQL_UNNAMED : SQL_NAMED;
        return true;
    case SQL_DESC_NUM_PREC_RADIX:
        number = isNumberType(type.sqlType) ? 10 : 0;
        return true;
    case SQL_DESC_AUTO_UNIQUE_VALUE:
    case SQL_DESC_FIXED_PREC_SCALE:
        number = SQL_FALSE;
        return true;
    default:
        return false;
    }
}
} // namespace

SQLRETURN Statement::columnAttribute(SQLUSMALLINT number, SQLUSMALLINT field, SQLPOINTER text,
    SQLSMALLINT capacity, SQLSMALLINT* length, SQLLEN* value)
{
    if (state_ == State::Empty || state_ == State::NeedsData)
        return diagnostics_.fail("HY010", "no statement has been prepared or run");
    if (field == SQL_DESC_COUNT || field == SQL_COLUMN_COUNT) {
        SQLSMALLINT count = 0;
        columnCount(&count);
        if (value)
            *value = count;
        return SQL_SUCCESS;
    }
    if (!checkColumn(number))
        return SQL_ERROR;
    const DescribedColumn& column = columns()[number - 1u];
    std::string answer;
    if (textField(column, field, answer))
        return copyOut(answer, text, capacity, length)
            ? SQL_SUCCESS
            : diagnostics_.warn("01004", "the text is longer than the buffer");
    SQLLEN answerNumber = 0;
    if (!numberField(column, field, connection_.isVersion2(), answerNumber))
        return diagnostics_.fail(
            "HY091", "column attribute " + std::to_string(field) + " is not known");
    if (value)
        *value = answerNumber;
    return SQL_SUCCESS;
}

} // namespace desktopdb

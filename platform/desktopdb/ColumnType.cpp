// platform/desktopdb/ColumnType.cpp
#include "platform/desktopdb/ColumnType.h"

#include "platform/desktopdb/AsciiText.h"

#include <algorithm>
#include <iterator>

namespace desktopdb {

namespace {
constexpr SQLULEN kLongText = 65535; // what a memo of unknown length reports

struct TypeWord {
    std::string_view word;
    SQLULEN size; // when the declaration gives none
    SQLSMALLINT sqlType;
    SQLSMALLINT digits; // when the declaration gives none
};

constexpr TypeWord kTypeWords[] = {
    {"CHAR", 1, SQL_CHAR, 0},
    {"CHARACTER", 1, SQL_CHAR, 0},
    {"NCHAR", 1, SQL_CHAR, 0},
    {"VARCHAR", 255, SQL_VARCHAR, 0},
    {"VARCHAR2", 255, SQL_VARCHAR, 0},
    {"NVARCHAR", 255, SQL_VARCHAR, 0},
    {"CHARACTER VARYING", 255, SQL_VARCHAR, 0},
    {"TEXT", kLongText, SQL_LONGVARCHAR, 0},
    {"MEMO", kLongText, SQL_LONGVARCHAR, 0},
    {"CLOB", kLongText, SQL_LONGVARCHAR, 0},
    {"LONGCHAR", kLongText, SQL_LONGVARCHAR, 0},
    {"LONGTEXT", kLongText, SQL_LONGVARCHAR, 0},
    {"LONG VARCHAR", kLongText, SQL_LONGVARCHAR, 0},
    {"INTEGER", 10, SQL_INTEGER, 0},
    {"INT", 10, SQL_INTEGER, 0},
    {"LONG", 10, SQL_INTEGER, 0},
    {"MEDIUMINT", 10, SQL_INTEGER, 0},
    {"COUNTER", 10, SQL_INTEGER, 0},
    {"BIGINT", 19, SQL_BIGINT, 0},
    {"SMALLINT", 5, SQL_SMALLINT, 0},
    {"SHORT", 5, SQL_SMALLINT, 0},
    {"TINYINT", 3, SQL_TINYINT, 0},
    {"BYTE", 3, SQL_TINYINT, 0},
    {"BIT", 1, SQL_BIT, 0},
    {"BOOLEAN", 1, SQL_BIT, 0},
    {"YESNO", 1, SQL_BIT, 0},
    {"DOUBLE", 15, SQL_DOUBLE, 0},
    {"DOUBLE PRECISION", 15, SQL_DOUBLE, 0},
    {"FLOAT", 15, SQL_FLOAT, 0},
    {"REAL", 7, SQL_REAL, 0},
    {"SINGLE", 7, SQL_REAL, 0},
    {"NUMERIC", 15, SQL_NUMERIC, 0},
    {"DECIMAL", 15, SQL_DECIMAL, 0},
    {"NUMBER", 15, SQL_DECIMAL, 0},
    {"CURRENCY", 19, SQL_DECIMAL, 4},
    {"DATE", 10, SQL_TYPE_DATE, 0},
    {"TIME", 8, SQL_TYPE_TIME, 0},
    {"DATETIME", 19, SQL_TYPE_TIMESTAMP, 0},
    {"TIMESTAMP", 19, SQL_TYPE_TIMESTAMP, 0},
    {"BINARY", 255, SQL_BINARY, 0},
    {"VARBINARY", 255, SQL_VARBINARY, 0},
    {"BLOB", kLongText, SQL_LONGVARBINARY, 0},
    {"LONGBINARY", kLongText, SQL_LONGVARBINARY, 0},
};

constexpr TypeWord kUnknown{"VARCHAR", 255, SQL_VARCHAR, 0};

struct Declaration {
    std::string word;
    SQLULEN numbers[2] = {0, 0};
    int count = 0;
};

// "double  precision" and "varchar ( 20 )" are allowed spellings.
Declaration readDeclaration(std::string_view text)
{
    Declaration result;
    const size_t bracket = std::min(text.find('('), text.size());
    for (const char c : text.substr(0, bracket)) {
        const bool blank = isSpace(c);
        if (!blank)
            result.word += upperOf(c);
        else if (!result.word.empty() && result.word.back() != ' ')
            result.word += ' ';
    }
    while (result.word.ends_with(' '))
        result.word.pop_back();
    bool inNumber = false;
    for (const char c : text.substr(bracket)) {
        const bool digit = isDigit(c);
        if (digit && !inNumber && ++result.count > 2)
            break;
        if (digit)
            result.numbers[result.count - 1] =
                result.numbers[result.count - 1] * 10 + static_cast<SQLULEN>(c - '0');
        inNumber = digit;
    }
    result.count = std::min(result.count, 2);
    return result;
}

// TEXT(20) is a text of known length, unlike TEXT.
SQLSMALLINT sqlTypeOf(const TypeWord& known, bool sized)
{
    if (known.sqlType == SQL_LONGVARCHAR && sized)
        return SQL_VARCHAR;
    // A number without digits named holds any, fractions too.
    if (known.sqlType == SQL_DECIMAL && known.word == "NUMBER" && !sized)
        return SQL_DOUBLE;
    return known.sqlType;
}

bool takesSize(SQLSMALLINT sqlType)
{
    return isTextType(sqlType) || sqlType == SQL_NUMERIC || sqlType == SQL_DECIMAL
        || sqlType == SQL_BINARY || sqlType == SQL_VARBINARY;
}

// A character takes up to four bytes.
SQLLEN octetsOf(SQLSMALLINT sqlType, SQLULEN size)
{
    switch (sqlType) {
    case SQL_INTEGER:
    case SQL_REAL:
        return 4;
    case SQL_SMALLINT:
        return 2;
    case SQL_TINYINT:
    case SQL_BIT:
        return 1;
    case SQL_BIGINT:
    case SQL_DOUBLE:
    case SQL_FLOAT:
        return 8;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
        return static_cast<SQLLEN>(size) + 2;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
        return 6;
    case SQL_TYPE_TIMESTAMP:
        return 16;
    case SQL_CHAR:
    case SQL_VARCHAR:
        return static_cast<SQLLEN>(size) * 4;
    default:
        return static_cast<SQLLEN>(size);
    }
}

SQLLEN displayOf(SQLSMALLINT sqlType, SQLULEN size)
{
    switch (sqlType) {
    case SQL_INTEGER:
    case SQL_SMALLINT:
    case SQL_BIGINT:
        return static_cast<SQLLEN>(size) + 1;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
        return static_cast<SQLLEN>(size) + 2;
    case SQL_DOUBLE:
    case SQL_FLOAT:
        return 24;
    case SQL_REAL:
        return 14;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return static_cast<SQLLEN>(size) * 2;
    default:
        return static_cast<SQLLEN>(size);
    }
}

ColumnType makeType(std::string_view name, SQLSMALLINT sqlType, SQLULEN size, SQLSMALLINT digits)
{
    return {sqlType, size, digits, octetsOf(sqlType, size), displayOf(sqlType, size),
        std::string(name)};
}
} // namespace

ColumnType typeOfDeclaration(std::string_view text)
{
    const Declaration declared = readDeclaration(text);
    const auto* found = std::ranges::find(kTypeWords, declared.word, &TypeWord::word);
    const TypeWord& known = found == std::end(kTypeWords) ? kUnknown : *found;
    const SQLSMALLINT sqlType = sqlTypeOf(known, declared.count > 0);
    const bool sized = declared.count > 0 && takesSize(sqlType);
    return makeType(declared.word.empty() ? known.word : std::string_view(declared.word), sqlType,
        sized ? declared.numbers[0] : known.size,
        sized && declared.count == 2 ? static_cast<SQLSMALLINT>(declared.numbers[1])
                                     : known.digits);
}

ColumnType typeOfValue(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return makeType("INTEGER", SQL_INTEGER, 10, 0);
    case ValueKind::Real:
        return makeType("DOUBLE", SQL_DOUBLE, 15, 0);
    case ValueKind::Blob:
        return makeType("BLOB", SQL_LONGVARBINARY, kLongText, 0);
    default:
        return makeType("VARCHAR", SQL_VARCHAR, 255, 0);
    }
}

SQLSMALLINT typeForVersion(SQLSMALLINT sqlType, bool version2)
{
    constexpr SQLSMALLINT kStep = SQL_TYPE_DATE - SQL_DATE;
    const bool dated = sqlType >= SQL_TYPE_DATE && sqlType <= SQL_TYPE_TIMESTAMP;
    return dated && version2 ? static_cast<SQLSMALLINT>(sqlType - kStep) : sqlType;
}

bool isNumberType(SQLSMALLINT sqlType)
{
    return (sqlType >= SQL_NUMERIC && sqlType <= SQL_DOUBLE)
        || (sqlType <= SQL_BIGINT && sqlType >= SQL_BIT);
}

bool isTextType(SQLSMALLINT sqlType)
{
    return sqlType == SQL_CHAR || sqlType == SQL_VARCHAR || sqlType == SQL_LONGVARCHAR;
}

} // namespace desktopdb

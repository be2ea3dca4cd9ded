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
    SQLSMALLINT sqlType;
    SQLULEN size;       // when the declaration gives none
    SQLSMALLINT digits; // the same
};

constexpr TypeWord kTypeWords[] = {
    {"CHAR", SQL_CHAR, 1, 0},
    {"CHARACTER", SQL_CHAR, 1, 0},
    {"NCHAR", SQL_CHAR, 1, 0},
    {"VARCHAR", SQL_VARCHAR, 255, 0},
    {"VARCHAR2", SQL_VARCHAR, 255, 0},
    {"NVARCHAR", SQL_VARCHAR, 255, 0},
    {"CHARACTER VARYING", SQL_VARCHAR, 255, 0},
    {"TEXT", SQL_LONGVARCHAR, kLongText, 0},
    {"MEMO", SQL_LONGVARCHAR, kLongText, 0},
    {"CLOB", SQL_LONGVARCHAR, kLongText, 0},
    {"LONGCHAR", SQL_LONGVARCHAR, kLongText, 0},
    {"LONGTEXT", SQL_LONGVARCHAR, kLongText, 0},
    {"LONG VARCHAR", SQL_LONGVARCHAR, kLongText, 0},
    {"INTEGER", SQL_INTEGER, 10, 0},
    {"INT", SQL_INTEGER, 10, 0},
    {"LONG", SQL_INTEGER, 10, 0},
    {"MEDIUMINT", SQL_INTEGER, 10, 0},
    {"COUNTER", SQL_INTEGER, 10, 0},
    {"BIGINT", SQL_BIGINT, 19, 0},
    {"SMALLINT", SQL_SMALLINT, 5, 0},
    {"SHORT", SQL_SMALLINT, 5, 0},
    {"TINYINT", SQL_TINYINT, 3, 0},
    {"BYTE", SQL_TINYINT, 3, 0},
    {"BIT", SQL_BIT, 1, 0},
    {"BOOLEAN", SQL_BIT, 1, 0},
    {"YESNO", SQL_BIT, 1, 0},
    {"DOUBLE", SQL_DOUBLE, 15, 0},
    {"DOUBLE PRECISION", SQL_DOUBLE, 15, 0},
    {"FLOAT", SQL_FLOAT, 15, 0},
    {"REAL", SQL_REAL, 7, 0},
    {"SINGLE", SQL_REAL, 7, 0},
    {"NUMERIC", SQL_NUMERIC, 15, 0},
    {"DECIMAL", SQL_DECIMAL, 15, 0},
    {"NUMBER", SQL_DECIMAL, 15, 0},
    {"CURRENCY", SQL_DECIMAL, 19, 4},
    {"DATE", SQL_TYPE_DATE, 10, 0},
    {"TIME", SQL_TYPE_TIME, 8, 0},
    {"DATETIME", SQL_TYPE_TIMESTAMP, 19, 0},
    {"TIMESTAMP", SQL_TYPE_TIMESTAMP, 19, 0},
    {"BINARY", SQL_BINARY, 255, 0},
    {"VARBINARY", SQL_VARBINARY, 255, 0},
    {"BLOB", SQL_LONGVARBINARY, kLongText, 0},
    {"LONGBINARY", SQL_LONGVARBINARY, kLongText, 0},
};

constexpr TypeWord kUnknown{"VARCHAR", SQL_VARCHAR, 255, 0};

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

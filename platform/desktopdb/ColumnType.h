// platform/desktopdb/ColumnType.h
#pragma once

#include "platform/desktopdb/Value.h"

#include <sqlext.h>
#include <string>
#include <string_view>

namespace desktopdb {

/// A column's type in ODBC's terms, date types with their 3.x codes.
struct ColumnType {
    SQLSMALLINT sqlType = SQL_VARCHAR;
    SQLULEN size = 255;           ///< characters, digits or bytes
    SQLSMALLINT digits = 0;       ///< behind the point
    SQLLEN octets = 255;          ///< longest value in bytes
    SQLLEN display = 255;         ///< longest value as text
    std::string name = "VARCHAR"; ///< the word of the declaration, in capitals
};

/// The type that a declaration such as "VARCHAR(20)" or "number(8, 2)" means; a word that is not
/// known is text.
ColumnType typeOfDeclaration(std::string_view declaration);

/// The type of an expression whose first value is of this kind.
ColumnType typeOfValue(ValueKind kind);

/// 3.x date codes as a 2.x application knows them; all others as they are.
SQLSMALLINT typeForVersion(SQLSMALLINT sqlType, bool version2);

bool isNumberType(SQLSMALLINT sqlType);
bool isTextType(SQLSMALLINT sqlType);

} // namespace desktopdb

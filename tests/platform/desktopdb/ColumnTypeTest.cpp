// tests/platform/desktopdb/ColumnTypeTest.cpp
#include "platform/desktopdb/ColumnType.h"

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

struct TypeCase {
    const char* declaration;
    SQLSMALLINT sqlType;
    SQLULEN size;
    SQLSMALLINT digits;
    const char* name;
};

void PrintTo(const TypeCase& c, std::ostream* out) { *out << c.declaration; }

const TypeCase kTypes[] = {
    {"VARCHAR(20)", SQL_VARCHAR, 20, 0, "VARCHAR"},
    {" varchar2 ( 7 ) ", SQL_VARCHAR, 7, 0, "VARCHAR2"},
    {"CHAR(3)", SQL_CHAR, 3, 0, "CHAR"},
    {"CHAR", SQL_CHAR, 1, 0, "CHAR"},
    {"TEXT", SQL_LONGVARCHAR, 65535, 0, "TEXT"},
    {"TEXT(50)", SQL_VARCHAR, 50, 0, "TEXT"},
    {"INTEGER", SQL_INTEGER, 10, 0, "INTEGER"},
    {"integer(5)", SQL_INTEGER, 10, 0, "INTEGER"},
    {"SMALLINT", SQL_SMALLINT, 5, 0, "SMALLINT"},
    {"BIGINT", SQL_BIGINT, 19, 0, "BIGINT"},
    {"DOUBLE", SQL_DOUBLE, 15, 0, "DOUBLE"},
    {"double  precision", SQL_DOUBLE, 15, 0, "DOUBLE PRECISION"},
    {"REAL", SQL_REAL, 7, 0, "REAL"},
    {"FLOAT", SQL_FLOAT, 15, 0, "FLOAT"},
    {"NUMERIC(8,2)", SQL_NUMERIC, 8, 2, "NUMERIC"},
    {"NUMBER(8, 2)", SQL_DECIMAL, 8, 2, "NUMBER"},
    {"NUMBER", SQL_DOUBLE, 15, 0, "NUMBER"},
    {"DATE", SQL_TYPE_DATE, 10, 0, "DATE"},
    {"TIMESTAMP", SQL_TYPE_TIMESTAMP, 19, 0, "TIMESTAMP"},
    {"BLOB", SQL_LONGVARBINARY, 65535, 0, "BLOB"},
    {"BOOLEAN", SQL_BIT, 1, 0, "BOOLEAN"},
    {"geometry", SQL_VARCHAR, 255, 0, "GEOMETRY"},
    {"", SQL_VARCHAR, 255, 0, "VARCHAR"},
    {"VARCHAR(1,2,3)", SQL_VARCHAR, 1, 2, "VARCHAR"},
};

class TypeOfDeclaration : public testing::TestWithParam<TypeCase> {};

TEST_P(TypeOfDeclaration, Facts)
{
    const ColumnType type = typeOfDeclaration(GetParam().declaration);
    EXPECT_EQ(type.sqlType, GetParam().sqlType);
    EXPECT_EQ(type.size, GetParam().size);
    EXPECT_EQ(type.digits, GetParam().digits);
    EXPECT_EQ(type.name, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Declarations, TypeOfDeclaration, testing::ValuesIn(kTypes));

TEST(TypeForVersion, MapsDatesOnly)
{
    EXPECT_EQ(typeForVersion(SQL_TYPE_DATE, true), 9);
    EXPECT_EQ(typeForVersion(SQL_TYPE_TIMESTAMP, true), 11);
    EXPECT_EQ(typeForVersion(SQL_TYPE_DATE, false), 91);
    EXPECT_EQ(typeForVersion(SQL_VARCHAR, true), SQL_VARCHAR);
}

} // namespace

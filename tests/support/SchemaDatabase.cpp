// tests/support/SchemaDatabase.cpp
#include "tests/support/SchemaDatabase.h"

#include "schema/Schema.h"
#include "tests/support/DriverControl.h"

SchemaDatabase::SchemaDatabase(const std::string& dialect, const std::string& file)
    : OdbcConnection(driver_control::connectString(file, dialect))
{
    begin();
    for (const std::string_view statement : schemaStatements())
        run(std::string(statement));
}

SchemaDatabase::~SchemaDatabase() { commit(); }

// tests/support/SchemaDatabase.h
#pragma once

#include "tests/support/OdbcConnection.h"
#include "tests/support/Workspace.h"

/// The shipped tables in a new database. They and all that follows are one transaction, which the
/// end commits, since commits would take most of a test's time.
class SchemaDatabase : public OdbcConnection {
public:
    /// `dialect` is "Oracle" or "Access".
    explicit SchemaDatabase(const std::string& dialect = "Access",
        const std::string& file = workspace::newFile("schema.db"));
    ~SchemaDatabase();
};

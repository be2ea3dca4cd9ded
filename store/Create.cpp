// store/Create.cpp
#include "store/Create.h"

#include "db/SchemaInspection.h"
#include "schema/Schema.h"
#include "store/Statement.h"
#include "store/Transaction.h"

std::string createDatabase(const FillDatabase& fill)
{
    if (tableExists("WELLS"))
        return "The database has tables already.";
    Transaction transaction;
    for (const std::string_view text : schemaStatements()) {
        Statement statement{std::string(text)};
        if (!statement.execute())
            return statement.sql() + ": " + statement.error();
    }
    const std::string problem = fill ? fill() : std::string();
    if (!problem.empty())
        return problem;
    return transaction.commit() ? std::string() : transaction.error();
}

// schema/Migrations.cpp
#include "schema/Migrations.h"

#include "schema/StatementSplitter.h"

// The texts of migrations/*.sql; written at build time.
extern const std::string_view migration2Text;

std::span<const Migration> migrations()
{
    static const std::vector<Migration> steps{
        {2, splitStatements(migration2Text)},
    };
    return steps;
}

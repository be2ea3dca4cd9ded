// schema/Schema.cpp
#include "schema/Schema.h"

#include "schema/StatementSplitter.h"

/// All SQL files, one behind the other; written at build time.
extern const std::string_view schemaText;

std::span<const std::string_view> schemaStatements()
{
    static const std::vector<std::string_view> statements = splitStatements(schemaText);
    return statements;
}

// schema/SchemaObjects.h
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// One thing that a statement of the shipped schema makes.
struct SchemaObject {
    std::string_view kind; ///< "TABLE", "INDEX", "VIEW" or "TRIGGER"
    std::string name;
    std::vector<std::string> columns; ///< of a table, in their order
    std::string_view statement;
};

/// All of them, in the order of the statements. Valid for the life of the process.
std::span<const SchemaObject> schemaObjects();

/// A column, or several that are a key together ("well_id, analy_id"), whose values name rows of
/// another table. The engine does not see to it.
struct Relation {
    const char* table;
    const char* columns;
    const char* target;
    const char* targetColumns;
};

/// All relations of the shipped schema. NULL names no row, and of a number neither does 0.
std::span<const Relation> relations();

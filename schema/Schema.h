// schema/Schema.h
#pragma once

#include <span>
#include <string_view>

// The tables of the embedded database, from the SQL files of this folder.

/// Version of the tables, as SCHEMA_INFO.version holds it in a database made from them.
inline constexpr int kSchemaVersion = 2;

/// The statements that turn an empty database into one with every table, index, view and trigger,
/// in the order in which they have to run. Each is whole, a trigger with its body, and comes
/// without its final semicolon and without the comments before it. Valid for the life of the
/// process.
std::span<const std::string_view> schemaStatements();

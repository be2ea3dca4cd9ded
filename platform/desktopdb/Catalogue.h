// platform/desktopdb/Catalogue.h
#pragma once

#include "platform/desktopdb/Engine.h"

#include <memory>
#include <optional>
#include <sqlext.h>
#include <string>

namespace desktopdb {

/// An argument of a catalogue function; nothing when the application passed a null pointer.
using CatalogueArgument = std::optional<std::string>;

// The catalogue functions' rows, in ODBC's columns and order. Owners do not exist in the engine:
// an owner that is asked for is taken and echoed as TABLE_SCHEM. Names compare without regard to
// case; in pattern arguments % and _ are wildcards and \ takes their meaning away. Null on
// failure.

/// `name` is a pattern; `types` a list such as "'TABLE','VIEW'", in quotes or not.
std::unique_ptr<RowSource> tableRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& name, const CatalogueArgument& types, Failure& failure);

/// `table` and `column` are patterns. `version2` chooses the date codes.
std::unique_ptr<RowSource> columnRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& table, const CatalogueArgument& column, bool version2,
    Failure& failure);

std::unique_ptr<RowSource> primaryKeyRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& table, Failure& failure);

std::unique_ptr<RowSource> statisticsRows(Engine& engine, const CatalogueArgument& owner,
    const CatalogueArgument& table, bool uniqueOnly, Failure& failure);

/// The types that CREATE TABLE takes: those of code `sqlType`, or SQL_ALL_TYPES.
std::unique_ptr<RowSource> typeRows(SQLSMALLINT sqlType, bool version2);

} // namespace desktopdb

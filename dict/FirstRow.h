// dict/FirstRow.h
#pragma once

#include "db/Cursor.h"
#include "db/ErrorReporter.h"

#include <string>

/// What a query for one row came to.
enum class FirstRow { Taken, None, Failed };

/// Hands the first row of a query to `take`. A statement that could not be run is reported, behind
/// `introduction`; a fatal report returns only when a lost connection was restored.
template <typename Take>
FirstRow takeFirstRow(const std::string& sql, Fatal fatal, Take take, const char* introduction = "")
{
    Cursor row(sql);
    if (!row) {
        reportDbFailureAs(introduction + sql, fatal);
        return FirstRow::Failed;
    }
    if (!row.next())
        return FirstRow::None;
    take(row);
    return FirstRow::Taken;
}

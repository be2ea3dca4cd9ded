// store/Rows.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <functional>
#include <string>
#include <vector>

/// Runs the statement and hands the values of each row to `take`. False: the statement's error.
bool readAll(Statement& statement, const std::vector<ColumnType>& types,
    const std::function<void(const std::vector<Value>&)>& take);

/// What a row that is written gets beside the values given for it. Alone they change nothing.
struct RowDefaults {
    Row whenNew;     ///< where nothing is given
    Row whenChanged; ///< in any case
};

/// Inserts the row of that key, or changes what differs; checking, it only finds out. Failed: the
/// table's error.
Outcome putRow(TableWriter& table, Writing writing, const std::vector<Value>& key, const Row& given,
    const RowDefaults& defaults = {});

/// A text of the database as people read it; empty for NULL.
std::string textOf(const Value& value);
/// 0 for NULL.
long integerOf(const Value& value);

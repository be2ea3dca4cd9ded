// store/RockWriters.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

// Rocks of a well over depth intervals. All depths are metres.

/// Brings intervals of one rock each in (ZRILITH), found by their depths.
class RockIntervalWriter {
public:
    explicit RockIntervalWriter(Writing writing);

    Outcome put(long wellId, double top, double base, long lithologyId);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

/// Brings accessory rocks in (ZRQLITH), found by their depths and rock.
class AccessoryRockWriter {
public:
    explicit AccessoryRockWriter(Writing writing);

    /// `place`: across the column, in percent of its width from the left.
    Outcome put(long wellId, double top, double base, long lithologyId, double place);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

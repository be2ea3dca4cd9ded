// store/MarkerWriters.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <set>
#include <string>
#include <utility>

// What stands at single depths of a well. All depths are metres.

/// Brings casing shoes in (CASING), found by depth and diameter. Those of a well are read when it
/// is first asked for: a shoe whose diameter is not known has none to search by.
class CasingWriter {
public:
    explicit CasingWriter(Writing writing);

    /// `diameter`: inches as text, at most 9 bytes, empty when it is not known.
    Outcome put(long wellId, double depth, const std::string& diameter);

    const std::string& error() const { return error_; }

private:
    using Shoes = std::set<std::pair<double, std::string>>;

    Shoes* of(long wellId);

    Writing writing_;
    TableWriter table_;
    std::map<long, Shoes> wells_;
    std::string error_;
};

/// Brings seismic markers in (WELLSMARK), found by depth.
class MarkerWriter {
public:
    explicit MarkerWriter(Writing writing);

    /// `colour`: a name, at most 20 bytes; not set: left as it is.
    Outcome put(long wellId, double depth, const std::optional<Value>& colour);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

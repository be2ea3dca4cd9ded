// app/import/RockIntervals.h
#pragma once

#include "app/import/DepthInterval.h"

#include <map>
#include <string>
#include <tuple>

struct KnownWell;

/// The intervals of a set whose rocks stand in another file, known by well and base.
class RockIntervals {
public:
    void add(const std::string& set, const KnownWell* well, const DepthInterval& interval)
    {
        intervals_[{set, well, std::to_string(interval.base)}] = interval;
    }
    /// Null without one.
    const DepthInterval* find(const std::string& set, const KnownWell* well, double base) const
    {
        const auto found = intervals_.find({set, well, std::to_string(base)});
        return found == intervals_.end() ? nullptr : &found->second;
    }

private:
    // By the text of the base, to 0.001 mm: units are converted in two files.
    std::map<std::tuple<std::string, const KnownWell*, std::string>, DepthInterval> intervals_;
};

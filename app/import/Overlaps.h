// app/import/Overlaps.h
#pragma once

#include "app/import/RowPlaces.h"

#include <map>
#include <string>
#include <unordered_map>

/// Intervals of depths or ages by groups, to find those that overlap. What a row is told stays the
/// same when it is asked again, though rows further down were added meanwhile.
class Overlaps {
public:
    /// Where an interval of the group that shares more than an end with this one came before; null
    /// without one. `least` is at most `most`.
    const RowPlace* before(
        const std::string& group, double least, double most, const RowPlace& place);

private:
    struct Interval {
        double most;
        RowPlace place;
    };
    /// By the lesser end. None lies within another, so both ends rise together.
    using Intervals = std::map<double, Interval>;
    struct Found {
        RowPlace place;
        bool any = false;
    };

    static Found add(Intervals& intervals, double least, double most, const RowPlace& place);

    std::unordered_map<std::string, Intervals> groups_;
    Decisions<Found> found_;
};

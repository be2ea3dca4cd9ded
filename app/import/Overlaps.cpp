// app/import/Overlaps.cpp
#include "app/import/Overlaps.h"

#include <iterator>

const RowPlace* Overlaps::before(
    const std::string& group, double least, double most, const RowPlace& place)
{
    const Found& found = found_.of(place, [&] { return add(groups_[group], least, most, place); });
    return found.any ? &found.place : nullptr;
}

Overlaps::Found Overlaps::add(
    Intervals& intervals, double least, double most, const RowPlace& place)
{
    Found found;
    auto next = intervals.upper_bound(least);
    if (next != intervals.begin()) {
        const Interval& previous = std::prev(next)->second;
        if (previous.most > least)
            found = {previous.place, true};
        // What overlaps an interval within another overlaps the other one as well.
        if (previous.most >= most)
            return found;
    }
    if (!found.any && next != intervals.end() && next->first < most)
        found = {next->second.place, true};
    while (next != intervals.end() && next->second.most <= most)
        next = intervals.erase(next);
    intervals.insert_or_assign(least, Interval{most, place});
    return found;
}

// interp/TermOrder.h
#pragma once

#include "interp/igdDict.h"

#include <limits>
#include <string_view>

// The two orders by age in which a scheme holds its terms, as rules for `PlaceIndex`: a term that
// comes in goes before the first member at which a walk from the front stops. Neither is a total
// order, so the order in which terms arrive decides between those that the rule does not tell
// apart.

/// What terms reach together. Views into their names: for terms that stay.
struct TermReach {
    float oldestUpper = -std::numeric_limits<float>::infinity();
    float oldestLower = -std::numeric_limits<float>::infinity();
    int lowestRank = std::numeric_limits<int>::max();
    int highestRank = std::numeric_limits<int>::min();
    std::string_view greatestName;

    void widen(const igdDict& term);
};

/// Within one rank: by upper age; at the same upper age before a term of a lower rank number or
/// with an older lower age.
struct LevelOrder {
    using Member = igdDict;
    using Reach = TermReach;

    bool stops(const igdDict& at, const igdDict& added) const;
    bool mayStop(const TermReach& branch, const igdDict& added) const;
};

/// All terms of a scheme: before a term that is not younger at either end, not of a wider rank, and
/// has a greater name (by bytes). A term that is less in one of these alone is passed, so a younger
/// term may come to stand behind an older one.
struct AllTermsOrder {
    using Member = igdDict;
    using Reach = TermReach;

    bool stops(const igdDict& at, const igdDict& added) const;
    bool mayStop(const TermReach& branch, const igdDict& added) const;
};

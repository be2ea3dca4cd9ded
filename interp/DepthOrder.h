// interp/DepthOrder.h
#pragma once

#include "interp/IGDBase.h"

#include <limits>

/// Which of two records with the same top comes first in a list.
enum class SameTop {
    ThickestFirst,
    ThinnestFirst,
    ThinnestFirstInRank, ///< between records of one rank; the thickest first between ranks
};

/// The order of a list of records: by top, then by base as the type says. Equals keep their order
/// of arrival.
class DepthOrder {
public:
    using Member = IGDBase;

    /// What the records of a branch reach together.
    struct Reach {
        float deepestTop = -std::numeric_limits<float>::infinity();
        float shallowestTop = std::numeric_limits<float>::infinity();
        float deepestBase = -std::numeric_limits<float>::infinity();
        float shallowestBase = std::numeric_limits<float>::infinity();
        int lowestRank = std::numeric_limits<int>::max();
        int highestRank = std::numeric_limits<int>::min();

        void widen(const IGDBase& record);
    };

    explicit DepthOrder(SameTop sameTop)
        : sameTop_(sameTop)
    {
    }

    /// Whether a record that comes in goes before `at`, a walk from the front having passed all
    /// records before it.
    bool stops(const IGDBase& at, const IGDBase& added) const;
    bool mayStop(const Reach& branch, const IGDBase& added) const;

private:
    bool thinnestFirst(const IGDBase& at, const IGDBase& added) const;

    SameTop sameTop_;
};

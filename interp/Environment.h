// interp/Environment.h
#pragma once

#include "interp/IGDBase.h"
#include "util/Date.h"
#include "util/FixedText.h"

#include <string>

/// The depositional environment of an interval: a range between two terms of a scheme at its top,
/// and one at its base.
class Environment : public IGDBase {
public:
    static constexpr int kType = 5;

    /// Between two samples; depths 0 until they are set. Changed by nobody, at no date.
    Environment(
        long top_id, long base_id, int up, int ud, int lp, int ld, int qual, long envsch_id);
    /// Between two depths, the samples -1. Changed today by the current user.
    Environment(float top, float base, int up, int ud, int lp, int ld, int qual, long envsch_id);

    /// Takes everything over.
    void copyFrom(const Environment& other);
    /// "(upper, upper) - (lower, lower)" with the names of the terms.
    std::string label() const override;

    long top_id; ///< SAMPLES.samp_id
    long base_id;
    // Numbers of terms, from 1 on.
    int up;               ///< at the top of the interval: from
    int ud;               ///< to
    int lp;               ///< at its base: from
    int ld;               ///< to
    int qual;             ///< qualifier, 0 for none
    FixedText<50> upText; ///< the names of these terms
    FixedText<50> udText;
    FixedText<50> lpText;
    FixedText<50> ldText;
    FixedText<50> qualText;
    long envsch_id; ///< ENV_SCH.envsch_id
    Date modified;
    std::string modifier; ///< user abbreviation
};

// interp/IntLithZone.h
#pragma once

#include "interp/IGDBase.h"
#include "util/FixedText.h"

#include <string>

/// An interval of one rock type.
class IntLithZone : public IGDBase {
public:
    static constexpr int kType = 12;

    IntLithZone(
        float top, float base, long lithId, const char* description, const char* abbreviation);
    /// Without texts.
    IntLithZone(float top, float base, long lithId);

    void copyFrom(const IntLithZone& other);
    std::string label() const override { return descr.str(); }

    /// Stores the interval and commits, its depths as it holds them: the record of a list in feet
    /// must not come here. Negated when `negate` is not 0. False after a reported failure. All
    /// cursors must be closed.
    bool insertRecord(long well_id, int negate) const;
    /// Deletes what is stored of the well within 0.01 of both depths, whatever its rock, and
    /// commits; otherwise as `insertRecord`.
    bool deleteRecord(long well_id, int negate) const;

    long lith_id; ///< LITHDESC.lith_id
    FixedText<10> abr;
    FixedText<80> descr;
};

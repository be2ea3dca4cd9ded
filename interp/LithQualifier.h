// interp/LithQualifier.h
#pragma once

#include "interp/IGDBase.h"
#include "util/FixedText.h"

#include <string>
#include <utility>

/// What is said of the rock at a depth: an accessory, a qualifier, a stringer or a free text.
class LithQualifier : public IGDBase {
public:
    static constexpr int kType = 13;
    static constexpr char kFreeText = 'Z';

    /// On the left.
    LithQualifier(float top, float base, char kind, float position, long lithId,
        const char* description, const char* abbreviation);

    /// Takes the top, the rock with its description, the kind and the place across the column; base
    /// and abbreviation stay.
    void copyFrom(const LithQualifier& other);
    std::string label() const override { return descr.str(); }

    char qualType() const { return qualType_; }
    char alignment() const { return alignment_; }
    float plotpos() const { return plotpos_; }
    // Each returns the value from before.
    char setQualType(char kind) { return std::exchange(qualType_, kind); }
    char setAlignment(char side) { return std::exchange(alignment_, side); }
    float setPlotpos(float position) { return std::exchange(plotpos_, position); }

    /// Stores the qualifier and commits, its depths as it holds them: the record of a list in feet
    /// must not come here. Negated when `negate` is not 0. Its place across the column loses its
    /// decimals, and a free text is not stored. False after a reported failure. All cursors must be
    /// closed.
    bool insertRecord(long well_id, int negate) const;
    /// Deletes what is stored of the well within 0.01 of the top with this rock at this place
    /// across the column, without decimals, and commits; otherwise as `insertRecord`.
    bool deleteRecord(long well_id, int negate) const;

    long lith_id; ///< LITHDESC.lith_id
    FixedText<10> abr;
    FixedText<80> descr;

private:
    char qualType_; ///< 'A', 'Q', 'S' or `kFreeText`
    char alignment_ = 'L';
    float plotpos_; ///< across the column
};

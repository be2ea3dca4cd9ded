// interp/LithZone.h
#pragma once

#include "interp/IGDBase.h"
#include "util/FixedText.h"

#include <string>

/// Rock of one type between two samples. Made by callers: no table keeps it.
class LithZone : public IGDBase {
public:
    static constexpr int kType = 1;

    /// At no depth.
    LithZone(int lithId, const char* description)
        : LithZone(0, "", 0, "", lithId, "", description)
    {
    }
    LithZone(float top, const char* topType, float base, const char* baseType, int lithId,
        const char* abbreviation, const char* description)
        : IGDBase(kType, top, base)
        , topSampleType(topType)
        , baseSampleType(baseType)
        , lith_id(lithId)
        , abr(abbreviation)
        , descr(description)
    {
    }

    std::string label() const override { return descr.str(); }

    long top_id = 0; ///< SAMPLES.samp_id
    long base_id = 0;
    FixedText<5> topSampleType; ///< type codes of the two samples
    FixedText<5> baseSampleType;
    int lith_id; ///< LITHDESC.lith_id
    FixedText<10> abr;
    FixedText<88> descr;
};

// interp/Smark.h
#pragma once

#include "interp/IGDBase.h"
#include "util/FixedText.h"

/// A seismic marker, at one depth.
class Smark : public IGDBase {
public:
    static constexpr int kType = 14;

    Smark(const char* code, float depth, const char* colourText, int markerFlag)
        : IGDBase(kType, depth, 0)
        , wellCode(code)
        , colour(colourText)
        , flag(markerFlag)
    {
    }

    float value() const override { return getTop(0); }

    FixedText<25> wellCode;
    FixedText<20> colour; ///< as stored
    int flag;             ///< 0 when loaded
};

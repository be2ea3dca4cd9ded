// interp/Casing.h
#pragma once

#include "interp/IGDBase.h"
#include "util/FixedText.h"

/// The shoe of a casing, at one depth.
class Casing : public IGDBase {
public:
    static constexpr int kType = 11;

    Casing(const char* code, float depth, const char* diameter)
        : IGDBase(kType, depth, 0)
        , wellCode(code)
        , diam(diameter)
    {
    }

    float value() const override { return depth(); }
    float depth() const { return getTop(0); }
    void setDepth(float depth) { setTop(depth); }

    FixedText<25> wellCode;
    FixedText<9> diam; ///< as stored, with fractions
};

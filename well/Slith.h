// well/Slith.h
#pragma once

#include <string>

/// One lithology that a sample is made of, and its share.
class Slith {
public:
    /// Null texts count as empty.
    Slith(long sampId, long lithId, const char* description, const char* abbreviation, long share)
        : samp_id(sampId)
        , lith_id(lithId)
        , descr(description ? description : "")
        , abr(abbreviation ? abbreviation : "")
        , percent(share)
    {
    }

    long samp_id;
    long lith_id; ///< LITHDESC.lith_id
    std::string descr;
    std::string abr;
    long percent; ///< of the sample
};

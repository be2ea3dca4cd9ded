// well/SrAge.h
#pragma once

#include "util/OwningList.h"

/// An age of a sample with its error bars, and the ratio that it comes from, in one interpretation.
class SrAge {
public:
    long interp_id = 0; ///< 0: of no interpretation
    float ratio = 0;
    float age = 0;       ///< Ma, as the others
    float age_below = 0; ///< at the base of the sample
    float ageplus = 0;   ///< error towards older
    float ageminus = 0;  ///< error towards younger
};

/// The ages of one sample, in the order in which they were made. Owns them.
using SrAgeList = OwningList<SrAge>;

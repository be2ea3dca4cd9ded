// interp/igdDict.h
#pragma once

#include "interp/Colour.h"
#include "util/Date.h"
#include "util/FixedText.h"
#include "util/GList.h"

/// One term of an interpretation scheme: a named unit with its rank, its ages and its colour.
/// A term of a scheme belongs to it.
class igdDict {
public:
    /// A term that is not stored: `igd_id` -2.
    igdDict() = default;
    /// Reads the term. Without such a row `igd_id` is 0. A failed statement is reported, not fatal,
    /// and leaves a term that is not stored.
    explicit igdDict(long igd_id);

    long igd_id = -2;
    long sch_id = 0;
    int igd_type = 0;
    int hier = 0; ///< rank, from 1 (widest) once read
    FixedText<80> name;
    FixedText<5> abr;
    float u_age = 0; ///< upper (younger) age, Ma
    float l_age = 0; ///< lower (older) age, Ma
    Colour colour = kWhite;
    Date created;
    FixedText<5> creator; ///< user abbreviation
};

/// Points only: the scheme owns its terms.
using igdDictList = TypedList<igdDict>;

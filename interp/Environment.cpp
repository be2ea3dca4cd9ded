// interp/Environment.cpp
#include "interp/Environment.h"

#include "db/CurrentUser.h"

Environment::Environment(long topId, long baseId, int upperFrom, int upperTo, int lowerFrom,
    int lowerTo, int qualifier, long scheme)
    : IGDBase(kType, 0, 0)
    , top_id(topId)
    , base_id(baseId)
    , up(upperFrom)
    , ud(upperTo)
    , lp(lowerFrom)
    , ld(lowerTo)
    , qual(qualifier)
    , envsch_id(scheme)
{
}

Environment::Environment(float top, float base, int upperFrom, int upperTo, int lowerFrom,
    int lowerTo, int qualifier, long scheme)
    : Environment(-1L, -1L, upperFrom, upperTo, lowerFrom, lowerTo, qualifier, scheme)
{
    setTop(top);
    setBase(base);
    modified = Date::Today();
    modifier = currentUserAbr.view();
}

void Environment::copyFrom(const Environment& other)
{
    setType(other.type());
    setTop(other.getTop(0));
    setBase(other.getBase(0));
    top_id = other.top_id;
    base_id = other.base_id;
    up = other.up;
    ud = other.ud;
    lp = other.lp;
    ld = other.ld;
    qual = other.qual;
    upText = other.upText;
    udText = other.udText;
    lpText = other.lpText;
    ldText = other.ldText;
    qualText = other.qualText;
    envsch_id = other.envsch_id;
    modified = other.modified;
    modifier = other.modifier;
}

std::string Environment::label() const
{
    return "(" + upText.str() + ", " + udText.str() + ") - (" + lpText.str() + ", " + ldText.str()
        + ")";
}

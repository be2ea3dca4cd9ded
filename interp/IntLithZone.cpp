// interp/IntLithZone.cpp
#include "interp/IntLithZone.h"

#include "interp/LithRows.h"
#include "interp/RunAndCommit.h"

IntLithZone::IntLithZone(
    float top, float base, long lithId, const char* description, const char* abbreviation)
    : IGDBase(kType, top, base)
    , lith_id(lithId)
    , abr(abbreviation)
    , descr(description)
{
}

IntLithZone::IntLithZone(float top, float base, long lithId)
    : IntLithZone(top, base, lithId, "", "")
{
}

void IntLithZone::copyFrom(const IntLithZone& other)
{
    setType(other.type());
    setTop(other.getTop(0));
    setBase(other.getBase(0));
    lith_id = other.lith_id;
    abr = other.abr;
    descr = other.descr;
}

bool IntLithZone::insertRecord(long well_id, int negate) const
{
    const LithRow row{well_id, getTop(negate), getBase(negate), lith_id};
    return runAndCommit(insertLithRow("ZRILITH", row) + ")",
        "While saving lithology interval to database.", FailureText::Alone);
}

bool IntLithZone::deleteRecord(long well_id, int negate) const
{
    return runAndCommit(deleteLithRows("ZRILITH", well_id, getTop(negate)) + " AND base_depth"
            + isAbout(getBase(negate)),
        "While deleting lithology interval from database.", FailureText::Alone);
}

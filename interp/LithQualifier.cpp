// interp/LithQualifier.cpp
#include "interp/LithQualifier.h"

#include "db/Literals.h"
#include "interp/LithRows.h"
#include "interp/RunAndCommit.h"

namespace {

/// Single rows are written and deleted by whole places.
std::string wholePlace(float plotpos) { return sql::integer(static_cast<long>(plotpos)); }

} // namespace

LithQualifier::LithQualifier(float top, float base, char kind, float position, long lithId,
    const char* description, const char* abbreviation)
    : IGDBase(kType, top, base)
    , lith_id(lithId)
    , abr(abbreviation)
    , descr(description)
    , qualType_(kind)
    , plotpos_(position)
{
}

void LithQualifier::copyFrom(const LithQualifier& other)
{
    setTop(other.getTop(0));
    lith_id = other.lith_id;
    descr = other.label();
    qualType_ = other.qualType_;
    plotpos_ = other.plotpos_;
    alignment_ = other.alignment_;
}

bool LithQualifier::insertRecord(long well_id, int negate) const
{
    const LithRow row{well_id, getTop(negate), getBase(negate), lith_id};
    return runAndCommit(insertLithRow("ZRQLITH", row, ", type, alignment, plotpos") + ", "
            + sql::quoteChar(qualType_) + ", " + sql::quoteChar(alignment_) + ", "
            + wholePlace(plotpos_) + ")",
        "Error while saving lithology interval to database.", FailureText::WithStatement);
}

bool LithQualifier::deleteRecord(long well_id, int negate) const
{
    return runAndCommit(deleteLithRows("ZRQLITH", well_id, getTop(negate))
            + " AND lith_id=" + sql::integer(lith_id) + " AND plotpos=" + wholePlace(plotpos_),
        "Error while deleting lithology qualifier from database.", FailureText::WithStatement);
}

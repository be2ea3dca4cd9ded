// interp/DepthOrder.cpp
#include "interp/DepthOrder.h"

#include "interp/IGDZone.h"

#include <algorithm>

namespace {

// Depths of one place that came by way of another unit differ in their last bits.
constexpr double kSameDepth = 0.0001;

bool isBelow(float top, float added) { return added < top; }
/// `top` is not below `added`.
bool isClearlyAbove(float top, float added) { return double(added) - double(top) >= kSameDepth; }

bool goesBeforeThicker(float base, float added) { return added < base; }
bool goesBeforeThinner(float base, float added) { return added >= base; }

} // namespace

void DepthOrder::Reach::widen(const IGDBase& record)
{
    deepestTop = std::max(deepestTop, record.getTop(0));
    shallowestTop = std::min(shallowestTop, record.getTop(0));
    deepestBase = std::max(deepestBase, record.getBase(0));
    shallowestBase = std::min(shallowestBase, record.getBase(0));
    const int rank = rankOf(record);
    lowestRank = std::min(lowestRank, rank);
    highestRank = std::max(highestRank, rank);
}

bool DepthOrder::thinnestFirst(const IGDBase& at, const IGDBase& added) const
{
    if (sameTop_ == SameTop::ThinnestFirstInRank)
        return rankOf(at) == rankOf(added);
    return sameTop_ == SameTop::ThinnestFirst;
}

bool DepthOrder::stops(const IGDBase& at, const IGDBase& added) const
{
    if (isBelow(at.getTop(0), added.getTop(0)))
        return true;
    if (isClearlyAbove(at.getTop(0), added.getTop(0)))
        return false;
    return thinnestFirst(at, added) ? goesBeforeThicker(at.getBase(0), added.getBase(0))
                                    : goesBeforeThinner(at.getBase(0), added.getBase(0));
}

bool DepthOrder::mayStop(const Reach& branch, const IGDBase& added) const
{
    if (isBelow(branch.deepestTop, added.getTop(0)))
        return true;
    if (isClearlyAbove(branch.deepestTop, added.getTop(0)))
        return false;
    const bool ranksTell = sameTop_ == SameTop::ThinnestFirstInRank;
    const int rank = rankOf(added);
    const bool oneRank = branch.lowestRank == rank && branch.highestRank == rank;
    const bool hasRank = branch.lowestRank <= rank && rank <= branch.highestRank;
    const bool thinnest = sameTop_ == SameTop::ThinnestFirst || (ranksTell && hasRank);
    const bool thickest = sameTop_ == SameTop::ThickestFirst || (ranksTell && !oneRank);
    return (thinnest && goesBeforeThicker(branch.deepestBase, added.getBase(0)))
        || (thickest && goesBeforeThinner(branch.shallowestBase, added.getBase(0)));
}

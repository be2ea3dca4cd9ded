// interp/TermOrder.cpp
#include "interp/TermOrder.h"

#include <algorithm>

namespace {

constexpr double kSameAge = 0.001; // Ma

bool isOlder(float age, float added) { return age > added; }
/// `age` is not older than `added`.
bool isClearlyYounger(float age, float added) { return double(added) - double(age) >= kSameAge; }

} // namespace

void TermReach::widen(const igdDict& term)
{
    oldestUpper = std::max(oldestUpper, term.u_age);
    oldestLower = std::max(oldestLower, term.l_age);
    lowestRank = std::min(lowestRank, term.hier);
    highestRank = std::max(highestRank, term.hier);
    greatestName = std::max(greatestName, term.name.view());
}

bool LevelOrder::stops(const igdDict& at, const igdDict& added) const
{
    if (isOlder(at.u_age, added.u_age))
        return true;
    if (isClearlyYounger(at.u_age, added.u_age))
        return false;
    return at.hier < added.hier || isOlder(at.l_age, added.l_age);
}

bool LevelOrder::mayStop(const TermReach& branch, const igdDict& added) const
{
    if (isOlder(branch.oldestUpper, added.u_age))
        return true;
    if (isClearlyYounger(branch.oldestUpper, added.u_age))
        return false;
    return branch.lowestRank < added.hier || isOlder(branch.oldestLower, added.l_age);
}

bool AllTermsOrder::stops(const igdDict& at, const igdDict& added) const
{
    return at.u_age >= added.u_age && at.hier >= added.hier && at.l_age >= added.l_age
        && at.name.view() > added.name.view();
}

bool AllTermsOrder::mayStop(const TermReach& branch, const igdDict& added) const
{
    return branch.oldestUpper >= added.u_age && branch.highestRank >= added.hier
        && branch.oldestLower >= added.l_age && branch.greatestName > added.name.view();
}

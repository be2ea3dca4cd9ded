// interp/IGDConflicts.cpp
#include "interp/IGDList.h"

#include "db/Units.h"
#include "interp/IGDZone.h"

#include <algorithm>

namespace {

// Which interval an interval cannot stand beside, and which depth it holds, is asked in whole
// hundredths, so that two spellings of one depth are one.

/// In single precision, which gives the hundredth that a depth with two decimals was meant as far
/// more often than double precision does: 1.15 is stored a little below it.
long hundredths(float depth) { return static_cast<long>(depth * 100.0f); }

struct Span {
    explicit Span(const IGDBase& record, int negate = 0)
        : top(hundredths(record.getTop(negate)))
        , base(hundredths(record.getBase(negate)))
    {
    }
    bool isPoint() const { return top == base; }
    bool hasInside(long depth) const { return top < depth && depth < base; }

    long top;
    long base;
};

bool areSame(const Span& a, const Span& b) { return a.top == b.top && a.base == b.base; }
bool encloses(const Span& outer, const Span& inner)
{
    return outer.top < inner.top && outer.base > inner.base;
}

bool overlap(const Span& record, const Span& member)
{
    if (areSame(record, member))
        return true;
    if (record.isPoint())
        return false; // a point is in nobody's way
    return record.hasInside(member.top) || record.hasInside(member.base) || encloses(member, record)
        || encloses(record, member);
}

struct Zone {
    explicit Zone(const IGDBase& record)
        : span(record)
        , topQuality(record.topBoundary())
        , baseQuality(record.baseBoundary())
    {
    }
    Span span;
    int topQuality;
    int baseQuality;
};

/// Whether the lower one starts where the upper one ends, with another quality.
bool disagree(const Zone& upper, const Zone& lower)
{
    return upper.span.base == lower.span.top && upper.baseQuality != lower.topQuality;
}

float inUnitOf(const IGDList& list, float depth, char depthUnit)
{
    const bool listInFeet = list.unit() == 'F';
    if (listInFeet == (depthUnit == 'F'))
        return depth;
    return listInFeet ? fromMetres(depth, 'F') : toMetres(depth, 'F');
}

/// Negated intervals run from their base to their top.
bool holds(const Span& span, long depth)
{
    const auto [shallower, deeper] = std::minmax(span.top, span.base);
    return shallower < depth && depth < deeper;
}

} // namespace

IGDBase* IGDList::findConflict(const IGDBase* record, int* kind, const IGDBase* exclude) const
{
    constexpr int kOverlap = -1, kQualities = -2;
    const Zone asked(*record);
    for (IGDBase* member : *this) {
        if (member == exclude)
            continue;
        const Zone at(*member);
        const bool overlapping = overlap(asked.span, at.span);
        if (overlapping || (igdKind().zones && (disagree(at, asked) || disagree(asked, at)))) {
            *kind = overlapping ? kOverlap : kQualities;
            return member;
        }
    }
    *kind = 0;
    return nullptr;
}

IGDBase* IGDList::findAt(
    float depth, char depthUnit, const IGDBase* exclude, int hier, int negate) const
{
    const long sought = hundredths(inUnitOf(*this, depth, depthUnit));
    const bool ranked = igdKind().zones;
    const auto found = std::find_if(begin(), end(), [=](const IGDBase* member) {
        if (member == exclude || (ranked && rankOf(*member) != hier))
            return false;
        const Span span(*member, negate);
        return negate ? holds(span, sought) : span.hasInside(sought);
    });
    return found == end() ? nullptr : *found;
}

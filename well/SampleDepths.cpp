// well/SampleDepths.cpp
#include "well/Sample.h"

#include "db/Units.h"

#include <cmath>

namespace {

// Depths pass through float columns and two unit systems: a smaller step is no edit of the user's.
constexpr double kDepthStep = 0.001; // metres

bool differ(float a, float b) { return std::abs(double(a) - double(b)) > kDepthStep; }

} // namespace

bool isAbsentDepth(float depth) { return std::abs(depth) < kAbsentDepth; }

Sample::Interval::Interval(float topDepth, float baseDepth)
    : top(topDepth)
    , base(isAbsentDepth(baseDepth) ? topDepth : baseDepth)
{
    if (isAbsentDepth(top))
        top = base;
}

void Sample::FixDepths()
{
    const Interval completed(top, base);
    top = completed.top;
    base = completed.base;
}

float Sample::shown(float metres, char units, int negate, int withShift) const
{
    const float value = fromMetres(withShift ? metres + shift : metres, units);
    return negate ? -value : value;
}

float Sample::GetTop(char units, int negate, int withShift) const
{
    return shown(top, units, negate, withShift);
}

float Sample::GetBase(char units, int negate, int withShift) const
{
    return shown(base, units, negate, withShift);
}

float Sample::GetDepth(char units, int negate, int withShift) const
{
    return shown(isAbsentDepth(base) && !isAbsentDepth(top) ? top : base, units, negate, withShift);
}

bool Sample::store(Depth& depth, float metres)
{
    if (!differ(depth, metres))
        return false;
    depth = metres;
    saved = 0;
    return true;
}

bool Sample::SetTop(float depth, char units) { return store(top, toMetres(depth, units)); }

bool Sample::SetBase(float depth, char units) { return store(base, toMetres(depth, units)); }

bool Sample::SetDepth(float depth, char units)
{
    return type == "CU" ? SetTop(depth, units) : SetBase(depth, units);
}

void Sample::SetShift(float metres)
{
    shift = metres;
    shiftSet = 1;
}

int Sample::IsInterval() const
{
    return !isAbsentDepth(top) && !isAbsentDepth(base) && differ(top, base);
}

int Sample::DepthKind() const
{
    if (type == "CU")
        return 0;
    return type == "SC" ? 1 : 2;
}

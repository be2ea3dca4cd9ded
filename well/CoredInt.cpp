// well/CoredInt.cpp
#include "well/CoredInt.h"

#include "db/Units.h"
#include "well/Sample.h"

#include <cmath>

void CoredInt::SetBaseShift(float metres) { shiftBase = isAbsentDepth(metres) ? shiftTop : metres; }

char CoredInt::IsShifted()
{
    if (std::abs(shiftTop) > kAbsentDepth || std::abs(shiftBase) > kAbsentDepth)
        shifted = 'Y';
    return shifted;
}

float CoredInt::ShiftDepth(float depth, char units) const
{
    if (isAbsentDepth(shiftTop))
        return depth;
    const float metres = toMetres(depth, units);
    return fromMetres(metres + shiftAt(metres), units);
}

float CoredInt::shiftAt(float depth) const
{
    if (isAbsentDepth(shiftBase - shiftTop) || depth <= top)
        return shiftTop;
    if (depth >= base)
        return shiftBase;
    return shiftTop + (shiftBase - shiftTop) * (depth - top) / (base - top);
}

void CoredInt::ConvertUnits(char units)
{
    for (float* value : {&top, &base, &shiftTop, &shiftBase}) {
        if (units == 'M')
            *value = fromMetres(*value, 'F');
        else
            *value = toMetres(*value, units);
    }
}

// app/window/DepthUnits.cpp
#include "app/window/DepthUnits.h"

#include "app/window/Texts.h"
#include "db/Units.h"
#include "util/TextUtil.h"
#include "well/Sample.h"

namespace {

// Through metres and back a value would change in its last decimals.
float converted(float value, char from, char to)
{
    return from == to ? value : fromMetres(toMetres(value, from), to);
}

QString withoutZeros(std::string number)
{
    stripZeros(number.data(), 1);
    return QString::fromLatin1(number.c_str());
}

} // namespace

char unitsLetter(DepthUnits shown, char wellUnits)
{
    if (shown == DepthUnits::OfWell)
        return wellUnits == 'F' ? 'F' : 'M';
    return shown == DepthUnits::Feet ? 'F' : 'M';
}

QString unitsSign(char units) { return units == 'F' ? QStringLiteral("ft") : QStringLiteral("m"); }

QString depthText(float metres, char units)
{
    return isAbsentDepth(metres)
        ? missingText()
        : QString::fromStdString(fixedString(fromMetres(metres, units), 2));
}

QString headerDepthText(float value, char wellUnits, char units)
{
    if (isAbsentDepth(value))
        return missingText();
    const float shown = converted(value, unitsLetter(DepthUnits::OfWell, wellUnits), units);
    return withoutZeros(fixedString(shown, 2)) + QLatin1Char(' ') + unitsSign(units);
}

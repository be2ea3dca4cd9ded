// db/Units.cpp
#include "db/Units.h"

#include "util/TextUtil.h"

#include <cmath>
#include <cstring>
#include <string>

namespace {

constexpr std::size_t kFieldWidth = 8;

// To the integer, halves away from zero; a small negative value to 0 without a sign.
double rounded(double value) { return std::trunc(value + (value < 0 ? -0.5 : 0.5)) + 0.0; }

double roundedTo(int decimals, double value)
{
    if (decimals == 0)
        return rounded(value);
    return decimals == 1 ? rounded(value * 10) * 0.1 : value;
}

} // namespace

float toMetres(float value, char units)
{
    return units == 'F' ? static_cast<float>(value * kMetresPerFoot) : value;
}

float fromMetres(float value, char units)
{
    return units == 'F' ? static_cast<float>(value * kFeetPerMetre) : value;
}

void formatDepth(char* out, float value, char units, int decimals, int stripZeroDecimals)
{
    std::string text = fixedString(roundedTo(decimals, value), decimals);
    if (text.size() < kFieldWidth)
        text.insert(0, kFieldWidth - text.size(), ' ');
    std::strcpy(out, text.c_str());
    if (stripZeroDecimals)
        stripZeros(out, 1);
    std::strcat(out, units == 'M' ? "m" : "'");
}

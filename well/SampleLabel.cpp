// well/SampleLabel.cpp
#include "well/Sample.h"

#include "util/TextUtil.h"

#include <cmath>
#include <string>

namespace {

/// The depths of a label, in the units that it shows.
struct LabelDepths {
    float top;
    float base;
    bool range;
};

LabelDepths labelDepths(const Sample& s, char units, bool range, int withShift)
{
    float top = s.GetTop(units, 0, withShift);
    float base = s.GetBase(units, 0, withShift);
    // A core's top may be the datum itself; other samples have no top at 0.
    if (isAbsentDepth(top) && s.type != "CO")
        top = base;
    if (isAbsentDepth(base))
        base = top;
    return {top, base, range && std::abs(double(top) - double(base)) >= 0.0001};
}

const char* unitsMark(char units) { return units == 'M' ? "m" : "'"; }

/// `value` with `decimals` [0-1], halves away from zero as people round depths by hand; what rounds
/// to zero has no sign.
std::string rounded(float value, int decimals)
{
    const double scale = decimals == 0 ? 1.0 : 10.0;
    return fixedString(std::round(value * scale) / scale + 0.0, decimals);
}

std::string rightAligned(const std::string& text, std::size_t width)
{
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

std::string longDepth(const LabelDepths& d)
{
    const std::string base = fixedString(d.base, 2);
    return d.range ? rightAligned(fixedString(d.top, 2), 8) + "-" + base : base;
}

/// Depths as each kind of sample is known by: cuttings by whole numbers, sidewall cores by tenths
/// and their top alone, the rest by hundredths.
std::string shortDepth(const LabelDepths& d, int depthKind)
{
    switch (depthKind) {
    case 0:
        return (d.range ? rounded(d.top, 0) + "-" : "") + rounded(d.base, 0);
    case 1:
        return d.range ? rounded(d.top, 1) + "-" : rounded(d.base, 1);
    default:
        return (d.range ? fixedString(d.top, 2) + "-" : "") + fixedString(d.base, 2);
    }
}

std::string labelBehind(const Sample& s, bool withLabel)
{
    return withLabel && !s.label.empty() ? " " + s.label.str() : "";
}

std::string longLabel(
    const Sample& s, const LabelDepths& depths, char units, bool forceUnits, bool withLabel)
{
    // Outcrop samples are known by their label.
    const bool outcrop = s.type == "OC";
    const std::string depth =
        outcrop && !forceUnits ? "" : longDepth(depths) + unitsMark(units) + " ";
    if (outcrop)
        return depth + (s.label.empty() ? s.type.str() : s.label.str());
    return depth + s.type.str() + labelBehind(s, withLabel);
}

std::string shortLabel(const Sample& s, const LabelDepths& depths, bool withLabel)
{
    return shortDepth(depths, s.DepthKind()) + (s.type == "LOG" ? " log" : "")
        + labelBehind(s, withLabel);
}

} // namespace

const char* Sample::DepthLabel(
    char units, int shortForm, int showRange, int forceUnits, int withShift, int withLabel) const
{
    static ResultText result;
    const LabelDepths depths = labelDepths(*this, units, showRange != 0, withShift);
    if (shortForm)
        return result.keep(shortLabel(*this, depths, withLabel > 0));
    return result.keep(longLabel(*this, depths, units, forceUnits != 0, withLabel != 0));
}

const char* Sample::DepthRangeText(char units, int withShift) const
{
    static ResultText result;
    const float t = GetTop(units, 0, withShift);
    const float b = GetBase(units, 0, withShift);
    std::string text = fixedString(t, 2);
    if (!isAbsentDepth(b) && std::abs(double(b) - double(t)) > 0.0001)
        text += "-" + fixedString(b, 2);
    return result.keep(text + unitsMark(units));
}

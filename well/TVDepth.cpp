// well/TVDepth.cpp
#include "well/TVDepth.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Units.h"
#include "well/Sample.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

constexpr float kNoDepth = -9999.0f;
constexpr double kSamePoint = 0.009; // metres

bool isFinite(float md, float tvd) { return std::isfinite(md) && std::isfinite(tvd); }

/// The points between which `depth` lies: the last that is not beyond it, and the first behind the
/// front that is not short of it. They are the same below the last one, and on it.
struct Bracket {
    Bracket(std::span<const float> depths, float depth)
        : low(0)
        , high(depths.size() - 1)
    {
        for (std::size_t i = 0; i < depths.size(); ++i) {
            if (depths[i] <= depth)
                low = i;
        }
        for (std::size_t i = depths.size() - 1; i > 0; --i) {
            if (depth <= depths[i])
                high = i;
        }
    }
    std::size_t low, high;
};

double interpolate(double x, double x0, double x1, double y0, double y1)
{
    return y0 + (y1 - y0) * (x - x0) / (x1 - x0);
}

} // namespace

TVDepth::TVDepth(int mostPoints)
    : ddepth(static_cast<std::size_t>(std::max(mostPoints, 0)), kNoDepth)
    , tvdepth(ddepth)
    , capacity(std::max(mostPoints, 0))
{
}

void TVDepth::Clear()
{
    count = 0;
    std::fill(ddepth.begin(), ddepth.end(), kNoDepth);
    std::fill(tvdepth.begin(), tvdepth.end(), kNoDepth);
}

void TVDepth::Load(long wellId)
{
    if (wellId == 0)
        return;
    if (changed) {
        reportError("Attempt to load tvd data over unsaved data");
        return;
    }
    well_id = wellId;
    const std::string sql = "SELECT ddepth, tvdepth FROM " + sql::table("WELLTVD")
        + " WHERE well_id=" + sql::integer(well_id) + " ORDER BY ddepth ";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    count = 0;
    while (count < capacity && rows.next()) {
        const auto md = static_cast<float>(rows.number(1));
        const auto tvd = static_cast<float>(rows.number(2));
        if (isFinite(md, tvd))
            put(static_cast<std::size_t>(count), md, tvd);
    }
}

void TVDepth::AddPoint(float md, float tvd, char units)
{
    changed = 1;
    const float metres = toMetres(md, units);
    const float vertical = toMetres(tvd, units);
    const auto end = ddepth.begin() + count;
    const auto behind = std::upper_bound(ddepth.begin(), end, metres);
    const auto isSame = [metres](float known) {
        return std::abs(double(known) - double(metres)) <= kSamePoint;
    };
    const bool known =
        (behind != end && isSame(*behind)) || (behind != ddepth.begin() && isSame(*(behind - 1)));
    if (!known && count < capacity && isFinite(metres, vertical))
        put(static_cast<std::size_t>(behind - ddepth.begin()), metres, vertical);
}

/// Moves the points from that place on up by one, of which the last is free.
void TVDepth::put(std::size_t place, float md, float tvd)
{
    const auto insert = [this, place](std::vector<float>& depths, float depth) {
        const auto at = depths.begin() + static_cast<std::ptrdiff_t>(place);
        const auto end = depths.begin() + count;
        std::copy_backward(at, end, end + 1);
        *at = depth;
    };
    insert(ddepth, md);
    insert(tvdepth, tvd);
    ++count;
}

void TVDepth::GetPoint(int i, float* md, float* tvd, char units) const
{
    const bool there = i >= 0 && i < count;
    const auto place = static_cast<std::size_t>(i);
    *md = there ? fromMetres(ddepth[place], units) : 0;
    *tvd = there ? fromMetres(tvdepth[place], units) : 0;
}

float TVDepth::MDtoTVD(float md) const { return converted(md, ddepth, tvdepth); }

float TVDepth::TVDtoMD(float tvd) const { return converted(tvd, tvdepth, ddepth); }

float TVDepth::converted(
    float depth, const std::vector<float>& from, const std::vector<float>& to) const
{
    if (!std::isfinite(depth))
        return 0;
    if (count < 2)
        return depth;
    const auto [low, high] = Bracket({from.data(), static_cast<std::size_t>(count)}, depth);
    if (from[low] == from[high])
        return to[low];
    if (low > 0 || depth >= from[0])
        return static_cast<float>(interpolate(depth, from[low], from[high], to[low], to[high]));
    if (isAbsentDepth(from[0]))
        return depth; // no straight line goes through the surface twice
    return static_cast<float>(double(depth) * to[0] / from[0]);
}

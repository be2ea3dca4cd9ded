// well/AgeRangeDepths.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int kChronostratigraphy = 3; // IGD.igd_type
constexpr double kAgeMargin = 0.1;     // Ma

std::string fromIntervals(const char* columns)
{
    return std::string("SELECT ") + columns + " FROM " + sql::table("IGD") + " i, "
        + sql::table("IGD_DICT") + " d WHERE i.igd_type=" + sql::integer(kChronostratigraphy);
}

/// The sample identifier in the first row, 0 without a row; nothing after a reported failure.
std::optional<long> firstSample(const std::string& sql)
{
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return std::nullopt;
    }
    return row.next() ? row.integer(1) : 0;
}

} // namespace

void Well::AgeRangeDepths(float youngAge, float oldAge, float* topDepth, float* baseDepth)
{
    *topDepth = *baseDepth = 0;
    const std::string youngest = sql::number(double(youngAge) - kAgeMargin);
    const std::string oldest = sql::number(double(oldAge) + kAgeMargin);
    const std::string ofWell = " AND i.well_id =" + sql::integer(well_id) + " ORDER BY d.";
    const auto depthOf = [this](long samp_id) {
        return samp_id != 0 ? samples.DepthOf(well_id, samp_id, 'M', 0, 0) : 0.0f;
    };
    const auto baseThrough = [&](const char* zone) {
        return firstSample(fromIntervals("i.base_id, d.l_age") + " AND i." + zone
            + "=d.igd_id AND d.l_age<=" + oldest + " AND d.u_age>=" + youngest + ofWell
            + "l_age DESC");
    };
    const auto top =
        firstSample(fromIntervals("i.top_id, d.u_age") + " AND i.upp_zone=d.igd_id AND d.u_age>="
            + youngest + " AND d.l_age<=" + oldest + ofWell + "u_age");
    if (!top)
        return;
    *topDepth = depthOf(*top);
    const auto base = baseThrough("upp_zone");
    if (!base)
        return;
    *baseDepth = depthOf(*base);
    const auto lower = baseThrough("low_zone");
    if (lower && *lower != 0)
        *baseDepth = std::max(*baseDepth, depthOf(*lower));
}

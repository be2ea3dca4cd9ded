// app/shell/DepthModel.cpp
#include "app/shell/DepthModel.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"

namespace {

int pointsOf(long well_id)
{
    const std::string select =
        "SELECT count(*) FROM " + sql::table("WELLTVD") + " WHERE well_id=" + sql::integer(well_id);
    Cursor rows(select);
    if (!rows)
        reportDbFailure(select, Fatal::No);
    return rows && rows.next() ? static_cast<int>(rows.integer(1)) : 0;
}

} // namespace

const TVDepth& depthModel(Well& well)
{
    if (!well.tvd) {
        well.tvd = std::make_unique<TVDepth>(pointsOf(well.well_id));
        well.tvd->Load(well.well_id);
    }
    return *well.tvd;
}

bool isBeyondSurvey(const TVDepth& survey, float depth, DepthAxis axis)
{
    if (survey.count == 0)
        return true;
    const auto last = static_cast<std::size_t>(survey.count - 1);
    return depth > (axis == DepthAxis::Measured ? survey.ddepth : survey.tvdepth)[last];
}

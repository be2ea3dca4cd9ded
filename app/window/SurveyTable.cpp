// app/window/SurveyTable.cpp
#include "app/window/DepthUnits.h"
#include "app/window/RowTableModel.h"
#include "app/window/WellTables.h"
#include "db/Units.h"
#include "util/TextUtil.h"
#include "well/Well.h"

namespace {

struct SurveyPoint {
    float md;
    float tvd; ///< both metres
    bool operator==(const SurveyPoint&) const = default;
};

using Survey = RowTableModel<SurveyPoint>;

// A survey begins at the surface: its 0 is a depth and not a missing one.
QString pointText(float metres, char units)
{
    return QString::fromStdString(fixedString(fromMetres(metres, units), 2));
}

constexpr Survey::Column kColumns[] = {
    {{"Measured depth (%1)", "Depth along the hole", Qt::AlignRight},
        [](const SurveyPoint& p, char units) { return pointText(p.md, units); }},
    {{"True vertical depth (%1)", "Depth straight down, as the deviation survey gives it",
         Qt::AlignRight},
        [](const SurveyPoint& p, char units) { return pointText(p.tvd, units); }},
};

std::vector<SurveyPoint> pointsOf(const Well& well)
{
    std::vector<SurveyPoint> points(well.tvd ? static_cast<std::size_t>(well.tvd->count) : 0);
    for (std::size_t i = 0; i < points.size(); ++i)
        well.tvd->GetPoint(static_cast<int>(i), &points[i].md, &points[i].tvd, 'M');
    return points;
}

} // namespace

std::unique_ptr<WellTableModel> surveyTable()
{
    return std::make_unique<Survey>(kColumns, pointsOf);
}

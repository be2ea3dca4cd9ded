// app/import/IntervalCells.cpp
#include "app/import/IntervalCells.h"

namespace {

bool liesBelow(const KnownWell* well, double base, double top)
{
    return well && well->type == 'O' ? base < top : base > top;
}

} // namespace

bool readOpenInterval(CellReader& cells, const IntervalColumns& columns, const KnownWell* well,
    DepthInterval* out, bool* hasBase)
{
    if (cells.raw(columns.top).empty())
        cells.refuse(columns.top, "has no top");
    if (cells.report().refused())
        return false;
    DepthCells depths(cells, columns.units, well);
    const Cell top = depths.read(columns.top, &out->top);
    const Cell base = depths.read(columns.base, &out->base);
    *hasBase = base == Cell::Good;
    if (top == Cell::Empty)
        cells.refuse(columns.top, "the top is not known");
    else if (*hasBase && !cells.report().refused() && !liesBelow(well, out->base, out->top))
        cells.refuse(columns.base, "the base does not lie below the top");
    return !cells.report().refused();
}

bool readInterval(
    CellReader& cells, const IntervalColumns& columns, const KnownWell* well, DepthInterval* out)
{
    bool hasBase = false;
    if (cells.raw(columns.base).empty())
        cells.refuse(columns.base, "has no base");
    if (!readOpenInterval(cells, columns, well, out, &hasBase))
        return false;
    if (!hasBase)
        cells.refuse(columns.base, "the base is not known");
    return hasBase;
}

std::string metresText(double depth)
{
    std::string text = std::to_string(depth);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.'))
        text.pop_back();
    return text;
}

// interp/LoadPicks.cpp
#include "interp/SQPick.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "interp/FillInOrder.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <limits>

namespace {

bool liesDeeper(const SQPick& at, const SQPick& added) { return at.depth() > added.depth(); }

std::unique_ptr<SQPick> readPick(const Cursor& row, const Well& well)
{
    auto pick = std::make_unique<SQPick>();
    pick->samp_id = row.integer(1);
    pick->surface_id = row.integer(2);
    pick->inf = row.text(3);
    pick->bnd = static_cast<int>(row.integer(4));
    pick->qualifier = row.letter(5);
    pick->surface = Surface(pick->surface_id);
    pick->sample = well.samples.FindById(pick->samp_id);
    return pick;
}

} // namespace

float SQPick::depth() const
{
    return sample ? sample->GetDepth('M', 0, 0) : std::numeric_limits<float>::infinity();
}

bool loadPicks(SQPickList& list, const Well& well, long interp_id)
{
    const std::string sql = "SELECT samp_id, surface_id, inf, bnd, qualifier FROM "
        + sql::table("SQPICK") + " WHERE well_id=" + sql::integer(well.well_id)
        + " AND interp_id=" + sql::integer(interp_id);
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    std::vector<std::unique_ptr<SQPick>> picks;
    while (rows.next())
        picks.push_back(readPick(rows, well));
    fillInOrder(list, std::move(picks), liesDeeper);
    return true;
}

// interp/LoadComments.cpp
#include "interp/Intcom.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "interp/FillInOrder.h"
#include "well/Well.h"

namespace {

bool startsDeeper(const Intcom& at, const Intcom& added) { return at.getTop(0) > added.getTop(0); }

} // namespace

bool loadComments(IntcomList& list, const Well& well, long interp_id)
{
    const std::string sql = "SELECT top_depth, base_depth, comments FROM " + sql::table("INTCMMNTS")
        + " WHERE well_id=" + sql::integer(well.well_id)
        + " AND interp_id=" + sql::integer(interp_id);
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    std::vector<std::unique_ptr<Intcom>> comments;
    while (rows.next()) {
        const auto top = static_cast<float>(rows.number(1));
        const auto base = static_cast<float>(rows.number(2));
        comments.push_back(std::make_unique<Intcom>(top, base, rows.text(3)));
    }
    fillInOrder(list, std::move(comments), startsDeeper);
    return true;
}

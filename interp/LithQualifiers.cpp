// interp/LithQualifiers.cpp
#include "interp/IGDList.h"

#include "db/Literals.h"
#include "dict/FirstRow.h"
#include "interp/LithQualifier.h"
#include "interp/LithRows.h"

#include <memory>

namespace {

/// Names a qualifier after its rock, except for a free text. A rock that the dictionary has not got
/// leaves the text that was stored. False after a reported failure.
bool takeNames(LithQualifier& qualifier)
{
    if (qualifier.qualType() == LithQualifier::kFreeText) {
        qualifier.abr = " ";
        return true;
    }
    return takeFirstRow("SELECT descr, abr FROM " + sql::table("LITHDESC")
                   + " WHERE lith_id=" + sql::integer(qualifier.lith_id),
               Fatal::No,
               [&qualifier](const Cursor& row) {
                   qualifier.descr = row.text(1);
                   qualifier.abr = row.text(2);
               })
        != FirstRow::Failed;
}

std::unique_ptr<LithQualifier> readQualifier(
    const IGDList& list, const Well& well, const Cursor& row)
{
    const float top = lithDepth(list, well, row.number(1));
    const float base = lithDepth(list, well, row.number(2));
    const char kind = row.letter(3), alignment = row.letter(4);
    const auto plotpos = static_cast<float>(row.number(5));
    const long lith_id = row.integer(6);
    auto qualifier =
        std::make_unique<LithQualifier>(top, base, kind, plotpos, lith_id, row.text(7).c_str(), "");
    qualifier->setAlignment(alignment);
    return qualifier;
}

} // namespace

bool loadLithQualifiers(IGDList& list, const IGDLoad& from)
{
    list.setTitle("Lithology Qualifier");
    const std::string sql =
        "SELECT top_depth, base_depth, type, alignment, plotpos, lith_id, txt FROM "
        + sql::table("ZRQLITH") + " WHERE well_id=" + sql::integer(list.well_id())
        + " ORDER BY top_depth, plotpos";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    while (rows.next()) {
        auto qualifier = readQualifier(list, from.well, rows);
        if (!takeNames(*qualifier))
            return false;
        list.insert(qualifier.release());
    }
    return rows.readAll();
}

bool saveLithQualifiers(const IGDList& list, char unit, int negate)
{
    return replaceLithRows("ZRQLITH", list, [&](const IGDBase& record) {
        const auto& qualifier = dynamic_cast<const LithQualifier&>(record);
        return insertLithRow("ZRQLITH", lithRow(list, qualifier, qualifier.lith_id, unit, negate),
                   ", type, alignment, plotpos")
            + "," + sql::quoteChar(qualifier.qualType()) + ","
            + sql::quoteChar(qualifier.alignment()) + "," + sql::number(qualifier.plotpos()) + ")";
    });
}

// app/window/WellNames.cpp
#include "app/window/WellNames.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "store/Value.h"

namespace {

QString shownColumn(const Cursor& rows, short column)
{
    return QString::fromStdString(shownText(rows.text(column)));
}

} // namespace

std::optional<std::vector<WellName>> readWellNames()
{
    const std::string select = "SELECT v.well_id, w.well_name, w.well_code FROM "
        + sql::table("WELLS") + " w, " + sql::table("WELL_IDENT")
        + " v WHERE v.well_code=w.well_code";
    Cursor rows(select);
    if (!rows) {
        reportDbFailure(select, Fatal::No);
        return std::nullopt;
    }
    std::vector<WellName> wells;
    while (rows.next()) {
        const long id = rows.integer(1);
        const QString name = shownColumn(rows, 2); // columns are read in their order
        wells.push_back({id, name, shownColumn(rows, 3)});
    }
    return wells;
}

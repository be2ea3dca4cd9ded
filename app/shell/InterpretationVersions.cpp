// app/shell/InterpretationVersions.cpp
#include "app/shell/InterpretationVersions.h"

#include "db/Cursor.h"
#include "db/Literals.h"

#include <set>

namespace {

constexpr long kDefaultVersion = 0; // NULL reads as that one, too
constexpr const char* kTables[] = {"IGD", "IGD_ENV", "SQPICK"};

} // namespace

std::vector<long> interpretationVersions(long well_id)
{
    std::set<long> versions{kDefaultVersion};
    for (const char* table : kTables) {
        const std::string select = "SELECT DISTINCT interp_id FROM " + sql::table(table)
            + " WHERE well_id=" + sql::integer(well_id);
        Cursor rows(select);
        if (!rows) {
            reportDbFailure(select, Fatal::No);
            continue;
        }
        while (rows.next())
            versions.insert(rows.integer(1));
    }
    return {versions.begin(), versions.end()};
}

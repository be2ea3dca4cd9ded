// interp/LoadEnvironments.cpp
#include "interp/IGDList.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "interp/EnvSchemeList.h"
#include "interp/Environment.h"
#include "interp/LoadedDepths.h"

#include <memory>

const SampledRecords kSampledEnvironments = {
    [](const IGDBase& record) {
        const auto& environment = dynamic_cast<const Environment&>(record);
        return SampledRecords::Ends{environment.top_id, environment.base_id};
    },
    [](const IGDBase& record) { return dynamic_cast<const Environment&>(record).upText.str(); },
    "\nPalaeoenvironment: ",
    [](const IGDBase& record) { return dynamic_cast<const Environment&>(record).envsch_id; },
    "E",
    true,
};

namespace {

std::string environmentsOf(const IGDList& list)
{
    std::string sql = "SELECT top_id, base_id, up, ud, lp, ld,modified,modifier,qual, envsch_id"
                      " FROM "
        + sql::table("IGD_ENV") + " WHERE well_id=" + sql::integer(list.well_id());
    sql += list.interp_id() == 0 ? " AND (interp_id is NULL OR interp_id=0)"
                                 : " AND interp_id=" + sql::integer(list.interp_id());
    if (list.envsch_id() > 0)
        sql += " AND envsch_id =" + sql::integer(list.envsch_id());
    return sql;
}

int orElse(int number, int other) { return number == 0 ? other : number; }

/// Numbers that were left out when the range was entered: it starts with the first term, and an end
/// or a base that is not given is that of what stands before or above it.
void fillMissing(Environment& environment)
{
    environment.up = orElse(environment.up, 1);
    environment.ud = orElse(environment.ud, environment.up);
    environment.lp = orElse(environment.lp, environment.up);
    environment.ld = orElse(environment.ld, environment.ud);
}

/// The next row as a record, without what the samples and the scheme tell.
std::unique_ptr<Environment> readEnvironment(const Cursor& row)
{
    const long top_id = row.integer(1), base_id = row.integer(2);
    const auto number = [&row](short column) { return static_cast<int>(row.integer(column)); };
    const int up = number(3), ud = number(4), lp = number(5), ld = number(6);
    const Date modified = sql::parsedDate(row.text(7).c_str());
    const std::string modifier = row.text(8);
    const int qual = number(9);
    auto environment =
        std::make_unique<Environment>(top_id, base_id, up, ud, lp, ld, qual, row.integer(10));
    environment->modified = modified;
    environment->modifier = modifier;
    return environment;
}

/// Records whose scheme is gone are named by the scheme that came first; where there is none either
/// by one without terms, so that the numbers show.
const env_scheme& schemeOf(const Environment& environment, const EnvSchemeList& schemes)
{
    static const env_scheme none(0, "");
    const env_scheme* scheme = schemes.findScheme(environment.envsch_id);
    if (!scheme)
        scheme = schemes.findScheme(1);
    return scheme ? *scheme : none;
}

void takeNames(Environment& environment, const env_scheme& scheme)
{
    environment.upText = scheme.termName(environment.up - 1);
    environment.udText = scheme.termName(environment.ud - 1);
    environment.lpText = scheme.termName(environment.lp - 1);
    environment.ldText = scheme.termName(environment.ld - 1);
    if (environment.qual != 0)
        environment.qualText = scheme.termName(environment.qual - 1);
}

} // namespace

bool loadEnvironments(IGDList& list, const IGDLoad& from)
{
    const EnvSchemeList schemes;
    list.setTitle("Environment");
    const std::string sql = environmentsOf(list);
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    while (rows.next()) {
        auto environment = readEnvironment(rows);
        environment->setTop(depthOfSample(list, from.well, environment->top_id));
        environment->setBase(depthOfSample(list, from.well, environment->base_id));
        fillMissing(*environment);
        takeNames(*environment, schemeOf(*environment, schemes));
        list.insert(environment.release());
    }
    return rows.readAll();
}

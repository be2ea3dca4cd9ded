// interp/igdDict.cpp
#include "interp/igdDict.h"

#include "db/Literals.h"
#include "dict/FirstRow.h"

#include <algorithm>

igdDict::igdDict(long igdId)
    : created(Date::Today())
{
    const FirstRow read = takeFirstRow("SELECT sch_id, igd_type, hier, name, abr, u_age, l_age,"
                                       " red, green, blue, created, creator FROM "
            + sql::table("IGD_DICT") + " WHERE igd_id=" + sql::integer(igdId),
        Fatal::No, [this](const Cursor& row) {
            sch_id = row.integer(1);
            igd_type = static_cast<int>(row.integer(2));
            hier = std::max(static_cast<int>(row.integer(3)), 1);
            name = row.text(4);
            abr = row.text(5);
            u_age = static_cast<float>(row.number(6));
            l_age = static_cast<float>(row.number(7));
            colour = whiteForBlack(colourFrom(row, 8));
            created = sql::parsedDate(row.text(11).c_str());
            creator = row.text(12);
        });
    if (read != FirstRow::Failed)
        igd_id = read == FirstRow::Taken ? igdId : 0;
}

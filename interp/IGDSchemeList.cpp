// interp/IGDSchemeList.cpp
#include "interp/IGDSchemeList.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "interp/NameOrder.h"
#include "interp/PlaceIndex.h"

#include <algorithm>

IGDSchemeList::IGDSchemeList(int loadNow)
{
    if (loadNow)
        load();
}

IGDSchemeList::~IGDSchemeList() { clear(); }

void IGDSchemeList::clear()
{
    while (const igd_sch* scheme = pop())
        delete scheme;
}

void IGDSchemeList::load()
{
    clear();
    const std::string sql = "SELECT sch_id FROM " + sql::table("IGD_SCH") + " ORDER BY name";
    Cursor keys(sql);
    if (!keys) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    PlaceIndex<NameOrder<igd_sch>> places;
    while (keys.next())
        places.put(*this, new igd_sch(keys.integer(1), 0));
}

igd_sch* IGDSchemeList::findScheme(long sch_id) const
{
    const auto found = std::find_if(
        begin(), end(), [sch_id](const igd_sch* scheme) { return scheme->sch_id == sch_id; });
    return found == end() ? nullptr : *found;
}

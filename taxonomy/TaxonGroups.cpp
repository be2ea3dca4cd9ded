// taxonomy/TaxonGroups.cpp
#include "taxonomy/TaxonGroups.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "taxonomy/TextArgument.h"
#include "taxonomy/TextListCache.h"

#include <cstdlib>

namespace {

constexpr std::size_t kNameRoom = 30;

std::string namesQuery(const char* table)
{
    return "SELECT name FROM " + sql::table(table) + " ORDER BY name";
}

std::string nameOfRow(const Cursor& row) { return row.text(1); }

} // namespace

const char* const* taxonGroupList(int reload)
{
    static TextListCache<2000, kNameRoom> groups;
    if (groups.needsLoad(reload) && !groups.load(namesQuery("txgroup"), nameOfRow)) {
        reportError(dbErrorText());
        std::exit(0);
    }
    return groups.texts();
}

const char* const* groupSetList(int reload)
{
    static TextListCache<250, kNameRoom> sets;
    if (sets.needsLoad(reload) && !sets.load(namesQuery("groupset"), nameOfRow))
        reportError(dbErrorText());
    return sets.texts();
}

void groupSetName(long grpset_id, char* out)
{
    FixedText<kNameRoom> name;
    Cursor row("SELECT name FROM " + sql::table("groupset")
        + " WHERE grpset_id=" + sql::integer(grpset_id));
    if (!row)
        reportError(dbErrorText());
    else if (row.next())
        name = row.text(1);
    std::memcpy(out, name.c_str(), name.size() + 1);
}

long groupSetId(const char* name)
{
    Cursor row("SELECT grpset_id FROM " + sql::table("groupset")
        + " WHERE name=" + sql::quote(orEmpty(name)));
    if (!row) {
        reportError(dbErrorText());
        return 0;
    }
    return row.next() ? row.integer(1) : 0;
}

// db/Lookups.cpp
#include "db/Lookups.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "util/FixedText.h"

#include <cstring>
#include <string>

namespace {

using SchemeName = FixedText<80>;

} // namespace

char speciesDisc(long spec_id)
{
    const std::string select = "SELECT c.disc_id FROM " + sql::table("SPECIES") + " S, "
        + sql::table("GENUS") + " G, " + sql::table("CATEGORY") + " C WHERE s.spec_id="
        + sql::integer(spec_id) + " AND g.gen_id=s.gen_id AND g.cat_mnem=c.cat_mnem";
    Cursor rows(select);
    if (!rows)
        reportDbFailure(select, Fatal::Yes);
    return rows.next() ? rows.letter(1) : ' ';
}

const char* speciesCategory(long spec_id)
{
    static FixedText<19> category;
    const std::string select = "SELECT g.cat_mnem FROM " + sql::table("SPECIES") + " S, "
        + sql::table("GENUS") + " G WHERE s.spec_id=" + sql::integer(spec_id)
        + " AND g.gen_id=s.gen_id";
    Cursor rows(select);
    if (!rows)
        reportDbFailure(select, Fatal::Yes);
    category = rows.next() ? rows.text(1) : " ";
    return category;
}

const char* wellCodeOf(long well_id)
{
    static FixedText<25> code;
    code.clear();
    Cursor rows("SELECT well_code FROM " + sql::table("well_ident")
        + " WHERE well_id =" + sql::integer(well_id));
    while (rows.next())
        code = rows.text(1);
    return code;
}

int schemeNameOf(int sch_id, char* buffer)
{
    const std::string select =
        "SELECT name FROM " + sql::table("IGD_SCH") + " WHERE sch_id=" + sql::integer(sch_id);
    Cursor rows(select);
    if (!rows)
        reportDbFailure(select, Fatal::Yes);
    const bool found = rows.next();
    std::strcpy(buffer, found ? SchemeName(rows.text(1)).c_str() : "");
    return found ? 1 : 0;
}

char wellUnits(long well_id)
{
    Cursor rows("SELECT w.units FROM " + sql::table("wells") + " w," + sql::table("well_ident")
        + " i WHERE i.well_code=w.well_code AND i.well_id=" + sql::integer(well_id));
    char units = '\0';
    while (rows.next())
        units = rows.letter(1);
    return units;
}

const char* wellNameOf(long well_id)
{
    static ResultText name;
    Cursor rows("SELECT well_name FROM " + sql::table("WELLS") + " w, " + sql::table("WELL_IDENT")
        + " v WHERE w.well_code = v.well_code AND v.well_id=" + sql::integer(well_id));
    return name.keep(rows.next() ? rows.text(1) : "");
}

long wellIdOf(const char* well_code)
{
    const std::string select = "SELECT well_id FROM " + sql::table("WELL_IDENT")
        + " WHERE well_code=" + sql::quote(well_code ? well_code : "");
    Cursor rows(select);
    if (!rows)
        reportDbFailure(select, Fatal::No);
    return rows.next() ? rows.integer(1) : 0;
}

// well/WellIdentity.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <cstring>

namespace {

/// At most `length` bytes of `text`, and at most the 25 that a name or code has.
FixedText<25> keyOf(const char* text, int length)
{
    const auto limit = static_cast<std::size_t>(std::max(length, 0));
    return std::string_view(text, strnlen(text, limit));
}

void copyName(char* out, const FixedText<25>& name)
{
    std::memcpy(out, name.c_str(), name.size() + 1);
}

} // namespace

Well::Well(long id)
{
    Reset();
    const std::string sql = "SELECT v.well_code, v.descrip FROM " + sql::table("WELLS") + " w, "
        + sql::table("well_ident") + " v WHERE v.well_id=" + sql::integer(id)
        + " AND v.well_code=w.well_code";
    {
        Cursor row(sql);
        if (!row) {
            reportDbFailure(sql, Fatal::No);
            return;
        }
        well_id = id;
        if (row.next()) {
            well_code = row.text(1);
            descrip = row.text(2);
            identified = 1;
        } else {
            well_name = "**Unnamed well ID=" + std::to_string(id);
            well_code = "**No well code for ID=" + std::to_string(id);
        }
    }
    if (!well_code.empty())
        ReadHeader();
}

Well::Well(const char* code)
{
    Reset();
    well_code = code;
    const std::string sql = "SELECT v.well_id, v.descrip FROM " + sql::table("WELLS") + " w, "
        + sql::table("WELL_IDENT") + " v WHERE v.well_code=" + sql::quote(well_code.view())
        + " AND v.well_code=w.well_code";
    {
        Cursor row(sql);
        if (!row) {
            reportDbFailure(sql, Fatal::No);
            return;
        }
        if (row.next()) {
            well_id = row.integer(1);
            descrip = row.text(2);
            identified = 1;
        }
    }
    if (!well_code.empty())
        ReadHeader();
}

void Well::FindByName(const char* name, int length)
{
    std::string key = keyOf(name, length).str();
    while (key.size() > 1 && key.back() == ' ')
        key.pop_back();
    well_name = key;
    well_id = 0;
    if (Cursor row("SELECT v.well_id, v.well_code, v.descrip FROM " + sql::table("WELLS") + " w, "
            + sql::table("well_ident") + " v  WHERE w.well_name=" + sql::quote(well_name.view())
            + " AND w.well_code=v.well_code ");
        row && row.next()) {
        well_id = row.integer(1);
        well_code = row.text(2);
        descrip = row.text(3);
        identified = 1;
    }
    if (!well_code.empty())
        return;
    const std::string sql = "SELECT well_code FROM " + sql::table("WELLS")
        + " WHERE well_name=" + sql::quote(well_name.view());
    Cursor row(sql);
    if (!row)
        reportError(sql);
    else if (row.next())
        well_code = row.text(1);
}

long Well::FindByCode(const char* code, int length)
{
    well_code = trimmedRight(keyOf(code, length).view());
    well_id = 0;
    const std::string sql = "SELECT v.well_id, w.well_name, w.units, v.descrip FROM "
        + sql::table("WELLS") + " w, " + sql::table("well_ident")
        + " v  WHERE w.well_code=" + sql::quote(well_code.view()) + " AND w.well_code=v.well_code ";
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return 1;
    }
    const bool found = row.next();
    if (found) {
        well_id = row.integer(1);
        well_name = row.text(2);
        units = row.letter(3);
        descrip = row.text(4);
        identified = 1;
    }
    // The header has reports of its own, after which no cursor may be left from a lost connection.
    row.close();
    if (found)
        ReadHeader();
    if (well_name.empty())
        well_name = well_code;
    return well_id;
}

const char* Well::StoredName() const
{
    static ResultText result;
    std::string name;
    {
        Cursor row("SELECT well_name FROM " + sql::table("WELLS")
            + " WHERE well_name=" + sql::quote(well_name.view()));
        while (row && row.next())
            name = row.text(1);
    }
    dbRollback();
    return result.keep(std::move(name));
}

int Well::GetWellNames(long id, char* nameOut, char* codeOut)
{
    FixedText<25> name("no name, id=" + std::to_string(id));
    FixedText<25> code("no code, id=" + std::to_string(id));
    const std::string sql = "SELECT w.well_name, w.well_code FROM " + sql::table("WELLS") + " w,"
        + sql::table("well_ident")
        + " v WHERE v.well_code=w.well_code AND v.well_id=" + sql::integer(id);
    Cursor row(sql);
    if (!row)
        reportDbFailureAs("Error getting well dets: " + sql, Fatal::No);
    const bool found = row && row.next();
    if (found) {
        name = row.text(1);
        code = row.text(2);
    }
    copyName(nameOut, name);
    copyName(codeOut, code);
    return found;
}

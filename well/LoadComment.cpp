// well/LoadComment.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "taxonomy/TextArgument.h"

#include <algorithm>

int Well::LoadComment(
    char disc, long usamp_id, const char* analyst, std::string& out, long interp_id) const
{
    out.clear();
    const std::string interpretation = interp_id != 0 ? " AND interp_id=" + sql::integer(interp_id)
                                                      : " AND (interp_id is null OR interp_id=0)";
    const std::string sql = "SELECT comments FROM " + sql::table("BCMMNTS")
        + " WHERE usamp_id=" + sql::integer(usamp_id) + interpretation
        + " AND disc_id=" + sql::quoteChar(disc) + " AND analyst=" + sql::quote(orEmpty(analyst));
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::Yes);
        return 1;
    }
    if (!row.next())
        return 1;
    out = row.text(1);
    return 0;
}

int Well::LoadComment(
    char disc, long usamp_id, const char* analyst, char* out, long interp_id) const
{
    constexpr std::size_t kRoom = 1023;
    std::string whole;
    const int result = LoadComment(disc, usamp_id, analyst, whole, interp_id);
    const FixedText<kRoom> kept(whole);
    std::copy_n(kept.c_str(), kept.size() + 1, out);
    return result;
}

// well/Litho.cpp
#include "well/Litho.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "well/Sample.h"

void Litho::save() const
{
    if (!top || !base)
        return;
    const std::string topId = sql::integer(top->samp_id), baseId = sql::integer(base->samp_id);
    const std::string codes = sql::table("ZRLITHO");
    runOrReport(
        "DELETE FROM " + codes + " WHERE top_id=" + topId + " OR base_id=" + baseId, Fatal::Yes);
    runOrReport("INSERT INTO " + codes + " (top_id, base_id, lithcode) VALUES (" + topId + ","
            + baseId + "," + sql::integer(lithcode) + ")",
        Fatal::Yes);
}

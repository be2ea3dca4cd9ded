// interp/Surface.cpp
#include "interp/Surface.h"

#include "db/Literals.h"
#include "dict/FirstRow.h"

Surface::Surface(long id)
{
    takeFirstRow("SELECT age, name, type, sch_id FROM " + sql::table("SURFACE")
            + " WHERE surface_id=" + sql::integer(id),
        Fatal::No, [this, id](const Cursor& row) {
            surface_id = id;
            age = static_cast<float>(row.number(1));
            name = row.text(2);
            type = static_cast<int>(row.integer(3));
            sch_id = row.integer(4);
        });
}

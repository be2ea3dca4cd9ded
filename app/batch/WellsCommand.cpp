// app/batch/WellsCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "store/Value.h"

#include <iostream>

namespace {

using enum TextTable::Align;

int listWells()
{
    const std::string select = "SELECT v.well_id, w.well_code, w.well_name, w.type, w.units, "
                               "w.operator, w.field, w.country FROM "
        + sql::table("WELLS") + " w, " + sql::table("WELL_IDENT")
        + " v WHERE v.well_code=w.well_code ORDER BY w.well_name, w.well_code";
    Cursor rows(select);
    if (!rows)
        return failed("The wells could not be read: " + select + "\n" + dbErrorText());
    TextTable table({{"number", Right}, {"code"}, {"name"}, {"type"}, {"units"}, {"operator"},
        {"field"}, {"country"}});
    while (rows.next()) {
        std::vector<std::string> cells{std::to_string(rows.integer(1))};
        for (short column = 2; column <= 8; ++column)
            cells.push_back(shownText(rows.text(column)));
        table.add(std::move(cells));
    }
    table.write(std::cout);
    return kDone;
}

} // namespace

void addWells(CLI::App& app, BatchOptions* options)
{
    addCommand(app, options, "wells", "List the wells", listWells);
}

// well/WellMaster.cpp
#include "well/WellMaster.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/SchemaInspection.h"
#include "well/Well.h"

#include <string_view>

int useWellsMaster = 0;

namespace {

/// Keeps `value` as the field keeps it, cut or narrowed; whether that differs from what was there.
template <typename Field, typename Value> bool keep(Field& field, const Value& value)
{
    const auto kept = static_cast<Field>(value);
    if (kept == field)
        return false;
    field = kept;
    return true;
}

template <auto Member> bool takeText(Well& well, const Cursor& row, short column)
{
    return keep(well.*Member, row.text(column));
}

template <auto Member> bool takeInteger(Well& well, const Cursor& row, short column)
{
    return keep(well.*Member, row.integer(column));
}

template <auto Member> bool takeFloat(Well& well, const Cursor& row, short column)
{
    return keep(well.*Member, static_cast<float>(row.number(column)));
}

template <auto Member> bool takeDate(Well& well, const Cursor& row, short column)
{
    return keep(well.*Member, sql::parsedDate(row.text(column).c_str()));
}

bool takeLetter(char& field, char letter, std::string_view accepted)
{
    return accepted.find(letter) != std::string_view::npos && keep(field, letter);
}

bool takeType(Well& well, const Cursor& row, short column)
{
    return takeLetter(well.type, row.letter(column), "WO");
}

bool takeUnits(Well& well, const Cursor& row, short column)
{
    return takeLetter(well.units, row.letter(column), "FM");
}

std::string availableColumns()
{
    std::string names;
    for (const MasterColumn& column : masterColumns) {
        if (column.available)
            names += std::string(column.name) + ",";
    }
    return names;
}

bool takeRow(Well& well, const Cursor& row)
{
    bool changed = false;
    short number = 0;
    for (const MasterColumn& column : masterColumns) {
        if (column.available && column.take(well, row, ++number))
            changed = true;
    }
    return changed;
}

} // namespace

std::array<MasterColumn, 21> masterColumns = {{
    {"WELL_NAME", takeText<&Well::well_name>},
    {"OPERATOR", takeText<&Well::operator_>},
    {"COUNTRY", takeText<&Well::country>},
    {"COUNTY", takeText<&Well::county>},
    {"OCS", takeText<&Well::ocs>},
    {"FIELD", takeText<&Well::field>},
    {"GRID_X", takeInteger<&Well::grid_x>},
    {"GRID_Y", takeInteger<&Well::grid_y>},
    {"SPUD_DATE", takeDate<&Well::spud_date>},
    {"COMP_DATE", takeDate<&Well::comp_date>},
    {"LAT_DEC", takeFloat<&Well::lat_dec>},
    {"LONG_DEC", takeFloat<&Well::long_dec>},
    {"TD", takeFloat<&Well::td>},
    {"SL", takeFloat<&Well::sl>},
    {"SB", takeFloat<&Well::sb>},
    {"RTE", takeFloat<&Well::rte>},
    {"KICKO", takeFloat<&Well::kicko>},
    {"DATUM", takeInteger<&Well::datum>},
    {"TYPE", takeType},
    {"UNITS", takeUnits},
    {"GEODATUM", takeText<&Well::geoDatum>},
}};

void Well::ProbeMasterColumns()
{
    for (MasterColumn& column : masterColumns)
        column.available = columnExists("wells_master", column.name);
}

int Well::RefreshFromMaster(int write)
{
    if (!useWellsMaster)
        return 0;
    std::string sql = "SELECT " + availableColumns();
    sql.pop_back(); // the comma behind the last column
    sql +=
        " FROM " + sql::table("WELLS_MASTER") + " WHERE well_code=" + sql::quote(well_code.view());
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::Yes);
        return 0;
    }
    const bool changed = row.next() && takeRow(*this, row);
    row.close();
    if (!write || !changed)
        return 0;
    WriteHeader(well_code);
    return 1;
}

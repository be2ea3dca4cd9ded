// well/WellHeader.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"

namespace {

/// One of the statements that together read the header.
struct HeaderPart {
    const char* select;
    void (*keep)(Well& well, const Cursor& row);
};

constexpr HeaderPart kHeaderParts[] = {
    {"SELECT well_name,operator,country,field,grid_x,grid_y FROM ",
        [](Well& well, const Cursor& row) {
            well.well_name = row.text(1);
            well.operator_ = row.text(2);
            well.country = row.text(3);
            well.field = row.text(4);
            well.grid_x = row.integer(5);
            well.grid_y = row.integer(6);
        }},
    {"SELECT lat_dec,long_dec FROM ",
        [](Well& well, const Cursor& row) {
            well.lat_dec = row.number(1);
            well.long_dec = row.number(2);
        }},
    {"SELECT td,sl,sb,rte,type,units,datum,spud_date,comp_date,geoDatum,kicko FROM ",
        [](Well& well, const Cursor& row) {
            well.td = static_cast<float>(row.number(1));
            well.sl = static_cast<float>(row.number(2));
            well.sb = static_cast<float>(row.number(3));
            well.rte = static_cast<float>(row.number(4));
            well.type = row.letter(5);
            well.units = row.letter(6);
            well.datum = static_cast<signed char>(row.integer(7));
            well.spud_date = sql::parsedDate(row.text(8).c_str());
            well.comp_date = sql::parsedDate(row.text(9).c_str());
            well.geoDatum = row.text(10);
            well.kicko = static_cast<float>(row.number(11));
        }},
    {"SELECT ocs,county FROM ",
        [](Well& well, const Cursor& row) {
            well.ocs = row.text(1);
            well.county = row.text(2);
        }},
};

/// False after reporting that the statement could not be run.
bool readPart(Well& well, const HeaderPart& part)
{
    const std::string sql =
        part.select + sql::table("wells") + " WHERE well_code=" + sql::quote(well.well_code.view());
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    if (row.next())
        part.keep(well, row);
    return true;
}

std::string dateOrNull(Date date) { return date.isValid() ? sql::date(date) : "NULL"; }

std::string identityValues(const Well& well)
{
    return "well_name=" + sql::quote(well.well_name.view()) + ",well_code="
        + sql::quote(well.well_code.view()) + ",operator=" + sql::quote(well.operator_.view())
        + ",country=" + sql::quote(well.country.view()) + ",field=" + sql::quote(well.field.view())
        + ",grid_x=" + sql::integer(well.grid_x) + ",grid_y=" + sql::integer(well.grid_y)
        + ",spud_date=" + dateOrNull(well.spud_date) + ",comp_date=" + dateOrNull(well.comp_date);
}

std::string positionValues(const Well& well)
{
    const std::string values =
        "lat_dec=" + sql::number(well.lat_dec) + ",long_dec=" + sql::number(well.long_dec);
    return well.geoDatum.empty() ? values : values + ",geoDatum=" + sql::quote(well.geoDatum);
}

std::string depthValues(const Well& well)
{
    return "td=" + sql::number(well.td) + ",kicko=" + sql::number(well.kicko)
        + ",sl=" + sql::number(well.sl) + ",sb=" + sql::number(well.sb)
        + ",rte=" + sql::number(well.rte) + ",type=" + sql::quoteChar(well.type)
        + ",units=" + sql::quoteChar(well.units) + ",datum=" + sql::integer(well.datum);
}

std::string regionValues(const Well& well)
{
    return "ocs=" + sql::quote(well.ocs.view()) + ",county=" + sql::quote(well.county.view());
}

} // namespace

void Well::ReadHeader()
{
    if (well_id == 0)
        return;
    for (const HeaderPart& part : kHeaderParts) {
        if (!readPart(*this, part))
            return;
    }
    RefreshFromMaster(1);
}

int Well::WriteHeader(const char* oldCode)
{
    const std::string where = " WHERE well_code=" + sql::quote(oldCode);
    for (const auto values : {identityValues, positionValues, depthValues, regionValues}) {
        const std::string sql = "UPDATE " + sql::table("wells") + " SET " + values(*this) + where;
        if (!runStatement(sql))
            reportDbFailure(sql, Fatal::Yes);
    }
    return 1;
}

// interp/IGDLookups.cpp
#include "interp/IGDLookups.h"

#include "db/Literals.h"
#include "dict/FirstRow.h"
#include "taxonomy/TextArgument.h"
#include "util/FixedText.h"

#include <cstring>

namespace {

std::string select(const char* columns, const char* table)
{
    return std::string("SELECT ") + columns + " FROM " + sql::table(table) + " WHERE ";
}

void copyName(char* nameOut, const std::string& name)
{
    if (nameOut)
        std::strcpy(nameOut, FixedText<80>(name));
}

template <typename T> void assign(T* out, long value)
{
    if (out)
        *out = static_cast<T>(value);
}

} // namespace

long schemeIdByName(int igd_type, const char* name)
{
    long sch_id = 0;
    takeFirstRow(select("sch_id", "IGD_SCH") + "igd_type=" + sql::integer(igd_type)
            + " AND name=" + sql::quote(orEmpty(name)),
        Fatal::No, [&](const Cursor& row) { sch_id = row.integer(1); });
    return sch_id;
}

long termByAbr(long sch_id, const char* abr, char* nameOut, int* hierOut)
{
    long igd_id = 0;
    takeFirstRow(select("igd_id, name, hier", "IGD_DICT") + "sch_id=" + sql::integer(sch_id)
            + " AND abr=" + sql::quote(orEmpty(abr)),
        Fatal::No, [&](const Cursor& row) {
            igd_id = row.integer(1);
            copyName(nameOut, row.text(2));
            assign(hierOut, row.integer(3));
        });
    return igd_id;
}

long termNameAndRank(long igd_id, char* nameOut, int* hierOut)
{
    const FirstRow term =
        takeFirstRow(select("name, hier", "IGD_DICT") + "igd_id=" + sql::integer(igd_id), Fatal::No,
            [&](const Cursor& row) {
                copyName(nameOut, row.text(1));
                assign(hierOut, row.integer(2));
            });
    return term == FirstRow::Taken ? igd_id : 0;
}

float termAge(long igd_id, char end, long* schIdOut)
{
    float age = 0;
    const char* columns = end == 'B' ? "sch_id,  l_age " : "sch_id,  u_age ";
    takeFirstRow(select(columns, "IGD_DICT") + "igd_id=" + sql::integer(igd_id), Fatal::No,
        [&](const Cursor& row) {
            assign(schIdOut, row.integer(1));
            age = static_cast<float>(row.number(2));
        });
    return age;
}

void deleteWellRows(int igd_type, long well_id)
{
    if (igd_type != 12 && igd_type != 13)
        return;
    const std::string sql = "DELETE FROM " + sql::table(igd_type == 12 ? "ZRILITH" : "ZRQLITH")
        + " WHERE well_id =" + sql::integer(well_id);
    if (!runStatement(sql))
        reportDbFailure(sql, Fatal::No);
}
